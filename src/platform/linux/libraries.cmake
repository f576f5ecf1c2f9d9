# The libraries of the system that the rooms for Linux are made of.
pkg_check_modules(CURL REQUIRED IMPORTED_TARGET GLOBAL libcurl)
find_package(Qt6 6.4 REQUIRED COMPONENTS Core DBus Gui Widgets)
pkg_check_modules(SYSTEMD REQUIRED IMPORTED_TARGET GLOBAL libsystemd)
pkg_check_modules(XCB REQUIRED IMPORTED_TARGET GLOBAL xcb xcb-xkb)
pkg_check_modules(XCB_RANDR REQUIRED IMPORTED_TARGET GLOBAL xcb-randr)
pkg_check_modules(XCB_INPUT REQUIRED IMPORTED_TARGET GLOBAL
    x11 xcb xcb-randr xcb-xfixes xcb-xinput xcb-xtest)
pkg_check_modules(XCB_RENDER REQUIRED IMPORTED_TARGET GLOBAL xcb xcb-render xcb-renderutil)
pkg_check_modules(XCB_RES REQUIRED IMPORTED_TARGET GLOBAL xcb xcb-res)
pkg_check_modules(XKB_REGISTRY REQUIRED IMPORTED_TARGET GLOBAL xkbcommon xkbregistry)

# Qt as every room uses it.
add_library(brindlex_qt INTERFACE)
target_link_libraries(brindlex_qt INTERFACE Qt6::Core)
target_compile_definitions(brindlex_qt INTERFACE QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII)

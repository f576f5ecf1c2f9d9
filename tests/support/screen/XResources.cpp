#include "support/screen/XResources.h"

#include <sstream>

namespace brindlex {

void setDotsPerInch(const XConnection& server, double dotsPerInch)
{
    std::ostringstream resources;
    resources << "Xcursor.size:\t24\nXft.dpi:\t" << dotsPerInch << "\n";
    const auto text = resources.str();
    xcb_change_property(server.get(), XCB_PROP_MODE_REPLACE, server.root(),
        XCB_ATOM_RESOURCE_MANAGER, XCB_ATOM_STRING, 8, static_cast<std::uint32_t>(text.size()),
        text.data());
    server.sync();
}

} // namespace brindlex

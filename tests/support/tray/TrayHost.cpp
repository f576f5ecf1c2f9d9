#include "support/tray/TrayHost.h"

#include "foundation/FatalError.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <systemd/sd-bus.h>

namespace brindlex {
namespace {

constexpr auto trayWatcher = "org.kde.StatusNotifierWatcher";
constexpr auto trayWatcherPath = "/StatusNotifierWatcher";
constexpr auto trayItem = "org.kde.StatusNotifierItem";
constexpr auto trayItemPath = "/StatusNotifierItem";
constexpr auto trayMenu = "com.canonical.dbusmenu";
constexpr auto trayMenuPath = "/MenuBar";

std::string traySessionBus()
{
    const auto* const address = std::getenv("DBUS_SESSION_BUS_ADDRESS");
    return address ? address : "";
}

TrayHost& hostIn(void* data) { return *static_cast<TrayHost*>(data); }

std::string readText(sd_bus_message* message)
{
    const char* text = "";
    sd_bus_message_read_basic(message, SD_BUS_TYPE_STRING, &text);
    return text;
}

/// The value of a variant as text.
std::string readVariant(sd_bus_message* message)
{
    char type = 0;
    const char* contents = "";
    sd_bus_message_peek_type(message, &type, &contents);
    const std::string signature = contents;
    sd_bus_message_enter_container(message, SD_BUS_TYPE_VARIANT, contents);
    std::string value;
    if (signature == "s" || signature == "o") {
        const char* text = "";
        sd_bus_message_read_basic(message, signature[0], &text);
        value = text;
    } else if (signature == "b") {
        int flag = 0;
        sd_bus_message_read_basic(message, SD_BUS_TYPE_BOOLEAN, &flag);
        value = flag != 0 ? "true" : "false";
    } else if (signature == "a(iiay)") {
        sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, "(iiay)");
        while (sd_bus_message_enter_container(message, SD_BUS_TYPE_STRUCT, "iiay") > 0) {
            int width = 0;
            int height = 0;
            const void* bytes = nullptr;
            std::size_t size = 0;
            sd_bus_message_read(message, "ii", &width, &height);
            sd_bus_message_read_array(message, SD_BUS_TYPE_BYTE, &bytes, &size);
            const bool isWhole = size == static_cast<std::size_t>(width * height) * 4;
            value += (isWhole ? "" : "broken ") + std::to_string(width) + " ";
            sd_bus_message_exit_container(message);
        }
        sd_bus_message_exit_container(message);
    } else
        sd_bus_message_skip(message, signature.c_str());
    sd_bus_message_exit_container(message);
    return value;
}

std::map<std::string, std::string> readVariants(sd_bus_message* message)
{
    std::map<std::string, std::string> values;
    sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, "{sv}");
    while (sd_bus_message_enter_container(message, SD_BUS_TYPE_DICT_ENTRY, "sv") > 0) {
        const auto name = readText(message);
        values[name] = readVariant(message);
        sd_bus_message_exit_container(message);
    }
    sd_bus_message_exit_container(message);
    return values;
}

} // namespace

/// What the bus library calls.
struct TrayHost::Handlers {
    static int registerItem(sd_bus_message* call, void* data, sd_bus_error* error)
    {
        auto& host = hostIn(data);
        ++host.registrations_;
        if (host.refuses_)
            return sd_bus_error_set_const(error, SD_BUS_ERROR_ACCESS_DENIED, "No room");
        const auto name = readText(call);
        if (std::find(host.items_.begin(), host.items_.end(), name) == host.items_.end())
            host.items_.push_back(name);
        sd_bus_emit_signal(host.bus_, trayWatcherPath, trayWatcher, "StatusNotifierItemRegistered",
            "s", (name + trayItemPath).c_str());
        return sd_bus_reply_method_return(call, nullptr);
    }
    static int hasHost(sd_bus*, const char*, const char*, const char*, sd_bus_message* reply,
        void* data, sd_bus_error*)
    {
        return sd_bus_message_append(reply, "b", hostIn(data).hasHost_ ? 1 : 0);
    }
    static int ownerChanged(sd_bus_message* signal, void* data, sd_bus_error*)
    {
        const auto name = readText(signal);
        readText(signal);
        if (readText(signal).empty())
            hostIn(data).forget(name);
        return 0;
    }
    static int menuChanged(sd_bus_message*, void* data, sd_bus_error*)
    {
        hostIn(data).menu_.clear();
        return 0;
    }
    static int properties(sd_bus_message* reply, void* data, sd_bus_error*)
    {
        hostIn(data).asksForProperties_ = false;
        hostIn(data).readProperties(reply);
        return 0;
    }
    static int menu(sd_bus_message* reply, void* data, sd_bus_error*)
    {
        hostIn(data).asksForMenu_ = false;
        hostIn(data).readMenu(reply);
        return 0;
    }

    static constexpr std::array<sd_bus_vtable, 6> watcher{{
        SD_BUS_VTABLE_START(0),
        SD_BUS_METHOD(
            "RegisterStatusNotifierItem", "s", "", registerItem, SD_BUS_VTABLE_UNPRIVILEGED),
        SD_BUS_PROPERTY("IsStatusNotifierHostRegistered", "b", hasHost, 0, 0),
        SD_BUS_SIGNAL("StatusNotifierHostRegistered", "", 0),
        SD_BUS_SIGNAL("StatusNotifierItemRegistered", "s", 0),
        SD_BUS_VTABLE_END,
    }};
};

TrayHost::TrayHost() : TrayHost(traySessionBus()) { }

TrayHost::TrayHost(const std::string& busAddress)
{
    sd_bus_new(&bus_);
    sd_bus_set_address(bus_, busAddress.c_str());
    sd_bus_set_bus_client(bus_, 1);
    if (sd_bus_start(bus_) < 0)
        fatalError("The tray has no session bus.");
    sd_bus_add_object_vtable(
        bus_, nullptr, trayWatcherPath, trayWatcher, Handlers::watcher.data(), this);
    sd_bus_match_signal(bus_, nullptr, "org.freedesktop.DBus", nullptr, "org.freedesktop.DBus",
        "NameOwnerChanged", Handlers::ownerChanged, this);
    sd_bus_match_signal(
        bus_, nullptr, nullptr, nullptr, trayMenu, "LayoutUpdated", Handlers::menuChanged, this);
    sd_bus_request_name(bus_, trayWatcher, SD_BUS_NAME_QUEUE);
}

TrayHost::~TrayHost() { sd_bus_flush_close_unref(bus_); }

void TrayHost::setHost(bool hasHost)
{
    hasHost_ = hasHost;
    sd_bus_emit_signal(bus_, trayWatcherPath, trayWatcher,
        hasHost ? "StatusNotifierHostRegistered" : "StatusNotifierHostUnregistered", "");
}

const std::vector<std::string>& TrayHost::items()
{
    process();
    return items_;
}

int TrayHost::registrations()
{
    process();
    return registrations_;
}

std::map<std::string, std::string> TrayHost::properties()
{
    process();
    requestProperties();
    return properties_;
}

std::vector<TrayHost::Entry> TrayHost::menu()
{
    process();
    requestMenu();
    return menu_;
}

void TrayHost::choose(const std::string& label) { report(label, "clicked"); }

void TrayHost::report(const std::string& label, const std::string& event)
{
    if (items_.empty())
        return;
    sd_bus_call_method_async(bus_, nullptr, items_.front().c_str(), trayMenuPath, trayMenu, "Event",
        nullptr, nullptr, "isvu", numbers_[label], event.c_str(), "i", 0, 0U);
    process();
}

void TrayHost::process()
{
    while (sd_bus_process(bus_, nullptr) > 0) { }
    sd_bus_flush(bus_);
}

void TrayHost::callItem(const char* operation)
{
    if (!items_.empty())
        sd_bus_call_method_async(bus_, nullptr, items_.front().c_str(), trayItemPath, trayItem,
            operation, nullptr, nullptr, "ii", 0, 0);
    process();
}

void TrayHost::requestProperties()
{
    if (items_.empty() || asksForProperties_)
        return;
    asksForProperties_ = true;
    sd_bus_call_method_async(bus_, nullptr, items_.front().c_str(), trayItemPath,
        "org.freedesktop.DBus.Properties", "GetAll", Handlers::properties, this, "s", trayItem);
}

void TrayHost::requestMenu()
{
    if (items_.empty() || asksForMenu_)
        return;
    asksForMenu_ = true;
    sd_bus_call_method_async(bus_, nullptr, items_.front().c_str(), trayMenuPath, trayMenu,
        "GetLayout", Handlers::menu, this, "iias", 0, -1, 0);
}

void TrayHost::readProperties(sd_bus_message* reply)
{
    if (sd_bus_message_is_method_error(reply, nullptr) == 0)
        properties_ = readVariants(reply);
}

void TrayHost::readMenu(sd_bus_message* reply)
{
    if (sd_bus_message_is_method_error(reply, nullptr) != 0)
        return;
    menu_.clear();
    sd_bus_message_skip(reply, "u");
    sd_bus_message_enter_container(reply, SD_BUS_TYPE_STRUCT, "ia{sv}av");
    sd_bus_message_skip(reply, "ia{sv}");
    sd_bus_message_enter_container(reply, SD_BUS_TYPE_ARRAY, "v");
    while (sd_bus_message_enter_container(reply, SD_BUS_TYPE_VARIANT, "(ia{sv}av)") > 0) {
        readEntry(reply);
        sd_bus_message_exit_container(reply);
    }
}

void TrayHost::readEntry(sd_bus_message* reply)
{
    sd_bus_message_enter_container(reply, SD_BUS_TYPE_STRUCT, "ia{sv}av");
    int number = 0;
    sd_bus_message_read_basic(reply, SD_BUS_TYPE_INT32, &number);
    auto properties = readVariants(reply);
    sd_bus_message_skip(reply, "av");
    sd_bus_message_exit_container(reply);
    const auto& label = properties["label"];
    numbers_[label] = number;
    menu_.push_back({label, properties["enabled"] != "false", properties["type"] == "separator"});
}

void TrayHost::forget(const std::string& name)
{
    if (std::erase(items_, name) == 0)
        return;
    properties_.clear();
    menu_.clear();
    asksForProperties_ = false;
    asksForMenu_ = false;
}

} // namespace brindlex

#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

struct sd_bus;
struct sd_bus_message;
struct sd_bus_slot;

namespace brindlex {

/// A panel of the test's own that draws icons of the StatusNotifierItem kind: the watcher and its
/// one host, on the session bus, with the menus of the items (`com.canonical.dbusmenu`).
///
/// It works while it is asked something, and waits for nobody: what is asked for is what has been
/// received so far, and asks for the newest. Its end is like that of a panel that crashes.
class TrayHost {
public:
    /// An entry as a menu shows it.
    struct Entry {
        std::string label{};
        bool isEnabled = true;
        bool isDivider = false;

        bool operator==(const Entry&) const = default;
    };

    /// Owns the name of the watcher, or waits for it to be free.
    TrayHost();
    explicit TrayHost(const std::string& busAddress);
    ~TrayHost();
    TrayHost(const TrayHost&) = delete;
    TrayHost& operator=(const TrayHost&) = delete;

    /// Refuses items from now on.
    void refuseItems() { refuses_ = true; }
    /// Whether the host is there, as distinct from the watcher.
    void setHost(bool hasHost);

    /// The bus names of the items in the list.
    const std::vector<std::string>& items();
    /// How many items have asked for a place in the list.
    int registrations();

    /// What the first item says of itself, as text: of a picture its width.
    std::map<std::string, std::string> properties();
    /// The menu of the first item.
    std::vector<Entry> menu();

    /// A primary click on the first item.
    void activate() { callItem("Activate"); }
    /// The request of a host that draws no menus.
    void askForMenu() { callItem("ContextMenu"); }
    /// Chooses an entry of the first item's menu by its label; `menu` has it.
    void choose(const std::string& label);
    /// Reports something else that has happened to the entry.
    void report(const std::string& label, const std::string& event);

private:
    struct Handlers;

    void process();
    void callItem(const char* operation);
    void requestProperties();
    void requestMenu();
    void readProperties(sd_bus_message* reply);
    void readMenu(sd_bus_message* reply);
    void readEntry(sd_bus_message* reply);
    void forget(const std::string& name);

    sd_bus* bus_ = nullptr;
    std::vector<std::string> items_;
    int registrations_ = 0;
    bool refuses_ = false;
    bool hasHost_ = true;
    std::map<std::string, std::string> properties_;
    bool asksForProperties_ = false;
    std::vector<Entry> menu_;
    std::map<std::string, int> numbers_;
    bool asksForMenu_ = false;
};

} // namespace brindlex

#pragma once

#include "platform/StatusItem.h"

#include <QMenu>

#include <functional>
#include <memory>
#include <vector>

namespace brindlex {

/// The menu of the program's icon where nobody else draws it. It is in memory while it is open.
/// Main thread only.
class TrayMenu {
public:
    TrayMenu() = default;
    ~TrayMenu();
    TrayMenu(const TrayMenu&) = delete;
    TrayMenu& operator=(const TrayMenu&) = delete;

    /// Opens the menu at the pointer, in the place of one that is open; `chosen` is called from the
    /// loop with the id of the item that the user chooses.
    void open(const std::vector<StatusMenuEntry>& entries, std::function<void(int id)> chosen);

    void close();

private:
    std::unique_ptr<QMenu> menu_;
};

} // namespace brindlex

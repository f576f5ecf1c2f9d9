#pragma once

#include "platform/InputSourceIdentifiers.h"

#include <map>
#include <string>
#include <vector>

namespace brindlex {

/// What the database of keyboard layouts knows of one.
struct XkbLayoutName {
    /// In the user's language; the layout's own code for a layout that is not in the database.
    std::string name{};
    /// The ISO 639-2 code of its first language; empty when there is none.
    std::string language{};

    bool operator==(const XkbLayoutName&) const = default;
};

/// The names of keyboard layouts.
///
/// The database takes some milliseconds and megabytes to read: it is read when a layout is
/// requested that was not requested before, and let go at once. One thread only.
class XkbRegistry {
public:
    /// The names of the layouts, in their order.
    std::vector<XkbLayoutName> names(const std::vector<XkbLayout>& layouts);

private:
    void read(const std::vector<XkbLayout>& layouts);

    std::map<XkbLayout, XkbLayoutName> known_;
};

/// A text of another program's catalogue, such as "xkeyboard-config", in the user's language; the
/// text itself when the catalogue has no translation.
std::string translated(const std::string& catalogue, const std::string& text);

} // namespace brindlex

#pragma once

#include <QString>
#include <QVariant>

#include <vector>

namespace brindlex {

/// What Fcitx 5 publishes of one of its input methods, as far as it is of use here.
struct Fcitx5Method {
    QString method{};
    QString name{};

    bool operator==(const Fcitx5Method&) const = default;
};

/// Reads all the methods that there are, a(ssssssb), and the members of a group, a(ss), whose
/// layout stands where the name stands; none when the value is not that.
std::vector<Fcitx5Method> fcitx5Methods(const QVariant& value);
std::vector<Fcitx5Method> fcitx5GroupMembers(const QVariant& value);

} // namespace brindlex

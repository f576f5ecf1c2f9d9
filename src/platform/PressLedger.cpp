#include "platform/PressLedger.h"

#include <limits>

namespace brindlex {

bool PressLedger::pressed(DeviceIdentifier device, Kind kind, std::int64_t code, bool wentOn)
{
    const auto [press, isNew] = pressesThatWentOn_.try_emplace({device, {kind, code}}, wentOn);
    return isNew && wentOn;
}

bool PressLedger::released(DeviceIdentifier device, Kind kind, std::int64_t code)
{
    const auto press = pressesThatWentOn_.extract({device, {kind, code}});
    return press.empty() || press.mapped();
}

bool PressLedger::isOpen(DeviceIdentifier device, Kind kind, std::int64_t code) const
{
    return pressesThatWentOn_.contains({device, {kind, code}});
}

std::vector<PressLedger::Press> PressLedger::forget(DeviceIdentifier device)
{
    std::vector<Press> releases;
    auto open = pressesThatWentOn_.lower_bound(
        {device, Press{Kind::button, std::numeric_limits<std::int64_t>::min()}});
    while (open != pressesThatWentOn_.end() && open->first.first == device) {
        if (open->second)
            releases.push_back(open->first.second);
        open = pressesThatWentOn_.erase(open);
    }
    return releases;
}

} // namespace brindlex

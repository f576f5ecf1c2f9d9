#include "platform/PressLedger.h"

namespace brindlex {

void PressLedger::pressed(DeviceIdentifier device, Kind kind, std::int64_t code, bool wentOn)
{
    pressesThatWentOn_.try_emplace({device, {kind, code}}, wentOn);
}

bool PressLedger::released(DeviceIdentifier device, Kind kind, std::int64_t code)
{
    const auto press = pressesThatWentOn_.extract({device, {kind, code}});
    return press.empty() || press.mapped();
}

} // namespace brindlex

#include "fuzz/StoredRecord.h"

#include "eventtap/HotkeyCombo.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    brindlex::checkStoredRecord<brindlex::HotkeyCombo>(brindlex::textOf(bytes, size));
    return 0;
}

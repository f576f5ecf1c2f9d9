#include "fuzz/StoredRecord.h"

#include "mouse/MouseConfig.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    brindlex::checkStoredRecord<brindlex::MouseConfig>(brindlex::textOf(bytes, size));
    return 0;
}

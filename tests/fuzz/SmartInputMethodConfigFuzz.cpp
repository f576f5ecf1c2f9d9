#include "fuzz/StoredRecord.h"

#include "inputmethod/SmartInputMethodConfig.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    brindlex::checkStoredRecord<brindlex::SmartInputMethodConfig>(brindlex::textOf(bytes, size));
    return 0;
}

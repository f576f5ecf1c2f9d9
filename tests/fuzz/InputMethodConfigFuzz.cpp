#include "fuzz/StoredRecord.h"

#include "inputmethod/InputMethodConfig.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    brindlex::checkStoredRecord<brindlex::InputMethodConfig>(brindlex::textOf(bytes, size));
    return 0;
}

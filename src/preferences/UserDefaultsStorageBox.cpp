#include "preferences/UserDefaultsStorageBox.h"

#include <algorithm>
#include <cmath>

namespace brindlex {

bool hasOnlyFiniteNumbers(const Json& document)
{
    if (document.is_number_float())
        return std::isfinite(document.get<double>());
    return !document.is_structured()
        || std::all_of(document.begin(), document.end(), hasOnlyFiniteNumbers);
}

} // namespace brindlex

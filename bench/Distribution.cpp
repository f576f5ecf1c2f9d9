#include "Distribution.h"

#include <algorithm>

namespace brindlex {

Distribution distributionOf(std::vector<double> values)
{
    if (values.empty())
        return {};
    std::ranges::sort(values);
    const auto at = [&](double share) {
        return values[static_cast<std::size_t>(share * static_cast<double>(values.size() - 1))];
    };
    return {values.front(), at(0.5), at(0.99), values.back(), values.size()};
}

} // namespace brindlex

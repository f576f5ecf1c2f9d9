#include "Distribution.h"

#include <algorithm>
#include <cstdio>
#include <utility>

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

void printDistribution(const char* what, std::vector<double> values, const char* unit)
{
    const auto all = distributionOf(std::move(values));
    std::printf("%-44s median %8.3f  p99 %8.3f  min %8.3f  max %8.3f  %s, n %zu\n", what,
        all.median, all.worstOfHundred, all.least, all.most, unit, all.count);
}

} // namespace brindlex

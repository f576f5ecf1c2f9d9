#pragma once

#include <cstddef>
#include <vector>

namespace brindlex {

/// The middle and the ends of what was measured, in the unit of the values; all 0 without a value.
struct Distribution {
    double least = 0;
    double median = 0;
    double worstOfHundred = 0;
    double most = 0;
    std::size_t count = 0;
};

Distribution distributionOf(std::vector<double> values);

/// Prints it in a line, behind what was measured.
void printDistribution(const char* what, std::vector<double> values, const char* unit);

} // namespace brindlex

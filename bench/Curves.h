#pragma once

#include <string>
#include <vector>

namespace brindlex {

/// One line of a diagram.
struct Curve {
    struct Place {
        double x = 0;
        double y = 0;
    };

    std::string name{};
    std::vector<Place> places{};
};

/// Curves that share their axes, both of which begin at 0.
struct Diagram {
    std::string title{};
    std::string xAxis{};
    std::string yAxis{};
    double xEnd = 1;
    double yEnd = 1;
    std::vector<Curve> curves{};
};

/// How the mouse feels: the factor of the wheel's acceleration, the way of a smooth scroll and that
/// of a switch between spaces, from the program's own functions.
std::vector<Diagram> mouseCurves();

} // namespace brindlex

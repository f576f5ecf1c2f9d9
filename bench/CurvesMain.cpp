#include "CurveDrawing.h"

#include <fstream>
#include <iostream>

/// Prints the curves of the mouse, one place in each line; with the name of a file draws them into
/// it too.
int main(int count, char** arguments)
{
    using namespace brindlex;
    const auto diagrams = mouseCurves();
    std::cout << "diagram,curve,x,y\n";
    for (const auto& diagram : diagrams)
        for (const auto& curve : diagram.curves)
            for (const auto& place : curve.places)
                std::cout << '"' << diagram.title << "\",\"" << curve.name << "\"," << place.x
                          << "," << place.y << "\n";
    if (count < 2)
        return 0;
    std::ofstream file(arguments[1]);
    file << drawing(diagrams);
    file.close();
    if (file)
        return 0;
    std::cerr << "Cannot write " << arguments[1] << std::endl;
    return 1;
}

#include "tour/TourSteps.h"

#include <iostream>

/// Plays the guided tour; the one argument is the folder for the pictures.
int main(int count, char** arguments)
{
    using namespace brindlex;
    const std::filesystem::path pictures = count > 1 ? arguments[1] : "tour";
    std::error_code error;
    std::filesystem::create_directories(pictures, error);
    if (error) {
        std::cerr << "Cannot make " << pictures.string() << ": " << error.message() << std::endl;
        return 1;
    }

    TourReport report;
    report.tell("A desktop without a screen is made: two windows to write in and a browser.");
    TourDesktop desk;
    playTour(desk, report, std::filesystem::absolute(pictures));
    if (const auto result = report.close(); result == 0)
        return result;
    std::cerr << desk.program->report() << std::endl;
    return 1;
}

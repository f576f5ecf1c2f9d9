#include "tour/MouseChapter.h"
#include "tour/TourSteps.h"

#include <iostream>

namespace brindlex {
namespace {

void playWritingChapter(TourReport& report)
{
    report.tell("A desktop without a screen is made: two windows to write in and a browser.");
    TourDesktop desk;
    playTour(desk, report);
    if (!report.isGood())
        std::cerr << desk.program->report() << std::endl;
}

} // namespace
} // namespace brindlex

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

    TourReport report(std::filesystem::absolute(pictures));
    playWritingChapter(report);
    playMouseChapter(report);
    return report.close();
}

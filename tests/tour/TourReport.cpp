#include "tour/TourReport.h"

#include "support/screen/Screenshot.h"

#include <iostream>

namespace brindlex {

void TourReport::tell(const std::string& words) { std::cout << "\n" << words << std::endl; }

bool TourReport::check(bool holds, const std::string& words)
{
    ++checks_;
    failures_ += !holds;
    std::cout << (holds ? "  ✓ " : "  ✗ NOT SO: ") << words << std::endl;
    return holds;
}

void TourReport::picture(const XConnection& server, const std::string& name)
{
    const auto file = pictures_ / (name + ".png");
    check(Screenshot(server).save(file), "Picture: " + file.string());
}

int TourReport::close()
{
    if (failures_ == 0)
        tell("All " + std::to_string(checks_) + " observations were as they should be.");
    else
        tell(std::to_string(failures_) + " of " + std::to_string(checks_)
            + " observations were not as they should be.");
    return failures_ == 0 ? 0 : 1;
}

} // namespace brindlex

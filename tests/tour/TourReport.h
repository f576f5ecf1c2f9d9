#pragma once

#include <string>

namespace brindlex {

/// What the tour tells while it plays, line by line on the standard output.
class TourReport {
public:
    /// Says what is done now.
    void tell(const std::string& words);

    /// Says what came of it, and whether it is as it should be; answers `holds`.
    bool check(bool holds, const std::string& words);

    /// Whether everything was as it should be so far.
    bool isGood() const { return failures_ == 0; }

    /// Says how it all went; 0 when everything was as it should be.
    int close();

private:
    int checks_ = 0;
    int failures_ = 0;
};

} // namespace brindlex

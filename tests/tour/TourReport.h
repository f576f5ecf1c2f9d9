#pragma once

#include "support/screen/XConnection.h"

#include <filesystem>
#include <string>

namespace brindlex {

/// What the tour tells while it plays, line by line on the standard output, and the pictures that
/// it leaves.
class TourReport {
public:
    /// Pictures are left in this folder.
    explicit TourReport(std::filesystem::path pictures) : pictures_(std::move(pictures)) { }

    /// Says what is done now.
    void tell(const std::string& words);

    /// Says what came of it, and whether it is as it should be; returns `holds`.
    bool check(bool holds, const std::string& words);

    /// Leaves a picture of the whole screen under this name.
    void picture(const XConnection& server, const std::string& name);

    /// Whether everything was as it should be so far.
    bool isGood() const { return failures_ == 0; }

    /// Says how it all went; 0 when everything was as it should be.
    int close();

private:
    std::filesystem::path pictures_;
    int checks_ = 0;
    int failures_ = 0;
};

} // namespace brindlex

#pragma once

#include <chrono>
#include <optional>
#include <string>

namespace brindlex {

/// One line that a child process writes to a descriptor, such as the address it listens at.
class DescriptorLine {
public:
    DescriptorLine();
    ~DescriptorLine();
    DescriptorLine(const DescriptorLine&) = delete;
    DescriptorLine& operator=(const DescriptorLine&) = delete;

    /// What the child writes to; this process's copy is closed by `read`.
    int writingEnd() const { return writing_; }

    /// The line without its end; nothing when the child closed first or the deadline passed.
    std::optional<std::string> read(std::chrono::milliseconds deadline);

private:
    int reading_ = -1;
    int writing_ = -1;
};

} // namespace brindlex

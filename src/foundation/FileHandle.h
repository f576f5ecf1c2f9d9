#pragma once

#include <cstddef>
#include <string_view>
#include <utility>

namespace brindlex {

/// An open file or socket of the system; its destruction closes it. Holds nothing when
/// default-constructed or made from a negative descriptor.
class FileHandle {
public:
    FileHandle() = default;
    explicit FileHandle(int descriptor) : descriptor_(descriptor) { }
    ~FileHandle() { close(); }

    FileHandle(FileHandle&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) { }
    FileHandle& operator=(FileHandle&& other) noexcept;
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;

    explicit operator bool() const { return descriptor_ >= 0; }
    int descriptor() const { return descriptor_; }

    /// Writes all the bytes, in as many steps as the system wants. False, with the reason in
    /// `errno`, when some could not be written.
    bool writeAll(std::string_view bytes) const { return writeWhatFits(bytes) == bytes.size(); }

    /// The same; how many bytes were written before the first that could not be.
    std::size_t writeWhatFits(std::string_view bytes) const;

    /// False, with the reason in `errno`, when the system reports that earlier writes were lost.
    bool close();

private:
    int descriptor_ = -1;
};

} // namespace brindlex

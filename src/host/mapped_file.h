// Files in memory, read only, as the processor touches them.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <utility>

namespace ZrProj {

/// A plain file's bytes, which begin on a page of their own, as long as the object lives. Links are followed; pipes,
/// devices and directories are not opened, and nothing waits. A file that somebody cuts short meanwhile ends the
/// program that reads on, as it does with every mapping; one that is replaced as a whole does not.
class MappedFile {
public:
    MappedFile() = default;
    explicit MappedFile(std::string const& name) noexcept;
    ~MappedFile();
    MappedFile(MappedFile&& other) noexcept
        : bytes_(std::exchange(other.bytes_, {})), open_(std::exchange(other.open_, false)) {}
    MappedFile& operator=(MappedFile&& other) noexcept {
        std::swap(bytes_, other.bytes_);
        std::swap(open_, other.open_);
        return *this;
    }

    /// Whether the file is a plain one and could be mapped; one without bytes is, too.
    bool isOpen() const noexcept { return open_; }
    std::span<std::byte const> bytes() const noexcept { return bytes_; }

private:
    std::span<std::byte const> bytes_;
    bool open_ = false;
};

} // namespace ZrProj

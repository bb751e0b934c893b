// What each platform must provide: one source a platform (platform_posix.cpp, platform_windows.cpp).
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace ZrProj {

/// A file name in a buffer of fixed size, closed by a null.
using FileName = std::array<char, 260>;

/// An environment variable's value, or null where it does not exist.
char const* environmentVariable(char const* name) noexcept;

/// The name of the file that the diagnostic log goes to.
FileName logFileName() noexcept;

/// The directory of the running program, without a closing separator; empty where it cannot be told.
std::string executableDirectory();

/// A plain file, open for reading at any offset as long as the object lives. Links are followed; pipes, devices and
/// directories are not opened, and nothing waits.
class PlainFile {
public:
    explicit PlainFile(std::string const& name) noexcept;
    ~PlainFile();
    PlainFile(PlainFile const&) = delete;
    PlainFile& operator=(PlainFile const&) = delete;

    /// Whether the file could be opened and is a plain one.
    bool isOpen() const noexcept { return open_; }
    /// Whether it is not open because there is nothing of that name.
    bool isMissing() const noexcept { return missing_; }
    /// The size in bytes that it had when it was opened.
    std::uint64_t size() const noexcept { return size_; }
    /// Reads `length` bytes from `offset` on. Returns false when the file does not give all of them.
    bool read(std::uint64_t offset, void* buffer, std::size_t length) const noexcept;

private:
    std::intptr_t handle_ = -1;
    std::uint64_t size_ = 0;
    bool open_ = false;
    bool missing_ = false;
};

/// Appends to a plain file, which is made (for its owner alone) where it does not exist. Links are not followed. What
/// cannot be written is lost.
void appendToFile(char const* fileName, std::string_view text) noexcept;

/// The local time as ctime writes it, its line feed included: "Thu Jan  1 00:00:00 1970\n".
std::array<char, 26> localTimeText() noexcept;

/// What the library does when it has been loaded and when it is about to be unloaded. The platform calls both;
/// frame/module.cpp defines them.
void onModuleStart() noexcept;
void onModuleEnd() noexcept;

} // namespace ZrProj

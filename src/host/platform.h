// What each platform must provide: one source a platform (platform_posix.cpp, platform_windows.cpp).
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace ZrProj {

/// A file name in a buffer of fixed size, closed by a null.
using FileName = std::array<char, 260>;

/// An environment variable's value, or null where it does not exist.
char const* environmentVariable(char const* name) noexcept;

/// Where the diagnostic log goes.
FileName logFileName() noexcept;

/// The directory of the running program, without a closing separator; empty where it cannot be told.
std::string executableDirectory();

/// Appends to a plain file, which is made (for its owner alone) where it does not exist. Links are not followed. What
/// cannot be written is lost.
void appendToFile(char const* fileName, std::string_view text) noexcept;

/// The local time as ctime writes it, its line feed included: "Thu Jan  1 00:00:00 1970\n".
std::array<char, 26> localTimeText() noexcept;

/// Called by the platform when the library has been loaded and when it is about to go; defined by the frame.
void onModuleStart() noexcept;
void onModuleEnd() noexcept;

} // namespace ZrProj

// The diagnostic log: plain text, switched on by the environment variable ZRPROJLOG when the library is loaded.
//
// No call here changes errno or the floating-point environment of the caller.
#pragma once

namespace ZrProj {

/// Switches the log on (not 0) or off (0), and names its file: "debug.log" for null. A name of 260 bytes or more
/// switches it off. Not to be called while another thread logs.
void LogInit(int enabled, char const* fileName) noexcept;

/// Whether the log is on.
bool LogIsEnabled() noexcept;

/// Appends the text, every "\n" as CR LF, at most 1024 bytes of it. Does nothing while the log is off. The file is
/// opened and closed by each call, so that the log survives a crash; a file that cannot be opened loses the line.
void LogWrite(char const* text) noexcept;

/// Appends a formatted text as LogWrite does; what is over 1039 bytes is cut.
[[gnu::format(printf, 1, 2)]] void LogPrintf(char const* format, ...) noexcept;

} // namespace ZrProj

// How the library reports a failure: a numbered error to the host's callback, or a failed assertion.
#pragma once

namespace ZrProj {

inline constexpr unsigned errorInternal = 20200; // failed assertions
inline constexpr unsigned errorOutOfMemory = 20201;
inline constexpr unsigned errorReadingFile = 20203;
inline constexpr unsigned errorBadParameter = 20205;

/// Reports an error to the host: asks first, and sends the texts when the answer is 1. A null or empty `message` means
/// the text of the error number. Returns false when there is no callback, when its last answer was 3, and when it
/// threw; otherwise true.
bool ReportError(char const* sourceFile, int line, unsigned errorNumber, char const* message) noexcept;

/// Logs a failed assertion and reports it to the host as error 20200. Always returns false, so that a caller can return
/// it.
bool AssertFailed(char const* sourceFile, int line) noexcept;

/// The text of an error number, or null where it has none.
char const* errorText(unsigned errorNumber) noexcept;

} // namespace ZrProj

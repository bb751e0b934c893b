#include "log.h"

#include "host/fpenv.h"
#include "host/platform.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string_view>

namespace ZrProj {

namespace {

std::atomic<std::int32_t> enabledFlag = 0;
constinit FileName logName = {"debug.log"};

/// Keeps what a host may look at after any call of the library.
class HostStateScope {
public:
    HostStateScope() noexcept : errno_(errno) {}
    ~HostStateScope() { errno = errno_; }
    HostStateScope(HostStateScope const&) = delete;
    HostStateScope& operator=(HostStateScope const&) = delete;

private:
    int errno_;
    FloatingPointScope floatingPoint_;
};

} // namespace

void LogInit(int enabled, char const* fileName) noexcept {
    std::string_view const name = fileName ? fileName : "debug.log";
    bool const fits = name.size() < logName.size(); // a name cut short would be another file
    if (fits)
        *std::ranges::copy(name, logName.begin()).out = '\0';
    enabledFlag.store(fits ? enabled : 0, std::memory_order_relaxed);
}

bool LogIsEnabled() noexcept {
    return enabledFlag.load(std::memory_order_relaxed) != 0;
}

void LogWrite(char const* text) noexcept {
    if (!LogIsEnabled() || !text)
        return;
    HostStateScope const hostState;
    std::array<char, 1024> lines = {};
    std::size_t length = 0;
    for (; *text && length < 1023; ++text) {
        if (*text == '\n')
            lines[length++] = '\r';
        lines[length++] = *text;
    }
    appendToFile(logName.data(), {lines.data(), length});
}

void LogPrintf(char const* format, ...) noexcept {
    if (!LogIsEnabled())
        return;
    HostStateScope const hostState;
    std::array<char, 1040> text = {};
    std::va_list arguments;
    va_start(arguments, format);
    int const length = std::vsnprintf(text.data(), text.size(), format, arguments);
    va_end(arguments);
    if (length > 0)
        LogWrite(text.data());
}

} // namespace ZrProj

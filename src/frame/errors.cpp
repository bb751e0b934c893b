#include "errors.h"

#include "log.h"
#include "messages.h"

#include <zrproj/zrlibw.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>

namespace ZrProj {

namespace {

constexpr int answerSendReport = 1;
constexpr int answerFailed = 3;
constexpr std::uint16_t fullReport = 0x4000;

/// Calls the host's callback once, looked up afresh, and returns its answer. Where there is none, or it throws, the
/// report has failed.
int tellHost(_ZRERRINFO const& info) noexcept {
    ZrCallerInstance const* const host = ZrGetCallerInstancePtr();
    ZrErrorFunc const callback = host ? host->GetErrorFunc() : nullptr;
    if (!callback)
        return answerFailed;
    try {
        return callback(&info);
    } catch (...) {
        return answerFailed;
    }
}

char const* helpFileName() noexcept {
    ZrCallerInstance const* const host = ZrGetCallerInstancePtr();
    return host ? host->GetHelpFileNamePtr() : nullptr;
}

/// Asks the host whether it wants the report, and sends it when it does. Returns the host's last answer.
int report(char const* sourceFile, int line, unsigned errorNumber, char const* text) noexcept {
    _ZRERRINFO info = {};
    info.wError = static_cast<std::uint16_t>(errorNumber);
    info.nProduct = 133;
    info.nClass = 2;
    int const answer = tellHost(info);
    if (answer != answerSendReport)
        return answer;
    info.wFlags = fullReport;
    info.pszModule = "ZrProj";
    info.pszFile = sourceFile;
    info.nLine = line;
    info.pszText = text;
    info.pszHelpFile = helpFileName();
    return tellHost(info);
}

} // namespace

char const* errorText(unsigned errorNumber) noexcept {
    auto const row = std::ranges::find(messages, errorNumber, &Message::number);
    return row == messages.end() ? nullptr : row->text;
}

bool ReportError(char const* sourceFile, int line, unsigned errorNumber, char const* message) noexcept {
    char const* const known = errorText(errorNumber);
    char const* const text = message && *message ? message : known ? known : "Failed loading error message!";
    return report(sourceFile, line, errorNumber, text) != answerFailed;
}

bool AssertFailed(char const* sourceFile, int line) noexcept {
    LogPrintf("ASSERTION FAILED\n");
    if (!sourceFile || !*sourceFile || line < 0)
        return false;
    LogPrintf("FILE \"%s\", LINE %d\n", sourceFile, line);
    std::array<char, 260> text = {};
    std::snprintf(text.data(), text.size(), "ZrProj.DLL Internal Error.  Assertion failed in %s, line %d.", sourceFile,
                  line);
    report(sourceFile, line, errorInternal, text.data());
    return false;
}

} // namespace ZrProj

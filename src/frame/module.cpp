// What happens when the library is loaded and when it is unloaded: the log is set up, and its lines stand between two
// headings with the time.
#include "log.h"

#include "host/platform.h"

namespace ZrProj {

namespace {

constexpr char const* rule = "--------------------------------------------------------------------------"; // 74

}

void onModuleStart() noexcept {
    LogInit(environmentVariable("ZRPROJLOG") != nullptr, logFileName().data());
    if (!LogIsEnabled())
        return;
    LogPrintf("\n%s\n", rule);
    LogPrintf("ZRPROJ.DLL log output started at %s", localTimeText().data());
    LogPrintf("%s\n", rule);
}

void onModuleEnd() noexcept {
    if (!LogIsEnabled())
        return;
    LogPrintf("%s\n", rule);
    LogPrintf("ZRPROJ.DLL log output ended at %s", localTimeText().data());
    LogPrintf("%s\n\n", rule);
}

} // namespace ZrProj

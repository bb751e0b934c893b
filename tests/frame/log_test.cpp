#include "frame/log.h"

#include "support/floating_point.h"
#include "support/temporary_directory.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cfenv>
#include <cfloat>
#include <filesystem>
#include <limits>
#include <string>

using namespace ZrProj;

namespace {

class Log : public testing::Test {
protected:
    void SetUp() override { LogInit(1, log.c_str()); }
    void TearDown() override { LogInit(0, nullptr); }

    std::string written(std::string const& text) {
        std::filesystem::remove(log);
        LogWrite(text.c_str());
        return fileBytes(log);
    }

    TemporaryDirectory const directory;
    std::string const log = directory.file("zrproj.log");
};

} // namespace

TEST_F(Log, OffWritesNothing) {
    LogInit(0, log.c_str());
    EXPECT_FALSE(LogIsEnabled());
    LogPrintf("%d\n", 1);
    LogWrite("x");
    EXPECT_FALSE(std::filesystem::exists(log));
}

TEST_F(Log, AppendsWithCarriageReturns) {
    EXPECT_TRUE(LogIsEnabled());
    LogPrintf("%s %d\n\n", "one", 1);
    LogWrite("two");
    LogWrite("\n");
    EXPECT_EQ(fileBytes(log), "one 1\r\n\r\ntwo\r\n");
}

TEST_F(Log, CutsAt1023Or1024Bytes) {
    EXPECT_EQ(written(std::string(1023, 'a') + "\n"), std::string(1023, 'a'));
    EXPECT_EQ(written(std::string(1022, 'a') + "\nb"), std::string(1022, 'a') + "\r\n");
    std::string const lines = written(std::string(3000, '\n'));
    EXPECT_EQ(lines.size(), 1024u);
    EXPECT_TRUE(lines.ends_with("\r\n"));
    LogPrintf("%*d %f", 5000, 1, DBL_MAX);
    EXPECT_EQ(fileBytes(log).size(), 1024u + 1023u);
}

TEST_F(Log, FileThatCannotBeOpenedLosesTheLine) {
    std::string const nowhere = directory.file("missing/zrproj.log");
    LogInit(1, nowhere.c_str());
    LogWrite("lost\n");
    EXPECT_FALSE(std::filesystem::exists(nowhere));
}

TEST_F(Log, NameThatDoesNotFitSwitchesOff) {
    LogInit(1, std::string(259, 'x').c_str());
    EXPECT_TRUE(LogIsEnabled());
    LogInit(1, std::string(260, 'x').c_str());
    EXPECT_FALSE(LogIsEnabled());
}

TEST_F(Log, LeavesErrnoAndFloatingPointAlone) {
    LogInit(1, directory.file("missing/zrproj.log").c_str());
    errno = ERANGE;
    LogPrintf("%d\n", 1);
    EXPECT_EQ(errno, ERANGE);
    LogInit(1, log.c_str());
    std::fesetround(FE_UPWARD);
    {
        TrapsEnabled const host;
        LogPrintf("%.3f %.20g %f\n", 0.5, DBL_TRUE_MIN, std::numeric_limits<double>::signaling_NaN());
        EXPECT_TRUE(host.untouched());
    }
    int const rounding = std::fegetround();
    std::fesetround(FE_TONEAREST);
    EXPECT_EQ(rounding, FE_UPWARD);
    EXPECT_EQ(errno, ERANGE);
    EXPECT_TRUE(fileBytes(log).starts_with("0.500 4.9406564584124654418e-324 nan")) << fileBytes(log);
}

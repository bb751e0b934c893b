#include "frame/errors.h"

#include "frame/log.h"
#include "support/error_host.h"
#include "support/temporary_directory.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

using namespace ZrProj;

namespace {

void expectQuestion(ErrorHost::Call const& call, unsigned number) {
    EXPECT_EQ(call.flags, 0u);
    EXPECT_EQ(call.number, number);
    EXPECT_EQ(call.product, 133);
    EXPECT_EQ(call.errorClass, 2);
    EXPECT_EQ(call.line, 0);
    EXPECT_EQ(call.module + call.file + call.text + call.helpFile, "(null)(null)(null)(null)");
}

void expectReport(ErrorHost::Call const& call, unsigned number, std::string const& text) {
    EXPECT_EQ(call.flags, 0x4000u);
    EXPECT_EQ(call.number, number);
    EXPECT_EQ(call.product, 133);
    EXPECT_EQ(call.errorClass, 2);
    EXPECT_EQ(call.reserved, 0);
    EXPECT_EQ(call.line, 77);
    EXPECT_EQ(call.module, "ZrProj");
    EXPECT_EQ(call.file, ".\\zrProj.cpp");
    EXPECT_EQ(call.text, text);
    EXPECT_EQ(call.helpFile, "host.hlp");
}

bool reportBonne(char const* message = nullptr) {
    return ReportError(".\\zrProj.cpp", 77, 20244, message);
}

} // namespace

TEST(Errors, TextsAtTheEdgesOfTheNumberRanges) {
    EXPECT_STREQ(errorText(20200), "Internal inconsistency detected");
    EXPECT_STREQ(errorText(20205), "Software was passed a bad parameter");
    EXPECT_STREQ(errorText(20230), "Invalid projection type parameter specified");
    EXPECT_STREQ(errorText(20252), "State zone parameter not recognized");
    EXPECT_STREQ(errorText(20270), "Z axis rotation was outside the rnage of -3600 to +3600 arcseconds");
    EXPECT_STREQ(errorText(20271), "K-scale parameter for datum transformation must be greater than zero");
    for (unsigned unused : {0u, 20199u, 20206u, 20229u, 20253u, 20255u, 20257u, 20259u, 20272u})
        EXPECT_EQ(errorText(unused), nullptr) << unused;
}

TEST(Errors, HostThatAnswers1IsAskedAndThenTold) {
    ErrorHost host(1);
    EXPECT_TRUE(reportBonne());
    ASSERT_EQ(host.calls.size(), 2u);
    expectQuestion(host.calls[0], 20244);
    expectReport(host.calls[1], 20244, "Standard parallel (Lat1) parameter for Bonne projection cannot be zero");
}

TEST(Errors, OtherAnswersEndTheReport) {
    for (int answer : {0, 2, -1, 3}) {
        ErrorHost host(answer);
        EXPECT_EQ(reportBonne(), answer != 3) << answer;
        EXPECT_EQ(host.calls.size(), 1u) << answer;
    }
}

TEST(Errors, SecondAnswerDecides) {
    int next = 1;
    ErrorHost host([&next] { return next += 2, next - 2; });
    EXPECT_FALSE(reportBonne());
    EXPECT_EQ(host.calls.size(), 2u);
}

TEST(Errors, CallersTextGoesBeforeTheTable) {
    ErrorHost host;
    reportBonne("own text");
    reportBonne("");
    ReportError("x", 1, 20206, nullptr);
    ASSERT_EQ(host.calls.size(), 6u);
    EXPECT_EQ(host.calls[1].text, "own text");
    EXPECT_EQ(host.calls[3].text, errorText(20244));
    EXPECT_EQ(host.calls[5].text, "Failed loading error message!");
}

TEST(Errors, NobodyToTell) {
    ErrorHost const restoresWhatWasThere;
    ZrSetCallerInstancePtr(nullptr);
    EXPECT_FALSE(reportBonne());
    EXPECT_FALSE(AssertFailed("x", 1));
    ZrCallerInstance silent;
    ZrSetCallerInstancePtr(&silent);
    EXPECT_FALSE(reportBonne());
    EXPECT_FALSE(AssertFailed("x", 1));
}

TEST(Errors, CallbackMayThrow) {
    int calls = 0;
    ErrorHost host([&calls]() -> int { return ++calls % 2 ? 1 : throw std::runtime_error("second call"); });
    EXPECT_FALSE(reportBonne());
    EXPECT_FALSE(AssertFailed("x", 1));
    ErrorHost throwsAtOnce([]() -> int { throw 1; });
    EXPECT_FALSE(reportBonne());
}

TEST(Errors, HostMayLeaveWhileItIsAsked) {
    ErrorHost host([] { return ZrSetCallerInstancePtr(nullptr), 1; });
    EXPECT_FALSE(reportBonne());
    EXPECT_EQ(host.calls.size(), 1u);
}

TEST(Errors, AssertionIsReportedAsError20200) {
    ErrorHost host;
    EXPECT_FALSE(AssertFailed(".\\zrProj.cpp", 77));
    ASSERT_EQ(host.calls.size(), 2u);
    expectQuestion(host.calls[0], 20200);
    expectReport(host.calls[1], 20200, "ZrProj.DLL Internal Error.  Assertion failed in .\\zrProj.cpp, line 77.");
    AssertFailed(std::string(500, 'x').c_str(), 1);
    EXPECT_EQ(host.calls.back().text.size(), 259u);
}

TEST(Errors, AssertionIsLoggedAndWithoutAPlaceOnlyLogged) {
    TemporaryDirectory const directory;
    std::string const log = directory.file("log");
    ErrorHost host(0);
    LogInit(1, log.c_str());
    AssertFailed(nullptr, 1);
    AssertFailed("", 1);
    AssertFailed("x", -1);
    EXPECT_TRUE(host.calls.empty());
    EXPECT_FALSE(AssertFailed("x", 0));
    LogInit(0, nullptr);
    EXPECT_EQ(host.calls.size(), 1u);
    std::string const failed = "ASSERTION FAILED\r\n";
    EXPECT_EQ(fileBytes(log), failed + failed + failed + failed + "FILE \"x\", LINE 0\r\n");
}

#include <zrproj/zrlibw.h>

#include "frame/errors.h"
#include "support/error_host.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

// The host reads the record by these offsets; pointers are aligned as the platform has them.
static_assert(offsetof(_ZRERRINFO, wError) == 2 && offsetof(_ZRERRINFO, nProduct) == 4);
static_assert(offsetof(_ZRERRINFO, nClass) == 6 && offsetof(_ZRERRINFO, lReserved) == 8);
static_assert(sizeof(void*) != 4 || (sizeof(_ZRERRINFO) == 32 && offsetof(_ZRERRINFO, pszModule) == 12));

TEST(CallerInstance, FirstOneHasNoCallback) {
    ASSERT_NE(ZrGetCallerInstancePtr(), nullptr);
    EXPECT_EQ(ZrGetCallerInstancePtr()->GetErrorFunc(), nullptr);
    EXPECT_STREQ(ZrGetCallerInstancePtr()->GetHelpFileNamePtr(), "");
}

TEST(CallerInstance, IsTheHostsOwnObject) {
    ErrorHost const restoresWhatWasThere;
    ZrCallerInstance host(ZrPrintError, "a.hlp");
    ZrSetCallerInstancePtr(&host);
    EXPECT_EQ(ZrGetCallerInstancePtr(), &host);
    EXPECT_EQ(host.GetErrorFunc(), &ZrPrintError);
    EXPECT_STREQ(host.GetHelpFileNamePtr(), "a.hlp");
    ZrSetCallerInstancePtr(nullptr);
    EXPECT_EQ(ZrGetCallerInstancePtr(), nullptr);
}

TEST(PrintError, WritesTheTextOnce) {
    ErrorHost const restoresWhatWasThere;
    ZrCallerInstance host(ZrPrintError);
    ZrSetCallerInstancePtr(&host);
    testing::internal::CaptureStderr();
    EXPECT_TRUE(ZrProj::ReportError("x", 1, 20231, nullptr));
    _ZRERRINFO question = {};
    question.pszText = "not to be printed";
    EXPECT_EQ(ZrPrintError(&question), 1);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Scale parameter must be greater than zero\n");
    EXPECT_EQ(ZrPrintError(nullptr), 1);
}

TEST(FileExtension, LastOneOfTheNameItself) {
    struct {
        char const *name, *extension, *without;
    } const cases[] = {
        {"map.tif", "tif", "map"},
        {"a/b.c/map.old.TIF", "TIF", "a/b.c/map.old"},
        {"a.b/map", "", "a.b/map"},
        {"a.b\\map", "", "a.b\\map"},
        {"C:\\a.b\\map.x", "x", "C:\\a.b\\map"},
        {"map.", "", "map"},
        {"", "", ""},
        {".hidden", "", ".hidden"},
        {"a/.hidden.x", "x", "a/.hidden"},
        {"a/..", "", "a/.."},
        {".", "", "."},
        {"a.b/", "", "a.b/"},
    };
    for (auto const& each : cases) {
        EXPECT_STREQ(ZrGetFileExt(each.name), each.extension) << each.name;
        std::string name = each.name;
        ZrDropFileExt(name.data());
        EXPECT_STREQ(name.c_str(), each.without) << each.name;
    }
    EXPECT_STREQ(ZrGetFileExt(nullptr), "");
    ZrDropFileExt(nullptr);
}

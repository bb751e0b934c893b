#include "support/error_host.h"
#include "support/side_files.h"

#include <zrproj/zrproj.h>

#include <gtest/gtest.h>

using namespace ZrProj;
using ZrProj::test::Georef;
using ZrProj::test::writeFile;

namespace {

class RsfFile : public testing::Test {
protected:
    /// Reads an image's file of those bytes; the flags, or -1 for a failure.
    int read(std::string const& bytes) {
        writeFile(name, bytes);
        return read();
    }
    int read() {
        std::uint32_t flags = 99;
        RefFreeControls(&georef);
        georef.Method = TransformMethodNone;
        return ZrProjReadBlueMarbleRSF(image.c_str(), &georef, &flags) ? static_cast<int>(flags) : -1;
    }

    void expectCleared() const {
        EXPECT_EQ(georef.Method, TransformMethodHelmert);
        EXPECT_EQ(georef.nControls, 0);
        EXPECT_EQ(georef.pSource, nullptr);
    }

    TemporaryDirectory directory;
    std::string image = directory.file("map.tif");
    std::string name = directory.file("map.RSF");
    Georef georef;
};

} // namespace

TEST_F(RsfFile, IsWrittenByteForByteAndReadBack) {
    RefAllocControls(&georef, 2);
    georef.Method = TransformMethod3rdOrderPolynomial;
    georef.pSource[0] = {0, -0.5}, georef.pTarget[0] = {500000.125, 1e15};
    georef.pSource[1] = {1e-7, 100}, georef.pTarget[1] = {1 / 3., -1e100};
    ASSERT_TRUE(ZrProjWriteBlueMarbleRSF(image.c_str(), &georef));
    char const* const expected = "2 2\n"
                                 "'Point 0' 0 -0.5 0.0 500000.125 1E+15 0.0 1\n"
                                 "'Point 1' 1E-07 100 0.0 0.333333333333333 -1E+100 0.0 1\n";
    EXPECT_EQ(fileBytes(name), expected);
    EXPECT_EQ(read(), 24);
    EXPECT_EQ(georef.Method, TransformMethodHelmert);
    ASSERT_EQ(georef.nControls, 2);
    EXPECT_EQ(georef.pSource[1].y, 100);
    EXPECT_EQ(georef.pTarget[1].y, -1e100);
    ASSERT_TRUE(ZrProjWriteBlueMarbleRSF(image.c_str(), &georef));
    EXPECT_EQ(fileBytes(name), expected);
}

TEST_F(RsfFile, CoefficientsAreWrittenAsTheCornersOfASquare) {
    GEOREFPOINT own[1] = {{1, 2}};
    GEOREF affine = {};
    affine.Method = TransformMethodPrecalculatedAffineCoefficients;
    affine.pSource = affine.pTarget = own; // not used, and not freed
    affine.nControls = 1;
    affine.A = 2, affine.B = 1, affine.C = 1000, affine.D = 0, affine.E = -2, affine.F = 5000;
    ASSERT_TRUE(ZrProjWriteBlueMarbleRSF(image.c_str(), &affine));
    EXPECT_EQ(fileBytes(name), "2 4\n"
                               "'Point 0' 0 0 0.0 1000 5000 0.0 1\n"
                               "'Point 1' 100 0 0.0 1200 5000 0.0 1\n"
                               "'Point 2' 100 100 0.0 1300 4800 0.0 1\n"
                               "'Point 3' 0 100 0.0 1100 4800 0.0 1\n");
    EXPECT_EQ(affine.Method, TransformMethodPrecalculatedAffineCoefficients);
    EXPECT_EQ(affine.pSource, own);
}

TEST_F(RsfFile, NothingToWriteIsNoFailure) {
    georef.nControls = 3; // without arrays
    for (TransformMethod method : {TransformMethodHelmert, TransformMethodNone}) {
        georef.Method = method;
        EXPECT_TRUE(ZrProjWriteBlueMarbleRSF(image.c_str(), &georef));
    }
    georef.nControls = 0;
    EXPECT_TRUE(ZrProjWriteBlueMarbleRSF(image.c_str(), nullptr));
    EXPECT_TRUE(ZrProjWriteBlueMarbleRSF(nullptr, &georef));
    EXPECT_TRUE(ZrProjWriteBlueMarbleRSF("", &georef));
    EXPECT_FALSE(std::filesystem::exists(name));
}

TEST_F(RsfFile, ReadsWhatOthersWrite) {
    EXPECT_EQ(read("9 1 whatever\r\n \t'a name' 1.5x +2 9 \t 3 4\r\n"), 24);
    EXPECT_EQ(georef.pSource[0].x, 1.5);
    EXPECT_EQ(georef.pSource[0].y, 2);
    EXPECT_EQ(georef.pTarget[0].y, 4);
    EXPECT_EQ(read("'two words' 1\nname 1 2 3\nmore\n"), 24);
    EXPECT_EQ(georef.pSource[0].y, 2);
    EXPECT_EQ(georef.pTarget[0].x, 0);
    EXPECT_EQ(read("2 1\n'it' s' 2 0 3 4\n"), 24); // the name ends at the second mark
    EXPECT_EQ(georef.pSource[0].x, 0);
    EXPECT_EQ(georef.pSource[0].y, 2);
    EXPECT_EQ(read("2 1\n\"Point 0\" 1 2 0 3 4 0 1\n"), 24); // closed by no single mark: the name is all of it
    EXPECT_EQ(georef.pSource[0].x, 0);
    EXPECT_EQ(georef.pTarget[0].y, 0);
    EXPECT_EQ(read("2 1\n\"Point 0' 1 2 0 3 4 0 1\n"), 24);
    EXPECT_EQ(georef.pTarget[0].y, 4);
}

TEST_F(RsfFile, WithoutPoints) {
    for (char const* bytes : {"", "2 3", "2 0\n", "2 -1\n", "2\n", "\n", "2 x\n", "2 3\n'a' 1 2 0 3 4\n'b' 1 2 0 3 4\n",
                              "2 1\n'a' 1 2 0 3 4 0 1"}) { // a last line without its line feed is missing
        EXPECT_EQ(read(bytes), 16) << bytes;
        expectCleared();
    }
    EXPECT_EQ(read("2 1000000\n"), 16);
    expectCleared();
}

TEST_F(RsfFile, FileThatIsNotThere) {
    EXPECT_EQ(read(), 0);
    EXPECT_EQ(georef.Method, TransformMethodNone); // untouched
    std::filesystem::create_directory(name);
    EXPECT_EQ(read(), 0);
    writeFile(directory.file("map.rsf"), "2 1\n'a' 1 2 0 3 4 0 1\n");
    EXPECT_EQ(read(), 24);
    std::uint32_t flags = 99;
    EXPECT_TRUE(ZrProjReadBlueMarbleRSF(image.c_str(), nullptr, &flags));
    EXPECT_EQ(flags, 24U);
    EXPECT_TRUE(ZrProjReadBlueMarbleRSF(image.c_str(), nullptr, nullptr));
}

TEST_F(RsfFile, NullAndImpossibleCountsAreReported) {
    for (char const* none : {static_cast<char const*>(nullptr), ""}) {
        ErrorHost const host;
        std::uint32_t flags = 99;
        EXPECT_FALSE(ZrProjReadBlueMarbleRSF(none, &georef, &flags));
        EXPECT_EQ(flags, 0U);
        ASSERT_EQ(host.calls.size(), 2U);
        EXPECT_EQ(host.calls[1].number, 20205U);
        EXPECT_EQ(host.calls[1].file, ".\\RSFFile.cpp");
    }
    ErrorHost const host;
    EXPECT_EQ(read("2 2000000000\n'a' 1 2 0 3 4 0 1\n"), -1);
    EXPECT_EQ(georef.Method, TransformMethodNone); // untouched
    ASSERT_EQ(host.calls.size(), 2U);
    EXPECT_EQ(host.calls[1].number, 20201U);
}

#if !defined(_WIN32)

TEST_F(RsfFile, FailedWrites) {
    RefAllocControls(&georef, 5000);
    {
        test::FullDisk const full(100);
        EXPECT_FALSE(ZrProjWriteBlueMarbleRSF(image.c_str(), &georef));
    }
    EXPECT_EQ(fileBytes(name).size(), 100U); // stays
    EXPECT_FALSE(ZrProjWriteBlueMarbleRSF(directory.file("none/map.tif").c_str(), &georef));
    std::filesystem::remove(name);
    std::filesystem::create_symlink("/dev/full", name);
    RefFreeControls(&georef);
    RefAllocControls(&georef, 1); // so little that only closing shows it
    EXPECT_FALSE(ZrProjWriteBlueMarbleRSF(image.c_str(), &georef));
}

#endif

#include "support/error_host.h"
#include "support/side_files.h"

#include <zrproj/zrproj.h>

#include <gtest/gtest.h>

#include <vector>

using namespace ZrProj;
using ZrProj::test::Georef;
using ZrProj::test::writeFile;

namespace {

class WorldFile : public testing::Test {
protected:
    /// The flags, or -1 for a failure.
    int read(char const* imageName = "scan.tif") {
        std::uint32_t flags = 99;
        georef.Method = TransformMethodNone;
        bool const good = ZrProjReadESRIWorld(directory.file(imageName).c_str(), &georef, &flags);
        return good ? static_cast<int>(flags) : -1;
    }
    int readBytes(std::string const& bytes) {
        writeFile(directory.file("scan.tfW"), bytes);
        return read();
    }
    bool write(char const* imageName, GEOREF const& record) {
        return ZrProjWriteESRIWorld(directory.file(imageName).c_str(), &record);
    }
    std::vector<double> coefficients() const { return {georef.A, georef.B, georef.C, georef.D, georef.E, georef.F}; }

    TemporaryDirectory directory;
    GEOREF georef = {};
};

GEOREF affine() {
    GEOREF record = {};
    record.Method = TransformMethodPrecalculatedAffineCoefficients;
    record.A = 2.5, record.B = 1e-7, record.C = 500000.125, record.D = -0.0, record.E = -2.5, record.F = 1e15;
    return record;
}

using Numbers = std::vector<double>;

} // namespace

TEST_F(WorldFile, IsWrittenByteForByteAndReadBack) {
    GEOREF const record = affine();
    ASSERT_TRUE(write("scan.tif", record));
    EXPECT_EQ(fileBytes(directory.file("scan.tfW")), "2.5\n-0\n1E-07\n-2.5\n500000.125\n1E+15\n");
    EXPECT_EQ(read(), 20);
    EXPECT_EQ(georef.Method, TransformMethodPrecalculatedAffineCoefficients);
    EXPECT_EQ(coefficients(), (Numbers{2.5, 1e-7, 500000.125, 0, -2.5, 1e15}));
    EXPECT_TRUE(write("scan.ab", record));
    EXPECT_TRUE(std::filesystem::exists(directory.file("scan.abW")));
    EXPECT_EQ(read("scan.ab"), 20); // as scan.abw, a variant of the second name; scanW is the first
    writeFile(directory.file("scanW"), "");
    EXPECT_EQ(read("scan.ab"), 16);
}

TEST_F(WorldFile, ControlPointsAreTurnedIntoCoefficients) {
    Georef controls;
    RefAllocControls(&controls, 3);
    controls.Method = TransformMethodHelmert;
    GEOREFPOINT const sources[] = {{0, 0}, {10, 0}, {0, 10}}, targets[] = {{100, 200}, {120, 200}, {100, 180}};
    for (int i = 0; i < 3; ++i) {
        controls.pSource[i] = sources[i];
        controls.pTarget[i] = targets[i];
    }
    ASSERT_TRUE(write("scan.tif", controls));
    EXPECT_EQ(controls.Method, TransformMethodHelmert);
    EXPECT_EQ(read(), 20);
    Numbers const expected{2, 0, 100, 0, -2, 200};
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_NEAR(coefficients()[i], expected[i], 1e-12);
    controls.nControls = 2;
    EXPECT_TRUE(write("few.tif", controls));
    controls.Method = TransformMethodNone;
    EXPECT_TRUE(write("none.tif", controls));
    EXPECT_FALSE(std::filesystem::exists(directory.file("few.tfW")));
    EXPECT_FALSE(std::filesystem::exists(directory.file("none.tfW")));
    controls.nControls = 3;
}

TEST_F(WorldFile, ReadsWhatOthersWrite) {
    EXPECT_EQ(readBytes(" 1\r\n2 rotation\n\t+3e0\n4,5\n\n6\nmore\n"), 20);
    EXPECT_EQ(coefficients(), (Numbers{1, 3, 0, 2, 4, 6}));
    EXPECT_EQ(readBytes("1\n2\n3\n4\n5\n" + std::string(255, ' ') + "6\n"), 20); // cut after its 255th
    EXPECT_EQ(georef.F, 0);
}

TEST_F(WorldFile, TooShortOnesGiveAClearedRecord) {
    for (char const* bytes : {"", "1\n2\n3\n4\n5\n", "1\n2\n3\n4\n5\n6", "1 2 3 4 5 6\n"}) {
        georef.A = 5;
        EXPECT_EQ(readBytes(bytes), 16) << bytes;
        EXPECT_EQ(georef.Method, TransformMethodHelmert);
        EXPECT_EQ(coefficients(), Numbers(6, 0));
    }
}

TEST_F(WorldFile, NamesAreTriedInOrder) {
    EXPECT_EQ(read(), 0);
    EXPECT_EQ(georef.Method, TransformMethodNone); // untouched
    double expected = 6;
    for (char const* name : {"scan.wld", "scan.TIFW", "scan.tfw", "scan.WLD", "scan.tifw", "scan.tfW"}) {
        writeFile(directory.file(name), std::to_string(expected) + "\n2\n3\n4\n5\n6\n");
        EXPECT_EQ(read(), 20) << name;
        EXPECT_EQ(georef.A, expected) << name;
        --expected;
    }
    EXPECT_EQ(read("other.tif"), 0);
    EXPECT_EQ(read("Scan.tif"), 0); // only the extension's case is free
}

TEST_F(WorldFile, NullsAreToldApart) {
    for (char const* none : {static_cast<char const*>(nullptr), ""}) {
        ErrorHost const host;
        std::uint32_t flags = 99;
        EXPECT_FALSE(ZrProjReadESRIWorld(none, &georef, &flags));
        EXPECT_EQ(flags, 0U);
        ASSERT_EQ(host.calls.size(), 2U);
        EXPECT_EQ(host.calls[1].text, "Software was passed a bad parameter");
        EXPECT_EQ(host.calls[1].file, ".\\WLDFile.cpp");
        EXPECT_TRUE(ZrProjWriteESRIWorld(none, &georef));
    }
    std::string const image = directory.file("scan.tif");
    EXPECT_TRUE(ZrProjWriteESRIWorld(image.c_str(), nullptr));
    EXPECT_FALSE(std::filesystem::exists(directory.file("scan.tfW")));
    EXPECT_EQ(readBytes("1\n2\n3\n4\n5\n6\n"), 20);
    EXPECT_TRUE(ZrProjReadESRIWorld(image.c_str(), nullptr, nullptr));
}

#if !defined(_WIN32)

TEST_F(WorldFile, FailedWrites) {
    EXPECT_FALSE(write("none/scan.tif", affine()));
    {
        test::ReadOnlyDirectory const locked(directory.path());
        EXPECT_FALSE(write("scan.tif", affine()));
    }
    std::filesystem::create_symlink("/dev/full", directory.file("scan.tfW"));
    EXPECT_FALSE(write("scan.tif", affine()));
}

#endif

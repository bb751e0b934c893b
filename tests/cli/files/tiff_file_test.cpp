#include "cli/files/tiff_file.h"

#include "tests/cli/support.h"

#include <gtest/gtest.h>
#include <tiffio.h>

#include <sys/stat.h>

namespace ZrProj::Command {
namespace {

/// An image of one grey pixel; "wl" and "wb" are the byte orders, "8" is a BigTIFF file.
void writeTiff(std::string const& name, char const* mode = "wl") {
    TIFF* const file = TIFFOpen(name.c_str(), mode);
    ASSERT_NE(file, nullptr);
    for (auto const tag : {TIFFTAG_IMAGEWIDTH, TIFFTAG_IMAGELENGTH, TIFFTAG_SAMPLESPERPIXEL, TIFFTAG_ROWSPERSTRIP})
        TIFFSetField(file, static_cast<ttag_t>(tag), 1);
    TIFFSetField(file, TIFFTAG_BITSPERSAMPLE, 8);
    TIFFSetField(file, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_MINISBLACK);
    unsigned char pixel = 77;
    TIFFWriteScanline(file, &pixel, 0, 0);
    TIFFClose(file);
}

MapInfo place(double x) {
    zrproj_georeference georeference{};
    georeference.size = sizeof georeference;
    georeference.method = TransformMethodPrecalculatedAffineCoefficients;
    double const coefficients[] = {2, 0, x, 0, -2, 4650000};
    std::copy(std::begin(coefficients), std::end(coefficients), georeference.coefficients);
    return {nullptr, &georeference};
}

MapInfo utm() {
    zrproj_parameters parameters{};
    parameters.size = sizeof parameters;
    parameters.type = ProjTypeUniversalTransverseMercator;
    parameters.lon0 = 3;
    parameters.datum = DatumTypeWorldGeodeticSystem1984;
    return {&parameters, nullptr};
}

TEST(TiffFile, IsKnownByItsFirstBytes) {
    TemporaryDirectory const directory;
    std::string const name = directory.file("image");
    for (char const* mode : {"wl", "wb", "wl8", "wb8"}) {
        writeTiff(name, mode);
        EXPECT_TRUE(isTiffFile(name)) << mode;
        EXPECT_FALSE(mayHaveTags(name)) << mode;
    }
    std::ofstream(name, std::ios::binary) << "II*";
    EXPECT_FALSE(isTiffFile(name));
    EXPECT_FALSE(isTiffFile(directory.file("none")));
    EXPECT_FALSE(isTiffFile(directory.path().string()));
    std::string const pipe = directory.file("pipe.tif"); // a writer that never comes is not waited for
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_FALSE(isTiffFile(pipe));
}

TEST(TiffFile, TagsKeepWhatANewMapDoesNotTell) {
    TemporaryDirectory const directory;
    std::string const name = directory.file("scan.tif");
    for (char const* mode : {"wl", "wb", "wl8"}) {
        writeTiff(name, mode);
        EXPECT_EQ(writeTags(name, place(500000)).size(), 1U) << mode; // nothing says in which projection
        EXPECT_EQ(readTags(name).georeference().coefficients[2], 500000) << mode;
        EXPECT_TRUE(writeTags(name, utm()).empty()) << mode;
        EXPECT_TRUE(writeTags(name, place(7)).empty()) << mode;
        MapInfo const all = readTags(name);
        EXPECT_EQ(static_cast<double>(all.projection().Lon0), 3) << mode;
        EXPECT_EQ(all.georeference().coefficients[2], 7) << mode;
    }
    TIFF* const file = TIFFOpen(name.c_str(), "r"); // the picture itself is what it was
    unsigned char pixel = 0;
    EXPECT_EQ(TIFFReadScanline(file, &pixel, 0, 0), 1);
    EXPECT_EQ(pixel, 77);
    TIFFClose(file);
}

TEST(TiffFile, OneThatCannotBeReadIsLeftAsItIs) {
    TemporaryDirectory const directory;
    std::string const name = directory.file("cut.tif");
    writeTiff(name);
    writeTags(name, place(1));
    std::string const whole = fileBytes(name);
    for (std::size_t const length : {std::size_t{8}, whole.size() / 2, whole.size() - 20}) {
        std::string const cut = whole.substr(0, length);
        std::ofstream(name, std::ios::binary) << cut;
        EXPECT_TRUE(mayHaveTags(name)) << length; // reading tells why not
        EXPECT_THROW(writeTags(name, place(2)), std::runtime_error) << length;
        EXPECT_EQ(fileBytes(name), cut) << length;
    }
}

} // namespace
} // namespace ZrProj::Command

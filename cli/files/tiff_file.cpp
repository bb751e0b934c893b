#include "cli/files/tiff_file.h"

#include "cli/files/replacement_file.h"
#include "cli/text/text.h"

#include <tiffio.h>

#include <algorithm>
#include <array>
#include <cstdarg>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>

namespace ZrProj::Command {
namespace {

struct TagRow {
    ttag_t id;
    TIFFDataType type;
    char const* name;
};

constexpr std::array geoTags{
    TagRow{33550, TIFF_DOUBLE, "ModelPixelScale"},     TagRow{33922, TIFF_DOUBLE, "ModelTiepoint"},
    TagRow{34264, TIFF_DOUBLE, "ModelTransformation"}, TagRow{34735, TIFF_SHORT, "GeoKeyDirectory"},
    TagRow{34736, TIFF_DOUBLE, "GeoDoubleParams"},     TagRow{34737, TIFF_ASCII, "GeoAsciiParams"},
};

/// Declares the tags to libtiff, each with a count of its own.
void declareTags(TIFF* file) {
    std::array<TIFFFieldInfo, geoTags.size()> fields = {};
    std::transform(geoTags.begin(), geoTags.end(), fields.begin(), [](TagRow const& tag) {
        return TIFFFieldInfo{
            tag.id, TIFF_VARIABLE2, TIFF_VARIABLE2, tag.type, FIELD_CUSTOM, 1, 1, const_cast<char*>(tag.name)};
    });
    TIFFMergeFieldInfo(file, fields.data(), static_cast<std::uint32_t>(fields.size()));
}

std::string lastError; // libtiff's; the command has one thread

void keepError(char const*, char const* format, std::va_list arguments) {
    std::array<char, 512> text = {};
    std::vsnprintf(text.data(), text.size(), format, arguments);
    lastError = text.data();
}

struct Close {
    void operator()(TIFF* file) const { TIFFClose(file); }
};
using TiffHandle = std::unique_ptr<TIFF, Close>;

[[noreturn]] void fail(std::string const& what) {
    throw std::runtime_error(what + (lastError.empty() ? "" : ": " + lastError));
}

TiffHandle open(std::string const& name, char const* mode) {
    TIFFSetWarningHandler(nullptr);
    TIFFSetErrorHandler(keepError);
    TIFFSetTagExtender(declareTags);
    lastError.clear();
    TiffHandle file(TIFFOpen(name.c_str(), mode));
    if (!file)
        fail("cannot read " + inQuotes(name));
    return file;
}

void setTag(TIFF& file, ZrBitmapTag const& tag) {
    if (TIFFSetField(&file, tag.Id, tag.Count, tag.pData) != 1)
        fail("cannot set tag " + std::to_string(tag.Id));
}

} // namespace

bool isTiffFile(std::string const& name) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(name, error)) // a pipe's writer may never come
        return false;
    std::array<char, 4> start = {};
    std::ifstream(name, std::ios::binary).read(start.data(), start.size());
    std::string_view const bytes(start.data(), start.size());
    using namespace std::string_view_literals;
    return bytes == "II*\0"sv || bytes == "MM\0*"sv || bytes == "II+\0"sv || bytes == "MM\0+"sv;
}

bool claimsLayout(std::string const& name) {
    constexpr std::string_view claim = "GDAL_STRUCTURAL_METADATA_SIZE=";
    std::array<char, 64> start = {};
    std::ifstream(name, std::ios::binary).read(start.data(), start.size());
    std::string_view const bytes(start.data(), start.size());
    return bytes.substr(8).starts_with(claim) || bytes.substr(16).starts_with(claim); // behind the header
}

TiffImage readTiff(std::string const& name) {
    TiffHandle const file = open(name, "r");
    TiffImage image;
    TIFFGetField(file.get(), TIFFTAG_IMAGEWIDTH, &image.width);
    TIFFGetField(file.get(), TIFFTAG_IMAGELENGTH, &image.height);
    for (TagRow const& tag : geoTags) {
        std::uint32_t count = 0;
        void const* data = nullptr;
        bool const there = TIFFGetField(file.get(), tag.id, &count, &data) == 1;
        if (there &&
            !image.tags.Add({static_cast<std::uint16_t>(tag.id), static_cast<std::uint16_t>(tag.type), count, data}))
            fail("cannot read tag " + std::to_string(tag.id) + " of " + inQuotes(name));
    }
    return image;
}

void writeTiffTags(std::string const& name, std::span<ZrBitmapTag const> tags) {
    ReplacementFile replacement(name);
    replacement.copyOriginal();
    TiffHandle file = open(replacement.name(), "r+");
    for (TagRow const& tag : geoTags)
        TIFFUnsetField(file.get(), tag.id);
    for (ZrBitmapTag const& tag : tags)
        setTag(*file, tag);
    if (TIFFRewriteDirectory(file.get()) != 1)
        fail("cannot write the tags of " + inQuotes(name));
    lastError.clear();
    file.reset();
    if (!lastError.empty())
        fail("cannot write " + inQuotes(name));
    replacement.commit();
}

} // namespace ZrProj::Command

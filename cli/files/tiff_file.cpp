#include "cli/files/tiff_file.h"

#include "cli/files/map_info.h"
#include "cli/files/plain_file.h"
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

void setTag(TIFF& file, zrproj_tag const& tag) {
    if (TIFFSetField(&file, tag.id, tag.count, tag.data) != 1)
        fail("cannot set tag " + std::to_string(tag.id));
}

/// The GeoTIFF tags of a file's first image; their data live as long as it is open.
std::vector<zrproj_tag> tagsOf(TIFF& file) {
    std::vector<zrproj_tag> tags;
    for (TagRow const& row : geoTags) {
        zrproj_tag tag{static_cast<std::uint16_t>(row.id), static_cast<std::uint16_t>(row.type), 0, nullptr};
        if (TIFFGetField(&file, row.id, &tag.count, &tag.data) == 1)
            tags.push_back(tag);
    }
    return tags;
}

} // namespace

bool isTiffFile(std::string const& name) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(name, error)) // a pipe's writer may never come
        return false;
    std::array<char, 4> start = {};
    std::ifstream file(name, std::ios::binary);
    file.read(start.data(), start.size());
    std::string_view const bytes(start.data(), static_cast<std::size_t>(file.gcount()));
    using namespace std::string_view_literals;
    return bytes == "II*\0"sv || bytes == "MM\0*"sv || bytes == "II+\0"sv || bytes == "MM\0+"sv;
}

bool mayHaveTags(std::string const& name) {
    try {
        return !tagsOf(*open(name, "r")).empty();
    } catch (std::runtime_error const&) {
        return true;
    }
}

namespace {

struct TagsDestroyer {
    void operator()(zrproj_tags* tags) const { zrproj_tags_destroy(tags); }
};

/// Puts the tags that say what a map is in the place of those that the first image of a file has.
void replaceTags(std::string const& name, MapInfo const& info) {
    zrproj_tags* tags = nullptr;
    MapInfo::check(zrproj_tags_create(info.handle(), &tags));
    std::unique_ptr<zrproj_tags, TagsDestroyer> const owner(tags);
    ReplacementFile replacement(name);
    replacement.copyOriginal();
    TiffHandle file = open(replacement.name(), "r+");
    for (TagRow const& tag : geoTags)
        TIFFUnsetField(file.get(), tag.id);
    zrproj_tag tag{};
    for (std::size_t n = 0; zrproj_tags_entry(tags, n, &tag) == ZRPROJ_OK; ++n)
        setTag(*file, tag);
    if (TIFFRewriteDirectory(file.get()) != 1)
        fail("cannot write the tags of " + inQuotes(name));
    lastError.clear();
    file.reset();
    if (!lastError.empty())
        fail("cannot write " + inQuotes(name));
    replacement.commit();
}

/// The georeference of a map, and nothing else.
MapInfo placeOf(MapInfo const& info) {
    if (!info.tells(ZRPROJ_GEOREFERENCE))
        return {};
    zrproj_georeference const georeference = info.georeference();
    return {nullptr, &georeference};
}

/// A map for a file that has tags already: what they alone tell stays, a system's parts together.
MapInfo onTopOf(MapInfo const& present, MapInfo const& info, std::string const& file) {
    bool const keepsSystem = !info.tells(ZRPROJ_PROJECTION) && !info.tells(ZRPROJ_DATUM);
    auto const notes = present.notes();
    if (keepsSystem && !notes.empty() && !present.tells(ZRPROJ_PROJECTION))
        throw std::runtime_error("the present tags of " + inQuotes(file) +
                                 " would be lost, which cannot be read: " + notes.front());
    MapInfo const told = placeOf(info).with(info); // one coefficient of a reference file does not yield here
    return told.tells(ZRPROJ_PROJECTION) ? told.with(placeOf(present)) : told.with(present);
}

/// Whether a TIFF file says that its parts stand in an order for reading over a network (cloud-optimized GeoTIFF).
bool claimsLayout(std::string const& name) {
    constexpr std::string_view claim = "GDAL_STRUCTURAL_METADATA_SIZE=";
    std::array<char, 64> start = {};
    std::ifstream(name, std::ios::binary).read(start.data(), start.size());
    std::string_view const bytes(start.data(), start.size());
    return bytes.substr(8).starts_with(claim) || bytes.substr(16).starts_with(claim); // behind the header
}

/// What becomes of control points, which tags do not keep.
void noteControls(std::vector<std::string>& notes, MapInfo const& info) {
    auto const [size, method, count, source, target, coefficients] = info.georeference();
    if (count == 0 || method == TransformMethodAffinePolynomial)
        return;
    auto const miss = controlMiss(info, TransformMethodHelmert);
    if (method == TransformMethodHelmert)
        notes.push_back("the Helmert system is written as the matrix that it is, without its control points" +
                        (miss ? ", which it misses by " + missText(*miss) : ""));
    else
        notes.push_back(std::string("the method is left out: ") + RefMethodName(static_cast<TransformMethod>(method)) +
                        " is read back as Affine Polynomial");
}

std::vector<std::string> notesOn(std::string const& file, MapInfo const& info) {
    std::vector<std::string> notes;
    if (info.tells(ZRPROJ_GEOREFERENCE))
        noteControls(notes, info);
    if (!info.tells(ZRPROJ_PROJECTION))
        notes.emplace_back("nothing says in which projection it is; give --utm, --state-plane, --projection or --like");
    if (claimsLayout(file))
        notes.emplace_back("its layout is no longer the one that it claims (cloud-optimized): its directory has moved "
                           "to the end");
    return notes;
}

} // namespace

MapInfo readTags(std::string const& name) {
    TiffHandle const file = open(name, "r");
    std::vector<zrproj_tag> const tags = tagsOf(*file);
    MapInfo info = MapInfo::of([&](zrproj_description** read) {
        zrproj_status const status = zrproj_description_of_tags(tags.data(), tags.size(), read);
        if (status == ZRPROJ_FILE)
            throw std::runtime_error("the GeoTIFF tags of " + inQuotes(name) + " are damaged: " + zrproj_message());
        return status;
    });
    info.takeSystem();
    return info;
}

std::vector<std::string> writeTags(std::string const& name, MapInfo const& info) {
    MapInfo const all = onTopOf(readTags(name), info, name);
    std::vector<std::string> notes = notesOn(name, all);
    try {
        replaceTags(name, all);
    } catch (std::runtime_error const& error) {
        throw std::runtime_error("cannot write " + inQuotes(name) + ": " + error.what());
    }
    return notes;
}

} // namespace ZrProj::Command

#include "cli/side_files.h"

#include "cli/output.h"
#include "cli/scratch_directory.h"
#include "cli/text.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <functional>
#include <stdexcept>
#include <string_view>

namespace ZrProj::Command {
namespace {

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, {}, lowerCase, lowerCase);
}

std::string_view extensionOf(std::string const& file) {
    return ZrGetFileExt(file.c_str());
}

std::string withoutExtension(std::string const& file) {
    std::string_view const extension = extensionOf(file);
    return extension.empty() ? file : file.substr(0, file.size() - extension.size() - 1);
}

bool isReference(std::string const& file) {
    return equalIgnoringCase(extensionOf(file), "zrr");
}

bool isRsf(std::string const& file) {
    return equalIgnoringCase(extensionOf(file), "rsf");
}

/// "wld", and extensions of images with a w behind: "tfw", "tifw".
bool isWorld(std::string const& file) {
    std::string_view const extension = extensionOf(file);
    return equalIgnoringCase(extension, "wld") || (extension.size() >= 3 && lowerCase(extension.back()) == 'w');
}

/// The library finds a side file by its image's name; here the user has named the file itself, which may be called
/// anything. So it is read and written on a stage, where it has the name that belongs to the image "map.tif".
struct Stage {
    Stage(std::filesystem::path const& parent, char const* fileName)
        : directory(parent), file(directory.file(fileName)), image(directory.file("map.tif")) {}

    ScratchDirectory directory;
    std::string file, image;
};

/// A stage on which the user's file stands. Throws std::runtime_error where it is none that can be read.
struct ReadingStage : Stage {
    ReadingStage(std::string const& existing, char const* fileName)
        : Stage(std::filesystem::temp_directory_path(), fileName) {
        if (std::FILE* const readable = std::fopen(existing.c_str(), "r"))
            static_cast<void>(std::fclose(readable));
        else
            throw std::runtime_error("cannot read " + inQuotes(existing) + ": " + systemMessage(errno));
        if (!std::filesystem::is_regular_file(existing))
            throw std::runtime_error("cannot read " + inQuotes(existing) + ": it is no plain file");
        std::filesystem::create_symlink(std::filesystem::absolute(existing), file);
    }
};

[[noreturn]] void refuse(std::string const& file, char const* why) {
    throw std::runtime_error("cannot read " + inQuotes(file) + ": " + why);
}

/// Puts what was written on a stage in the place of `file`, in one step. Throws std::runtime_error.
void moveTo(std::string const& file, Stage const& stage, bool written) {
    std::error_code error;
    if (written)
        std::filesystem::rename(stage.file, file, error);
    if (!written || error)
        throw std::runtime_error("cannot write " + inQuotes(file) + (error ? ": " + error.message() : ""));
}

MapInfo readReference(std::string const& file) {
    ReadingStage const stage(file, "map.tif.zrr");
    MapInfo info;
    std::uint32_t flags = 0;
    if (!ZrProjRefFileReadEx(stage.file.c_str(), &info.projection, &info.datum, &info.datumParameters, &*info.georef,
                             &flags))
        refuse(file, "it is no reference file, or damaged");
    if (!(flags & RefFileFlagRead))
        refuse(file, "it has a later version than 1.1");
    info.projectionFile = flags & RefFileFlagProjection ? file : "";
    info.datumFile = flags & RefFileFlagDatum ? file : "";
    info.georefFile = flags & (RefFileFlagCoefficients | RefFileFlagControls) ? file : "";
    return info;
}

MapInfo readRsf(std::string const& file) {
    ReadingStage const stage(file, "map.RSF");
    MapInfo info;
    std::uint32_t flags = 0;
    if (!ZrProjReadBlueMarbleRSF(stage.image.c_str(), &*info.georef, &flags) || !(flags & RefFileFlagControls))
        refuse(file, "it does not hold the control points that it announces, or none");
    info.georefFile = file;
    return info;
}

/// World files say where the centre of the first pixel lies, everything else where its corner does.
void moveToCorner(GEOREF& coefficients) {
    coefficients.C -= (coefficients.A + coefficients.B) / 2;
    coefficients.F -= (coefficients.D + coefficients.E) / 2;
}

void moveToCentre(GEOREF& coefficients) {
    coefficients.C += (coefficients.A + coefficients.B) / 2;
    coefficients.F += (coefficients.D + coefficients.E) / 2;
}

MapInfo readWorld(std::string const& file) {
    ReadingStage const stage(file, "map.tfW");
    MapInfo info;
    std::uint32_t flags = 0;
    if (!ZrProjReadESRIWorld(stage.image.c_str(), &*info.georef, &flags) || !(flags & RefFileFlagCoefficients))
        refuse(file, "it has fewer than six lines, each ended by a line feed");
    moveToCorner(*info.georef);
    info.georefFile = file;
    return info;
}

using Notes = std::vector<std::string>;

bool hasCoefficients(MapInfo const& info) {
    return info.georef->Method == TransformMethodPrecalculatedAffineCoefficients;
}

/// Control points that stand for coefficients.
Georeference cornersOf(GEOREF const& coefficients) {
    Georeference corners;
    *corners = coefficients;
    corners->pSource = corners->pTarget = nullptr;
    RefCoeffToControls(&*corners, 0, 0);
    return corners;
}

Notes writeReference(std::string const& file, MapInfo const& info) {
    Stage const stage(directoryOf(file), "map.tif.zrr");
    Notes notes;
    Georeference corners;
    if (hasCoefficients(info)) {
        corners = cornersOf(*info.georef);
        notes.emplace_back("the six coefficients are written as four control points of an affine fit, since the format "
                           "keeps only one coefficient");
    }
    GEOREF const& georef = hasCoefficients(info) ? *corners : *info.georef;
    moveTo(file, stage,
           ZrProjRefFileWriteEx(stage.file.c_str(), &info.projection, info.datum, &info.datumParameters, &georef));
    return notes;
}

/// What a file of nothing but a georeference leaves out.
Notes lostWithoutSystem(MapInfo const& info) {
    Notes notes;
    if (!info.projectionFile.empty())
        notes.emplace_back("the projection is left out: the format has none");
    if (!info.datumFile.empty())
        notes.emplace_back("the datum is left out: the format has none");
    return notes;
}

void needGeoreference(std::string const& file, MapInfo const& info) {
    if (info.georefFile.empty())
        throw std::runtime_error("there is no georeference to write to " + inQuotes(file));
}

Notes writeRsf(std::string const& file, MapInfo const& info) {
    needGeoreference(file, info);
    Stage const stage(directoryOf(file), "map.RSF");
    Notes notes = lostWithoutSystem(info);
    if (hasCoefficients(info))
        notes.emplace_back("the six coefficients are written as four control points");
    else if (info.georef->Method != TransformMethodHelmert)
        notes.push_back(std::string("the method is left out: ") + RefMethodName(info.georef->Method) +
                        " is read back as Helmert");
    bool const written = ZrProjWriteBlueMarbleRSF(stage.image.c_str(), &*info.georef);
    moveTo(file, stage, written && std::filesystem::exists(stage.file));
    return notes;
}

/// How far, on the average, an affine fit misses the controls; negative where there is none.
double affineError(GEOREF const& georef) {
    GEOREF affine = georef;
    affine.Method = TransformMethodAffinePolynomial;
    CGeorefTransform fit(&affine);
    double error = -1;
    fit.ComputeError(&error, nullptr);
    return error;
}

Notes writeWorld(std::string const& file, MapInfo const& info) {
    needGeoreference(file, info);
    Stage const stage(directoryOf(file), "map.tfW");
    Notes notes = lostWithoutSystem(info);
    if (!hasCoefficients(info)) {
        double const error = affineError(*info.georef);
        if (error < 0)
            throw std::runtime_error("the control points make no affine fit to write to " + inQuotes(file));
        std::string text;
        appendFixed(text, error, 3);
        notes.push_back("the control points are fitted by an affine map, which misses them by " + text +
                        " on the average");
    }
    GEOREF centred = *info.georef; // its controls stay those of the original
    if (!hasCoefficients(info) && !RefControlsToCoeff(&centred))
        throw std::runtime_error("the control points make no affine fit to write to " + inQuotes(file));
    moveToCentre(centred);
    bool const written = ZrProjWriteESRIWorld(stage.image.c_str(), &centred);
    moveTo(file, stage, written && std::filesystem::exists(stage.file));
    return notes;
}

constexpr std::array formats{
    FileFormat{"reference file", isReference, readReference, writeReference},
    FileFormat{"RSF file", isRsf, readRsf, writeRsf},
    FileFormat{"world file", isWorld, readWorld, writeWorld},
};

constexpr FileFormat const *reference = formats.data(), *rsf = reference + 1, *world = rsf + 1;

/// The names of an image's side files of each format, in the order in which they are looked for.
std::vector<MapSource> expectedSideFiles(std::string const& image) {
    std::string_view const extension = extensionOf(image);
    std::string const bare = withoutExtension(image);
    std::string const byExtension = extension.size() < 3 ? bare + 'W' : bare + '.' + extension[0] + extension[2] + 'W';
    return {{reference, image + ".zrr"},
            {rsf, bare + ".RSF"},
            {world, byExtension},
            {world, image + 'w'},
            {world, bare + ".WLD"}};
}

/// The plain files beside `expected` whose names differ from it in the case of the extension.
std::vector<std::string> variantsOf(std::string const& expected) {
    std::vector<std::string> found;
    std::error_code error;
    std::size_t const extension = extensionOf(expected).size();
    std::string const stem = expected.substr(0, expected.size() - extension);
    for (auto const& entry : std::filesystem::directory_iterator(directoryOf(expected), error)) {
        std::string const name = entry.path().filename().string();
        std::string const there = name.size() > extension ? stem + name.substr(name.size() - extension) : "";
        bool const same = std::filesystem::path(there).filename() == name && equalIgnoringCase(there, expected);
        if (extension > 0 && same && there != expected && entry.is_regular_file(error))
            found.push_back(there);
    }
    std::ranges::sort(found, std::greater());
    return found;
}

} // namespace

std::span<FileFormat const> sideFormats() {
    return formats;
}

std::vector<MapSource> sideFilesOf(std::string const& image) {
    std::vector<MapSource> const expected = expectedSideFiles(image);
    std::vector<MapSource> found;
    for (FileFormat const& format : formats) {
        auto const take = [&](MapSource const& file, std::vector<std::string> const& names) {
            for (std::string const& name : names)
                if (file.format == &format && std::filesystem::is_regular_file(name))
                    found.push_back({&format, name});
        };
        for (MapSource const& file : expected)
            take(file, {file.name});
        for (MapSource const& file : expected)
            take(file, variantsOf(file.name));
    }
    return found;
}

} // namespace ZrProj::Command

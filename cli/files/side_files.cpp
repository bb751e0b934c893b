#include "cli/files/side_files.h"

#include "cli/files/map_info.h"
#include "cli/files/side_file_stage.h"
#include "cli/text/text.h"

#include <zrproj/c.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <stdexcept>

namespace ZrProj::Command {
namespace {

template <zrproj_side_file kind> bool isOfKind(std::string const& file) {
    zrproj_side_file found{};
    return zrproj_side_file_kind(file.c_str(), &found) == ZRPROJ_OK && found == kind;
}

[[noreturn]] void refuse(std::string const& file, char const* why) {
    throw std::runtime_error("cannot read " + inQuotes(file) + ": " + why);
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
    bool const points = info.georef->pSource != nullptr;
    info.georefFile = (flags & RefFileFlagCoefficients) || points ? file : "";
    if ((flags & RefFileFlagControls) && !points) {
        info.georef = Georeference();
        info.notes.push_back("the control points that " + inQuotes(file) + " announces are not there");
    }
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

Notes writeReference(std::string const& file, MapInfo const& info, Misfit) {
    WritingStage stage(file, "map.tif.zrr");
    Notes notes;
    Georeference corners;
    if (hasCoefficients(info)) {
        corners = cornersOf(*info.georef);
        notes.emplace_back("the six coefficients are written as four control points of an affine fit, since the format "
                           "keeps only one coefficient");
    }
    GEOREF const& georef = hasCoefficients(info) ? *corners : *info.georef;
    stage.finish(ZrProjRefFileWriteEx(stage.file(), &info.projection, info.datum, &info.datumParameters, &georef));
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

/// What becomes of controls in a file that says no method: a similarity, which cannot mirror, as the pixels' rows are
/// against the map. An image's own RSF file goes before its tags, so that a wide miss would spoil a good image.
std::string similarityNote(std::string const& file, GEOREF const& controls, Misfit misfit) {
    auto const miss = controlMiss(controls, TransformMethodHelmert);
    std::string text = std::string("read back as a similarity (Helmert), ") +
                       (miss ? "which misses them by " + missText(*miss) : "which they do not make");
    if ((!miss || isWide(*miss)) && misfit == Misfit::Refused)
        throw std::runtime_error("cannot write " + inQuotes(file) + ": control points of an RSF file are " + text +
                                 "; --accept-misfit writes it all the same");
    return text;
}

Notes writeRsf(std::string const& file, MapInfo const& info, Misfit misfit) {
    needGeoreference(file, info);
    Notes notes = lostWithoutSystem(info);
    Georeference const corners = hasCoefficients(info) ? cornersOf(*info.georef) : Georeference();
    GEOREF const& controls = hasCoefficients(info) ? *corners : *info.georef;
    std::string const back = similarityNote(file, controls, misfit);
    if (hasCoefficients(info))
        notes.push_back("the six coefficients are written as four control points, " + back);
    else
        notes.push_back(std::string("the method is left out: the control points of ") + RefMethodName(controls.Method) +
                        " are " + back);
    WritingStage stage(file, "map.RSF");
    stage.finish(ZrProjWriteBlueMarbleRSF(stage.image(), &controls));
    return notes;
}

/// Sets to 0 what a fit leaves of nothing: a slope that moves no corner of a huge image by a digit.
void dropRemains(GEOREF& fit) {
    double const largest = std::max({std::fabs(fit.A), std::fabs(fit.B), std::fabs(fit.D), std::fabs(fit.E)});
    for (double* slope : {&fit.A, &fit.B, &fit.D, &fit.E})
        if (std::fabs(*slope) <= 1e-12 * largest)
            *slope = 0;
}

Notes writeWorld(std::string const& file, MapInfo const& info, Misfit) {
    needGeoreference(file, info);
    Notes notes = lostWithoutSystem(info);
    GEOREF centred = *info.georef; // its controls stay those of the original
    if (!hasCoefficients(info)) {
        auto const miss = controlMiss(*info.georef, TransformMethodAffinePolynomial);
        if (!miss || !RefControlsToCoeff(&centred))
            throw std::runtime_error("the control points make no affine fit to write to " + inQuotes(file));
        notes.push_back("the control points are fitted by an affine map, which misses them by " + missText(*miss));
        dropRemains(centred);
    }
    moveToCentre(centred);
    WritingStage stage(file, "map.tfW");
    stage.finish(ZrProjWriteESRIWorld(stage.image(), &centred));
    return notes;
}

constexpr std::array formats{
    // by zrproj_side_file
    FileFormat{"reference file", isOfKind<ZRPROJ_REFERENCE_FILE>, readReference, writeReference},
    FileFormat{"RSF file", isOfKind<ZRPROJ_RSF_FILE>, readRsf, writeRsf},
    FileFormat{"world file", isOfKind<ZRPROJ_WORLD_FILE>, readWorld, writeWorld},
};

} // namespace

std::span<FileFormat const> sideFormats() {
    return formats;
}

std::vector<MapSource> sideFilesOf(std::string const& image) {
    zrproj_side_files* files = nullptr;
    if (zrproj_side_files_create(image.c_str(), &files) != ZRPROJ_OK)
        throw std::runtime_error(zrproj_message());
    std::unique_ptr<zrproj_side_files, decltype(&zrproj_side_files_destroy)> const owner(files,
                                                                                         zrproj_side_files_destroy);
    std::vector<MapSource> found;
    zrproj_side_file kind{};
    char const* path = nullptr;
    for (std::size_t n = 0; zrproj_side_files_entry(files, n, &kind, &path) == ZRPROJ_OK; ++n)
        found.push_back({&formats[static_cast<std::size_t>(kind)], path});
    return found;
}

} // namespace ZrProj::Command

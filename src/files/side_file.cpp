#include "files/side_file.h"

#include "files/reference_file.h"
#include "files/side_names.h"
#include "host/replacement_file.h"
#include "host/text.h"

#include <zrproj/zrlibw.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <filesystem>
#include <functional>
#include <string_view>
#include <system_error>

namespace ZrProj {
namespace {

std::string_view extensionOf(std::string const& name) {
    return ZrGetFileExt(name.c_str());
}

constexpr auto imageExtensions = std::to_array<std::string_view>(
    {"asc", "bil",  "bip", "bmp", "bsq", "dem", "ecw", "gif",  "grd", "img",  "j2k", "jp2",
     "jpc", "jpeg", "jpg", "jpx", "ntf", "pcx", "pdf", "pgm",  "png", "pnm",  "ppm", "psd",
     "rgb", "rst",  "sid", "sun", "svg", "tga", "tif", "tiff", "vrt", "webp", "xpm"});

/// "wld", and what becomes of the extensions of images: "tfw" or "tifw". Others end in a w as well: "raw", "new".
bool isWorldExtension(std::string_view extension) {
    return equalIgnoringCase(extension, "wld") ||
           std::ranges::any_of(imageExtensions, [extension](std::string_view image) {
               return equalIgnoringCase(extension, std::string(image) + 'w') ||
                      equalIgnoringCase(extension, std::string{image[0], image[2], 'w'});
           });
}

/// The names of an image's files of a kind, in the order in which they are looked for.
std::vector<std::string> namesToRead(std::string const& image, SideFileKind kind) {
    switch (kind) {
    case SideFileKind::reference:
        return {image + ".zrr"};
    case SideFileKind::rsf:
        return {rsfName(image)};
    case SideFileKind::world:
        break;
    }
    return worldNamesToRead(image);
}

bool isThere(std::string const& name) {
    std::error_code error;
    return std::filesystem::is_regular_file(name, error);
}

/// The files whose names differ from `expected` in the case of the extension, small letters first.
std::vector<std::string> variantsOf(std::string const& expected) {
    auto found = caseVariants(expected);
    std::erase_if(found, [](std::string const& name) { return !isThere(name); });
    std::ranges::sort(found, std::greater());
    return found;
}

std::string inQuotes(std::string const& name) {
    return '"' + name + '"';
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

bool hasCoefficients(GEOREF const& georef) {
    return georef.Method == TransformMethodPrecalculatedAffineCoefficients;
}

/// A reader's failure in words, "" where it is good.
std::string readReference(std::FILE& file, std::string const& name, OwnedMapRecord& record, FileOutcome& outcome) {
    bool accepted = false;
    if (!readReferenceFile(file, {true, true, true}, record, accepted))
        return "it is no reference file, or damaged";
    if (!accepted)
        return "it has a later version than 1.1";
    GEOREF& georef = record.georef;
    if (georef.Method == TransformMethodNone || hasCoefficients(georef)) {
        RefFreeControls(&georef); // only methods that are made from controls keep them
    } else if (!georef.pSource) {
        georef.Method = TransformMethodNone;
        georef.nControls = 0;
        outcome.notes.push_back("the control points that " + inQuotes(name) + " announces are not there");
    }
    return "";
}

std::string readRsf(std::FILE& file, std::string const&, OwnedMapRecord& record, FileOutcome&) {
    GEOREF found = {};
    bool const good = readRsfFile(file, found) && found.nControls > 0;
    if (good)
        record.georef = found;
    else
        RefFreeControls(&found);
    return good ? "" : "it does not hold the control points that it announces, or none";
}

std::string readWorld(std::FILE& file, std::string const&, OwnedMapRecord& record, FileOutcome&) {
    GEOREF const found = readWorldFile(file);
    if (!hasCoefficients(found))
        return "it has fewer than six lines, each ended by a line feed";
    record.georef = found;
    moveToCorner(record.georef);
    return "";
}

/// A georeference that is written, its control points another's or its own.
struct Written {
    GEOREF georef;
    bool ownsControls = false;

    explicit Written(GEOREF const& given) : georef(given) {}
    Written(Written const&) = delete;
    Written& operator=(Written const&) = delete;
    ~Written() {
        if (ownsControls)
            RefFreeControls(&georef);
    }
    /// Control points that stand for coefficients.
    void becomeCorners() {
        georef.pSource = georef.pTarget = nullptr;
        if (!RefCoeffToControls(&georef, 0, 0))
            throw std::bad_alloc();
        ownsControls = true;
    }
};

bool writeReference(std::string const& name, MapRecord const& record) {
    Written written(record.georef);
    if (hasCoefficients(record.georef))
        written.becomeCorners();
    MapRecord copy = record;
    copy.georef = written.georef;
    return writeReferenceFile(name, copy) == WriteResult::Written;
}

bool writeRsf(std::string const& name, MapRecord const& record) {
    Written written(record.georef);
    if (hasCoefficients(record.georef))
        written.becomeCorners();
    return writeRsfFile(name, written.georef);
}

/// Sets to 0 what a fit leaves of nothing: a slope that moves no corner of a huge image by a digit.
void dropRemains(GEOREF& fit) {
    double const largest = std::max({std::fabs(fit.A), std::fabs(fit.B), std::fabs(fit.D), std::fabs(fit.E)});
    for (double* slope : {&fit.A, &fit.B, &fit.D, &fit.E})
        if (std::fabs(*slope) <= 1e-12 * largest)
            *slope = 0;
}

bool writeWorld(std::string const& name, MapRecord const& record) {
    GEOREF centred = record.georef; // its controls stay those of the original
    if (!hasCoefficients(centred)) {
        RefControlsToCoeff(&centred);
        dropRemains(centred);
    }
    moveToCentre(centred);
    return writeWorldFile(name, centred);
}

/// What becomes of a georeference in a file of that kind; "" where that keeps it.
std::string changeOf(SideFileKind kind, GEOREF const& georef) {
    bool const isByCoefficients = hasCoefficients(georef);
    if (georef.Method == TransformMethodNone)
        return "";
    switch (kind) {
    case SideFileKind::reference:
        return isByCoefficients ? "the six coefficients are written as four control points of an affine fit, since the "
                                  "format keeps only one coefficient"
                                : "";
    case SideFileKind::rsf:
        return isByCoefficients
                   ? "the six coefficients are written as four control points, read back as a similarity (Helmert)"
                   : std::string("the method is left out: the control points of ") + RefMethodName(georef.Method) +
                         " are read back as a similarity (Helmert)";
    case SideFileKind::world:
        return isByCoefficients ? "" : "the control points are fitted by an affine map";
    }
    return "";
}

/// What a file of that kind lacks of a record to be written, "" where nothing.
std::string lack(SideFileKind kind, MapRecord const& record) {
    GEOREF affine = record.georef;
    bool const hasNone = affine.Method == TransformMethodNone;
    if (kind == SideFileKind::reference)
        return hasNone && record.projection.Type == ProjTypeUndefined && record.datum == DatumTypeNone
                   ? "there is nothing"
                   : "";
    if (hasNone)
        return "there is no georeference";
    bool const makesNone = kind == SideFileKind::world && !hasCoefficients(affine) && !RefControlsToCoeff(&affine);
    return makesNone ? "the control points make no affine fit" : "";
}

// In the order of SideFileKind.
struct Format {
    std::string (*read)(std::FILE& file, std::string const& name, OwnedMapRecord& record, FileOutcome& outcome);
    bool (*write)(std::string const& name, MapRecord const& record);
};
constexpr std::array formats{Format{readReference, writeReference}, Format{readRsf, writeRsf},
                             Format{readWorld, writeWorld}};
static_assert(formats.size() == sideFileKinds);

Format const& formatOf(SideFileKind kind) {
    return formats[static_cast<std::size_t>(kind)];
}

std::string systemMessage() {
    return std::generic_category().message(errno);
}

} // namespace

std::optional<SideFileKind> sideFileKind(std::string const& name) {
    std::string_view const extension = extensionOf(name);
    if (equalIgnoringCase(extension, "zrr"))
        return SideFileKind::reference;
    if (equalIgnoringCase(extension, "rsf"))
        return SideFileKind::rsf;
    return isWorldExtension(extension) ? std::optional(SideFileKind::world) : std::nullopt;
}

std::vector<SideFile> sideFilesOf(std::string const& image) {
    std::vector<SideFile> found;
    for (std::size_t i = 0; i < sideFileKinds; ++i) {
        auto const kind = static_cast<SideFileKind>(i);
        auto const names = namesToRead(image, kind);
        for (std::string const& name : names)
            if (isThere(name))
                found.push_back({kind, name});
        for (std::string const& name : names)
            for (std::string const& variant : variantsOf(name))
                found.push_back({kind, variant});
    }
    return found;
}

std::string sideFileName(std::string const& image, SideFileKind kind) {
    return kind == SideFileKind::world ? worldNameToWrite(image) : namesToRead(image, kind).front();
}

FileOutcome readSideFile(std::string const& name, SideFileKind kind, OwnedMapRecord& record) {
    FileOutcome outcome;
    errno = 0;
    Stream const file = openPlainFile(name);
    std::string const reason =
        !file ? (errno ? systemMessage() : "it is no plain file") : formatOf(kind).read(*file, name, record, outcome);
    if (!reason.empty())
        outcome.failure = "cannot read " + inQuotes(name) + ": " + reason;
    return outcome;
}

std::vector<std::string> lossOf(SideFileKind kind, MapRecord const& record) {
    std::vector<std::string> lost;
    bool const hasSystem = kind == SideFileKind::reference;
    if (!hasSystem && record.projection.Type != ProjTypeUndefined)
        lost.emplace_back("the projection is left out: the format has none");
    if (!hasSystem && record.datum != DatumTypeNone)
        lost.emplace_back("the datum is left out: the format has none");
    if (auto change = changeOf(kind, record.georef); !change.empty())
        lost.push_back(std::move(change));
    return lost;
}

FileOutcome writeSideFile(std::string const& name, SideFileKind kind, MapRecord const& record) {
    if (std::string const lacking = lack(kind, record); !lacking.empty())
        return {lacking + " to write to " + inQuotes(name), {}, false};
    std::string const beginning = "cannot write " + inQuotes(name) + ": ";
    ReplacementFile file(name);
    if (file.name().empty())
        return {beginning + file.reason()};
    FileOutcome outcome{"", lossOf(kind, record)};
    errno = 0;
    if (!formatOf(kind).write(file.name(), record))
        outcome.failure = beginning + (errno ? systemMessage() : "writing failed");
    else if (!file.commit())
        outcome.failure = beginning + file.reason();
    return outcome;
}

} // namespace ZrProj

// The exported functions that read GeoTIFF tags.
#include "files/GeoTIFFPlacement.h"
#include "files/GeoTIFFSystem.h"
#include "files/guarded.h"
#include "files/map_record.h"
#include "host/fpenv.h"

#include <zrproj/geotiff.h>
#include <zrproj/reffile.h>

#include <algorithm>
#include <cstddef>

namespace ZrProj {
namespace {

using namespace GeoTIFF;

constexpr char sourceFile[] = ".\\GeoTIFF.cpp";

/// What tags say: each part, or why it cannot be read.
struct Contents {
    bool hasKeys = false;
    Outcome<System> system;
    Outcome<Placement> placement;
};

Outcome<Contents> contentsOf(ZrBitmapTagList const& tags) {
    auto const keys = KeyDirectory::read(tags);
    if (!keys)
        return keys.refusal();
    bool const pixelIsPoint = keys->code(keyRasterType) == rasterIsPoint;
    return Contents{!keys->empty(), keys->empty() ? Outcome<System>(Refusal{}) : readSystem(*keys),
                    readPlacement(tags, pixelIsPoint)};
}

void reset(PROJDATA* data, DatumType* datum, DATUM2WGS84* params, GEOREF* georef, std::uint32_t* flags) {
    MapRecord const empty = emptyMapRecord();
    if (data)
        *data = empty.projection;
    if (datum)
        *datum = empty.datum;
    if (params)
        *params = empty.datumParameters;
    if (georef)
        *georef = empty.georef;
    if (flags)
        *flags = 0;
}

std::uint32_t store(System const& system, PROJDATA* data, DatumType* datum, DATUM2WGS84* params) {
    std::uint32_t flags = 0;
    if (data) {
        *data = system.projection;
        flags |= RefFileFlagProjection;
    }
    if (system.geographic.datum == DatumTypeNone)
        return flags;
    if (datum) {
        *datum = system.geographic.datum;
        flags |= RefFileFlagDatum;
    }
    if (params)
        *params = system.geographic.params;
    return flags;
}

/// Nothing when memory runs out.
std::optional<std::uint32_t> store(Placement const& placement, GEOREF* georef) {
    if (!georef || (!placement.coefficients && placement.points.empty()))
        return 0;
    if (placement.coefficients) {
        auto const& [A, B, C, D, E, F] = *placement.coefficients;
        georef->Method = TransformMethodPrecalculatedAffineCoefficients;
        georef->A = A, georef->B = B, georef->C = C, georef->D = D, georef->E = E, georef->F = F;
        return RefFileFlagCoefficients;
    }
    if (!RefAllocControls(georef, static_cast<int>(placement.points.size())))
        return std::nullopt;
    std::ranges::transform(placement.points, georef->pSource, &TiePoint::pixel);
    std::ranges::transform(placement.points, georef->pTarget, &TiePoint::map);
    georef->Method = TransformMethodAffinePolynomial;
    return RefFileFlagControls;
}

bool readTags(ZrBitmapTagList const& tags, PROJDATA* data, DatumType* datum, DATUM2WGS84* params, GEOREF* georef,
              std::uint32_t* flags) {
    auto const contents = contentsOf(tags);
    if (!contents)
        return false;
    std::optional<std::uint32_t> const placed = contents->placement ? store(*contents->placement, georef) : 0;
    if (!placed)
        return false;
    std::uint32_t found = *placed;
    if (contents->system)
        found |= store(*contents->system, data, datum, params);
    bool const hasPlacement = tags.Find(tagPixelScale) || tags.Find(tagTiePoints) || tags.Find(tagTransformation);
    if (flags)
        *flags = contents->hasKeys || hasPlacement ? found | RefFileFlagRead : 0;
    return true;
}

/// Why parts of the tags are not read, a sentence a line.
std::string explanationOf(ZrBitmapTagList const& tags) {
    auto const contents = contentsOf(tags);
    if (!contents)
        return contents.reason();
    std::string result;
    auto const add = [&result](std::string const& reason) {
        if (!reason.empty())
            result += (result.empty() ? "" : "\n") + reason;
    };
    add(contents->system.reason());
    if (contents->system)
        add(contents->system->geographic.noDatum);
    add(contents->placement.reason());
    return result;
}

} // namespace

bool ZrProjGetGeoTIFF(ZrBitmapTagList const& tags, PROJDATA* data, DatumType* datum, DATUM2WGS84* params,
                      GEOREF* georef, std::uint32_t* flags) {
    reset(data, datum, params, georef, flags);
    return guarded(sourceFile, [&] {
        return withDefaultFloatingPoint([&] { return readTags(tags, data, datum, params, georef, flags); });
    });
}

bool ZrProjExplainGeoTIFF(ZrBitmapTagList const& tags, char* message, int size) {
    if (!message || size < 1)
        return false;
    *message = '\0';
    return guarded(sourceFile, [&] {
        std::string const text = withDefaultFloatingPoint([&] { return explanationOf(tags); });
        message[text.copy(message, static_cast<std::size_t>(size) - 1)] = '\0';
        return true;
    });
}

} // namespace ZrProj

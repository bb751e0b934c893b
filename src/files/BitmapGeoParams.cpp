// Everything that is known of an image, from its side files and its tags.
#include "files/map_record.h"

#include <zrproj/geotiff.h>
#include <zrproj/reffile.h>
#include <zrproj/worldfile.h>

#include <algorithm>
#include <array>

namespace ZrProj {
namespace {

constexpr std::uint32_t georefFlags = RefFileFlagCoefficients | RefFileFlagControls;

/// What one source says. Its controls are freed unless they are taken.
struct Source {
    MapRecord record = emptyMapRecord();
    std::uint32_t flags = 0;
    bool good = true;

    Source() = default;
    Source(Source const&) = delete;
    Source& operator=(Source const&) = delete;
    ~Source() { RefFreeControls(&record.georef); }

    GEOREF takeGeoref() {
        GEOREF const taken = record.georef;
        record.georef = {};
        return taken;
    }
};

/// The sources in the order in which they count.
struct Sources {
    Source reference, rsf, world, tags;

    Sources(char const* name, ZrBitmapTagList const* tagList) {
        auto& [projection, datum, params, georef] = reference.record;
        reference.good = ZrProjRefFileReadEx(name, &projection, &datum, &params, &georef, &reference.flags);
        rsf.good = ZrProjReadBlueMarbleRSF(name, &rsf.record.georef, &rsf.flags);
        world.good = ZrProjReadESRIWorld(name, &world.record.georef, &world.flags);
        MapRecord& r = tags.record;
        if (tagList)
            tags.good = ZrProjGetGeoTIFF(*tagList, &r.projection, &r.datum, &r.datumParameters, &r.georef, &tags.flags);
        for (Source* source : all())
            source->flags = source->good ? source->flags : 0;
        if (!georef.pSource) // a count alone places nothing
            reference.flags &= ~std::uint32_t{RefFileFlagControls};
    }

    std::array<Source*, 4> all() { return {&reference, &rsf, &world, &tags}; }

    /// The first that has one of the parts; null where none has.
    Source* first(std::uint32_t flags) {
        auto const sources = all();
        auto const found = std::ranges::find_if(sources, [flags](Source* source) { return source->flags & flags; });
        return found == sources.end() ? nullptr : *found;
    }

    /// The coefficients of a reference file are but one number, and stand behind all others.
    Source* firstGeoref() {
        std::uint32_t const flags = reference.flags;
        reference.flags &= ~std::uint32_t{RefFileFlagCoefficients};
        Source* const better = first(georefFlags);
        reference.flags = flags;
        return better ? better : first(georefFlags);
    }
};

struct Outputs {
    PROJDATA* data;
    DatumType* datum;
    DATUM2WGS84* params;
    GEOREF* georef;
};

std::uint32_t deliver(Sources& sources, Outputs const& outputs) {
    auto const [data, datum, params, georef] = outputs;
    std::uint32_t flags = 0;
    for (Source const* source : sources.all())
        flags |= source->flags & RefFileFlagRead;
    if (Source const* const source = sources.first(RefFileFlagProjection); source && data) {
        *data = source->record.projection;
        flags |= RefFileFlagProjection;
    }
    if (Source const* const source = sources.first(RefFileFlagDatum); source && datum) {
        *datum = source->record.datum;
        if (params)
            *params = source->record.datumParameters;
        flags |= RefFileFlagDatum;
    }
    if (Source* const source = sources.firstGeoref(); source && georef) {
        *georef = source->takeGeoref();
        flags |= source->flags & georefFlags;
    }
    return flags;
}

void reset(Outputs const& outputs) {
    MapRecord const empty = emptyMapRecord();
    if (outputs.data)
        *outputs.data = empty.projection;
    if (outputs.datum)
        *outputs.datum = empty.datum;
    if (outputs.params)
        *outputs.params = empty.datumParameters;
    if (outputs.georef)
        *outputs.georef = empty.georef;
}

} // namespace

// NOLINTNEXTLINE(readability-non-const-parameter): all of them are written through Outputs
bool ZrProjGetBitmapGeoParams(char const* imageFileName, ZrBitmapTagList const* tags, PROJDATA* data, DatumType* datum,
                              DATUM2WGS84* params, GEOREF* georef, std::uint32_t* flags) {
    Outputs const outputs{data, datum, params, georef};
    reset(outputs);
    if (flags)
        *flags = 0;
    if (!imageFileName || !*imageFileName)
        return false;
    Sources sources(imageFileName, tags);
    std::uint32_t const found = deliver(sources, outputs);
    if (flags)
        *flags = found;
    return std::ranges::all_of(sources.all(), [](Source const* source) { return source->good; });
}

} // namespace ZrProj

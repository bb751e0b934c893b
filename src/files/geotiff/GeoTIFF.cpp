// The exported functions that read and make GeoTIFF tags.
#include "files/geotiff/placement.h"
#include "files/geotiff/system.h"
#include "files/geotiff/tags.h"
#include "files/guarded.h"
#include "files/map_record.h"
#include "host/fpenv.h"
#include "systems/to_record.h"

#include <zrproj/geotiff.h>
#include <zrproj/reffile.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <new>
#include <span>

namespace ZrProj {
namespace {

using namespace GeoTIFF;

constexpr char sourceFile[] = ".\\GeoTIFF.cpp";

/// What tags say: each part, or why it cannot be read.
struct Contents {
    bool hasKeys = false;
    Expected<System> system;
    Expected<systems::SystemRecord> record; // of the system
    Expected<Placement> placement;
};

Expected<systems::SystemRecord> recordOf(Expected<System> const& system) {
    if (!system)
        return system.refusal();
    if (system->degrees != 1)
        return Refusal{"longitudes and latitudes are not in degrees"};
    auto record = systems::recordOf(system->definition);
    if (auto const* unsupported = std::get_if<systems::Unsupported>(&record))
        return Refusal{unsupported->reason};
    return std::get<systems::SystemRecord>(std::move(record));
}

Expected<Contents> contentsOf(ZrBitmapTagList const& tags) {
    auto const keys = KeyDirectory::read(tags);
    if (!keys)
        return keys.refusal();
    bool const pixelIsPoint = keys->code(keyRasterType) == rasterIsPoint;
    auto const system = keys->empty() ? Expected<System>(Refusal{}) : readSystem(*keys);
    return Contents{!keys->empty(), system, recordOf(system), readPlacement(tags, pixelIsPoint)};
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

std::uint32_t store(systems::SystemRecord const& record, PROJDATA* data, DatumType* datum, DATUM2WGS84* params) {
    std::uint32_t flags = 0;
    if (data) {
        *data = record.projection;
        flags |= RefFileFlagProjection;
    }
    if (record.datum == DatumTypeNone)
        return flags;
    if (datum) {
        *datum = record.datum;
        flags |= RefFileFlagDatum;
    }
    if (params)
        *params = record.parameters;
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
    if (contents->record)
        found |= store(*contents->record, data, datum, params);
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
    if (contents->system)
        add(contents->system->noticed);
    add(contents->record.reason());
    if (contents->record)
        add(contents->record->noDatum);
    add(contents->placement ? contents->placement->noticed : contents->placement.reason());
    return result;
}

/// The contents of all tags; what is not to be written is empty.
struct TagContents {
    PlacementTags placement;
    KeyDirectory::Contents keys;
};

Expected<TagContents> contentsOf(Expected<KeyDirectory> const& keys, GEOREF const* georef) {
    if (!keys)
        return keys.refusal();
    auto placement = georef ? writePlacement(*georef) : Expected(PlacementTags());
    if (!placement)
        return placement.refusal();
    return TagContents{*placement, keys->empty() ? KeyDirectory::Contents() : keys->contents()};
}

struct TagContent {
    TagId id;
    TagType type;
    std::size_t count, bytes;
    void const* data;
};

template <class Values> TagContent content(TagId id, TagType type, Values const& values, std::size_t count) {
    return {id, type, count, std::as_bytes(std::span(values.data(), count)).size(), values.data()};
}

/// The tags that are not empty, in ascending order.
std::vector<TagContent> tagsOf(TagContents const& contents) {
    auto const& [placement, keys] = contents;
    std::vector<TagContent> result{
        content(tagPixelScale, typeDouble, placement.pixelScale, placement.pixelScale.size()),
        content(tagTiePoints, typeDouble, placement.tiePoints, placement.tiePoints.size()),
        content(tagTransformation, typeDouble, placement.matrix, placement.matrix.size()),
        content(tagKeyDirectory, typeShort, keys.directory, keys.directory.size()),
        content(tagDoubles, typeDouble, keys.doubles, keys.doubles.size()),
        content(tagTexts, typeAscii, keys.texts, keys.texts.empty() ? 0 : keys.texts.size() + 1), // and its null
    };
    std::erase_if(result, [](TagContent const& tag) { return tag.count == 0; });
    return result;
}

/// Where the next values stand in the block that holds the tags and, behind them, their data.
constexpr std::size_t aligned(std::size_t bytes) {
    return (bytes + alignof(std::max_align_t) - 1) / alignof(std::max_align_t) * alignof(std::max_align_t);
}

/// One block from malloc. Null when memory runs out.
ZrBitmapTag* blockOf(std::vector<TagContent> const& tags) {
    std::size_t size = aligned(tags.size() * sizeof(ZrBitmapTag));
    for (TagContent const& tag : tags)
        size += aligned(tag.bytes);
    auto* const block = static_cast<std::byte*>(std::malloc(size));
    if (!block)
        return nullptr;
    auto* const result = reinterpret_cast<ZrBitmapTag*>(block);
    std::byte* data = block + aligned(tags.size() * sizeof(ZrBitmapTag));
    for (std::size_t i = 0; i < tags.size(); data += aligned(tags[i].bytes), ++i) {
        std::memcpy(data, tags[i].data, tags[i].bytes);
        new (&result[i]) ZrBitmapTag{tags[i].id, tags[i].type, static_cast<std::uint32_t>(tags[i].count), data};
    }
    return result;
}

bool build(TagContents const& contents, ZrBitmapTag** tags, int* count) {
    std::vector<TagContent> const made = tagsOf(contents);
    if (made.empty())
        return true;
    *tags = blockOf(made);
    *count = *tags ? static_cast<int>(made.size()) : 0;
    return *tags != nullptr;
}

} // namespace

Expected<std::span<ZrBitmapTag>> GeoTIFF::makeTags(systems::Definition const& system, GEOREF const& georef) {
    auto const contents = contentsOf(writeSystem(system), &georef);
    if (!contents)
        return contents.refusal();
    ZrBitmapTag* tags = nullptr;
    int count = 0;
    if (!build(*contents, &tags, &count))
        throw std::bad_alloc();
    return std::span(tags, static_cast<std::size_t>(count));
}

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

bool ZrProjBuildGeoTIFFTags(PROJDATA const* data, DatumType datum, DATUM2WGS84 const* params, GEOREF const* georef,
                            ZrBitmapTag** tags, int* count) {
    if (tags)
        *tags = nullptr;
    if (count)
        *count = 0;
    if (!tags || !count)
        return false;
    return guarded(sourceFile, [&] {
        auto const contents =
            withDefaultFloatingPoint([&] { return contentsOf(writeSystem(data, datum, params), georef); });
        return contents && build(*contents, tags, count);
    });
}

void ZrProjDiscardGeoTIFFTags(ZrBitmapTag* tags, int) {
    std::free(tags);
}

bool ZrProjExplainGeoTIFFTags(PROJDATA const* data, DatumType datum, DATUM2WGS84 const* params, GEOREF const* georef,
                              char* message, int size) {
    if (!message || size < 1)
        return false;
    *message = '\0';
    return guarded(sourceFile, [&] {
        auto const contents =
            withDefaultFloatingPoint([&] { return contentsOf(writeSystem(data, datum, params), georef); });
        message[contents.reason().copy(message, static_cast<std::size_t>(size) - 1)] = '\0';
        return true;
    });
}

} // namespace ZrProj

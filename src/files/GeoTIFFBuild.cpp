// The exported functions that make GeoTIFF tags.
#include "files/GeoTIFFPlacement.h"
#include "files/GeoTIFFSystem.h"
#include "files/guarded.h"
#include "host/fpenv.h"

#include <zrproj/geotiff.h>

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <new>
#include <span>

namespace ZrProj {
namespace {

using namespace GeoTIFF;

constexpr char sourceFile[] = ".\\GeoTIFF.cpp";

/// The contents of all tags; what is not to be written is empty.
struct Contents {
    PlacementTags placement;
    KeyDirectory::Contents keys;
};

Outcome<Contents> contentsOf(PROJDATA const* data, DatumType datum, DATUM2WGS84 const* params, GEOREF const* georef) {
    auto const keys = writeSystem(data, datum, params);
    if (!keys)
        return keys.refusal();
    auto placement = georef ? writePlacement(*georef) : Outcome(PlacementTags());
    if (!placement)
        return placement.refusal();
    return Contents{*placement, keys->empty() ? KeyDirectory::Contents() : keys->contents()};
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
std::vector<TagContent> tagsOf(Contents const& contents) {
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

bool build(Contents const& contents, ZrBitmapTag** tags, int* count) {
    std::vector<TagContent> const made = tagsOf(contents);
    if (made.empty())
        return true;
    *tags = blockOf(made);
    *count = *tags ? static_cast<int>(made.size()) : 0;
    return *tags != nullptr;
}

} // namespace

bool ZrProjBuildGeoTIFFTags(PROJDATA const* data, DatumType datum, DATUM2WGS84 const* params, GEOREF const* georef,
                            ZrBitmapTag** tags, int* count) {
    if (tags)
        *tags = nullptr;
    if (count)
        *count = 0;
    if (!tags || !count)
        return false;
    return guarded(sourceFile, [&] {
        auto const contents = withDefaultFloatingPoint([&] { return contentsOf(data, datum, params, georef); });
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
        auto const contents = withDefaultFloatingPoint([&] { return contentsOf(data, datum, params, georef); });
        message[contents.reason().copy(message, static_cast<std::size_t>(size) - 1)] = '\0';
        return true;
    });
}

} // namespace ZrProj

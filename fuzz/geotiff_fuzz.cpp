// Whatever tags hold, they are read without harm, and what was read is written as tags that read as the same system.
//
// The input is tags one after the other: number (2 bytes), type (1), count (2), data.
#include "fuzz/input_file.h"

#include <zrproj/geotiff.h>
#include <zrproj/reffile.h>

#include <array>
#include <cstring>
#include <vector>

using namespace ZrProj;

namespace {

struct Map {
    PROJDATA projection{};
    DatumType datum{};
    DATUM2WGS84 parameters{};
    GEOREF georef{};
    std::uint32_t flags = 0;

    bool read(ZrBitmapTagList const& tags) {
        return ZrProjGetGeoTIFF(tags, &projection, &datum, &parameters, &georef, &flags);
    }
    ~Map() { RefFreeControls(&georef); }
};

std::size_t sizeOf(std::uint8_t type) {
    return type == 12 ? 8 : type == 3 ? 2 : 1;
}

/// Projection, datum, georeference: control points that an affine map fits come back as its coefficients.
std::array<bool, 3> told(std::uint32_t flags) {
    return {(flags & RefFileFlagProjection) != 0, (flags & RefFileFlagDatum) != 0,
            (flags & (RefFileFlagCoefficients | RefFileFlagControls)) != 0};
}

ZrBitmapTagList tagsOf(std::uint8_t const* data, std::size_t size) {
    ZrBitmapTagList tags;
    while (size >= 5) {
        ZrBitmapTag tag = {};
        std::uint16_t count = 0;
        std::memcpy(&tag.Id, data, 2);
        std::memcpy(&count, data + 3, 2);
        tag.Type = data[2];
        data += 5, size -= 5;
        std::size_t const bytes = std::min<std::size_t>(size, count * sizeOf(data[-3]));
        tag.Count = static_cast<std::uint32_t>(bytes / sizeOf(data[-3]));
        tag.pData = data;
        if (sizeOf(data[-3]) > 1 || tag.Type == 2)
            tags.Add(tag);
        data += bytes, size -= bytes;
    }
    return tags;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    ZrBitmapTagList const tags = tagsOf(data, size);
    Map map, back;
    std::array<char, 64> reason = {};
    bool const good = map.read(tags);
    require(good || map.flags == 0);
    require(ZrProjExplainGeoTIFF(tags, reason.data(), 64) && (good || reason[0] != '\0'));
    ZrBitmapTag* made = nullptr;
    int count = 0;
    if (ZrProjBuildGeoTIFFTags(&map.projection, map.datum, &map.parameters, &map.georef, &made, &count)) {
        ZrBitmapTagList list;
        for (int i = 0; i < count; ++i)
            require(list.Add(made[i]));
        require(back.read(list));
        require(told(back.flags) == told(map.flags));
    }
    ZrProjDiscardGeoTIFFTags(made, count);
    return 0;
}

// Which lines of a reference file a record needs: for each projection type, datum method and georeference method, the
// usage codes of reference_keys.h that apply. A type that is not listed has no lines but those that are always used.
#pragma once

#include <zrproj/projection.h>

#include <array>
#include <cstdint>
#include <initializer_list>

namespace ZrProj {

/// A set of usage codes, a bit each.
using UsageCodes = std::uint64_t;

constexpr UsageCodes usageCodes(std::initializer_list<int> codes) {
    UsageCodes set = 0;
    for (int code : codes)
        set |= UsageCodes{1} << code;
    return set;
}

struct ReferenceUsage {
    std::int32_t type;
    UsageCodes codes;
};

// clang-format off
inline constexpr std::array projectionUsage{
    ReferenceUsage{ProjTypeUnprojectedLatLong, usageCodes({})},
    ReferenceUsage{ProjTypeMercator, usageCodes({2, 1})},
    ReferenceUsage{ProjTypeAlbersEqualAreaConic, usageCodes({2, 1, 3, 4})},
    ReferenceUsage{ProjTypeMillerCylindrical, usageCodes({2})},
    ReferenceUsage{ProjTypeUniversalTransverseMercator, usageCodes({9, 2, 1, 10})},
    ReferenceUsage{ProjTypeLambertConformalConic, usageCodes({2, 1, 3, 4})},
    ReferenceUsage{ProjTypeStereographic, usageCodes({9, 2, 1})},
    ReferenceUsage{ProjTypeOrthographic, usageCodes({2, 1})},
    ReferenceUsage{ProjTypeMollweide, usageCodes({2})},
    ReferenceUsage{ProjTypeStatePlane1927, usageCodes({11})},
    ReferenceUsage{ProjTypeStatePlane1983, usageCodes({11})},
    ReferenceUsage{ProjTypePolyconic, usageCodes({2, 1})},
    ReferenceUsage{ProjTypeHotineObliqueMercator, usageCodes({9, 12, 2, 13, 1, 3, 6, 4, 7, 14, 15})},
    ReferenceUsage{ProjTypeEquidistantCylindrical, usageCodes({2, 3})},
    ReferenceUsage{ProjTypeRobinson, usageCodes({})},
    ReferenceUsage{ProjTypeVanDerGrinten, usageCodes({2})},
    ReferenceUsage{ProjTypeCassini, usageCodes({1, 2})},
    ReferenceUsage{ProjTypeTransverseMercator, usageCodes({9, 2, 1})},
    ReferenceUsage{ProjTypeGaussKruger, usageCodes({9, 2, 1})},
    ReferenceUsage{ProjTypeSinusoidal, usageCodes({2})},
    ReferenceUsage{ProjTypeLambertAzimuthalEqualArea, usageCodes({2, 3})},
    ReferenceUsage{ProjTypeBonne, usageCodes({2, 3})},
    ReferenceUsage{ProjTypeRobinsonSterling, usageCodes({2})},
    ReferenceUsage{ProjTypeEckertIV, usageCodes({2})},
    ReferenceUsage{ProjTypeEckertVI, usageCodes({2})},
    ReferenceUsage{ProjTypeObliqueMercator, usageCodes({6, 3, 7, 4})},
    ReferenceUsage{ProjTypeEquidistantConic, usageCodes({2, 1, 3, 4})},
    ReferenceUsage{ProjTypeGnomonic, usageCodes({2, 3})},
    ReferenceUsage{ProjTypeAzimuthalEquidistant, usageCodes({2, 3})},
};

// By datum method.
inline constexpr std::array datumUsage{
    ReferenceUsage{0, usageCodes({})},
    ReferenceUsage{1, usageCodes({})},
    ReferenceUsage{2, usageCodes({16, 25, 26, 17, 18, 19, 20, 21, 22, 23, 24})},
    ReferenceUsage{3, usageCodes({16, 25, 26, 17, 18, 19, 20})},
    ReferenceUsage{5, usageCodes({})},
};

// By georeference method.
inline constexpr std::array georefUsage{
    ReferenceUsage{0, usageCodes({28})},
    ReferenceUsage{1, usageCodes({28})},
    ReferenceUsage{2, usageCodes({28})},
    ReferenceUsage{3, usageCodes({28})},
    ReferenceUsage{4, usageCodes({28})},
    ReferenceUsage{5, usageCodes({29, 30, 31, 32, 33, 34})},
    ReferenceUsage{6, usageCodes({28})},
    ReferenceUsage{7, usageCodes({28})},
    ReferenceUsage{8, usageCodes({28})},
    ReferenceUsage{9, usageCodes({28})},
    ReferenceUsage{10, usageCodes({28})},
    ReferenceUsage{11, usageCodes({28})},
    ReferenceUsage{12, usageCodes({})},
};
// clang-format on
static_assert(projectionUsage.size() == 29);

} // namespace ZrProj

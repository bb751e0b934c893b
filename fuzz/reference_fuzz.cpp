// Whatever a reference file holds, it is read without harm, and what was read is written and read back the same.
#include "fuzz/input_file.h"

#include <zrproj/reffile.h>

using namespace ZrProj;

namespace {

struct Map {
    PROJDATA projection{};
    DatumType datum{};
    DATUM2WGS84 parameters{};
    GEOREF georef{};
    std::uint32_t flags = 0;
};

bool read(std::string const& name, Map& map) {
    return ZrProjRefFileReadEx(name.c_str(), &map.projection, &map.datum, &map.parameters, &map.georef, &map.flags);
}

std::string writtenFrom(Map const& map, std::string const& name) {
    require(ZrProjRefFileWriteEx(name.c_str(), &map.projection, map.datum, &map.parameters, &map.georef));
    return bytesOf(name);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string const name = fuzzFile("in.zrr"), copy = fuzzFile("out.zrr");
    writeFuzzFile(name, data, size);
    Map map, back;
    bool const good = read(name, map);
    require(good || !map.georef.pSource);
    // A zone that is not known is not written, and then reads as the first.
    if (good && map.georef.nControls < 100 && map.projection.Zone != StateZoneTypeNone) {
        std::string const first = writtenFrom(map, copy);
        require(read(copy, back) && back.flags == (map.flags | RefFileFlagRead));
        require(writtenFrom(back, copy) == first);
        RefFreeControls(&back.georef);
    }
    RefFreeControls(&map.georef);
    return 0;
}

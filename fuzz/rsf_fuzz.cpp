// Whatever an RSF file holds, it is read without harm, and what was read is written and read back the same.
#include "fuzz/input_file.h"

#include <zrproj/reffile.h>
#include <zrproj/worldfile.h>

using namespace ZrProj;

namespace {

void writeAndReadBack(GEOREF const& georef) {
    std::string const image = fuzzFile("out.tif"), file = fuzzFile("out.RSF");
    require(ZrProjWriteBlueMarbleRSF(image.c_str(), &georef));
    std::string const first = bytesOf(file);
    GEOREF back = {};
    std::uint32_t flags = 0;
    require(ZrProjReadBlueMarbleRSF(image.c_str(), &back, &flags) && flags == (RefFileFlagRead | RefFileFlagControls));
    require(ZrProjWriteBlueMarbleRSF(image.c_str(), &back) && bytesOf(file) == first);
    RefFreeControls(&back);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    writeFuzzFile(fuzzFile("in.RSF"), data, size);
    GEOREF georef = {};
    std::uint32_t flags = 0;
    bool const good = ZrProjReadBlueMarbleRSF(fuzzFile("in.tif").c_str(), &georef, &flags);
    require(good == ((flags & RefFileFlagRead) != 0));
    require((georef.nControls > 0) == ((flags & RefFileFlagControls) != 0));
    if (georef.nControls > 0)
        writeAndReadBack(georef);
    RefFreeControls(&georef);
    return 0;
}

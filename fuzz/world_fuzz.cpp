// Whatever a world file holds, it is read without harm, and what was read is written and read back the same.
#include "fuzz/input_file.h"

#include <zrproj/reffile.h>
#include <zrproj/worldfile.h>

using namespace ZrProj;

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    writeFuzzFile(fuzzFile("in.tfW"), data, size);
    GEOREF georef = {}, back = {};
    std::uint32_t flags = 0;
    require(ZrProjReadESRIWorld(fuzzFile("in.tif").c_str(), &georef, &flags) && (flags & RefFileFlagRead));
    if (!(flags & RefFileFlagCoefficients))
        return 0;
    std::string const image = fuzzFile("out.tif"), file = fuzzFile("out.tfW");
    require(ZrProjWriteESRIWorld(image.c_str(), &georef));
    std::string const first = bytesOf(file);
    require(ZrProjReadESRIWorld(image.c_str(), &back, &flags) && (flags & RefFileFlagCoefficients));
    require(ZrProjWriteESRIWorld(image.c_str(), &back) && bytesOf(file) == first);
    return 0;
}

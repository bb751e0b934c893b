#include "fuzz/definition.h"
#include "systems/text/readers.h"

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string const text(data, data + size);
    ZrProj::checkDefinition(ZrProj::systems::readWkt1(text));
    return 0;
}

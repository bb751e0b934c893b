// What every reader of definitions is held to: whatever a text holds, it is read without harm, and what was read and
// can be written is read back.
#pragma once

#include "fuzz/input_file.h"
#include "systems/text/form.h"
#include "systems/text/writers.h"

namespace ZrProj {

inline void checkDefinition(systems::OrProblem<systems::Definition> const& result) {
    using namespace systems;
    auto const* const definition = std::get_if<Definition>(&result);
    if (!definition)
        return;
    for (auto const write : {writeWkt1, writeEsriWkt, writeWkt2, writeProjJson, writeProjString}) {
        auto const written = write(*definition);
        if (auto const* text = std::get_if<std::string>(&written))
            require(std::holds_alternative<Definition>(readDefinition(*text)));
    }
}

} // namespace ZrProj

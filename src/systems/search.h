// Systems of the register for lists: by words, and by place.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace ZrProj::systems {

struct Place {
    double longitude, latitude; // degrees
};

/// The numbers of entries, for entry(), that have all the words in their names, without regard to case, or that code;
/// of a place, those with it in their area of use, the smallest first. Deprecated ones by their code alone.
std::vector<std::size_t> search(std::string_view words, std::optional<Place> place);

} // namespace ZrProj::systems

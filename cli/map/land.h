// The land to draw.
#pragma once

#include "cli/map/projection.h"

#include <string>

namespace ZrProj::Command {

/// The rings of the world's land, Natural Earth 1:110 million, that the command carries with it; what an odd number of
/// them is around is land.
std::vector<Places> worldLand();

/// The rings of a file: a longitude and a latitude on each line, an empty line between rings, comments after #; the
/// first line may be a header. "-" is standard input. Throws std::runtime_error, naming the line, when it cannot be
/// read.
std::vector<Places> readLand(std::string const& file);

} // namespace ZrProj::Command

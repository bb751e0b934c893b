// The side files of an image, and how they are found: by their exact names first, then by names that differ only in the
// case of the extension ("map.tfw" for "map.tfW"), which systems that tell case apart keep as others.
#pragma once

#include "host/plain_file.h"

#include <span>
#include <string>
#include <vector>

namespace ZrProj {

/// A name without its extension and the dot.
std::string withoutExtension(std::string name);

/// "scan.tif" gives "scan.tfW": the first and third characters of the extension and a W. For an extension of fewer
/// than three characters, `otherwise`.
std::string worldName(std::string const& image, std::string const& otherwise);

std::string rsfName(std::string const& image);

/// The names that hold an image's world file, in the order in which they are tried.
std::vector<std::string> worldNamesToRead(std::string const& image);
std::string worldNameToWrite(std::string const& image);

/// The reference file of a name: the name itself where it ends in "zrr", in whatever case and with or without a dot.
std::string referenceName(std::string const& name);

/// Every other way to write the letters of a name's extension, lower case first; none for more than eight letters.
std::vector<std::string> caseVariants(std::string const& name);

/// Opens the first of the names that is a plain file, after them the first of their variants; null where there is none.
Stream openSideFile(std::span<std::string const> names);

/// Deletes a side file and its variants, but never `image`. Returns false when one of them is there and
/// cannot be deleted.
bool deleteSideFile(std::string const& name, std::string const& image);

} // namespace ZrProj

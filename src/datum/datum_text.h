// Datums as text, the way a profile keeps them: "method=Molodensky, ellipsoid=15, dx=-8, dy=160, dz=176".
#pragma once

#include <zrproj/datum.h>

#include <optional>
#include <string>
#include <string_view>

namespace ZrProj {

/// The fields of a record that are not zero, by their keys; the method always. Numbers have as many digits as it takes
/// to read the same double back (17 at most), and a decimal point whatever the locale.
std::string datumText(DATUM2WGS84 const& record);

/// Reads what datumText writes, in any order and letter case; fields left out are zero. Returns nothing for a text with
/// anything else in it.
std::optional<DATUM2WGS84> readDatumText(std::string_view text);

/// A name as the key of a profile's entry: what has a meaning there is written as "%" and two hexadecimal digits.
std::string keyOfName(std::string_view name);

/// The name that a key stands for; a "%" without two digits behind it is itself.
std::string nameOfKey(std::string_view key);

} // namespace ZrProj

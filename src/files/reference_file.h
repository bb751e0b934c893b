// Writing and reading reference files: text that says, a key and a value a line, how a map is projected and placed.
#pragma once

#include "files/map_record.h"

#include <cstdint>
#include <cstdio>
#include <string>

namespace ZrProj {

inline constexpr char referenceSource[] = ".\\RefFile.cpp";
inline constexpr char referenceHeader[] = "Zorvane Cartographic Reference Information";
inline constexpr char referencePointKey[] = "Georef Point";
inline constexpr double referenceVersion = 1.1; // the one that is written, and the latest that is read
inline constexpr char referenceVersionText[] = "1.10";

enum class WriteResult { Written, NotMade, NotWritten };

/// Writes the file of exactly that name. A file that was not written whole stays.
WriteResult writeReferenceFile(std::string const& fileName, MapRecord record);

/// What a caller wants to know; what is not wanted is passed over.
struct ReferenceRequest {
    bool projection, datum, georef;
};

/// Reads a file into an empty record, whose controls are then the caller's to free. `accepted` becomes true with a
/// header of a version that is known; a later one is no failure, and leaves the record empty. Reports failures.
bool readReferenceFile(std::FILE& file, ReferenceRequest const& wanted, MapRecord& record, bool& accepted);

} // namespace ZrProj

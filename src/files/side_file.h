// Side files by their own names: which kind a file is, which an image has, and how one is read and written.
#pragma once

#include "files/map_record.h"

#include <cstdio>
#include <optional>
#include <string>
#include <vector>

namespace ZrProj {

/// In the order in which they count.
enum class SideFileKind { reference, rsf, world };
inline constexpr std::size_t sideFileKinds = 3;

/// The kind that a file's name tells; nothing for one that is none of them.
std::optional<SideFileKind> sideFileKind(std::string const& name);

struct SideFile {
    SideFileKind kind;
    std::string name;
};

/// The side files of an image that are there, in the order in which they count. Names that differ in the case of their
/// extension come after the exact ones.
std::vector<SideFile> sideFilesOf(std::string const& image);

/// The name under which an image's side file is written.
std::string sideFileName(std::string const& image, SideFileKind kind);

/// A record that owns its control points.
struct OwnedMapRecord : MapRecord {
    OwnedMapRecord() : MapRecord(emptyMapRecord()) {}
    ~OwnedMapRecord() { RefFreeControls(&georef); }
    OwnedMapRecord(OwnedMapRecord const&) = delete;
    OwnedMapRecord& operator=(OwnedMapRecord const&) = delete;
};

/// What became of reading or writing a file.
struct FileOutcome {
    std::string failure{};            // why it failed, "" where it did not
    std::vector<std::string> notes{}; // what was left out or could not be told
    bool isFit = true;                // false: the failure lies with what was to be written
};

/// Reads a file into an empty record. Image coordinates count from the upper left corner of the first pixel: those of a
/// world file, which count from its centre, are shifted.
FileOutcome readSideFile(std::string const& name, SideFileKind kind, OwnedMapRecord& record);

/// What a file of that kind cannot carry of a record, in words. The last of them tells what becomes of a georeference
/// that the format does not keep.
std::vector<std::string> lossOf(SideFileKind kind, MapRecord const& record);

/// Writes what the format can carry, in place of a file that is there, which stays until the new one is whole. The rest
/// is noted.
FileOutcome writeSideFile(std::string const& name, SideFileKind kind, MapRecord const& record);

// The formats themselves, of coordinates as they are in the file.

/// What a world file says; a cleared record where it has fewer lines than coefficients.
GEOREF readWorldFile(std::FILE& file);
bool writeWorldFile(std::string const& fileName, GEOREF const& georef);

/// Reads an RSF file's control points into an empty record; a file that holds fewer than it claims leaves none. False,
/// and reported, when there is no memory for them.
bool readRsfFile(std::FILE& file, GEOREF& georef);
bool writeRsfFile(std::string const& fileName, GEOREF const& georef);

} // namespace ZrProj

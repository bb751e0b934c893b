// What files say of a map: its projection, datum and georeference, and which file said so.
#pragma once

#include <zrproj/georef.h>
#include <zrproj/zrproj.h>

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace ZrProj::Command {

/// A georeference and its controls.
class Georeference {
public:
    Georeference() : m_record() { m_record.Method = TransformMethodNone; }
    ~Georeference() { RefFreeControls(&m_record); }
    Georeference(Georeference&& other) noexcept : Georeference() { std::swap(m_record, other.m_record); }
    Georeference& operator=(Georeference&& other) noexcept {
        std::swap(m_record, other.m_record);
        return *this;
    }

    GEOREF& operator*() { return m_record; }
    GEOREF const& operator*() const { return m_record; }
    GEOREF* operator->() { return &m_record; }
    GEOREF const* operator->() const { return &m_record; }

private:
    GEOREF m_record;
};

/// Image coordinates count from the upper left corner of the image. A part that no file told has an empty file name,
/// the type 999, the datum 237 or the method 12.
struct MapInfo {
    MapInfo() : projection(), datumParameters() { projection.Type = ProjTypeUndefined; }

    bool isEmpty() const { return projectionFile.empty() && datumFile.empty() && georefFile.empty(); }

    PROJDATA projection;
    DatumType datum = DatumTypeNone;
    DATUM2WGS84 datumParameters;
    Georeference georef;
    std::string projectionFile, datumFile, georefFile;
    std::vector<std::string> notes; // what files say that no record can hold
};

/// What to do where a file says of control points that they are fitted in a way that misses them widely.
enum class Misfit { Refused, Accepted };

/// A kind of file that can tell of a map.
struct FileFormat {
    char const* title;
    /// Whether a file of that name is of this kind.
    bool (*isNamed)(std::string const& file);
    /// What it says. Throws std::runtime_error for a file that cannot be read.
    MapInfo (*read)(std::string const& file);
    /// Writes, in place of what is there, what it can carry; what it cannot is told in words. Throws std::runtime_error
    /// when nothing was written.
    std::vector<std::string> (*write)(std::string const& file, MapInfo const& info, Misfit misfit);
};

/// The format of a file by its name; null where it is none of ours, as for an image, and for any TIFF file.
FileFormat const* formatOf(std::string const& file);

struct MapSource {
    FileFormat const* format;
    std::string name;
};

/// What tells of an image: its side files that are there and, for a TIFF file, its tags, in the order in which they
/// count.
std::vector<MapSource> sourcesOf(std::string const& image);

/// What an image's side files and tags say, if anything: each part from the first that has it, the coefficients of a
/// reference file, which are but one number, after all others. A source that cannot be read is passed over, which is
/// told on standard error.
MapInfo readImage(std::string const& image);

/// What a file says, or readImage. Throws std::runtime_error, also when nothing is known.
MapInfo readMap(std::string const& file);

/// Takes from a later file what the earlier ones did not tell.
void complete(MapInfo& info, MapInfo&& later);

/// On the average, in the map's unit and in pixels.
struct ControlMiss {
    double onMap = 0, pixels = 0;
};

/// That of a method's fit to the controls of a record; nothing where the fit cannot be made.
std::optional<ControlMiss> controlMiss(GEOREF const& georef, TransformMethod method);

/// For people: "12.500 (2.50 pixels) on the average".
std::string missText(ControlMiss const& miss);

/// Whether points of an image are plainly wrong by such a fit.
inline bool isWide(ControlMiss const& miss) {
    return !(miss.pixels <= 1);
}

} // namespace ZrProj::Command

// What files say of a map: its projection, datum and georeference, and which file said so.
#pragma once

#include "cli/model/system.h"

#include <zrproj/c.h>
#include <zrproj/zrproj.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ZrProj::Command {

/// What files say of a map. Image coordinates count from the upper left corner of the image.
class MapInfo {
public:
    /// Of nothing.
    MapInfo() : MapInfo(nullptr, nullptr) {}
    /// Of a system's parameters (of type 999: a datum alone) and a georeference, either of which may be null. Throws
    /// std::runtime_error for such as make none.
    MapInfo(zrproj_parameters const* parameters, zrproj_georeference const* georeference);
    /// Of what `read(zrproj_description**)` reads. Throws std::runtime_error with its message.
    template <class Read> static MapInfo of(Read const& read) {
        zrproj_description* description = nullptr;
        check(read(&description));
        return MapInfo(description);
    }

    /// Of a definition in a file, "" for none, and of what records can say of it.
    MapInfo(SystemPointer system, std::string const& file);

    bool tells(zrproj_part part) const { return fileOf(part).has_value(); }
    /// The file that tells a part, "" for what no file tells; nothing where the part is not told.
    std::optional<std::string> fileOf(zrproj_part part) const;
    /// What files say that no record can hold.
    std::vector<std::string> notes() const;

    /// The system, where a definition or tags tell one that records need not say; null for none.
    SystemPointer const& system() const { return m_system; }
    /// Takes the system for one that a definition tells, whatever records say of it.
    void takeSystem();
    bool hasRecord() const;

    /// Of parts that are told by records.
    PROJDATA projection() const;
    zrproj_parameters datum() const;
    zrproj_georeference georeference() const; // its points live as long as this

    /// With what another tells that this one does not.
    MapInfo with(MapInfo const& later) const;

    zrproj_description const* handle() const { return m_description.get(); }

    /// Throws std::bad_alloc or, with the message, std::runtime_error where the library fails.
    static void check(zrproj_status status);

private:
    struct Destroyer {
        void operator()(zrproj_description* description) const { zrproj_description_destroy(description); }
    };

    explicit MapInfo(zrproj_description* description);

    std::unique_ptr<zrproj_description, Destroyer> m_description;
    SystemPointer m_system;
};

/// What to do where a file says of control points that they are fitted in a way that misses them widely.
enum class Misfit { Refused, Accepted };

/// A kind of file that can tell of a map.
enum class FileKind {
    Reference = ZRPROJ_REFERENCE_FILE,
    Rsf = ZRPROJ_RSF_FILE,
    World = ZRPROJ_WORLD_FILE,
    GeoTiff,    // the tags of a TIFF file
    Definition, // a .prj file
    Auxiliary   // an .aux.xml file, in which GDAL keeps what a file's own tags have no words for
};

struct MapFile {
    FileKind kind;
    std::string name;

    char const* title() const;
    /// What it says. Throws std::runtime_error for a file that cannot be read.
    MapInfo read() const;
    /// Writes, in place of what is there, what it can carry; what it cannot is told in words. Throws std::runtime_error
    /// when nothing was written.
    std::vector<std::string> write(MapInfo const& info, Misfit misfit) const;
};

/// A side file by its name; nothing where the name is none, as an image's, and for any TIFF file.
std::optional<MapFile> sideFile(std::string const& name);

/// What tells of an image: its side files that are there and, for a TIFF file, its tags, in the order in which they
/// count.
std::vector<MapFile> filesOf(std::string const& image);

/// What an image's side files and tags say, if anything: each part from the first that has it. A file that cannot be
/// read is passed over, which is told on standard error.
MapInfo readImage(std::string const& image);

/// What a file says, or readImage. Throws std::runtime_error, also when nothing is known.
MapInfo readMap(std::string const& file);

/// On the average, in the map's unit and in pixels.
struct ControlMiss {
    double onMap = 0, pixels = 0;
};

/// That of a method's fit to the control points, or to those that stand for coefficients; nothing where the fit cannot
/// be made.
std::optional<ControlMiss> controlMiss(MapInfo const& info, int method);

/// For people: "12.500 (2.50 pixels) on the average".
std::string missText(ControlMiss const& miss);

/// Whether points of an image are plainly wrong by such a fit.
inline bool isWide(ControlMiss const& miss) {
    return !(miss.pixels <= 1);
}

} // namespace ZrProj::Command

#include "cli/files/map_info.h"

#include "cli/files/side_files.h"
#include "cli/files/tiff_file.h"
#include "cli/model/parameters.h"
#include "cli/text/output.h"
#include "cli/text/text.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <new>
#include <stdexcept>

namespace ZrProj::Command {
namespace {

/// A structure that the library fills, once its part is known to be told.
template <class Structure>
Structure filled(zrproj_status (*fill)(zrproj_description const*, Structure*), MapInfo const& info) {
    Structure structure{};
    structure.size = sizeof structure;
    MapInfo::check(fill(info.handle(), &structure));
    return structure;
}

} // namespace

MapInfo::MapInfo(zrproj_parameters const* parameters, zrproj_georeference const* georeference)
    : MapInfo(
          of([&](zrproj_description** made) { return zrproj_description_create(parameters, georeference, made); })) {}

MapInfo::MapInfo(zrproj_description* description) : m_description(description) {}

MapInfo::MapInfo(SystemPointer system, std::string const& file)
    : MapInfo(of([&](zrproj_description** made) {
          return zrproj_description_create_from_system(system->handle(), file.c_str(), made);
      })) {
    m_system = std::move(system);
}

void MapInfo::takeSystem() {
    zrproj_system* system = nullptr;
    if (zrproj_description_system(handle(), &system) == ZRPROJ_OK)
        m_system = std::make_shared<System const>(system);
}

std::optional<std::string> MapInfo::fileOf(zrproj_part part) const {
    char const* file = nullptr;
    return zrproj_description_source(handle(), part, &file) == ZRPROJ_OK ? std::optional<std::string>(file)
                                                                         : std::nullopt;
}

bool MapInfo::hasRecord() const {
    zrproj_parameters parameters{};
    parameters.size = sizeof parameters;
    return zrproj_description_parameters(handle(), &parameters) == ZRPROJ_OK && parameters.type != ProjTypeUndefined;
}

std::vector<std::string> MapInfo::notes() const {
    std::vector<std::string> notes;
    char const* note = nullptr;
    while (zrproj_description_note(handle(), notes.size(), &note) == ZRPROJ_OK)
        notes.emplace_back(note);
    return notes;
}

PROJDATA MapInfo::projection() const {
    return recordOf(filled(zrproj_description_parameters, *this));
}

zrproj_parameters MapInfo::datum() const {
    return filled(zrproj_description_datum, *this);
}

zrproj_georeference MapInfo::georeference() const {
    return filled(zrproj_description_georeference, *this);
}

MapInfo MapInfo::with(MapInfo const& later) const {
    MapInfo all =
        of([&](zrproj_description** made) { return zrproj_description_combine(handle(), later.handle(), made); });
    bool const tellsOfSystem = tells(ZRPROJ_PROJECTION) || tells(ZRPROJ_DATUM);
    all.m_system = tellsOfSystem ? m_system : later.m_system;
    return all;
}

void MapInfo::check(zrproj_status status) {
    if (status == ZRPROJ_NO_MEMORY)
        throw std::bad_alloc();
    if (status != ZRPROJ_OK)
        throw std::runtime_error(zrproj_message());
}

char const* MapFile::title() const {
    constexpr std::array titles{"reference file", "RSF file",          "world file",
                                "GeoTIFF tags",   "coordinate system", "auxiliary file"}; // by FileKind
    return titles.at(static_cast<std::size_t>(kind));
}

MapInfo MapFile::read() const {
    switch (kind) {
    case FileKind::Definition:
        return {systemOfFile(name), name};
    case FileKind::Auxiliary:
        return readAuxiliary(name);
    case FileKind::GeoTiff:
        return readTags(name);
    default:
        return readSideFile(*this);
    }
}

std::vector<std::string> MapFile::write(MapInfo const& info, Misfit misfit) const {
    if (kind == FileKind::Definition)
        return writeDefinition(name, info);
    if (kind == FileKind::GeoTiff)
        return writeTags(name, info);
    if (info.system() && !info.hasRecord() && !info.tells(ZRPROJ_GEOREFERENCE))
        throw std::runtime_error("cannot write " + inQuotes(name) + ": no record says the system " +
                                 info.system()->title());
    return writeSideFile(*this, info, misfit);
}

std::optional<MapFile> sideFile(std::string const& name) {
    zrproj_side_file kind{};
    if (isPrjName(name))
        return MapFile{FileKind::Definition, name};
    if (isTiffFile(name) || zrproj_side_file_kind(name.c_str(), &kind) != ZRPROJ_OK)
        return std::nullopt;
    return MapFile{static_cast<FileKind>(kind), name};
}

namespace {

/// Whether two definitions are the same system: by the register, or else by what they say.
bool areSame(System const& a, System const& b) {
    try {
        return a.code() == b.code() && (!a.code().empty() || a.text(ZRPROJ_PROJ_STRING) == b.text(ZRPROJ_PROJ_STRING));
    } catch (std::runtime_error const&) { // no PROJ string says them
        return a.text(ZRPROJ_WKT2) == b.text(ZRPROJ_WKT2);
    }
}

/// What a later file says of the system against what is taken.
void tellOfContradiction(std::string const& image, MapInfo const& taken, MapFile const& file, MapInfo const& told) {
    if (!taken.system() || !told.system() || areSame(*taken.system(), *told.system()))
        return;
    std::string const first = taken.fileOf(ZRPROJ_PROJECTION).value_or("");
    std::string const source = first.empty() ? "the tags of " + inQuotes(image) + " say" : inQuotes(first) + " says";
    std::fprintf(stderr, "zrproj: %s says %s, but %s is taken, as %s\n", inQuotes(file.name).c_str(),
                 told.system()->title().c_str(), taken.system()->title().c_str(), source.c_str());
}

MapInfo readIfGood(MapFile const& file) {
    try {
        return file.read();
    } catch (std::runtime_error const& error) {
        std::fprintf(stderr, "zrproj: %s; passed over\n", error.what());
        return {};
    }
}

} // namespace

std::vector<MapFile> filesOf(std::string const& image) {
    std::vector<MapFile> result = sideFilesOf(image);
    if (isTiffFile(image) && mayHaveTags(image))
        result.push_back({FileKind::GeoTiff, image});
    for (MapFile& file : definitionsBeside(image))
        result.push_back(std::move(file));
    return result;
}

MapInfo readImage(std::string const& image) {
    MapInfo info;
    for (MapFile const& file : filesOf(image)) {
        MapInfo const told = readIfGood(file);
        tellOfContradiction(image, info, file, told);
        info = info.with(told);
    }
    return info;
}

MapInfo readMap(std::string const& file) {
    if (auto const side = sideFile(file))
        return side->read();
    MapInfo info = readImage(file);
    bool const isKnown = info.tells(ZRPROJ_PROJECTION) || info.tells(ZRPROJ_DATUM) || info.tells(ZRPROJ_GEOREFERENCE);
    if (!isKnown && info.notes().empty())
        throw std::runtime_error("nothing is known of " + inQuotes(file) + ": no side file or tag says where it lies");
    return info;
}

std::optional<ControlMiss> controlMiss(MapInfo const& info, int method) {
    ControlMiss miss;
    if (zrproj_description_miss(info.handle(), method, &miss.onMap, &miss.pixels) != ZRPROJ_OK)
        return std::nullopt;
    return miss;
}

std::string missText(ControlMiss const& miss) {
    std::string text;
    appendFixed(text, miss.onMap, 3);
    text += " (";
    if (std::isfinite(miss.pixels))
        appendFixed(text, miss.pixels, 2);
    else
        text += "countless";
    return text + " pixels) on the average";
}

} // namespace ZrProj::Command

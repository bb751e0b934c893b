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

/// Tags may say a system that no record can.
MapInfo::MapInfo(zrproj_description* description) : m_description(description) {
    zrproj_system* system = nullptr;
    if (description && !hasRecord() && zrproj_description_system(description, &system) == ZRPROJ_OK)
        m_system = std::make_shared<System const>(system);
}

MapInfo::MapInfo(SystemPointer system, std::string file) : m_system(std::move(system)), m_systemFile(std::move(file)) {
    zrproj_parameters parameters{};
    parameters.size = sizeof parameters;
    bool const isSaid = zrproj_system_parameters(m_system->handle(), &parameters) == ZRPROJ_OK;
    m_description = MapInfo(isSaid ? &parameters : nullptr, nullptr).m_description;
}

std::optional<std::string> MapInfo::fileOf(zrproj_part part) const {
    if (m_system && part == ZRPROJ_PROJECTION)
        return m_systemFile;
    char const* file = nullptr;
    if (zrproj_description_source(handle(), part, &file) != ZRPROJ_OK)
        return std::nullopt;
    return m_system && part == ZRPROJ_DATUM && *file == '\0' ? m_systemFile : file;
}

bool MapInfo::hasRecord() const {
    return zrproj_description_source(handle(), ZRPROJ_PROJECTION, nullptr) == ZRPROJ_OK;
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

MapInfo MapInfo::withoutSystem() const {
    if (!tells(ZRPROJ_GEOREFERENCE))
        return {};
    zrproj_georeference const georeference = this->georeference();
    return {nullptr, &georeference};
}

/// Records of another system do not stand beside a definition.
MapInfo MapInfo::with(MapInfo const& later) const {
    MapInfo const rest = m_system && !hasRecord() ? later.withoutSystem() : MapInfo();
    MapInfo const& added = m_system && !hasRecord() ? rest : later;
    MapInfo all =
        of([&](zrproj_description** made) { return zrproj_description_combine(handle(), added.handle(), made); });
    MapInfo const& telling = tells(ZRPROJ_PROJECTION) ? *this : later;
    all.m_system = telling.m_system;
    all.m_systemFile = telling.m_systemFile;
    return all;
}

void MapInfo::check(zrproj_status status) {
    if (status == ZRPROJ_NO_MEMORY)
        throw std::bad_alloc();
    if (status != ZRPROJ_OK)
        throw std::runtime_error(zrproj_message());
}

char const* MapFile::title() const {
    constexpr std::array titles{"reference file", "RSF file", "world file", "GeoTIFF tags",
                                "coordinate system"}; // by FileKind
    return titles.at(static_cast<std::size_t>(kind));
}

MapInfo MapFile::read() const {
    if (kind == FileKind::Definition)
        return {systemOfFile(name), name};
    return kind == FileKind::GeoTiff ? readTags(name) : readSideFile(*this);
}

std::vector<std::string> MapFile::write(MapInfo const& info, Misfit misfit) const {
    if (kind == FileKind::Definition)
        return writeDefinition(name, info);
    bool const isLeftOut = info.system() && !info.hasRecord();
    if (isLeftOut && !info.tells(ZRPROJ_GEOREFERENCE))
        throw std::runtime_error("cannot write " + inQuotes(name) + ": no record says the system " +
                                 info.system()->title());
    auto notes = kind == FileKind::GeoTiff ? writeTags(name, info) : writeSideFile(*this, info, misfit);
    if (isLeftOut)
        notes.push_back("the system " + info.system()->title() + " is left out: no record says it");
    return notes;
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
    return result;
}

MapInfo readImage(std::string const& image) {
    MapInfo info;
    for (MapFile const& file : filesOf(image))
        info = info.with(readIfGood(file));
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

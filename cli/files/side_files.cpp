#include "cli/files/side_files.h"

#include "cli/text/text.h"

#include <memory>
#include <stdexcept>

namespace ZrProj::Command {
namespace {

zrproj_side_file kindOf(MapFile const& file) {
    return static_cast<zrproj_side_file>(file.kind);
}

/// The notes that a message tells.
std::vector<std::string> split(std::string_view message) {
    std::vector<std::string> notes;
    while (!message.empty()) {
        std::size_t const end = std::min(message.find("; "), message.size());
        notes.emplace_back(message.substr(0, end));
        message.remove_prefix(std::min(end + 2, message.size()));
    }
    return notes;
}

/// The method by which a file is read back that does not keep the one of a map; nothing for one that keeps all of it.
std::optional<TransformMethod> methodBack(FileKind kind, MapInfo const& info) {
    if (kind == FileKind::Reference || !info.tells(ZRPROJ_GEOREFERENCE))
        return std::nullopt;
    if (kind == FileKind::Rsf)
        return TransformMethodHelmert;
    bool const isKept = info.georeference().method == TransformMethodPrecalculatedAffineCoefficients;
    return isKept ? std::nullopt : std::optional(TransformMethodAffinePolynomial);
}

/// An image's own RSF file goes before its tags, so that a wide miss would spoil a good image: a similarity cannot
/// mirror, as the pixels' rows are against the map.
void refuseWide(MapFile const& file, std::optional<ControlMiss> const& miss, std::string const& words) {
    if (file.kind == FileKind::Rsf && (!miss || isWide(*miss)))
        throw std::runtime_error("cannot write " + inQuotes(file.name) +
                                 ": control points of an RSF file are read back as a similarity (Helmert), " + words +
                                 "; --accept-misfit writes it all the same");
}

} // namespace

std::vector<MapFile> sideFilesOf(std::string const& image) {
    zrproj_side_files* files = nullptr;
    MapInfo::check(zrproj_side_files_create(image.c_str(), &files));
    std::unique_ptr<zrproj_side_files, decltype(&zrproj_side_files_destroy)> const owner(files,
                                                                                         zrproj_side_files_destroy);
    std::vector<MapFile> found;
    zrproj_side_file kind{};
    char const* path = nullptr;
    while (zrproj_side_files_entry(files, found.size(), &kind, &path) == ZRPROJ_OK)
        found.push_back({static_cast<FileKind>(kind), path});
    return found;
}

MapInfo readSideFile(MapFile const& file) {
    return MapInfo::of(
        [&](zrproj_description** read) { return zrproj_description_read(file.name.c_str(), kindOf(file), read); });
}

std::vector<std::string> writeSideFile(MapFile const& file, MapInfo const& info, Misfit misfit) {
    std::string words;
    if (auto const method = methodBack(file.kind, info)) {
        auto const miss = controlMiss(info, *method);
        words = miss ? "which misses them by " + missText(*miss) : "which they do not make";
        if (misfit == Misfit::Refused)
            refuseWide(file, miss, words);
    }
    MapInfo::check(zrproj_description_write(info.handle(), file.name.c_str(), kindOf(file)));
    std::vector<std::string> notes = split(zrproj_message());
    if (!words.empty() && !notes.empty())
        notes.back() += ", " + words;
    return notes;
}

} // namespace ZrProj::Command

#include "cli/files/side_files.h"

#include "cli/files/plain_file.h"
#include "cli/text/text.h"

#include <array>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>

namespace ZrProj::Command {
namespace {

zrproj_side_file kindOf(MapFile const& file) {
    return static_cast<zrproj_side_file>(file.kind);
}

constexpr std::size_t longestAuxiliary = std::size_t{4} << 20; // bytes that are looked at

/// Character data of XML as the text that it stands for.
std::string unescaped(std::string text) {
    constexpr std::array<std::pair<char const*, char const*>, 5> entities{
        {{"&quot;", "\""}, {"&apos;", "'"}, {"&lt;", "<"}, {"&gt;", ">"}, {"&amp;", "&"}}};
    for (auto const& [entity, character] : entities)
        for (auto at = text.find(entity); at != text.npos; at = text.find(entity, at + 1))
            text.replace(at, std::strlen(entity), character);
    return text;
}

/// What a file of that kind cannot carry.
std::vector<std::string> lossOf(MapInfo const& info, zrproj_side_file kind) {
    std::vector<std::string> lost;
    std::array<char, 512> text{};
    while (zrproj_description_loss(info.handle(), kind, lost.size(), text.data(), text.size(), nullptr) == ZRPROJ_OK)
        lost.emplace_back(text.data());
    return lost;
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

std::string prjOf(std::string const& file) {
    for (char const* extension : {".prj", ".PRJ"}) {
        auto const prj = std::filesystem::path(file).replace_extension(extension).string();
        std::error_code none;
        if (std::filesystem::is_regular_file(prj, none))
            return prj;
    }
    return "";
}

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

std::vector<MapFile> definitionsBeside(std::string const& image) {
    std::vector<MapFile> found;
    std::error_code none;
    if (std::string const auxiliary = image + ".aux.xml"; std::filesystem::is_regular_file(auxiliary, none))
        found.push_back({FileKind::Auxiliary, auxiliary});
    if (auto const prj = prjOf(image); !prj.empty())
        found.push_back({FileKind::Definition, prj});
    return found;
}

bool isPrjName(std::string const& name) {
    return squeezed(std::filesystem::path(name).extension().string()) == squeezed(".prj");
}

MapInfo readAuxiliary(std::string const& name) {
    std::string text(longestAuxiliary, '\0');
    std::ifstream file(name, std::ios::binary);
    file.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(file.gcount()));
    auto const element = text.find("<SRS"), start = text.find('>', element), end = text.find("</SRS>", element);
    if (element == text.npos || end == text.npos || start > end)
        return {};
    return {systemOfDefinition(unescaped(text.substr(start + 1, end - start - 1))), name};
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
    std::vector<std::string> notes = lossOf(info, kindOf(file));
    if (!words.empty() && !notes.empty())
        notes.back() += ", " + words;
    return notes;
}

/// As ESRI writes it, which is what .prj files are read for everywhere.
std::vector<std::string> writeDefinition(std::string const& name, MapInfo const& info) {
    if (!info.tells(ZRPROJ_PROJECTION))
        throw std::runtime_error("there is no projection to write to " + inQuotes(name));
    writeWholeFile(name, systemOf(info)->text(ZRPROJ_WKT_ESRI) + '\n');
    if (info.tells(ZRPROJ_GEOREFERENCE))
        return {"the georeference is left out: the format has none"};
    return {};
}

SystemPointer systemOf(MapInfo const& info) {
    if (info.system())
        return info.system();
    zrproj_system* system = nullptr;
    MapInfo::check(zrproj_description_system(info.handle(), &system));
    return std::make_shared<System const>(system);
}

} // namespace ZrProj::Command

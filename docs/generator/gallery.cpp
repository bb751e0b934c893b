// Writes docs/gallery.md and its pictures, docs/gallery/*.svg: each projection, drawn by the command's own parts.
//
//     zrproj-gallery DOCS
#include "cli/map/content.h"
#include "cli/map/drawing.h"
#include "cli/map/sheet.h"
#include "cli/model/parameters.h"
#include "cli/model/system.h"

#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>

namespace {

using namespace ZrProj;
using namespace ZrProj::Command;

constexpr double size = 480; // pixels
constexpr char const* introduction = R"(# Gallery

A map of every projection, with parameters that show it well, on WGS 84. The ellipses are circles of one size on the globe:
how large and of what shape they come out is how the map distorts. A thin frame stands where a map goes on, ever larger. What
the parameters mean: [projection types](projection-types.md). The land is [Natural Earth](https://www.naturalearthdata.com),
1:110 million.

The pictures are those of `zrproj map` with the options given. Made by `./dev docs`; do not edit.
)";

void write(std::filesystem::path const& file, std::string const& text) {
    std::ofstream out(file, std::ios::binary);
    out << text;
    if (!out.flush())
        throw std::runtime_error("cannot write " + file.string());
}

/// Whether a parameter tells something of the picture.
bool isTelling(PROJDATA const& record, Parameter const& parameter) {
    switch (parameter.kind) {
    case ZRPROJ_KIND_LONGITUDE:
    case ZRPROJ_KIND_LATITUDE:
    case ZRPROJ_KIND_AZIMUTH:
        return parameterText(record, parameter) != "0 degrees";
    case ZRPROJ_KIND_FLAG:
        return parameterText(record, parameter) == "yes";
    default:
        return parameter.kind == ZRPROJ_KIND_ZONE;
    }
}

std::string inMarks(std::string const& value) {
    return value.find(' ') == std::string::npos ? value : '"' + value + '"';
}

/// A parameter as an option of the command.
std::string option(PROJDATA const& record, Parameter const& parameter) {
    std::string value = parameterText(record, parameter);
    if (parameter.kind == ZRPROJ_KIND_FLAG)
        return parameter.option;
    if (auto const unit = value.find(" degrees"); unit != std::string::npos)
        value.resize(unit);
    return parameter.option + ' ' + inMarks(value);
}

std::string section(MapView const& view) {
    PROJDATA const& record = view.record;
    std::string const name = projectionName(record.Type);
    std::string options = "--projection " + inMarks(name), rows;
    for (int const id : usedParameters(record.Type)) {
        Parameter const& shown = parameter(id);
        if (!isTelling(record, shown))
            continue;
        options += ' ' + option(record, shown);
        rows += "| " + shown.name + " | " + parameterText(record, shown) + " |\n";
    }
    std::string text = "\n## " + name + "\n\n![" + name + "](gallery/" + view.key + ".svg)\n\n";
    if (!rows.empty())
        text += "| | |\n|---|---|\n" + rows + '\n';
    return text + "    zrproj map " + options + " --tissot --size 480\n";
}

constexpr char const* systemsIntroduction = R"(
# Systems

Maps of [coordinate systems](systems.md) whose methods no projection type says, drawn as far as the method carries: a national grid
is meant for a small part of its map.
)";

/// A system that shows a method of its own.
struct SystemView {
    char const *key, *code, *method;
};
// clang-format off
constexpr SystemView systemViews[] = {
    {"equal-earth",             "EPSG:8857",  "Equal Earth"},
    {"cylindrical-equal-area",  "EPSG:6933",  "Lambert cylindrical equal area, on the ellipsoid"},
    {"web-mercator",            "EPSG:3857",  "Mercator on the sphere of web maps"},
    {"oblique-stereographic",   "EPSG:28992", "Oblique (double) stereographic, the Netherlands"},
    {"swiss",                   "EPSG:2056",  "Hotine, variant B, azimuth 90 degrees, Switzerland"},
    {"rectified-skew",          "EPSG:3375",  "Hotine, variant A, with a rectified angle of its own, Malaysia"},
    {"krovak",                  "EPSG:5514",  "Krovak, an oblique conic, north orientated, Czechia and Slovakia"},
    {"laborde",                 "EPSG:8441",  "Laborde, Madagascar"},
    {"new-zealand-map-grid",    "EPSG:27200", "New Zealand Map Grid"},
    {"polar-stereographic",     "EPSG:3031",  "Polar stereographic, variant B, Antarctica"},
    {"south-orientated",        "EPSG:2053",  "Transverse Mercator with axes that run west and south, South Africa"},
};
// clang-format on

std::string section(SystemView const& view, std::string const& name) {
    std::string const code = view.code;
    return "\n## " + name + "\n\n" + view.method + ".\n\n![" + name + "](gallery/system-" + view.key +
           ".svg)\n\n    zrproj map --crs " + code + " --tissot --size 480\n";
}

void makeGallery(std::filesystem::path const& docs) {
    auto const land = worldLand();
    std::string page = introduction;
    std::filesystem::create_directories(docs / "gallery");
    auto const draw = [&](ProjectionChoice const& choice, std::string const& key, std::string const& title) {
        MapContent const content{
            .land = &land, .graticule = 15, .ellipses = 30, .points = {}, .title = title, .bounds = {}};
        write(docs / "gallery" / (key + ".svg"), svgFile(drawMap(choice, content, size, "")));
    };
    for (MapView const& view : mapViews()) {
        draw({.record = view.record}, view.key, projectionName(view.record.Type));
        page += section(view);
    }
    page += systemsIntroduction;
    for (SystemView const& view : systemViews) {
        auto const system = systemOfDefinition(view.code);
        std::string const name = system->text(ZRPROJ_NAME);
        draw({.system = system}, std::string("system-") + view.key, name);
        page += section(view, name);
    }
    write(docs / "gallery.md", page);
}

} // namespace

int main(int argc, char** argv) try {
    if (argc != 2) {
        std::cerr << "usage: zrproj-gallery DOCS\n";
        return 2;
    }
    makeGallery(argv[1]);
    return 0;
} catch (std::exception const& fault) {
    std::cerr << "zrproj-gallery: " << fault.what() << "\n";
    return 1;
}

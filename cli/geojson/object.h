// The objects of GeoJSON (RFC 7946), as they are read and written.
#pragma once

#include "cli/text/output.h"

#include <zrproj/zrproj.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ZrProj::Command {

/// Numbers of a position behind the first two, as text: ",12.5".
using Extras = std::vector<std::string>;

/// Positions in lists of lists.
struct Coordinates {
    /// How they are nested: an opened list, a closed one, or `count` positions.
    struct Step {
        enum Kind : unsigned char { Open, Close, Positions } kind;
        std::size_t count;
    };

    std::vector<Step> steps;
    std::vector<PROJPOINT> points;
    Extras extras; // by point; empty where none has any

    void open() { steps.push_back({Step::Open, 0}); }
    void close() { steps.push_back({Step::Close, 0}); }
    /// Adds a position; `extra` may be "".
    void add(PROJPOINT point, std::string extra);
    std::string_view extra(std::size_t i) const { return extras.empty() ? std::string_view() : extras[i]; }

    /// Whether all positions stand in `depth` lists.
    bool areNested(int depth) const;
};

struct GeometryKind {
    std::string_view name;
    int depth; // of the lists that positions stand in
};

/// Null for a name that is no geometry's with coordinates.
GeometryKind const* findGeometryKind(std::string_view name);

/// A geometry or a feature.
struct GeoObject {
    std::string type;
    std::string members; // the others, each as ,"name":value
    std::optional<Coordinates> coordinates;
    std::optional<std::vector<GeoObject>> geometries;
    std::optional<std::vector<GeoObject>> geometry; // none or one

    bool isFeature() const { return type == "Feature"; }
    bool isCollection() const { return type == "GeometryCollection"; }

    /// Why it is no geometry, or no feature; "" where it is one. What it holds is not looked into.
    std::string fault() const;
};

/// Writes it in one line.
void write(Output& output, GeoObject const& object, int decimals);

/// Appends a string in quotes.
void appendJsonString(std::string& text, std::string_view string);

} // namespace ZrProj::Command

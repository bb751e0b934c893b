#include "cli/geojson/object.h"

#include "cli/text/text.h"

#include <algorithm>
#include <array>

namespace ZrProj::Command {
namespace {

constexpr std::array geometryKinds{
    GeometryKind{"Point", 0},           GeometryKind{"MultiPoint", 1}, GeometryKind{"LineString", 1},
    GeometryKind{"MultiLineString", 2}, GeometryKind{"Polygon", 2},    GeometryKind{"MultiPolygon", 3},
};

void writePosition(Output& output, Coordinates const& coordinates, std::size_t i, int decimals) {
    output << '[';
    output.number(coordinates.points[i].x, decimals);
    output << ',';
    output.number(coordinates.points[i].y, decimals);
    output << coordinates.extra(i) << ']';
}

void write(Output& output, Coordinates const& coordinates, int decimals) {
    if (coordinates.steps.empty())
        output << "[]";
    std::size_t at = 0;
    bool first = true; // of its list
    for (auto const& step : coordinates.steps) {
        if (!first && step.kind != Coordinates::Step::Close)
            output << ',';
        if (step.kind != Coordinates::Step::Positions)
            output << (step.kind == Coordinates::Step::Open ? '[' : ']');
        for (std::size_t i = 0; i < step.count; ++i) {
            output << (i == 0 ? "" : ",");
            writePosition(output, coordinates, at++, decimals);
            output.flushIfLarge();
        }
        first = step.kind == Coordinates::Step::Open;
    }
}

void writeList(Output& output, std::vector<GeoObject> const& objects, int decimals) {
    output << '[';
    for (std::size_t i = 0; i < objects.size(); ++i) {
        output << (i == 0 ? "" : ",");
        write(output, objects[i], decimals);
    }
    output << ']';
}

} // namespace

void Coordinates::add(PROJPOINT point, std::string extra) {
    if (!extra.empty() || !extras.empty()) {
        extras.resize(points.size());
        extras.push_back(std::move(extra));
    }
    points.push_back(point);
    if (steps.empty() || steps.back().kind != Step::Positions)
        steps.push_back({Step::Positions, 0});
    ++steps.back().count;
}

bool Coordinates::areNested(int depth) const {
    int level = 0;
    if (depth == 0 && points.empty())
        return steps.size() <= 2; // an empty list stands for no point
    return std::all_of(steps.begin(), steps.end(), [&](Step const& step) {
        if (step.kind == Step::Positions)
            return level == depth;
        level += step.kind == Step::Open ? 1 : -1;
        return level <= depth;
    });
}

GeometryKind const* findGeometryKind(std::string_view name) {
    auto const* const found = std::find_if(geometryKinds.begin(), geometryKinds.end(),
                                           [&](GeometryKind const& kind) { return kind.name == name; });
    return found == geometryKinds.end() ? nullptr : found;
}

std::string GeoObject::fault() const {
    if (type.empty())
        return R"(an object has no "type")";
    if (isFeature())
        return geometry ? "" : R"(the Feature has no "geometry")";
    if (isCollection())
        return geometries ? "" : R"(the GeometryCollection has no "geometries")";
    GeometryKind const* const kind = findGeometryKind(type);
    if (!kind)
        return "the type " + inQuotes(type) + " is no geometry's";
    if (!coordinates)
        return "the " + type + R"( has no "coordinates")";
    return coordinates->areNested(kind->depth) ? "" : "the coordinates are not nested as those of a " + type;
}

void write(Output& output, GeoObject const& object, int decimals) {
    output << R"({"type":")" << object.type << '"' << object.members;
    if (object.isFeature()) {
        output << R"(,"geometry":)";
        if (object.geometry && !object.geometry->empty())
            write(output, object.geometry->front(), decimals);
        else
            output << "null";
    } else if (object.isCollection()) {
        output << R"(,"geometries":)";
        writeList(output, *object.geometries, decimals);
    } else {
        output << R"(,"coordinates":)";
        write(output, *object.coordinates, decimals);
    }
    output << '}';
}

void appendJsonString(std::string& text, std::string_view string) {
    constexpr std::string_view digits = "0123456789abcdef";
    text += '"';
    for (char const c : string) {
        auto const code = static_cast<unsigned char>(c);
        if (code < 0x20)
            ((text += "\\u00") += digits[code / 16U]) += digits[code % 16U];
        else if (c == '"' || c == '\\')
            (text += '\\') += c;
        else
            text += c;
    }
    text += '"';
}

} // namespace ZrProj::Command

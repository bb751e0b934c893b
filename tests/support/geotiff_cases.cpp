#include "support/geotiff_cases.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace ZrProj::test {
namespace {

template <class T> std::vector<T> numbers(std::istringstream& line) {
    std::vector<T> result;
    for (T value; line >> value;)
        result.push_back(value);
    return result;
}

void addTag(ZrBitmapTagList& tags, std::istringstream& line) {
    std::uint16_t id = 0;
    int type = 0;
    line >> id >> type;
    if (type == 12)
        return addDoubles(tags, id, numbers<double>(line));
    if (type == 3)
        return addShorts(tags, id, numbers<std::uint16_t>(line));
    std::string const text = line.str();
    std::size_t const start = text.find('"') + 1;
    addText(tags, id, text.substr(start, text.rfind('"') - start));
}

void add(ZrBitmapTagList& tags, ZrBitmapTag const& tag) {
    if (!tags.Add(tag))
        throw std::runtime_error("a tag is refused");
}

} // namespace

void addDoubles(ZrBitmapTagList& tags, std::uint16_t id, std::vector<double> const& values) {
    add(tags, {id, 12, static_cast<std::uint32_t>(values.size()), values.data()});
}

void addShorts(ZrBitmapTagList& tags, std::uint16_t id, std::vector<std::uint16_t> const& values) {
    add(tags, {id, 3, static_cast<std::uint32_t>(values.size()), values.data()});
}

void addText(ZrBitmapTagList& tags, std::uint16_t id, std::string const& text) {
    add(tags, {id, 2, static_cast<std::uint32_t>(text.size() + 1), text.c_str()});
}

std::vector<GeoTIFFCase> readGeoTIFFCases(std::string const& fileName) {
    std::ifstream file(ZRPROJ_TEST_DATA "/geotiff/" + fileName);
    std::vector<GeoTIFFCase> result;
    for (std::string text; std::getline(file, text);) {
        std::istringstream line(text);
        std::string kind;
        line >> kind >> std::ws;
        if (kind == "system")
            std::getline(line, result.emplace_back().system);
        else if (kind == "tag")
            addTag(result.back().tags, line);
        else if (kind == "refused")
            std::getline(line, result.back().refused);
        else if (kind == "point") {
            GeoTIFFPoint p = {};
            line >> p.degrees.x >> p.degrees.y >> p.map.x >> p.map.y;
            result.back().points.push_back(p);
        }
    }
    return result;
}

} // namespace ZrProj::test

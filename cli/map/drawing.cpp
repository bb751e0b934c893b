#include "cli/map/drawing.h"

#include "cli/map/paper.h"
#include "cli/map/projection.h"
#include "cli/text/text.h"

#include <algorithm>
#include <cmath>

namespace ZrProj::Command {
namespace {

constexpr double circleRadius = 0.05;  // of a distortion ellipse, in radii of the ellipsoid
constexpr double largestEllipse = 0.1; // of the paper; what is larger, beside an antipode, is no circle's picture
constexpr double dotRadius = 22, labelHeight = 110, labelLetterWidth = 58;

std::string number(double value) {
    return std::to_string(wholeUnits(value));
}

std::string element(SvgPath const& path, char const* attributes) {
    return path.data().empty() ? "" : "<path " + std::string(attributes) + " d=\"" + path.data() + "\"/>\n";
}

/// From `low` to `high`, both of them and the multiples of `step` between.
std::vector<double> multiples(double low, double high, double step) {
    std::vector<double> result;
    for (double k = std::ceil(low / step); k * step <= high; ++k)
        result.push_back(k * step);
    return result;
}

/// A circle is not turned: what direction its axes have is a matter of the last digits.
std::string ellipse(MapPoint const& at, Ellipse const& shape) {
    bool const circle = shape.first - shape.second < 1;
    std::string const turn = circle ? "" : "rotate(" + number(-shape.turn) + ')';
    return "<ellipse rx=\"" + number(shape.first) + "\" ry=\"" + number(shape.second) + "\" transform=\"translate(" +
           number(at.x) + ' ' + number(at.y) + ')' + turn + "\"/>\n";
}

bool overlap(MapBox const& a, MapBox const& b) {
    return a.left < b.right && b.left < a.right && a.low < b.high && b.low < a.high;
}

std::string seaLayer(MapPaper& paper) {
    SvgPath path;
    paper.addOutline(path);
    return element(path, "fill=\"#dcecf6\"");
}

std::string landLayer(MapPaper& paper, std::vector<Places> const& land) {
    SvgPath path;
    for (Places const& ring : land)
        paper.addArea(path, ring);
    return element(path, "fill=\"#cdbf98\" stroke=\"#8c7f5a\" stroke-width=\"4\"");
}

std::string graticuleLayer(MapPaper& paper, double step) {
    SvgPath path;
    for (double const longitude : multiples(-180, 180 - step / 2, step))
        paper.addLine(path, Places{{longitude, -90}, {longitude, 0}, {longitude, 90}});
    for (double const latitude : multiples(-90 + step / 2, 90 - step / 2, step))
        paper.addLine(path, Places{{-180, latitude}, {-90, latitude}, {0, latitude}, {90, latitude}, {180, latitude}});
    return element(path, "fill=\"none\" stroke=\"#5f7c91\" stroke-opacity=\".6\" stroke-width=\"5\"");
}

/// What circles of 0.05 radii around every `step` degrees become, by the scales at their centres.
std::string ellipseLayer(MapPaper& paper, double step) {
    std::string ellipses;
    double const radius = circleRadius * paper.map().radius() * paper.unit();
    for (double const latitude : multiples(-90 + step / 2, 90 - step / 2, step))
        for (double const longitude : multiples(-180, 180 - step / 2, step)) {
            auto const at = paper.find({longitude, latitude});
            auto const scale = at ? localScale(paper.map(), at->place) : std::nullopt;
            if (!scale)
                continue;
            Ellipse const shape = ellipseOf(*scale);
            if (shape.first * radius < largestEllipse * std::max(paper.width(), paper.height()))
                ellipses += ellipse(at->point, {shape.first * radius, shape.second * radius, shape.turn});
        }
    return "<g fill=\"#c0392b\" fill-opacity=\".35\" stroke=\"#c0392b\" stroke-width=\"5\">\n" + ellipses + "</g>\n";
}

std::string outlineLayer(MapPaper& paper) {
    SvgPath path;
    paper.addEdge(path);
    return element(path, "fill=\"none\" stroke=\"#34495e\" stroke-width=\"10\"");
}

/// Points, with the names that fit between those before.
std::string pointLayer(MapPaper& paper, std::vector<LabelledPlace> const& points) {
    std::string dots, labels;
    std::vector<MapBox> taken;
    for (LabelledPlace const& point : points) {
        auto const found = paper.find(point.place);
        if (!found)
            continue;
        MapPoint const& at = found->point;
        dots += "<circle cx=\"" + number(at.x) + "\" cy=\"" + number(at.y) + "\" r=\"" + number(dotRadius) + "\"/>\n";
        double const left = at.x + 2 * dotRadius, low = at.y - labelHeight / 2;
        MapBox const box{left, low, left + labelLetterWidth * static_cast<double>(characterCount(point.name)),
                         low + labelHeight};
        bool const fits = box.right < paper.width() &&
                          std::none_of(taken.begin(), taken.end(), [&](MapBox const& b) { return overlap(box, b); });
        if (point.name.empty() || !fits)
            continue;
        taken.push_back(box);
        labels += "<text x=\"" + number(left) + "\" y=\"" + number(at.y + labelHeight / 3) + "\">" +
                  xmlText(point.name) + "</text>\n";
    }
    return "<g fill=\"#a93226\">\n" + dots + "</g>\n<g font-size=\"100\" fill=\"#222\">\n" + labels + "</g>\n";
}

constexpr double margin = 100, titleHeight = 260;

/// The map's rectangle, wider by `more` on every side.
std::string rectangle(MapPaper const& paper, double more, char const* attributes) {
    return "<rect x=\"" + number(-more) + "\" y=\"" + number(-more) + "\" width=\"" + number(paper.width() + 2 * more) +
           "\" height=\"" + number(paper.height() + 2 * more) + "\" " + attributes + "/>";
}

/// In letters as large as there is room for in a picture of this width.
std::string titleLine(std::string const& title, double width) {
    constexpr double largest = 150, letterWidth = 0.6; // the latter of the size
    double const fitting = (width - margin) / (letterWidth * static_cast<double>(characterCount(title)));
    return "<text x=\"" + number(width / 2) + "\" y=\"170\" text-anchor=\"middle\" font-size=\"" +
           number(std::floor(std::min(largest, fitting))) + "\" fill=\"#222\">" + xmlText(title) + "</text>\n";
}

std::string layers(MapPaper& paper, MapContent const& content) {
    std::string result = seaLayer(paper);
    if (content.land)
        result += landLayer(paper, *content.land);
    if (content.graticule > 0)
        result += graticuleLayer(paper, content.graticule);
    if (content.ellipses > 0)
        result += ellipseLayer(paper, content.ellipses);
    result += outlineLayer(paper);
    if (!content.points.empty())
        result += pointLayer(paper, content.points);
    return result;
}

/// The layers within the frame; the frame is drawn where it cuts something off. A whole map's is wider by half the
/// outline's stroke, which thus is seen whole where the map ends.
std::string framed(MapPaper& paper, MapContent const& content, std::string const& id) {
    constexpr double halfStroke = 5;
    std::string const clip = "frame" + id;
    std::string result = "<clipPath id=\"" + clip + "\">" + rectangle(paper, paper.isWhole() ? halfStroke : 0, "") +
                         "</clipPath>\n<g clip-path=\"url(#" + clip + ")\" fill-rule=\"evenodd\">\n" +
                         layers(paper, content) + "</g>\n";
    if (!paper.isWhole())
        result += rectangle(paper, 0, "fill=\"none\" stroke=\"#34495e\" stroke-width=\"10\"") + '\n';
    return result;
}

} // namespace

MapPicture drawMap(ProjectionChoice const& choice, MapContent const& content, double size, std::string const& id) {
    MapProjection map(choice);
    MapFrame const frame = content.bounds ? frameAround(map, *content.bounds) : usualFrame(map);
    MapPaper paper(map, frame, size);
    double const top = content.title.empty() ? margin : titleHeight;
    MapPicture picture{paper.width() + 2 * margin, paper.height() + top + margin, ""};
    if (!content.title.empty())
        picture.elements = titleLine(content.title, picture.width);
    picture.elements += "<g transform=\"translate(" + number(margin) + ' ' + number(top) + ")\">\n" +
                        framed(paper, content, id) + "</g>\n";
    return picture;
}

std::string svgFile(MapPicture const& picture) {
    std::string const width = number(picture.width), height = number(picture.height);
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + number(picture.width / 10) + "\" height=\"" +
           number(picture.height / 10) + "\" viewBox=\"0 0 " + width + ' ' + height +
           "\" font-family=\"sans-serif\">\n<rect width=\"100%\" height=\"100%\" fill=\"#fff\"/>\n" + picture.elements +
           "</svg>\n";
}

} // namespace ZrProj::Command

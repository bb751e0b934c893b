#include "cli/map/drawing.h"

#include "cli/map/layers.h"
#include "cli/text/text.h"
#include "cli/text/xml_text.h"

#include <algorithm>
#include <cmath>

namespace ZrProj::Command {
namespace {

constexpr double margin = 100, titleHeight = 260;

std::string number(double value) {
    return std::to_string(wholeUnits(value));
}

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

MapPicture drawMap(PROJDATA const& record, MapContent const& content, double size, std::string const& id) {
    MapProjection map(record);
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

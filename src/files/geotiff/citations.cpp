#include "files/geotiff/citations.h"

#include "systems/names.h"

#include <array>

namespace ZrProj::GeoTIFF {
namespace {

constexpr std::array citations{keyProjectedCitation, keyCitation, keyGeographicCitation};

} // namespace

std::string labelled(std::string_view text, std::string_view label) {
    std::size_t const start = text.find(label);
    if (start == std::string_view::npos)
        return {};
    text.remove_prefix(start + label.size());
    return std::string(text.substr(0, text.find('|')));
}

std::string esriText(KeyDirectory const& keys) {
    for (Key const citation : citations)
        if (auto text = labelled(keys.text(citation), "ESRI PE String = "); !text.empty())
            return text;
    return {};
}

systems::Code systemCited(KeyDirectory const& keys) {
    for (Key const citation : {keyProjectedCitation, keyCitation}) {
        auto name = labelled(keys.text(citation), "PCS Name = ");
        if (name.empty())
            name = keys.text(citation).substr(0, keys.text(citation).find('|'));
        auto const cited = systems::definitionOf(systems::codeNamed(systems::Thing::system, name));
        if (cited && cited->isProjected())
            return cited->code;
    }
    return 0;
}

} // namespace ZrProj::GeoTIFF

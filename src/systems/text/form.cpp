#include "systems/text/form.h"

#include "host/text.h"
#include "systems/names.h"
#include "systems/text/readers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <span>
#include <utility>

namespace ZrProj::systems {

namespace {

constexpr std::string_view blanks = " \t\r\n";

/// What may stand before a code, without regard to case, and the mark between a version and the code; '\0' where there
/// is no version.
struct CodeBeginning {
    std::string_view text;
    char mark;
};

constexpr CodeBeginning epsgBeginnings[] = {
    {"EPSG:", '\0'},
    {"urn:ogc:def:crs:EPSG:", ':'},
    {"urn:x-ogc:def:crs:EPSG:", ':'},
    {"urn:ogc:def:crs,crs:EPSG:", ':'},
    {"http://www.opengis.net/def/crs/EPSG/", '/'},
    {"https://www.opengis.net/def/crs/EPSG/", '/'},
    {"http://www.opengis.net/gml/srs/epsg.xml#", '\0'},
};

constexpr CodeBeginning ogcBeginnings[] = {
    {"OGC:", '\0'},
    {"urn:ogc:def:crs:OGC:", ':'},
    {"http://www.opengis.net/def/crs/OGC/", '/'},
    {"https://www.opengis.net/def/crs/OGC/", '/'},
};

std::string_view trimmed(std::string_view text) {
    std::size_t const begin = std::min(text.find_first_not_of(blanks), text.size());
    text.remove_prefix(begin);
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

bool beginsWith(std::string_view text, std::string_view beginning) {
    return equalIgnoringCase(text.substr(0, beginning.size()), beginning);
}

/// A whole number above 0 and nothing else.
std::optional<Code> wholeCode(std::string_view text) {
    Code code = 0;
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), code);
    if (error != std::errc() || end != text.data() + text.size() || code <= 0)
        return {};
    return code;
}

bool isVersion(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return isAsciiDigit(c) || c == '.'; });
}

/// What a text says after one of the beginnings and a version, which may be left out (urn:ogc:def:crs:EPSG::4326).
std::optional<std::string_view> identifierIn(std::string_view text, std::span<CodeBeginning const> beginnings) {
    for (auto const& [beginning, mark] : beginnings) {
        if (!beginsWith(text, beginning))
            continue;
        auto const rest = text.substr(beginning.size());
        std::size_t const version = mark == '\0' ? rest.npos : rest.find(mark);
        if (version == rest.npos)
            return trimmed(rest);
        return isVersion(rest.substr(0, version)) ? std::optional(rest.substr(version + 1)) : std::nullopt;
    }
    return {};
}

/// A code, or the first of two: that of the horizontal system before that of the heights.
std::optional<Code> firstCode(std::string_view text) {
    constexpr std::string_view further = ",crs:EPSG:"; // of a compound URN
    std::size_t const end = std::min(text.find_first_of("+,"), text.size());
    auto const heights = text.substr(end);
    bool const isCompound = heights.starts_with('+') ? wholeCode(heights.substr(1)).has_value()
                                                     : beginsWith(heights, further) && heights.size() > further.size();
    return heights.empty() || isCompound ? wholeCode(text.substr(0, end)) : std::nullopt;
}

/// Keywords of the first generation; every other keyword before a bracket is the second's.
constexpr std::array<std::string_view, 8> wkt1Keywords = {"GEOGCS",  "PROJCS", "COMPD_CS", "GEOCCS",
                                                          "VERT_CS", "VERTCS", "LOCAL_CS", "FITTED_CS"};

bool isKeyword(std::string_view word) {
    return !word.empty() && std::ranges::all_of(word, [](char c) {
        char const small = asciiLower(c);
        return (small >= 'a' && small <= 'z') || c == '_';
    });
}

bool isProjString(std::string_view text) {
    return text.starts_with('+') || text.starts_with("proj=") || text.starts_with("init=") ||
           text.find("+proj=") != std::string_view::npos;
}

} // namespace

std::optional<Code> codeIn(std::string_view text) {
    text = trimmed(text);
    if (auto const code = identifierIn(text, epsgBeginnings))
        return firstCode(*code);
    if (auto const name = identifierIn(text, ogcBeginnings)) {
        Code const code = codeOfOgc(*name);
        return code == 0 ? std::nullopt : std::optional(code);
    }
    return wholeCode(text);
}

Form formOf(std::string_view text) {
    text = trimmed(text);
    if (codeIn(text))
        return Form::code;
    if (text.starts_with('{'))
        return Form::projJson;
    std::size_t const bracket = text.find_first_of("[(");
    std::string_view const keyword = trimmed(text.substr(0, std::min(bracket, text.size())));
    bool const quoted = bracket != std::string_view::npos && trimmed(text.substr(bracket + 1)).find('"') == 0;
    if (std::ranges::any_of(wkt1Keywords, [&](std::string_view each) { return equalIgnoringCase(each, keyword); }))
        return Form::wkt1;
    if (bracket != std::string_view::npos && isKeyword(keyword) && (quoted || keyword.ends_with("CRS")))
        return Form::wkt2;
    return isProjString(text) ? Form::projString : Form::name;
}

OrProblem<Definition> readDefinition(std::string_view text) {
    switch (formOf(text)) {
    case Form::wkt1:
        return readWkt1(text);
    case Form::wkt2:
        return readWkt2(text);
    case Form::projJson:
        return readProjJson(text);
    case Form::projString:
        return readProjString(text);
    default:
        return Problem{Fault::malformed, "line 1, column 1: well-known text, PROJJSON or a PROJ string was expected"};
    }
}

} // namespace ZrProj::systems

#include "support/words.h"

#include "proj/parameter_table.h"
#include "proj/projection_table.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <sstream>
#include <stdexcept>

namespace ZrProj::test {
namespace {

/// "GRS 1980 / IUGG 1980" is "grs-1980-iugg-1980".
std::string keyOf(char const* name) {
    std::string key;
    bool gap = false;
    for (; *name; ++name) {
        auto const c = static_cast<unsigned char>(*name);
        if (!std::isalnum(c)) {
            gap = true;
            continue;
        }
        if (gap && !key.empty())
            key += '-';
        gap = false;
        key += static_cast<char>(std::tolower(c));
    }
    return key;
}

ProjType typeOf(std::string const& key) {
    auto const row = std::ranges::find_if(projectionTable, [&](ProjectionRow const& each) { return each.key == key; });
    if (row == projectionTable.end())
        throw std::invalid_argument("no projection " + key);
    return row->type;
}

EllipsoidType ellipsoidOf(std::string const& key) {
    char name[64];
    for (int i = EllipsoidTypeUserDefined + 1; i < EllipsoidTypeNone; ++i)
        if (EllipsoidInfo(static_cast<EllipsoidType>(i), name, nullptr, nullptr); keyOf(name) == key)
            return static_cast<EllipsoidType>(i);
    throw std::invalid_argument("no ellipsoid " + key);
}

StateZoneType zoneOf(std::string const& key) {
    char name[64];
    for (int i = 0; i < StateZoneTypeNone; ++i)
        if (ProjGetStateZoneInfo(static_cast<StateZoneType>(i), name, nullptr); keyOf(name) == key)
            return static_cast<StateZoneType>(i);
    throw std::invalid_argument("no zone " + key);
}

using formulas::Method;
std::map<std::string, Method> const methods{
    {"colombia-urban", Method::colombiaUrban},
    {"cylindrical-equal-area", Method::cylindricalEqualArea},
    {"equal-earth", Method::equalEarth},
    {"gauss-schreiber", Method::gaussSchreiber},
    {"gnomonic-ellipsoid", Method::gnomonicEllipsoid},
    {"guam", Method::guam},
    {"hotine", Method::hotine},
    {"hyperbolic-cassini", Method::hyperbolicCassini},
    {"krovak", Method::krovak},
    {"krovak-modified", Method::krovakModified},
    {"laborde", Method::laborde},
    {"lambert-near-conformal", Method::lambertNearConformal},
    {"new-zealand-map-grid", Method::newZealandMapGrid},
    {"oblique-stereographic", Method::obliqueStereographic},
    {"transverse-mercator-exact", Method::transverseMercatorExact},
    {"transverse-mercator-zoned", Method::transverseMercatorZoned},
    {"tunisia-mining-grid", Method::tunisiaMiningGrid},
};

using formulas::ParametersInDegrees;
std::map<std::string, double ParametersInDegrees::*> const formulaNumbers{
    {"radius", &ParametersInDegrees::a},
    {"flattening", &ParametersInDegrees::f},
    {"lat0", &ParametersInDegrees::lat0},
    {"lon0", &ParametersInDegrees::lon0},
    {"lat1", &ParametersInDegrees::lat1},
    {"k0", &ParametersInDegrees::k0},
    {"alpha", &ParametersInDegrees::azimuth},
    {"rectified", &ParametersInDegrees::rectifiedAngle},
    {"height", &ParametersInDegrees::height},
    {"colatitude", &ParametersInDegrees::coLatitude},
    {"zone_width", &ParametersInDegrees::zoneWidth},
};
std::map<std::string, bool ParametersInDegrees::*> const formulaFlags{
    {"use_alpha", &ParametersInDegrees::useAzimuth},
    {"rotate", &ParametersInDegrees::rotate},
    {"u_offset", &ParametersInDegrees::offsetByU},
};
std::map<std::string, double FormulaWords::*> const frameNumbers{
    {"x0", &FormulaWords::x0}, {"y0", &FormulaWords::y0}, {"scale", &FormulaWords::scale}};

void setWord(FormulaWords& formula, std::string const& key, std::string const& text) {
    if (key == "method")
        formula.method = methods.at(text);
    else if (key == "rf")
        formula.parameters.f = 1 / std::stod(text);
    else if (auto const frame = frameNumbers.find(key); frame != frameNumbers.end())
        formula.*frame->second = std::stod(text);
    else if (auto const flag = formulaFlags.find(key); flag != formulaFlags.end())
        formula.parameters.*flag->second = text == "1";
    else
        formula.parameters.*formulaNumbers.at(key) = std::stod(text);
}

PROJDATA recordLike(FormulaWords const& formula) {
    auto const& given = formula.parameters;
    PROJDATA record{};
    record.MajorRadius = given.a;
    record.Flattening = given.f;
    record.Lat0 = given.lat0;
    record.Lon0 = given.lon0;
    record.Lat1 = given.lat1;
    record.xOrg = formula.x0;
    record.yOrg = formula.y0;
    record.Scale = formula.scale;
    return record;
}

void setWord(PROJDATA& record, std::string const& key, std::string const& text) {
    if (key == "rf") {
        record.Flattening = 1 / std::stod(text);
        return;
    }
    auto const row = std::ranges::find_if(parameterTable, [&](ParameterRow const& each) { return each.key == key; });
    if (row == parameterTable.end())
        throw std::invalid_argument("no parameter " + key);
    switch (row->quantity) {
    case Quantity::Projection:
        record.Type = typeOf(text);
        break;
    case Quantity::Ellipsoid:
        record.Ellipsoid = ellipsoidOf(text);
        break;
    case Quantity::Zone:
        record.Zone = zoneOf(text);
        break;
    case Quantity::Flag: {
        bool const flag = text == "1";
        ProjSetParam(&record, row->id, &flag);
        break;
    }
    default: {
        double const number = std::stod(text);
        ProjSetParam(&record, row->id, &number);
    }
    }
}

/// Calls take(key, text) for each word "key=text".
template <class Take> void forEachWord(std::string const& words, Take const& take) {
    std::istringstream in(words);
    for (std::string word; in >> word;) {
        auto const equals = std::min(word.find('='), word.size() - 1);
        take(word.substr(0, equals), word.substr(equals + 1));
    }
}

} // namespace

PROJDATA recordOf(std::string const& words) {
    if (auto const formula = formulaOf(words))
        return recordLike(*formula);
    PROJDATA record{};
    forEachWord(words, [&](std::string const& key, std::string const& text) { setWord(record, key, text); });
    return record;
}

std::optional<FormulaWords> formulaOf(std::string const& words) {
    if (!words.starts_with("method="))
        return std::nullopt;
    FormulaWords formula;
    forEachWord(words, [&](std::string const& key, std::string const& text) { setWord(formula, key, text); });
    return formula;
}

std::vector<std::string> fieldsOf(std::string const& line) {
    std::vector<std::string> fields;
    std::istringstream in(line);
    for (std::string field; std::getline(in, field, '|');) {
        auto const begin = field.find_first_not_of(' '), end = field.find_last_not_of(' ');
        fields.push_back(begin == std::string::npos ? "" : field.substr(begin, end + 1 - begin));
    }
    return fields;
}

} // namespace ZrProj::test

#include "support/words.h"

#include "proj/parameter_table.h"
#include "proj/projection_table.h"

#include <cctype>
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

} // namespace

PROJDATA recordOf(std::string const& words) {
    PROJDATA record{};
    std::istringstream in(words);
    for (std::string word; in >> word;) {
        auto const equals = std::min(word.find('='), word.size() - 1);
        setWord(record, word.substr(0, equals), word.substr(equals + 1));
    }
    return record;
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

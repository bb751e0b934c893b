// PROJ strings: options of the form +key or +key=value, in any order, the first of a key being the one that counts.
// Angles are in degrees, lengths in metres, whatever the units of the system.
#include "host/text.h"
#include "systems/authalic_radius.h"
#include "systems/register.h"
#include "systems/text/angle_text.h"
#include "systems/text/ellipsoid_shape.h"
#include "systems/text/number.h"
#include "systems/text/proj_names.h"
#include "systems/text/readers.h"
#include "systems/text/statements.h"
#include "systems/text/units.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace ZrProj::systems {

namespace {

struct Option {
    std::string_view key, value;
    std::size_t offset;
};

/// Options that say nothing of horizontal coordinates, or nothing that must be said here; "no_def" is a common slip.
constexpr std::string_view silentKeys[] = {"no_defs", "no_def",    "type",      "wktext",     "title",
                                           "over",    "vunits",    "vto_meter", "geoidgrids", "approx",
                                           "north",   "geoid_crs", "rough",     "multi"};

/// Options that the reader takes besides a method's parameters.
constexpr std::string_view takenKeys[] = {"proj", "ellps", "datum",   "a",        "b",      "rf",    "f",
                                          "R",    "R_A",   "towgs84", "nadgrids", "pm",     "units", "to_meter",
                                          "axis", "zone",  "south",   "no_uoff",  "no_off", "guam",  "hyperbolic"};

constexpr std::string_view parameterKeys[] = {"lat_0", "lon_0",  "lonc", "lat_1", "lon_1", "lat_2",
                                              "lon_2", "lat_ts", "k",    "k_0",   "x_0",   "y_0",
                                              "alpha", "gamma",  "azi",  "h",     "h_0"};

constexpr std::string_view geographicNames[] = {"longlat", "latlong", "lonlat", "latlon"};

/// Projections that stand for others with parameters of a zone.
constexpr std::string_view zonedNames[] = {"utm", "ups"};

/// The projection's name of a row of spellings, and the option that belongs to it.
std::pair<std::string_view, std::string_view> splitName(std::string_view name) {
    std::size_t const end = std::min(name.find(" +"), name.size());
    return {name.substr(0, end), name.substr(std::min(end + 2, name.size()))};
}

bool isOneOf(std::string_view key, std::span<std::string_view const> keys) {
    return std::ranges::find(keys, key) != keys.end();
}

bool isLength(std::string_view key) {
    return key == "x_0" || key == "y_0" || key == "h" || key == "h_0";
}

std::vector<Option> optionsOf(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    std::vector<Option> options;
    std::size_t at = text.find_first_not_of(blanks);
    while (at != std::string_view::npos) {
        std::size_t const end = std::min(text.find_first_of(blanks, at), text.size());
        std::string_view word = text.substr(at, end - at);
        if (word.starts_with('+'))
            word.remove_prefix(1);
        std::size_t const mark = std::min(word.find('='), word.size());
        options.push_back({word.substr(0, mark), word.substr(std::min(mark + 1, word.size())), at});
        at = text.find_first_not_of(blanks, end);
    }
    return options;
}

class ProjStringReader {
public:
    explicit ProjStringReader(std::string_view text) : complaint_(text) {
        if (text.size() > greatestTextSize)
            complaint_.malformed(greatestTextSize, "too long for a definition");
        else
            options_ = optionsOf(text);
    }

    OrProblem<Definition> read() {
        if (Option const* init = find("init"))
            return byCode(*init);
        Option const* const proj = find("proj");
        if (proj)
            checkProjection(*proj);
        for (Option const& option : options_)
            if (!isOneOf(option.key, silentKeys) && !isOneOf(option.key, takenKeys) &&
                !isOneOf(option.key, parameterKeys))
                complaint_.unknown(option.offset, "the option +" + std::string(option.key) + " is not known");
        if (!proj)
            complaint_.malformed(0, "+proj is missing");
        if (!complaint_.made())
            system(*proj);
        return finished(std::move(made_), std::move(complaint_));
    }

private:
    Option const* find(std::string_view key) const {
        auto const found = std::ranges::find(options_, key, &Option::key);
        return found == options_.end() ? nullptr : &*found;
    }

    bool has(std::string_view key) const { return find(key) != nullptr; }

    /// An option's number; told where it is none.
    double number(Option const& option) {
        auto const value = wholeNumber(option.value);
        if (!value)
            complaint_.malformed(option.offset, "+" + std::string(option.key) + " takes a number");
        return value.value_or(0);
    }

    /// A number, or one over another.
    double ratio(Option const& option) {
        std::size_t const bar = option.value.find('/');
        double const over = number({option.key, option.value.substr(0, bar), option.offset});
        return bar == std::string_view::npos ? over
                                             : over / number({option.key, option.value.substr(bar + 1), option.offset});
    }

    double angle(Option const& option) {
        auto const value = angleOf(option.value);
        if (!value)
            complaint_.malformed(option.offset, "+" + std::string(option.key) + " takes an angle");
        return value.value_or(0);
    }

    /// Told before the options, which a projection that nobody knows may have of its own.
    void checkProjection(Option const& proj) {
        auto const isNamed = [&](SpellingRow const& row) { return splitName(row.name).first == proj.value; };
        if (!isOneOf(proj.value, geographicNames) && !isOneOf(proj.value, zonedNames) &&
            std::ranges::none_of(projSpellings, isNamed))
            complaint_.unsupported(proj.offset, "the projection " + std::string(proj.value) + " is not supported");
        for (Option const& other : options_)
            if (other.key == "proj" && other.offset != proj.offset)
                complaint_.malformed(other.offset, "+proj is stated twice");
    }

    /// A code of the register, with a way to WGS 84 of the text's own.
    OrProblem<Definition> byCode(Option const& init) {
        constexpr std::string_view beginning = "epsg:";
        constexpr std::string_view beside[] = {"init", "towgs84", "nadgrids"};
        bool const epsg = equalIgnoringCase(init.value.substr(0, beginning.size()), beginning);
        double const code = epsg ? wholeNumber(init.value.substr(beginning.size())).value_or(0) : 0;
        auto const found = code > 0 && code < 1e9 ? definitionOf(static_cast<Code>(code)) : std::nullopt;
        for (Option const& option : options_)
            if (!isOneOf(option.key, silentKeys) && !isOneOf(option.key, beside))
                complaint_.unsupported(option.offset, "+" + std::string(option.key) + " is not supported beside +init");
        if (!found)
            complaint_.unknown(init.offset, "the register has no system " + std::string(init.value));
        made_ = found.value_or(Definition());
        ownWay();
        return finished(std::move(made_), std::move(complaint_));
    }

    void system(Option const& proj) {
        made_.name = "unknown";
        takeDatum();
        primeMeridian();
        if (!isOneOf(proj.value, geographicNames)) {
            made_.baseName = std::exchange(made_.name, "unknown");
            made_.baseCode = std::exchange(made_.code, 0);
            projected(proj);
            takeUnit();
        }
        axes();
    }

    // The datum.

    void takeDatum() {
        Option const* const datum = find("datum");
        bool const figure = has("ellps") || has("a") || has("R") || has("b") || has("rf") || has("f");
        Datum& made = made_.datum;
        std::string_view const key = datum ? datum->value : figure ? "" : "WGS84";
        auto const row = std::ranges::find(datumRows, key, &DatumRow::key);
        if (row != std::end(datumRows)) {
            made.name = row->name;
            made.code = row->code;
            made_.name = row->system;
            made_.code = row->systemCode;
        } else if (datum) {
            complaint_.unknown(datum->offset, "no datum is called " + std::string(datum->value));
        }
        bool const own = ellipsoid(row == std::end(datumRows) ? std::string_view() : row->ellipsoid);
        if (own || made.name.empty()) {
            made.name = "Unknown based on " + made.ellipsoid.name + " ellipsoid";
            made.code = made_.code = 0;
            made_.name = "unknown";
        }
        ownWay();
    }

    /// The way to WGS 84 that the text states.
    void ownWay() {
        towgs84();
        if (Option const* grids = find("nadgrids"))
            made_.datum.grids = grids->value;
    }

    /// The ellipsoid, of a datum by its name. Whether the text has axes of its own.
    bool ellipsoid(std::string_view ofDatum) {
        Option const* const named = find("ellps");
        std::string_view const key = named ? named->value : ofDatum;
        auto const row = std::ranges::find(ellipsoidRows, key, &EllipsoidRow::key);
        bool const known = row != std::end(ellipsoidRows);
        if (named && !known)
            complaint_.unknown(named->offset, "no ellipsoid is called " + std::string(key));
        Ellipsoid& made = made_.datum.ellipsoid;
        if (known)
            made = {std::string(row->name), row->semiMajor, row->inverseFlattening, row->code};
        bool const axes = ownAxes(made);
        checkEllipsoid(made, 0, complaint_);
        bool const own = asAuthalicSphere(made) || axes;
        if (own)
            made.name = "unknown", made.code = 0;
        return own || (named && !ofDatum.empty() && key != ofDatum);
    }

    /// +R_A: the sphere of the ellipsoid's surface instead of it. Whether there was an ellipsoid to replace.
    bool asAuthalicSphere(Ellipsoid& made) const {
        if (!has("R_A") || complaint_.made() || made.inverseFlattening == 0)
            return false;
        made.semiMajor *= authalicRadius(1 / made.inverseFlattening);
        made.inverseFlattening = 0;
        return true;
    }

    bool ownAxes(Ellipsoid& made) {
        Option const* const sphere = find("R");
        Option const* const a = find("a");
        Option const* const b = find("b");
        Option const* const inverse = find("rf");
        Option const* const flattening = find("f");
        if (sphere || a)
            made.semiMajor = number(sphere ? *sphere : *a);
        if (sphere)
            made.inverseFlattening = 0;
        else if (b)
            made.inverseFlattening = inverseFlattening(made.semiMajor, number(*b));
        else if (inverse)
            made.inverseFlattening = number(*inverse);
        else if (flattening)
            made.inverseFlattening = number(*flattening) == 0 ? 0 : 1 / number(*flattening);
        return sphere || a || b || inverse || flattening;
    }

    void towgs84() {
        Option const* const option = find("towgs84");
        if (!option)
            return;
        ToWgs84 shift{};
        std::string_view rest = option->value;
        std::size_t count = 0;
        while (count < shift.size() && !rest.empty()) {
            std::size_t const end = std::min(rest.find(','), rest.size());
            shift[count++] = number({option->key, rest.substr(0, end), option->offset});
            rest.remove_prefix(std::min(end + 1, rest.size()));
        }
        if ((count != 3 && count != 7) || !rest.empty() || option->value.ends_with(','))
            complaint_.malformed(option->offset, "+towgs84 takes 3 or 7 numbers");
        made_.datum.toWgs84 = shift;
    }

    void primeMeridian() {
        Option const* const option = find("pm");
        if (!option)
            return;
        auto const row = std::ranges::find(meridianRows, option->value, &MeridianRow::key);
        if (row != std::end(meridianRows))
            made_.datum.meridian = {std::string(row->name), row->longitude, row->code};
        else
            made_.datum.meridian = {"unknown", angle(*option), 0};
        if (made_.datum.meridian.longitude == 0)
            made_.datum.meridian = {};
        else
            made_.name = "unknown", made_.code = 0;
    }

    // The projection.

    void projected(Option const& proj) {
        if (proj.value == "utm")
            return utm();
        if (proj.value == "ups")
            return ups();
        StatedMethod stated{std::string(proj.value), 0, proj.offset, statedParameters()};
        std::vector<SpellingRow> const rows = rowsOf(proj.value);
        if (!takeSpelledMethod(made_, {rows}, stated, complaint_))
            complaint_.unsupported(proj.offset, "the projection " + stated.name + " is not supported");
        made_.conversionName = "unknown";
        webMercator();
    }

    bool isSphere() const { return made_.datum.ellipsoid.inverseFlattening == 0; }

    /// Mercator's projection of WGS 84's latitudes as if they were a sphere's is said by a sphere without a shift.
    void webMercator() {
        constexpr double radius = 6378137;
        Datum& datum = made_.datum;
        Option const* const grids = find("nadgrids");
        bool const mercator = made_.method == Method::mercatorA || made_.method == Method::mercatorB;
        if (!mercator || !isSphere() || datum.ellipsoid.semiMajor != radius || !grids || grids->value != "@null")
            return;
        if (made_.parameters.valueOr(Parameter::standardParallel1, 0) != 0 ||
            made_.parameters.valueOr(Parameter::scaleFactor, 1) != 1)
            return;
        ParameterValues const stated = std::exchange(made_.parameters, {});
        made_.method = Method::pseudoMercator;
        made_.parameters[Parameter::latitudeOfOrigin] = 0;
        for (Parameter const p : {Parameter::longitudeOfOrigin, Parameter::falseEasting, Parameter::falseNorthing})
            made_.parameters[p] = stated[p];
        OrProblem<Definition> const wgs84 = readProjString("+proj=longlat +datum=WGS84");
        datum = std::get<Definition>(wgs84).datum;
        made_.baseName = std::get<Definition>(wgs84).name;
        made_.baseCode = std::get<Definition>(wgs84).code;
    }

    std::vector<StatedParameter> statedParameters() {
        std::vector<StatedParameter> stated;
        for (Option const& option : options_) {
            if (!isOneOf(option.key, parameterKeys))
                continue;
            std::string const name(option.key == "k_0" ? "k" : option.key);
            bool const plain = isLength(option.key) || name == "k";
            if (std::ranges::find(stated, name, &StatedParameter::name) == stated.end())
                stated.push_back({name, 0, plain ? number(option) : angle(option), 1, option.offset});
        }
        return stated;
    }

    /// The rows of a projection whose options the text has, each by the projection's name alone.
    std::vector<SpellingRow> rowsOf(std::string_view proj) const {
        std::vector<SpellingRow> rows;
        for (SpellingRow row : projSpellings) {
            auto const [name, option] = splitName(row.name);
            row.name = name;
            if (name == proj && hasOption(option))
                rows.push_back(row);
        }
        return rows;
    }

    bool hasOption(std::string_view option) const {
        std::size_t const mark = std::min(option.find('='), option.size());
        Option const* const found = find(option.substr(0, mark));
        if (option == "no_uoff" && has("no_off"))
            return true;
        if (option.empty())
            return true;
        return found && found->value == option.substr(std::min(mark + 1, option.size()));
    }

    void utm() {
        Option const* const option = find("zone");
        double const zone = option ? number(*option) : 0;
        bool const south = has("south");
        if (!(zone >= 1 && zone <= 60 && zone == static_cast<int>(zone)))
            return complaint_.malformed(option ? option->offset : 0, "+proj=utm takes a +zone from 1 to 60");
        made_.method = Method::transverseMercator;
        take({0, zone * 6 - 183, 0.9996, 500000, south ? 10000000.0 : 0});
        made_.conversionName = "UTM zone " + std::to_string(static_cast<int>(zone)) + (south ? "S" : "N");
        made_.conversionCode = static_cast<int>(zone) + (south ? 16100 : 16000);
    }

    void ups() {
        made_.method = Method::polarStereographicA;
        take({has("south") ? -90.0 : 90.0, 0, 0.994, 2000000, 2000000});
        made_.conversionName =
            has("south") ? "Universal Polar Stereographic South" : "Universal Polar Stereographic North";
        made_.conversionCode = has("south") ? 16161 : 16061;
    }

    void take(std::array<double, 5> const& values) {
        constexpr Parameter parameters[] = {Parameter::latitudeOfOrigin, Parameter::longitudeOfOrigin,
                                            Parameter::scaleFactor, Parameter::falseEasting, Parameter::falseNorthing};
        for (std::size_t i = 0; i < values.size(); ++i)
            made_.parameters[parameters[i]] = values[i];
    }

    void takeUnit() {
        Option const* const metres = find("to_meter");
        Option const* const named = metres ? nullptr : find("units");
        if (metres) {
            double const factor = ratio(*metres);
            if (!(factor > 0 && std::isfinite(factor)))
                return complaint_.malformed(metres->offset, "+to_meter takes a positive number");
            made_.unit = statedUnit(Kind::length, factor, "unknown", 0);
        } else if (named) {
            auto const row = std::ranges::find(unitRows, named->value, &UnitKeyRow::key);
            if (row == std::end(unitRows))
                return complaint_.unknown(named->offset, "no unit is called " + std::string(named->value));
            made_.unit = statedUnit(Kind::length, row->metres, row->key, 0);
        }
    }

    /// Three letters: where x, y and the height grow to; x and y may stand in the other order.
    void axes() {
        Option const* const option = find("axis");
        if (!option)
            return;
        std::string_view const letters = option->value;
        auto const isEast = [](char c) { return c == 'e' || c == 'w'; };
        auto const isNorth = [](char c) { return c == 'n' || c == 's'; };
        bool const xy = letters.size() == 3 && isEast(letters[0]) && isNorth(letters[1]);
        bool const yx = letters.size() == 3 && isNorth(letters[0]) && isEast(letters[1]);
        if (!xy && !yx)
            return complaint_.malformed(option->offset, "+axis takes letters like enu");
        made_.northingFirst = yx;
        made_.x = letters.find('w') != std::string_view::npos ? Sense::negative : Sense::positive;
        made_.y = letters.find('s') != std::string_view::npos ? Sense::negative : Sense::positive;
        if (!made_.isProjected() && (made_.x == Sense::negative || made_.y == Sense::negative))
            complaint_.unsupported(option->offset, "longitudes must grow eastwards and latitudes northwards");
    }

    Complaint complaint_;
    std::vector<Option> options_;
    Definition made_;
};

} // namespace

OrProblem<Definition> readProjString(std::string_view text) {
    return ProjStringReader(text).read();
}

} // namespace ZrProj::systems

#include "systems/text/statements.h"

#include "host/text.h"
#include "systems/parameter_check.h"
#include "systems/text/number.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ZrProj::systems {

namespace {

/// Angles in degrees, lengths in metres and factors that differ by less are the same.
constexpr double sameValue = 1e-9;

constexpr std::string_view deprecatedMark = " (deprecated)";

bool same(double a, double b) {
    return std::abs(a - b) <= sameValue;
}

constexpr bool isNameCharacter(char c) {
    return isAsciiDigit(c) || (asciiLower(c) >= 'a' && asciiLower(c) <= 'z') || static_cast<unsigned char>(c) >= 0x80;
}

/// Old codes of methods that the table has under newer ones.
constexpr Code currentCode(Code code) {
    switch (code) {
    case 9821:
        return 1027;
    case 9823:
        return 1029;
    case 9842:
        return 1028;
    default:
        return code;
    }
}

MethodRow const* methodNamed(std::string_view name, Code code) {
    for (MethodRow const& row : methodRows)
        if (row.code != 0 && row.code == currentCode(code))
            return &row;
    for (MethodRow const& row : methodRows)
        if (row.method != Method::none && sameName(row.name, name))
            return &row;
    return nullptr;
}

std::vector<ParameterRow> parametersOf(Method method) {
    std::vector<ParameterRow> rows;
    for (int const code : rowOf(method).parameters)
        if (ParameterRow const* row = code != 0 ? parameterByCode(code) : nullptr)
            rows.push_back(*row);
    return rows;
}

/// The value of a parameter that says nothing, where it may be left out.
std::optional<double> silentValue(Parameter parameter) {
    switch (parameter) {
    case Parameter::latitudeOfOrigin:
    case Parameter::longitudeOfOrigin:
    case Parameter::falseEasting:
    case Parameter::falseNorthing:
        return 0;
    case Parameter::scaleFactor:
        return 1;
    default:
        return {};
    }
}

/// Whether a parameter that the method does not take says nothing.
bool saysNothing(StatedParameter const& stated) {
    bool const scale = stated.name == "k" || stated.name.find("cale") != std::string::npos;
    return stated.value == (scale ? 1 : 0);
}

double valueOf(StatedParameter const& stated, Kind kind, StatedMethod const& method) {
    double const common = kind == Kind::angle ? method.angle : kind == Kind::length ? method.length : 1;
    return stated.value * (stated.factor > 0 ? stated.factor : common);
}

/// What must hold for a method whatever the text: which of several methods of one name is meant depends on it.
bool canBe(Method method, ParameterValues const& values, Ellipsoid const& ellipsoid) {
    switch (method) {
    case Method::lambertAzimuthalSphere:
    case Method::cylindricalEqualAreaSphere:
        return ellipsoid.inverseFlattening == 0;
    case Method::lambertAzimuthal:
    case Method::cylindricalEqualArea:
    case Method::equidistantCylindrical:
        return ellipsoid.inverseFlattening != 0;
    case Method::polarStereographicA:
        return same(std::abs(values[Parameter::latitudeOfOrigin]), 90);
    case Method::stereographic:
        return !same(std::abs(values[Parameter::latitudeOfOrigin]), 90);
    default:
        return true;
    }
}

/// The method by the name that it has on a sphere, where its formulas for a sphere are called another method.
Method onEllipsoid(Method method, Ellipsoid const& ellipsoid) {
    if (ellipsoid.inverseFlattening != 0)
        return method;
    switch (method) {
    case Method::lambertAzimuthal:
        return Method::lambertAzimuthalSphere;
    case Method::cylindricalEqualArea:
        return Method::cylindricalEqualAreaSphere;
    case Method::equidistantCylindrical:
        return Method::equidistantCylindricalSphere;
    case Method::mercatorSphere: // here it is the other way round
        return Method::mercatorA;
    default:
        return method;
    }
}

/// The method that a PROJ string has a name for and that comes to the same numbers.
Method namedInProj(Method method) {
    switch (method) {
    case Method::transverseMercator3D:
        return Method::transverseMercator;
    case Method::modifiedAzimuthalEquidistant:
        return Method::azimuthalEquidistant;
    default:
        return method;
    }
}

/// What a text states of each parameter; null where it leaves one out.
using Statements = std::array<StatedParameter const*, parameterCount>;

/// Tells values that define no map, at their places and by the names that the text has for them.
void checkValues(Definition const& definition, Statements const& statements, StatedMethod const& method,
                 Complaint& complaint) {
    auto const tell = [&](ParameterRow const& row, std::string_view why) {
        StatedParameter const* const stated = statements[static_cast<std::size_t>(row.parameter)];
        complaint.malformed(stated ? stated->offset : method.offset,
                            "the parameter " + (stated ? stated->name : std::string(row.name)) + " " +
                                std::string(why));
    };
    auto const wrong = wrongParameter(definition.method, definition.parameters);
    for (ParameterRow const& row : parametersOf(definition.method)) {
        if (wrong && wrong->parameter == row.parameter)
            tell(row, wrong->why);
        if (row.kind == Kind::angle && std::abs(definition.parameters[row.parameter]) > 360)
            tell(row, "is more than a turn");
    }
}

/// Brings azimuths into 0 to 360 degrees, and latitudes that the rounding of their unit took past a pole back to it.
void normaliseAngles(ParameterValues& values) {
    for (std::size_t i = 0; i < parameterCount; ++i)
        if (auto const p = static_cast<Parameter>(i); isLatitude(p) && same(std::abs(values[p]), 90))
            values[p] = std::copysign(90, values[p]);
    for (Parameter const p : {Parameter::azimuth, Parameter::rectifiedAngle})
        if (values[p] < 0 && values[p] >= -360)
            values[p] += 360;
}

// A row of spellings, taken apart.

struct SpelledParameter {
    std::string_view name;      // "" where the row does not say it
    std::string_view otherwise; // the value where it is left out, a number or a name; "" for none
};

struct Spelling {
    std::vector<SpelledParameter> taken; // as the method's parameters in the register
    std::vector<SpelledParameter> beside;
};

std::string_view takeWord(std::string_view& text) {
    std::size_t const end = std::min(text.find(' '), text.size());
    std::string_view const word = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return word;
}

SpelledParameter spelled(std::string_view word) {
    std::size_t const mark = word.find_first_of("?=");
    if (mark == std::string_view::npos)
        return {word, {}};
    return {word.substr(0, mark), word.substr(mark + 1)};
}

Spelling spellingOf(SpellingRow const& row) {
    Spelling made;
    std::string_view text = row.parameters;
    for (std::size_t left = parametersOf(row.method).size(); left > 0; --left)
        made.taken.push_back(spelled(takeWord(text)));
    while (!text.empty())
        made.beside.push_back(spelled(takeWord(text)));
    return made;
}

/// Whether the row is of the other hemisphere.
bool wrongPole(SpellingRow const& row, ParameterValues const& values) {
    double const latitude = values[Parameter::standardParallel1];
    return (row.name.ends_with("North_Pole") && latitude < 0) || (row.name.ends_with("South_Pole") && latitude > 0);
}

double poleOf(ParameterValues const& values) {
    return std::copysign(90, values[Parameter::standardParallel1]);
}

/// Reads one stated method by one row.
class Fit {
public:
    Fit(SpellingRow const& row, StatedMethod const& stated)
        : row_(row), stated_(stated), spelling_(spellingOf(row)), rows_(parametersOf(row.method)),
          used_(stated.parameters.size(), false) {}

    /// The parameters, or nothing where the row does not fit; then `missing` may say why.
    std::optional<ParameterValues> values(Ellipsoid const& ellipsoid) {
        for (std::size_t i = 0; i < rows_.size(); ++i) {
            auto const value = take(spelling_.taken[i], rows_[i]);
            if (!value)
                return {};
            values_[rows_[i].parameter] = *value;
        }
        bool const fits =
            besideFits() && restSaysNothing() && canBe(row_.method, values_, ellipsoid) && !wrongPole(row_, values_);
        return fits ? std::optional(values_) : std::nullopt;
    }

    std::string_view missing;
    Statements statements{};

private:
    StatedParameter const* find(std::string_view name) {
        for (std::size_t i = 0; i < stated_.parameters.size(); ++i)
            if (!name.empty() && sameName(stated_.parameters[i].name, name)) {
                used_[i] = true;
                return &stated_.parameters[i];
            }
        return nullptr;
    }

    std::optional<double> take(SpelledParameter const& spelled, ParameterRow const& row) {
        StatedParameter const* stated = find(spelled.name);
        if (!stated && !spelled.name.empty())
            stated = find(row.name);
        if (!stated && !wholeNumber(spelled.otherwise))
            stated = find(spelled.otherwise);
        statements[static_cast<std::size_t>(row.parameter)] = stated;
        if (stated)
            return valueOf(*stated, row.kind, stated_);
        if (auto const number = wholeNumber(spelled.otherwise))
            return number;
        auto const silent = silentValue(row.parameter);
        if (!silent)
            missing = spelled.name;
        return silent;
    }

    bool besideFits() {
        return std::ranges::all_of(spelling_.beside,
                                   [&](SpelledParameter const& beside) { return besideFits(beside); });
    }

    bool besideFits(SpelledParameter const& beside) {
        StatedParameter const* stated = find(beside.name);
        if (auto const number = wholeNumber(beside.otherwise))
            return stated ? same(stated->value, *number)
                          : saysNothing({.name = std::string(beside.name), .value = *number});
        if (!stated)
            return false;
        double const value = valueOf(*stated, Kind::angle, stated_);
        if (beside.otherwise == "pole")
            return same(value, poleOf(values_));
        auto const other = std::ranges::find(spelling_.taken, beside.otherwise, &SpelledParameter::name);
        return same(value, values_[rows_[static_cast<std::size_t>(other - spelling_.taken.begin())].parameter]);
    }

    bool restSaysNothing() const {
        for (std::size_t i = 0; i < used_.size(); ++i)
            if (!used_[i] && !saysNothing(stated_.parameters[i]))
                return false;
        return true;
    }

    SpellingRow const& row_;
    StatedMethod const& stated_;
    Spelling const spelling_;
    std::vector<ParameterRow> const rows_;
    std::vector<bool> used_;
    ParameterValues values_;
};

/// The definition's parameters as a row says them, or nothing where it cannot.
std::optional<WrittenMethod> written(Definition const& definition, SpellingRow const& row) {
    ParameterValues const& values = definition.parameters;
    Spelling const spelling = spellingOf(row);
    std::vector<ParameterRow> const rows = parametersOf(row.method);
    if (!canBe(row.method, values, definition.datum.ellipsoid) || wrongPole(row, values))
        return {};
    auto const named = [&](std::string_view name) {
        auto const at = std::ranges::find(spelling.taken, name, &SpelledParameter::name) - spelling.taken.begin();
        return values[rows[static_cast<std::size_t>(at)].parameter];
    };
    WrittenMethod made{row.name, {}};
    for (std::size_t i = 0; i < rows.size(); ++i) {
        auto const [name, otherwise] = spelling.taken[i];
        double const value = values[rows[i].parameter];
        if (!name.empty())
            made.parameters.push_back({name, value, rows[i].kind});
        else if (auto const number = wholeNumber(otherwise); !same(value, number ? *number : named(otherwise)))
            return {};
    }
    for (auto const& [name, otherwise] : spelling.beside) {
        auto const number = wholeNumber(otherwise);
        double const value = number ? *number : otherwise == "pole" ? poleOf(values) : named(otherwise);
        made.parameters.push_back({name, value, number ? Kind::scale : Kind::angle});
    }
    return made;
}

bool sameValues(ParameterValues const& a, ParameterValues const& b) {
    for (std::size_t i = 0; i < parameterCount; ++i) {
        auto const p = static_cast<Parameter>(i);
        if (a.has(p) != b.has(p) || (a.has(p) && !same(a[p], b[p])))
            return false;
    }
    return true;
}

using Tables = std::initializer_list<std::span<SpellingRow const>>;

/// Whether a reader takes what was written for what it is: several methods may share a name.
bool readsBack(Definition const& definition, Tables tables, WrittenMethod const& made) {
    StatedMethod stated{.name = std::string(made.name), .parameters = {}};
    for (WrittenParameter const& parameter : made.parameters)
        stated.parameters.push_back({.name = std::string(parameter.name), .value = parameter.value, .factor = 1});
    Complaint complaint("");
    Definition read;
    read.datum = definition.datum;
    bool const known = takeSpelledMethod(read, tables, stated, complaint) || takeMethod(read, stated, complaint);
    return known && !complaint.made() && read.method == definition.method &&
           sameValues(read.parameters, definition.parameters);
}

std::optional<WrittenMethod> firstThatReadsBack(Definition const& definition, std::span<SpellingRow const> rows,
                                                Tables tables) {
    for (SpellingRow const& row : rows)
        if (row.method == definition.method)
            if (auto made = written(definition, row); made && readsBack(definition, tables, *made))
                return made;
    return {};
}

/// Where the register's methods find a stated parameter's meaning: by its code, else by its name, best among the
/// method's own.
ParameterRow const* parameterNamed(StatedParameter const& stated, std::vector<ParameterRow> const& taken) {
    if (ParameterRow const* row = stated.code != 0 ? parameterByCode(stated.code) : nullptr)
        return row;
    for (ParameterRow const& row : taken)
        if (sameName(row.name, stated.name))
            return parameterByCode(row.code);
    for (ParameterRow const& row : parameterRows)
        if (sameName(row.name, stated.name))
            return &row;
    return nullptr;
}

/// What a parameter is where the text leaves it out.
std::optional<double> leftOutValue(Method method, Parameter parameter) {
    bool const equator = method == Method::equidistantCylindrical || method == Method::equidistantCylindricalSphere;
    if (equator && parameter == Parameter::standardParallel1)
        return 0;
    return silentValue(parameter);
}

/// Whether a row has a name for a stated parameter, whatever the rest of the text.
bool hasNameFor(StatedParameter const& stated, SpellingRow const& row) {
    Spelling const spelling = spellingOf(row);
    auto const names = [&](SpelledParameter const& each) {
        return !each.name.empty() && sameName(each.name, stated.name);
    };
    return std::ranges::any_of(spelling.taken, names) || std::ranges::any_of(spelling.beside, names) ||
           std::ranges::any_of(parametersOf(row.method),
                               [&](ParameterRow const& each) { return sameName(each.name, stated.name); });
}

using Rows = std::vector<SpellingRow const*>;

Rows rowsNamed(std::string_view name, Tables tables) {
    Rows rows;
    for (std::span<SpellingRow const> const table : tables)
        for (SpellingRow const& row : table)
            if (sameName(row.name, name))
                rows.push_back(&row);
    return rows;
}

/// Why none of the rows fits, as near to its place as can be told.
void tellMisfit(StatedMethod const& stated, Rows const& rows, std::string_view missing, Complaint& complaint) {
    for (StatedParameter const& each : stated.parameters)
        if (!saysNothing(each) &&
            std::ranges::none_of(rows, [&](SpellingRow const* row) { return hasNameFor(each, *row); }))
            return complaint.malformed(each.offset, stated.name + " takes no parameter " + each.name);
    if (missing.empty())
        complaint.unsupported(stated.offset, "no form of " + stated.name + " has these parameters");
    else
        complaint.malformed(stated.offset, stated.name + " lacks its parameter " + std::string(missing));
}

/// No method takes nearly as many parameters.
constexpr std::size_t mostParameters = 64;

/// Tells a parameter that is stated twice: which of its values is meant nobody knows. Whether the statement can be read
/// on.
bool checkRepetition(StatedMethod const& stated, Complaint& complaint) {
    std::vector<StatedParameter> const& all = stated.parameters;
    if (all.size() > mostParameters)
        return complaint.malformed(stated.offset, "no method takes so many parameters"), false;
    for (auto each = all.begin(); each != all.end(); ++each)
        if (std::any_of(all.begin(), each,
                        [&](StatedParameter const& other) { return sameName(each->name, other.name); }))
            return complaint.malformed(each->offset, "the parameter " + each->name + " is stated twice"), false;
    return true;
}

/// Datums of one body lie no more than kilometres apart, and hardly turned.
bool isShift(ToWgs84 const& shift) {
    constexpr double farthest = 1e5, greatestTurn = 36000, greatestScale = 1e4; // metres, arcseconds, parts per million
    auto const within = [&](std::size_t first, std::size_t last, double bound) {
        return std::all_of(shift.begin() + first, shift.begin() + last, [=](double x) { return std::abs(x) <= bound; });
    };
    return within(0, 3, farthest) && within(3, 6, greatestTurn) && within(6, 7, greatestScale);
}

// Axes.

bool isEastOrWest(StatedAxis const& axis) {
    return axis.direction == "east" || axis.direction == "west";
}

bool isNorthOrSouth(StatedAxis const& axis) {
    return axis.direction == "north" || axis.direction == "south";
}

Sense senseOf(StatedAxis const& axis) {
    return axis.direction == "west" || axis.direction == "south" ? Sense::negative : Sense::positive;
}

/// Whether an axis at a pole is the one that is a northing elsewhere, by its name.
bool isNorthing(StatedAxis const& axis) {
    std::string small = axis.name;
    std::ranges::transform(small, small.begin(), asciiLower);
    return small.find("north") != std::string::npos || small == "(n)" || small == "(y)" || small == "y";
}

/// The sense of two directions along meridians: the same, opposite, or neither.
std::optional<Sense> alongMeridian(double stated, double expected) {
    double const turn = std::abs(std::remainder(stated - expected, 360));
    if (turn < sameValue)
        return Sense::positive;
    if (180 - turn < sameValue)
        return Sense::negative;
    return {};
}

/// At the pole y grows from the far side towards the near one: southwards along Lon0 + 180 at the north pole,
/// northwards along Lon0 at the south pole; x does so 90 degrees clockwise of it on the map.
void takePolarAxes(Definition& definition, std::span<StatedAxis const> axes, int pole, Complaint& complaint) {
    double const lon0 = definition.parameters.valueOr(Parameter::longitudeOfOrigin, 0);
    bool const northingFirst = axes[0].meridian && axes[1].meridian ? alongMeridian(*axes[0].meridian, lon0).has_value()
                                                                    : isNorthing(axes[0]) && !isNorthing(axes[1]);
    definition.northingFirst = northingFirst;
    StatedAxis const& y = axes[northingFirst ? 0 : 1];
    StatedAxis const& x = axes[northingFirst ? 1 : 0];
    if (!x.meridian || !y.meridian)
        return;
    auto const xSense = alongMeridian(*x.meridian, lon0 + 90);
    auto const ySense = alongMeridian(*y.meridian, pole > 0 ? lon0 + 180 : lon0);
    if (!xSense || !ySense)
        return complaint.unsupported(x.offset, "the axes do not run along the projection's own meridians");
    definition.x = *xSense;
    definition.y = *ySense;
}

void takeMapAxes(Definition& definition, std::span<StatedAxis const> axes, Complaint& complaint) {
    if (int const pole = poleAtCentre(definition); pole != 0 && isNorthOrSouth(axes[0]) && isNorthOrSouth(axes[1]))
        return takePolarAxes(definition, axes, pole, complaint);
    definition.northingFirst = isNorthOrSouth(axes[0]);
    StatedAxis const& y = axes[definition.northingFirst ? 0 : 1];
    StatedAxis const& x = axes[definition.northingFirst ? 1 : 0];
    if (!isEastOrWest(x) || !isNorthOrSouth(y))
        return complaint.unsupported(x.offset, "of two axes one must run east or west, the other north or south");
    definition.x = senseOf(x);
    definition.y = senseOf(y);
}

} // namespace

bool sameName(std::string_view a, std::string_view b) {
    std::size_t i = 0;
    std::size_t j = 0;
    while (true) {
        while (i < a.size() && !isNameCharacter(a[i]))
            ++i;
        while (j < b.size() && !isNameCharacter(b[j]))
            ++j;
        if (i == a.size() || j == b.size())
            return i == a.size() && j == b.size();
        if (asciiLower(a[i++]) != asciiLower(b[j++]))
            return false;
    }
}

void takeSystemName(Definition& definition, std::string name) {
    if (name.ends_with(deprecatedMark)) {
        definition.deprecated = true;
        name.resize(name.size() - deprecatedMark.size());
    }
    definition.name = std::move(name);
}

bool takeMethod(Definition& definition, StatedMethod const& stated, Complaint& complaint) {
    MethodRow const* const method = methodNamed(stated.name, stated.code);
    if (!method)
        return false;
    definition.method = method->method;
    if (!checkRepetition(stated, complaint))
        return true;
    auto const taken = parametersOf(method->method);
    Statements statements{};
    for (StatedParameter const& parameter : stated.parameters) {
        ParameterRow const* const row = parameterNamed(parameter, taken);
        bool const takes = row && std::ranges::find(taken, row->parameter, &ParameterRow::parameter) != taken.end();
        if (takes) {
            definition.parameters[row->parameter] = valueOf(parameter, row->kind, stated);
            statements[static_cast<std::size_t>(row->parameter)] = &parameter;
        } else if (!saysNothing(parameter))
            complaint.malformed(parameter.offset,
                                "the method " + stated.name + " takes no parameter " + parameter.name);
    }
    for (ParameterRow const& row : taken) {
        if (definition.parameters.has(row.parameter))
            continue;
        auto const silent = leftOutValue(method->method, row.parameter);
        if (!silent)
            complaint.malformed(stated.offset, "the parameter " + std::string(row.name) + " is missing");
        definition.parameters[row.parameter] = silent.value_or(0);
    }
    normaliseAngles(definition.parameters);
    checkValues(definition, statements, stated, complaint);
    return true;
}

bool takeSpelledMethod(Definition& definition, std::initializer_list<std::span<SpellingRow const>> tables,
                       StatedMethod const& stated, Complaint& complaint) {
    Rows const rows = rowsNamed(stated.name, tables);
    if (rows.empty() || !checkRepetition(stated, complaint))
        return !rows.empty();
    std::string_view missing;
    for (SpellingRow const* row : rows) {
        Fit fit(*row, stated);
        if (auto const values = fit.values(definition.datum.ellipsoid)) {
            definition.method = row->method;
            definition.parameters = *values;
            normaliseAngles(definition.parameters);
            checkValues(definition, fit.statements, stated, complaint);
            return true;
        }
        if (missing.empty())
            missing = fit.missing;
    }
    tellMisfit(stated, rows, missing, complaint);
    return true;
}

WrittenMethod registerMethod(Definition const& definition) {
    MethodRow const& row = rowOf(definition.method);
    WrittenMethod made{row.name, {}};
    for (ParameterRow const& parameter : parametersOf(definition.method))
        made.parameters.push_back(
            {parameter.name, definition.parameters[parameter.parameter], parameter.kind, parameter.code});
    return made;
}

std::optional<WrittenMethod> projMethod(Definition const& stated) {
    Definition definition = stated;
    definition.method = namedInProj(onEllipsoid(stated.method, stated.datum.ellipsoid));
    return firstThatReadsBack(definition, projSpellings, {projSpellings});
}

std::optional<WrittenMethod> wkt1Method(Definition const& stated, std::span<SpellingRow const> rows) {
    Definition definition = stated;
    definition.method = onEllipsoid(stated.method, stated.datum.ellipsoid);
    if (auto made = firstThatReadsBack(definition, rows, {gdalSpellings, esriSpellings}))
        return made;
    WrittenMethod made = registerMethod(definition);
    if (!readsBack(definition, {gdalSpellings, esriSpellings}, made))
        return {};
    return made;
}

OrProblem<Definition> finished(Definition&& definition, Complaint&& complaint) {
    constexpr double greatest = 1e15;
    Datum const& datum = definition.datum;
    bool usable = std::abs(datum.meridian.longitude) <= 360 && definition.unit.factor > 1e-9 &&
                  definition.unit.factor < 1e9 && definition.angularUnit.factor > 1e-9 &&
                  definition.angularUnit.factor < 1e9;
    for (std::size_t i = 0; i < parameterCount; ++i) {
        auto const p = static_cast<Parameter>(i);
        usable = usable && (!definition.parameters.has(p) || std::abs(definition.parameters[p]) < greatest);
    }
    if (!usable)
        complaint.malformed(0, "a number or a unit is beyond all bounds");
    if (!isShift(datum.toWgs84.value_or(ToWgs84{})))
        complaint.malformed(0, "the shift to WGS 84 is beyond all bounds");
    return std::move(complaint).orProblem(std::move(definition));
}

void takeArea(Definition& definition, Area area, std::size_t offset, Complaint& complaint) {
    auto const isLongitude = [](double each) { return std::abs(each) <= 360; };
    bool const latitudes = area.south >= -90 && area.south <= area.north && area.north <= 90;
    if (!latitudes || !isLongitude(area.west) || !isLongitude(area.east))
        return complaint.malformed(offset, "the area of use is not between two latitudes and two longitudes");
    definition.area = std::move(area);
}

void takeAxes(Definition& definition, std::span<StatedAxis const> axes, Complaint& complaint) {
    if (axes.size() < 2)
        return complaint.malformed(axes.empty() ? 0 : axes[0].offset, "two axes were expected");
    axes = axes.first(2);
    if (std::abs(axes[0].unit.factor - axes[1].unit.factor) > sameValue)
        return complaint.unsupported(axes[1].offset, "the axes have different units");
    (definition.isProjected() ? definition.unit : definition.angularUnit) = axes[0].unit;
    takeMapAxes(definition, axes, complaint);
    bool const negative = definition.x == Sense::negative || definition.y == Sense::negative;
    if (!definition.isProjected() && negative)
        complaint.unsupported(axes[0].offset, "longitudes must grow eastwards and latitudes northwards");
}

int poleAtCentre(Definition const& definition) {
    ParameterValues const& values = definition.parameters;
    switch (definition.method) {
    case Method::polarStereographicB:
    case Method::polarStereographicC:
        return values[Parameter::standardParallel1] < 0 ? -1 : 1;
    case Method::polarStereographicA:
    case Method::stereographic:
    case Method::lambertAzimuthal:
    case Method::lambertAzimuthalSphere:
    case Method::azimuthalEquidistant:
    case Method::modifiedAzimuthalEquidistant:
    case Method::orthographic:
    case Method::gnomonic: {
        double const latitude = values[Parameter::latitudeOfOrigin];
        return same(std::abs(latitude), 90) ? (latitude < 0 ? -1 : 1) : 0;
    }
    default:
        return 0;
    }
}

} // namespace ZrProj::systems

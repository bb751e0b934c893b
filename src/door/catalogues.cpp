// The catalogues, entry by entry.
#include "datum/catalogue.h"
#include "datum/method_table.h"
#include "door/parameters.h"
#include "georef/method_table.h"
#include "host/text.h"
#include "proj/ellipsoid_table.h"
#include "proj/projection_table.h"
#include "proj/zone_table.h"

#include <algorithm>

using namespace ZrProj;
using namespace ZrProj::Door;

namespace {

static_assert(static_cast<int>(Quantity::Projection) == ZRPROJ_KIND_PROJECTION &&
              static_cast<int>(Quantity::Flattening) == ZRPROJ_KIND_FLATTENING);

/// Answers with a row of a table: `deliver(row)`.
template <class Table, class Deliver> zrproj_status entry(Table const& table, size_t n, Deliver const& deliver) {
    return answer([&]() -> Answer {
        if (!(n < table.size()))
            return pastTheLast(n, table.size());
        deliver(table[n]);
        return {};
    });
}

/// Answers with the first of `count` numbers whose name or key is the one asked for; `isCalled(number, name)`.
template <class IsCalled>
zrproj_status find(char const* kind, char const* name, int count, int* found, IsCalled const& isCalled) {
    return answer([&]() -> Answer {
        if (!name || !found)
            return badArgument("null pointer");
        for (int number = 0; number < count; ++number)
            if (isCalled(number, name)) {
                *found = number;
                return {};
            }
        return unknown("there is no " + std::string(kind) + " called " + inQuotes(name));
    });
}

/// Answers for a projection type: `work(row)`.
template <class Work> Answer withProjection(int type, Work const& work) {
    auto const* const row = projectionRow(static_cast<ProjType>(type));
    return row ? work(*row) : unknown("type " + std::to_string(type) + " is no projection");
}

template <class Table> auto const& rowAt(Table const& table, int number) {
    return table[static_cast<std::size_t>(number)];
}

} // namespace

zrproj_status zrproj_projection_entry(size_t n, int* type, char const** key, char const** name) {
    return entry(projectionTable, n, [&](ProjectionRow const& row) {
        give(type, static_cast<int>(row.type));
        give(key, row.key);
        give(name, row.name);
    });
}

zrproj_status zrproj_projection_find(char const* name, int* type) {
    return find("projection", name, static_cast<int>(projectionTable.size()), type, [](int number, char const* text) {
        auto const& row = rowAt(projectionTable, number);
        return equalIgnoringCase(row.key, text) || equalIgnoringCase(row.name, text);
    });
}

zrproj_status zrproj_projection_parameter(int type, size_t n, int* parameter) {
    return answer([&] {
        return withProjection(type, [&](ProjectionRow const& row) -> Answer {
            auto const count =
                static_cast<std::size_t>(std::ranges::find(row.parameters, ProjParamNone) - row.parameters.begin());
            if (!(n < count))
                return pastTheLast(n, count);
            give(parameter, static_cast<int>(row.parameters[n]));
            return {};
        });
    });
}

zrproj_status zrproj_projection_picture(int type, size_t n, int* parameter, double* value) {
    return answer([&] {
        return withProjection(type, [&](ProjectionRow const& row) -> Answer {
            auto const end = std::ranges::find(row.picture, ProjParamNone, &PictureParameter::parameter);
            auto const count = static_cast<std::size_t>(end - row.picture.begin());
            if (!(n < count))
                return pastTheLast(n, count);
            give(parameter, static_cast<int>(row.picture[n].parameter));
            give(value, row.picture[n].value);
            return {};
        });
    });
}

zrproj_status zrproj_parameter_entry(size_t n, int* parameter, char const** key, char const** name, zrproj_kind* kind) {
    return entry(parameterTable, n, [&](ParameterRow const& row) {
        give(parameter, static_cast<int>(row.id));
        give(key, row.key);
        give(name, row.name);
        give(kind, static_cast<zrproj_kind>(row.quantity));
    });
}

zrproj_status zrproj_datum_entry(size_t n, int* datum, char const** name, int* ellipsoid, char const** method) {
    return answer([&]() -> Answer {
        auto const count = static_cast<std::size_t>(DatNumDatums()) - 1; // without the caller's own
        if (!(n < count))
            return pastTheLast(n, count);
        auto const type = static_cast<DatumType>(n + 1);
        DatumRow const& row = datumRow(type);
        give(datum, static_cast<int>(type));
        give(name, row.name);
        give(ellipsoid, static_cast<int>(row.figure));
        give(method, datumMethodRow(row.method)->name);
        return {};
    });
}

zrproj_status zrproj_datum_method_entry(size_t n, int* method, char const** name, int* numbers, int* inverts) {
    return entry(datumMethodTable, n, [&](DatumMethodRow const& row) {
        give(method, static_cast<int>(row.method));
        give(name, row.name);
        give(numbers, row.hasRotations() ? 7 : row.hasShifts() ? 3 : row.isOwn() ? 0 : -1);
        give(inverts, row.inverts ? 1 : 0);
    });
}

zrproj_status zrproj_datum_find(char const* name, int* datum) {
    return find("datum", name, DatumTypeNone, datum, [](int number, char const* text) {
        return number > 0 && equalIgnoringCase(datumRow(static_cast<DatumType>(number)).name, text);
    });
}

zrproj_status zrproj_ellipsoid_entry(size_t n, int* ellipsoid, char const** name, double* radius, double* flattening) {
    return entry(ellipsoidTable, n, [&](EllipsoidRow const& row) {
        give(ellipsoid, static_cast<int>(n));
        give(name, row.name);
        give(radius, row.radius);
        give(flattening, row.flattening());
    });
}

zrproj_status zrproj_ellipsoid_find(char const* name, int* ellipsoid) {
    return find(
        "ellipsoid", name, static_cast<int>(ellipsoidTable.size()), ellipsoid,
        [](int number, char const* text) { return equalIgnoringCase(rowAt(ellipsoidTable, number).name, text); });
}

zrproj_status zrproj_state_plane_entry(size_t n, int* zone, char const** name, int* usgs) {
    return entry(zoneTable, n, [&](ZoneRow const& row) {
        give(zone, static_cast<int>(n));
        give(name, row.name);
        give(usgs, row.usgs);
    });
}

zrproj_status zrproj_state_plane_find(char const* name, int* zone) {
    return find("State Plane zone", name, static_cast<int>(zoneTable.size()), zone,
                [](int number, char const* text) { return equalIgnoringCase(rowAt(zoneTable, number).name, text); });
}

zrproj_status zrproj_fit_method_entry(size_t n, int* method, char const** key, char const** name, size_t* needed) {
    return entry(georefMethodTable, n, [&](GeorefMethodRow const& row) {
        give(method, static_cast<int>(n));
        give(key, row.key);
        give(name, row.name);
        give(needed, row.needed);
    });
}

zrproj_status zrproj_fit_method_find(char const* name, int* method) {
    return find("method", name, static_cast<int>(georefMethodTable.size()), method, [](int number, char const* text) {
        auto const& row = rowAt(georefMethodTable, number);
        return equalIgnoringCase(row.key, text) || equalIgnoringCase(row.name, text);
    });
}

namespace {

/// Answers for the field of a parameter: `work(field)`.
template <class Work> Answer withField(int parameter, Work const& work) {
    auto const field = std::ranges::find(parameterFields, parameter, &ParameterField::id);
    if (field == parameterFields.end())
        return unknown("there is no parameter " + std::to_string(parameter));
    return work(*field);
}

/// A whole number, or a flag, in its field.
Answer setWhole(int& field, bool isFlag, double value) {
    double const largest = isFlag ? 1 : std::numeric_limits<std::int32_t>::max();
    if (!(value >= 0 && value <= largest && value == std::trunc(value)))
        return badArgument("the parameter takes a whole number" + std::string(isFlag ? ", 0 or 1" : ""));
    field = static_cast<int>(value);
    return {};
}

} // namespace

zrproj_status zrproj_parameters_get(zrproj_parameters const* parameters, int parameter, double* value) {
    return answer([&] {
        if (!hasKnownSize(parameters) || !value)
            return badArgument("no parameters of a known size, or null pointer");
        return withField(parameter, [&](ParameterField const& field) {
            *value = field.get(*parameters);
            return Answer{};
        });
    });
}

zrproj_status zrproj_parameters_set(zrproj_parameters* parameters, int parameter, double value) {
    return answer([&] {
        if (!hasKnownSize(parameters))
            return badArgument("no parameters of a known size");
        return withField(parameter, [&](ParameterField const& field) {
            if (!field.number)
                return setWhole(parameters->*field.whole, parameterRow(field.id)->quantity == Quantity::Flag, value);
            if (!std::isfinite(value))
                return badArgument("the value is not finite");
            parameters->*field.number = value;
            return Answer{};
        });
    });
}

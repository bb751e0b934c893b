#include "door/parameters.h"

#include "datum/catalogue.h"
#include "datum/method_table.h"
#include "frame/errors.h"
#include "proj/validation.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ZrProj::Door {
namespace {

bool areFinite(zrproj_parameters const& parameters) {
    auto const& s = parameters.shift;
    return std::ranges::all_of(parameterFields,
                               [&](ParameterField const& f) { return std::isfinite(f.get(parameters)); }) &&
           Door::areFinite(std::array{s.dx, s.dy, s.dz, s.rx, s.ry, s.rz, s.scale, s.prime_meridian});
}

bool isCatalogueDatum(int datum) {
    return datum > DatumTypeUserDefined && datum < DatumTypeNone;
}

/// The methods that go by a caller's own shifts: "2 (Bursa-Wolf) or 3 (Molodensky)".
std::string methodsWithShifts() {
    std::string text;
    for (DatumMethodRow const& row : datumMethodTable)
        if (row.hasShifts())
            text += (text.empty() ? "" : " or ") + std::to_string(row.method) + " (" + row.name + ')';
    return text;
}

Answer checkDatum(zrproj_parameters const& parameters) {
    if (parameters.datum < DatumTypeUserDefined || parameters.datum > DatumTypeNone)
        return badDefinition("datum " + std::to_string(parameters.datum) + " is none of the catalogue's");
    if (parameters.datum != DatumTypeUserDefined || !hasDatum(parameters))
        return {};
    DATUMXFORM request{};
    request.SourceParams = shiftOf(parameters);
    request.Destination = DatumTypeWorldGeodeticSystem1984;
    std::array<char, 260> reason{};
    if (!datumMethodIs(request.SourceParams.Method, &DatumMethodRow::hasShifts))
        return badDefinition("a datum's own method is " + methodsWithShifts());
    return DatCheckParams(&request, reason.data(), false) == 0 ? Answer{} : badDefinition(reason.data());
}

void setFigure(zrproj_parameters& parameters, EllipsoidType ellipsoid) {
    parameters.ellipsoid = ellipsoid;
    parameters.radius = EllipsoidRadius(ellipsoid);
    parameters.flattening = EllipsoidFlattening(ellipsoid);
}

/// A zone's own ellipsoid, the one that is told, or the datum's.
Answer completeFigure(zrproj_parameters& parameters, PROJDATA const& definition) {
    bool const isStatePlane = definition.Type != parameters.type;
    if (isStatePlane)
        setFigure(parameters, definition.Ellipsoid);
    if (parameters.ellipsoid < EllipsoidTypeUserDefined || parameters.ellipsoid >= EllipsoidTypeNone)
        return badDefinition("ellipsoid " + std::to_string(parameters.ellipsoid) + " is none of the catalogue's");
    bool const isTold = parameters.ellipsoid != EllipsoidTypeUserDefined || parameters.radius != 0;
    if (!isTold && isCatalogueDatum(parameters.datum))
        parameters.ellipsoid = datumRow(static_cast<DatumType>(parameters.datum)).figure;
    if (parameters.ellipsoid != EllipsoidTypeUserDefined)
        setFigure(parameters, static_cast<EllipsoidType>(parameters.ellipsoid));
    if (!(parameters.radius > 0))
        return badDefinition("there is no ellipsoid: neither a number, nor a radius above 0, nor one of the datum");
    if (!(parameters.flattening >= 0 && parameters.flattening < 1))
        return badDefinition("the flattening is not at least 0 and below 1");
    return {};
}

/// Records may hold latitudes within a full turn, as angles that run on over a pole; parameters may not.
Answer checkLatitudes(zrproj_parameters const& parameters) {
    if (parameters.type == ProjTypeUnprojectedLatLong)
        return {};
    for (ParameterField const& field : parameterFields)
        if (auto const& row = *parameterRow(field.id);
            row.quantity == Quantity::Latitude && std::fabs(field.get(parameters)) > 90)
            return badDefinition(std::string("the latitude ") + row.key + " is not within 90 degrees either way");
    return {};
}

void completeFactors(zrproj_parameters& parameters) {
    bool const isUtm = parameters.type == ProjTypeUniversalTransverseMercator;
    if (isUtm) {
        parameters.x0 = 500000;
        parameters.y0 = parameters.south ? 10000000 : 0;
    }
    if (parameters.scale == 0)
        parameters.scale = 1;
    if (parameters.k0 == 0)
        parameters.k0 = isUtm ? 0.9996 : 1;
}

} // namespace

PROJDATA recordOf(zrproj_parameters const& parameters) noexcept {
    PROJDATA record{};
    for (auto const& field : parameterFields) {
        double const number = field.get(parameters);
        auto const whole = static_cast<std::int32_t>(field.number ? 0 : parameters.*field.whole);
        bool const flag = whole != 0;
        void const* const value = field.number ? static_cast<void const*>(&number)
                                  : parameterRow(field.id)->quantity == Quantity::Flag ? static_cast<void const*>(&flag)
                                                                                       : &whole;
        ProjSetParam(&record, field.id, value);
    }
    return record;
}

zrproj_parameters parametersOf(PROJDATA const& record, DatumType datum, DATUM2WGS84 const& shift) noexcept {
    zrproj_parameters parameters{};
    parameters.size = sizeof parameters;
    parameters.datum = datum;
    for (auto const& field : parameterFields) {
        std::int32_t whole = 0; // a flag is its first byte
        if (field.number)
            ProjGetParam(&record, field.id, &(parameters.*field.number));
        else if (ProjGetParam(&record, field.id, &whole))
            parameters.*field.whole = whole;
    }
    if (record.Type == ProjTypeUnprojectedLatLong || record.Type == ProjTypeUndefined) { // only the datum has a figure
        parameters.ellipsoid = shift.Ellipsoid;
        parameters.radius = shift.MajorRadius;
        parameters.flattening = shift.Flattening;
    }
    if (datum != DatumTypeNone)
        parameters.shift = {shift.Method, shift.dX, shift.dY,    shift.dZ,           shift.rX,
                            shift.rY,     shift.rZ, shift.Scale, shift.PrimeMeridian};
    return parameters;
}

DATUM2WGS84 shiftOf(zrproj_parameters const& parameters) noexcept {
    DATUM2WGS84 record{};
    auto const datum = static_cast<DatumType>(parameters.datum);
    if (datum != DatumTypeUserDefined) {
        DatumMethod method = DatumMethodNone;
        if (!DatGetDatumParams(datum, &record) && DatGetDatumMethod(datum, &method))
            record.Method = method; // one that goes by more than parameters
        return record;
    }
    auto const& shift = parameters.shift;
    record.Method = static_cast<DatumMethod>(shift.method);
    record.Ellipsoid = static_cast<EllipsoidType>(parameters.ellipsoid);
    record.MajorRadius = parameters.radius;
    record.Flattening = parameters.flattening;
    record.PrimeMeridian = shift.prime_meridian;
    record.dX = shift.dx, record.dY = shift.dy, record.dZ = shift.dz;
    record.rX = shift.rx, record.rY = shift.ry, record.rZ = shift.rz;
    record.Scale = shift.scale;
    return record;
}

bool hasDatum(zrproj_parameters const& parameters) noexcept {
    return parameters.datum != DatumTypeNone &&
           (parameters.datum != DatumTypeUserDefined || parameters.shift.method != DatumMethodNone);
}

Answer complete(zrproj_parameters& parameters) {
    if (!areFinite(parameters))
        return badArgument("a parameter is not finite");
    if (parameters.type < ProjTypeUnprojectedLatLong || parameters.type >= ProjNumProjections())
        return badDefinition("type " + std::to_string(parameters.type) + " is no projection");
    PROJDATA definition = recordOf(parameters);
    ProjGetStateZoneParams(&definition);
    bool const isStatePlane = parameters.type == ProjTypeStatePlane1927 || parameters.type == ProjTypeStatePlane1983;
    if (isStatePlane && definition.Zone == StateZoneTypeNone)
        return badDefinition("zone " + std::to_string(parameters.zone) + " has no definition of that year");
    if (Answer figure = completeFigure(parameters, definition); !figure.isGood())
        return figure;
    if (Answer datum = checkDatum(parameters); !datum.isGood())
        return datum;
    if (auto const fault = findFault(recordOf(parameters)); fault.parameter != 0)
        return badDefinition(errorText(fault.error));
    if (Answer latitudes = checkLatitudes(parameters); !latitudes.isGood())
        return latitudes;
    completeFactors(parameters);
    return {};
}

} // namespace ZrProj::Door

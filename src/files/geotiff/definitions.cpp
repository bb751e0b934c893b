// The keys of a definition, written: by codes of the register where it has them, else by numbers.
#include "files/geotiff/geographic.h"
#include "files/geotiff/system.h"
#include "systems/recognition.h"
#include "systems/register.h"
#include "systems/to_record.h"

namespace ZrProj::GeoTIFF {
namespace {

using systems::Definition;

/// A code as keys hold it, 32767 for one that has no room in them.
std::uint16_t keyCode(systems::Code code) {
    return code > 0 && code < userDefined ? static_cast<std::uint16_t>(code) : std::uint16_t{userDefined};
}

bool hasCode(systems::Code code) {
    return keyCode(code) != userDefined;
}

/// The geographic system that a system stands on or is, without a code where the register's of that code is another.
Definition geographicOf(Definition const& system) {
    if (!system.isProjected())
        return system;
    Definition geographic;
    geographic.name = system.baseName;
    geographic.datum = system.datum;
    geographic.angularUnit = system.angularUnit;
    auto const registered = systems::definitionOf(system.baseCode);
    if (registered && systems::difference(geographic, *registered).empty())
        geographic.code = system.baseCode;
    return geographic;
}

void writeEllipsoid(KeyDirectory& keys, systems::Ellipsoid const& ellipsoid) {
    keys.setCode(keyEllipsoid, keyCode(systems::ellipsoidWith(ellipsoid)));
    keys.setNumber(keySemiMajorAxis, ellipsoid.semiMajor);
    if (ellipsoid.inverseFlattening == 0)
        keys.setNumber(keySemiMinorAxis, ellipsoid.semiMajor);
    else
        keys.setNumber(keyInverseFlattening, ellipsoid.inverseFlattening);
}

void writeMeridian(KeyDirectory& keys, systems::PrimeMeridian const& meridian) {
    auto const registered = systems::meridianOf(meridian.code);
    bool const isRegistered = registered && registered->longitude == meridian.longitude && hasCode(meridian.code);
    keys.setCode(keyPrimeMeridian, isRegistered ? keyCode(meridian.code) : std::uint16_t{userDefined});
    if (!isRegistered)
        keys.setNumber(keyPrimeMeridianLongitude, meridian.longitude);
}

/// A geographic system without a code: its datum by code or by name, with all of its figures.
void writeOwn(KeyDirectory& keys, Definition const& geographic) {
    systems::Datum const& datum = geographic.datum;
    keys.setText(keyGeographicCitation, "GCS Name = " + geographic.name + "|Datum = " + datum.name + "|Ellipsoid = " +
                                            datum.ellipsoid.name + "|Primem = " + datum.meridian.name + '|');
    auto const registered = systems::datumOf(datum.code);
    bool const isRegistered = registered && sameFigure(*registered, datum);
    keys.setCode(keyDatum, isRegistered ? keyCode(datum.code) : std::uint16_t{userDefined});
    writeEllipsoid(keys, datum.ellipsoid);
    writeMeridian(keys, datum.meridian);
}

void writeGeographic(KeyDirectory& keys, Definition const& geographic) {
    bool const isNumbered = hasCode(geographic.code);
    bool const isInDegrees = !isNumbered || geographic.angularUnit.factor == 1;
    keys.setCode(keyGeographicType, keyCode(geographic.code));
    keys.setCode(keyAngleUnit, isInDegrees ? std::uint16_t{unitDegree} : keyCode(geographic.angularUnit.code));
    if (isNumbered)
        keys.setText(keyGeographicCitation, geographic.name);
    else
        writeOwn(keys, geographic);
    if (auto const& shift = geographic.datum.toWgs84)
        keys.setNumbers(keyToWgs84, {shift->begin(), shift->end()});
}

/// Writes a projection by the numbers of its record, whose longitudes count from the prime meridian here.
std::optional<Refusal> writeNumbers(KeyDirectory& keys, Definition const& system) {
    Definition plain = system;
    plain.conversionCode = 0; // no zone, but the parameters that define it
    plain.datum.meridian = {};
    auto const made = systems::recordOf(plain);
    if (auto const* unsupported = std::get_if<systems::Unsupported>(&made))
        return Refusal{unsupported->reason};
    PROJDATA const& projection = std::get<systems::SystemRecord>(made).projection;
    if (projection.Flattening == 0 && system.datum.ellipsoid.inverseFlattening != 0)
        return Refusal{"GeoTIFF has no map of a sphere on the datum of an ellipsoid but those with a code"};
    return writeProjection(keys, projection);
}

Expected<KeyDirectory> writeProjected(KeyDirectory keys, Definition const& system) {
    keys.setCode(keyModelType, modelProjected);
    keys.setText(keyCitation, system.name);
    if (!hasCode(system.code)) {
        auto const refusal = writeNumbers(keys, system);
        return refusal ? Expected<KeyDirectory>(*refusal) : keys;
    }
    keys.setCode(keyProjectedType, keyCode(system.code));
    keys.setCode(keyLengthUnit, keyCode(system.unit.code));
    if (!hasCode(system.unit.code))
        keys.setNumber(keyLengthUnitSize, system.unit.factor);
    return keys;
}

} // namespace

Expected<KeyDirectory> writeSystem(systems::Definition const& system) {
    KeyDirectory keys;
    keys.setCode(keyRasterType, rasterIsArea);
    writeGeographic(keys, geographicOf(system));
    if (system.isProjected())
        return writeProjected(std::move(keys), system);
    keys.setCode(keyModelType, modelGeographic);
    return keys;
}

} // namespace ZrProj::GeoTIFF

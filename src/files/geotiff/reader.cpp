// The keys of a coordinate system, read.
#include "files/geotiff/grid_table.h"
#include "files/geotiff/system.h"
#include "files/geotiff/zones.h"

#include <algorithm>

namespace ZrProj::GeoTIFF {
namespace {

std::uint16_t own(std::optional<std::uint16_t> code) {
    return code.value_or(userDefined);
}

/// Reads one parameter after the other; remembers the first that cannot be read.
class ParameterReader {
public:
    ParameterReader(KeyDirectory const& keys, Unit length, double degrees)
        : m_keys(keys), m_length(length), m_degrees(degrees) {}

    double number(std::initializer_list<Key> names, double otherwise) {
        for (Key name : names)
            if (m_keys.has(name)) {
                std::optional<double> const value = m_keys.number(name);
                if (!value)
                    m_failed = true;
                return value.value_or(otherwise);
            }
        return otherwise;
    }
    double length(std::initializer_list<Key> names) { return m_length.toBase(number(names, 0)); }
    double angle(std::initializer_list<Key> names) { return m_degrees * number(names, 0); }
    /// An angle without which there is no projection.
    double neededAngle(Key name) {
        m_failed = m_failed || !m_keys.has(name);
        return angle({name});
    }
    bool failed() const { return m_failed; }

private:
    KeyDirectory const& m_keys;
    Unit m_length;
    double m_degrees;
    bool m_failed = false;
};

bool isOblique(Transformation transformation) {
    return transformation == obliqueMercator || transformation == obliqueMercatorFromCentre;
}

bool needsParallels(Transformation transformation) {
    return transformation == lambertConformal2 || transformation == albers || transformation == equidistantConic;
}

/// Writers differ in which of the origins they name; where there are several keys for a thing, they mean the same.
Expected<Parameters> readParameters(KeyDirectory const& keys, Transformation transformation, Unit length,
                                    double degrees) {
    ParameterReader reader(keys, length, degrees);
    Parameters p;
    p.longitude = reader.angle({keyPoleLongitude, keyNaturalLongitude, keyFalseOriginLongitude, keyCentreLongitude});
    p.latitude = reader.angle({keyNaturalLatitude, keyFalseOriginLatitude, keyCentreLatitude});
    p.scale = reader.number({keyNaturalScale, keyCentreScale}, 1);
    p.east = reader.length({keyFalseEasting, keyFalseOriginEasting, keyCentreEasting});
    p.north = reader.length({keyFalseNorthing, keyFalseOriginNorthing, keyCentreNorthing});
    bool const needed = needsParallels(transformation);
    p.parallel1 = needed ? reader.neededAngle(keyParallel1) : reader.angle({keyParallel1});
    p.parallel2 = needed ? reader.neededAngle(keyParallel2) : reader.angle({keyParallel2});
    if (isOblique(transformation)) {
        p.azimuth = reader.neededAngle(keyAzimuth);
        p.gridAngle = reader.neededAngle(keyGridAngle);
    }
    if (reader.failed())
        return Refusal{"a parameter of the projection is missing or is no number"};
    return p;
}

Expected<System> readGeographicSystem(KeyDirectory const& keys) {
    auto const geographic = readGeographic(keys, 0);
    if (!geographic)
        return geographic.refusal();
    if (geographic->degrees != 1)
        return Refusal{"longitudes and latitudes are not in degrees"};
    System result{{}, *geographic};
    result.projection.Ellipsoid = geographic->ellipsoid.type;
    result.projection.MajorRadius = geographic->ellipsoid.radius;
    result.projection.Flattening = geographic->ellipsoid.flattening;
    return result;
}

/// A zone by its number, in the unit that the keys name, or in its own.
Expected<System> readZone(KeyDirectory const& keys, std::optional<Zone> const& zone, std::uint16_t code) {
    if (!zone)
        return Refusal{"projected system " + std::to_string(code) + " is not one of those known by number"};
    auto const unit = lengthUnit(keys, keyLengthUnit, keyLengthUnitSize, zone->unit);
    auto const geographic = readGeographic(keys, zone->geographic);
    if (!unit || !geographic)
        return Refusal{unit.reason() + geographic.reason()};
    System result{zone->record, *geographic};
    result.projection.Scale = unit->perBase();
    if (result.projection.Type == ProjTypeUniversalTransverseMercator) { // a State Plane zone has its own
        result.projection.Ellipsoid = geographic->ellipsoid.type;
        result.projection.MajorRadius = geographic->ellipsoid.radius;
        result.projection.Flattening = geographic->ellipsoid.flattening;
    }
    return result;
}

/// A grid by its number. The false origin of the table is in metres.
Expected<System> readGrid(KeyDirectory const& keys, GridRow const& grid) {
    auto const unit = lengthUnit(keys, keyLengthUnit, keyLengthUnitSize, grid.unit);
    auto const geographic = readGeographic(keys, grid.geographic);
    if (!unit || !geographic)
        return Refusal{unit.reason() + geographic.reason()};
    auto const record = recordOf(grid.transformation, grid.parameters, geographic->ellipsoid);
    if (!record)
        return record.refusal();
    System result{*record, *geographic};
    result.projection.Scale *= unit->perBase();
    return result;
}

Expected<System> readDescribed(KeyDirectory const& keys) {
    auto const transformation = static_cast<Transformation>(own(keys.code(keyTransformation)));
    if (!keys.code(keyTransformation))
        return Refusal{"the keys name no projection"};
    auto const unit = lengthUnit(keys, keyLengthUnit, keyLengthUnitSize, unitMetre);
    auto const geographic = readGeographic(keys, 0);
    if (!unit || !geographic)
        return Refusal{unit.reason() + geographic.reason()};
    auto const parameters = readParameters(keys, transformation, *unit, geographic->degrees);
    if (!parameters)
        return parameters.refusal();
    auto const record = recordOf(transformation, *parameters, geographic->ellipsoid);
    if (!record)
        return record.refusal();
    System result{*record, *geographic};
    result.projection.Scale *= unit->perBase();
    return result;
}

Expected<System> readProjected(KeyDirectory const& keys) {
    std::uint16_t const system = own(keys.code(keyProjectedType)), projection = own(keys.code(keyProjection));
    auto const grid = std::ranges::find(gridTable, system, &GridRow::code);
    if (grid != gridTable.end())
        return readGrid(keys, *grid);
    if (system != userDefined)
        return readZone(keys, zoneOfSystem(system), system);
    if (projection != userDefined)
        return readZone(keys, zoneOfProjection(projection), projection);
    return readDescribed(keys);
}

} // namespace

Expected<System> readSystem(KeyDirectory const& keys) {
    bool const projected = keys.has(keyProjectedType) || keys.has(keyTransformation);
    std::uint16_t const model = keys.code(keyModelType).value_or(projected ? modelProjected : modelGeographic);
    if (model == modelProjected)
        return readProjected(keys);
    if (model == modelGeographic)
        return readGeographicSystem(keys);
    return Refusal{"the file's model is neither projected nor geographic"};
}

} // namespace ZrProj::GeoTIFF

// The keys of a coordinate system, read.
#include "files/geotiff/citations.h"
#include "files/geotiff/geographic.h"
#include "files/geotiff/methods.h"
#include "files/geotiff/system.h"
#include "files/geotiff/zones.h"
#include "systems/names.h"
#include "systems/text/readers.h"

#include <algorithm>
#include <utility>

namespace ZrProj::GeoTIFF {
namespace {

using systems::Definition;

std::uint16_t own(std::optional<std::uint16_t> code) {
    return code.value_or(userDefined);
}

/// Reads one parameter after the other; remembers the first that cannot be read.
class ParameterReader {
public:
    ParameterReader(KeyDirectory const& keys, double metres, double degrees)
        : m_keys(keys), m_metres(metres), m_degrees(degrees) {}

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
    double length(std::initializer_list<Key> names) { return m_metres * number(names, 0); }
    double angle(std::initializer_list<Key> names) { return m_degrees * number(names, 0); }
    /// An angle without which there is no projection.
    double neededAngle(Key name) {
        m_failed = m_failed || !m_keys.has(name);
        return angle({name});
    }
    bool failed() const { return m_failed; }

private:
    KeyDirectory const& m_keys;
    double m_metres, m_degrees; // of a unit
    bool m_failed = false;
};

/// Writers differ in which of the origins they name; where there are several keys for a thing, they mean the same.
Expected<Parameters> readParameters(KeyDirectory const& keys, Transformation transformation, double metres,
                                    double degrees) {
    ParameterReader reader(keys, metres, degrees);
    Parameters p;
    p.longitude = reader.angle({keyPoleLongitude, keyNaturalLongitude, keyFalseOriginLongitude, keyCentreLongitude});
    p.latitude = reader.angle({keyNaturalLatitude, keyFalseOriginLatitude, keyCentreLatitude});
    p.scale = reader.number({keyNaturalScale, keyCentreScale}, 1);
    p.east = reader.length({keyFalseEasting, keyFalseOriginEasting, keyCentreEasting});
    p.north = reader.length({keyFalseNorthing, keyFalseOriginNorthing, keyCentreNorthing});
    bool const needed = hasParallels(transformation);
    p.parallel1 = needed ? reader.neededAngle(keyParallel1) : reader.angle({keyParallel1});
    p.parallel2 = needed ? reader.neededAngle(keyParallel2) : reader.angle({keyParallel2});
    if (isOblique(transformation) || transformation == obliqueMercatorLaborde)
        p.azimuth = reader.neededAngle(keyAzimuth);
    if (isOblique(transformation))
        p.gridAngle = reader.neededAngle(keyGridAngle);
    if (reader.failed())
        return Refusal{"a parameter of the projection is missing or is no number"};
    return p;
}

Expected<System> readGeographicSystem(KeyDirectory const& keys) {
    auto const geographic = readGeographic(keys, nullptr);
    if (!geographic)
        return geographic.refusal();
    return System{geographic->system, geographic->noticed, geographic->degrees};
}

/// Puts a projected system on the geographic one that the keys tell, in the unit that they name.
Expected<System> onKeys(KeyDirectory const& keys, Definition projected, Geographic const& geographic) {
    auto const unit = lengthUnit(keys, keyLengthUnit, keyLengthUnitSize);
    if (!unit)
        return unit.refusal();
    bool const isOtherUnit = *unit && (*unit)->factor != projected.unit.factor;
    if (isOtherUnit || geographic.system.code == 0 || geographic.system.code != projected.baseCode)
        projected.code = 0;
    if (*unit)
        projected.unit = **unit;
    projected.baseName = geographic.system.name;
    projected.baseCode = geographic.system.code;
    projected.datum = geographic.system.datum;
    return System{std::move(projected), geographic.noticed};
}

/// A projected system of the register.
Expected<System> readNumbered(KeyDirectory const& keys, systems::Code code) {
    auto registered = systems::definitionOf(code);
    if (!registered)
        registered = zoneOfSystem(code);
    if (!registered || !registered->isProjected())
        return Refusal{"projected system " + std::to_string(code) + " is not one of those known by number"};
    auto const base = systems::definitionOf(registered->baseCode);
    auto const geographic = readGeographic(keys, &*base);
    return geographic ? onKeys(keys, *registered, *geographic) : geographic.refusal();
}

/// The geographic system that a numbered projection is made for; 0 where it is made for any.
systems::Code baseOf(Definition const& projected, std::uint16_t projection) {
    auto const zone = systems::definitionOf(baseOfZone(projection));
    if (zone && sameFigure(zone->datum, projected.datum))
        return zone->code;
    return projected.conversionName.starts_with("UTM") ? 0 : projected.baseCode;
}

/// A projection of the register on the geographic system that the keys tell, or else on the one that it is made for.
Expected<System> readNumberedProjection(KeyDirectory const& keys, std::uint16_t code) {
    auto registered = systems::systemOfConversion(code);
    if (!registered)
        registered = zoneOfProjection(code);
    if (!registered)
        return Refusal{"projection " + std::to_string(code) + " is not one of those known by number"};
    auto const base = systems::definitionOf(baseOf(*registered, code));
    bool const told =
        keys.code(keyGeographicType) || keys.code(keyDatum) || keys.code(keyEllipsoid) || keys.has(keySemiMajorAxis);
    auto const geographic = readGeographic(keys, told || !base ? nullptr : &*base);
    if (!geographic)
        return geographic.refusal();
    if (baseOfZone(code) != 0 && !sameFigure(geographic->system.datum, base->datum))
        return Refusal{"the projected system and the geographic system contradict each other"};
    registered->code = 0;
    return onKeys(keys, *registered, *geographic);
}

/// Keys have no way to say the map of the web; writers put its name beside a Mercator of the ellipsoid.
bool isOfWeb(KeyDirectory const& keys, Definition const& described) {
    auto const p = described.parameters;
    bool const isPlain = described.method == systems::Method::mercatorA &&
                         p[systems::Parameter::latitudeOfOrigin] == 0 && p[systems::Parameter::scaleFactor] == 1;
    auto const cited = isPlain ? systems::definitionOf(systemCited(keys)) : std::nullopt;
    return cited && cited->method == systems::Method::pseudoMercator &&
           described.datum.ellipsoid.semiMajor == cited->datum.ellipsoid.semiMajor;
}

Expected<System> readDescribed(KeyDirectory const& keys, Transformation transformation) {
    auto const unit = lengthUnit(keys, keyLengthUnit, keyLengthUnitSize);
    auto const geographic = readGeographic(keys, nullptr);
    if (!unit || !geographic)
        return Refusal{unit.reason() + geographic.reason()};
    Definition system;
    auto const parameters = readParameters(keys, transformation, *unit ? (*unit)->factor : 1, geographic->degrees);
    if (!parameters)
        return parameters.refusal();
    auto const name =
        keys.text(keyProjectedCitation).empty() ? keys.text(keyCitation) : keys.text(keyProjectedCitation);
    system.name = std::string(name.substr(0, name.find('|')));
    system.datum = geographic->system.datum;
    if (auto const refusal = setConversion(system, transformation, *parameters))
        return *refusal;
    if (isOfWeb(keys, system))
        system.method = systems::Method::pseudoMercator;
    return onKeys(keys, system, *geographic);
}

/// A system that a citation holds as well-known text.
Expected<System> readText(std::string const& text) {
    auto outcome = systems::readWkt1(text);
    if (auto const* problem = std::get_if<systems::Problem>(&outcome))
        return Refusal{"the citation's well-known text cannot be read: " + problem->message};
    System system{std::get<Definition>(std::move(outcome)), {}};
    settleDatum(system.definition.datum);
    return system;
}

Expected<System> readProjected(KeyDirectory const& keys) {
    std::uint16_t const system = own(keys.code(keyProjectedType)), projection = own(keys.code(keyProjection));
    if (system != userDefined)
        return readNumbered(keys, system);
    if (projection != userDefined)
        return readNumberedProjection(keys, projection);
    if (auto const text = esriText(keys); text.starts_with("PROJCS"))
        return readText(text);
    if (auto const transformation = keys.code(keyTransformation))
        return readDescribed(keys, static_cast<Transformation>(*transformation));
    if (systems::Code const cited = systemCited(keys))
        return readNumbered(keys, cited);
    return Refusal{"the keys name no projection"};
}

/// Where the model is a file's own, or is not told: a projection where there is one.
bool isProjected(KeyDirectory const& keys) {
    return keys.has(keyProjectedType) || keys.has(keyTransformation) || esriText(keys).starts_with("PROJCS");
}

} // namespace

Expected<System> readSystem(KeyDirectory const& keys) {
    std::uint16_t const model = own(keys.code(keyModelType));
    if (model == modelProjected || (model == userDefined && isProjected(keys)))
        return readProjected(keys);
    if (model == modelGeographic || !keys.code(keyModelType))
        return readGeographicSystem(keys);
    return Refusal{"the file's model is neither projected nor geographic"};
}

std::optional<System> systemOf(ZrBitmapTagList const& tags) {
    auto const keys = KeyDirectory::read(tags);
    if (!keys || keys->empty())
        return {};
    auto const system = readSystem(*keys);
    return system ? std::optional(*system) : std::nullopt;
}

} // namespace ZrProj::GeoTIFF

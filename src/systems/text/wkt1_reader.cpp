// Well-known text of the first generation (OGC 01-009) in its two dialects: GDAL's, which names axes, codes and the way
// to WGS 84, and ESRI's, which has its own names for everything. Angles of a projected system are in the unit of its
// geographic system; a prime meridian is in degrees.
#include "systems/text/readers.h"
#include "systems/text/wkt_parts.h"

#include <utility>

namespace ZrProj::systems {

namespace {

class Wkt1Reader {
public:
    explicit Wkt1Reader(std::string_view text) : complaint_(text), root_(readWktTree(text, complaint_)) {}

    OrProblem<Definition> read() {
        if (!complaint_.made())
            system(root_);
        return finished(std::move(made_), std::move(complaint_));
    }

private:
    void system(WktNode const& node) {
        if (node.is({"GEOGCS"})) {
            geographic(node);
            takeSystemName(made_, wktText(node, 0, complaint_));
            made_.code = wktCode(node);
        } else if (node.is({"PROJCS"})) {
            projected(node);
        } else if (node.is({"COMPD_CS"})) {
            compound(node);
        } else if (node.is({"GEOCCS", "VERT_CS", "VERTCS", "LOCAL_CS", "FITTED_CS"})) {
            complaint_.unsupported(node.offset, node.value + " has no horizontal coordinates on a datum");
        } else {
            complaint_.malformed(node.offset, "GEOGCS, PROJCS or COMPD_CS was expected");
        }
    }

    void compound(WktNode const& node) {
        if (node.children.size() < 2)
            return complaint_.malformed(node.offset, "COMPD_CS lacks its systems");
        system(node.children[1]);
    }

    /// The geographic system but for its name and code.
    void geographic(WktNode const& node) {
        if (WktNode const* unit = node.child({"UNIT"}))
            made_.angularUnit = wktUnit(*unit, Kind::angle, complaint_);
        if (WktNode const* datum = node.child({"DATUM"}))
            readDatum(*datum);
        else
            complaint_.malformed(node.offset, "GEOGCS lacks its DATUM");
        if (WktNode const* meridian = node.child({"PRIMEM"}))
            primeMeridian(*meridian);
        axes(node, made_.angularUnit);
    }

    void readDatum(WktNode const& node) {
        made_.datum.name = wktText(node, 0, complaint_);
        made_.datum.code = wktCode(node);
        made_.datum.ellipsoid = wktEllipsoid(node, complaint_);
        if (WktNode const* shift = node.child({"TOWGS84"}))
            toWgs84(*shift);
        for (WktNode const* extension : wktChildren(node, "EXTENSION"))
            if (wktText(*extension, 0, complaint_) == "PROJ4_GRIDS")
                made_.datum.grids = wktText(*extension, 1, complaint_);
    }

    void toWgs84(WktNode const& node) {
        ToWgs84 shift{};
        std::size_t const count = node.children.size();
        if (count != 3 && count != shift.size())
            return complaint_.malformed(node.offset, "TOWGS84 takes 3 or 7 numbers");
        for (std::size_t i = 0; i < count; ++i)
            shift[i] = wktNumber(node, i, complaint_);
        made_.datum.toWgs84 = shift;
    }

    void primeMeridian(WktNode const& node) {
        double const longitude = wktLastNumber(node, 1, complaint_);
        made_.datum.meridian = {wktText(node, 0, complaint_), longitude, wktCode(node)};
    }

    void projected(WktNode const& node) {
        WktNode const* const base = node.child({"GEOGCS"});
        WktNode const* const unit = node.child({"UNIT"});
        WktNode const* const projection = node.child({"PROJECTION"});
        if (!base || !unit || !projection)
            return complaint_.malformed(node.offset, "PROJCS lacks its GEOGCS, PROJECTION or UNIT");
        geographic(*base);
        made_.baseName = wktText(*base, 0, complaint_);
        made_.baseCode = wktCode(*base);
        made_.unit = wktUnit(*unit, Kind::length, complaint_);
        made_.northingFirst = false;
        takeSystemName(made_, wktText(node, 0, complaint_));
        made_.code = wktCode(node);
        made_.conversionName = made_.name;
        method(node, *projection);
        axes(node, made_.unit);
    }

    void method(WktNode const& node, WktNode const& projection) {
        if (extension(node))
            return;
        StatedMethod stated;
        stated.name = wktText(projection, 0, complaint_);
        stated.offset = projection.offset;
        stated.angle = made_.angularUnit.factor;
        stated.length = made_.unit.factor;
        for (WktNode const* parameter : wktChildren(node, "PARAMETER"))
            stated.parameters.push_back({.name = wktText(*parameter, 0, complaint_),
                                         .value = wktLastNumber(*parameter, 1, complaint_),
                                         .offset = parameter->offset});
        if (!takeSpelledMethod(made_, {gdalSpellings, esriSpellings}, stated, complaint_) &&
            !takeMethod(made_, stated, complaint_))
            complaint_.unsupported(projection.offset, "the projection " + stated.name + " is not supported");
        orient(node);
    }

    /// A PROJ string that GDAL adds where its names do not tell the projection.
    bool extension(WktNode const& node) {
        WktNode const* const extension = node.child({"EXTENSION"});
        if (!extension || wktText(*extension, 0, complaint_) != "PROJ4")
            return false;
        auto const result = readProjString(wktText(*extension, 1, complaint_));
        auto const* const said = std::get_if<Definition>(&result);
        if (!said || !said->isProjected())
            return false;
        made_.method = said->method;
        made_.parameters = said->parameters;
        made_.x = said->x;
        made_.y = said->y;
        return true;
    }

    /// The methods that run south or west do so without axes that say so; one name serves both ways of Krovak's.
    void orient(WktNode const& node) {
        auto const stated = wktChildren(node, "AXIS");
        bool const north = stated.size() == 2 && (wktAxis(*stated[0], complaint_).direction == "east" ||
                                                  wktAxis(*stated[1], complaint_).direction == "east");
        if (made_.method == Method::krovak && north)
            made_.method = Method::krovakNorth;
        switch (made_.method) {
        case Method::transverseMercatorSouth:
        case Method::bonneSouth:
        case Method::krovak:
        case Method::krovakModified:
            made_.y = Sense::negative;
            [[fallthrough]];
        case Method::lambertConicWest:
            made_.x = Sense::negative;
            break;
        default:
            break;
        }
    }

    void axes(WktNode const& node, Unit const& unit) {
        std::vector<StatedAxis> stated;
        for (WktNode const* axis : wktChildren(node, "AXIS")) {
            stated.push_back(wktAxis(*axis, complaint_));
            stated.back().unit = unit;
        }
        if (!stated.empty())
            takeAxes(made_, stated, complaint_);
    }

    Complaint complaint_;
    WktNode root_;
    Definition made_;
};

} // namespace

OrProblem<Definition> readWkt1(std::string_view text) {
    return Wkt1Reader(text).read();
}

} // namespace ZrProj::systems

// Well-known text of the second generation: ISO 19162:2015 and 2019.
#include "systems/text/bound.h"
#include "systems/text/readers.h"
#include "systems/text/wkt_parts.h"

#include <utility>

namespace ZrProj::systems {

namespace {

class Wkt2Reader {
public:
    explicit Wkt2Reader(std::string_view text) : complaint_(text), root_(readWktTree(text, complaint_)) {}

    OrProblem<Definition> read() {
        if (!complaint_.made())
            system(root_);
        return finished(std::move(made_), std::move(complaint_));
    }

private:
    void system(WktNode const& node) {
        if (node.child({"DERIVINGCONVERSION"}) || node.is({"DERIVEDPROJCRS", "DERIVEDPROJECTED"}))
            complaint_.unsupported(node.offset, "derived systems are not supported");
        else if (node.is({"GEOGCRS", "GEOGRAPHICCRS", "GEODCRS", "GEODETICCRS"}))
            geographicSystem(node);
        else if (node.is({"PROJCRS", "PROJECTEDCRS"}))
            projected(node);
        else if (node.is({"COMPOUNDCRS"}))
            compound(node);
        else if (node.is({"BOUNDCRS"}))
            bound(node);
        else
            other(node);
    }

    void other(WktNode const& node) {
        if (node.kind == WktNode::Kind::group && node.value.find("CRS") != std::string::npos)
            complaint_.unsupported(node.offset, node.value + " has no horizontal coordinates on a datum");
        else
            complaint_.malformed(node.offset, "the keyword of a coordinate reference system was expected");
    }

    void compound(WktNode const& node) {
        if (node.children.size() < 2)
            return complaint_.malformed(node.offset, "COMPOUNDCRS lacks its systems");
        system(node.children[1]);
    }

    void geographicSystem(WktNode const& node) {
        WktNode const* const cs = node.child({"CS"});
        if (cs && !sameName(wktText(*cs, 0, complaint_), "ellipsoidal"))
            return complaint_.unsupported(node.offset, "geocentric systems are not supported");
        takeSystemName(made_, wktText(node, 0, complaint_));
        made_.code = wktCode(node);
        geographic(node);
        axes(node);
        usage(node);
    }

    /// The datum and prime meridian of a geographic system.
    void geographic(WktNode const& node) {
        if (WktNode const* unit = node.child({"ANGLEUNIT", "UNIT"}))
            made_.angularUnit = wktUnit(*unit, Kind::angle, complaint_);
        WktNode const* const datum = node.child({"DATUM", "GEODETICDATUM", "TRF", "ENSEMBLE"});
        if (!datum)
            return complaint_.malformed(node.offset, node.value + " lacks its datum");
        made_.datum.name = wktText(*datum, 0, complaint_);
        made_.datum.code = wktCode(*datum);
        made_.datum.ellipsoid = wktEllipsoid(*datum, complaint_);
        if (WktNode const* accuracy = datum->child({"ENSEMBLEACCURACY"}))
            made_.datum.ensembleAccuracy = wktNumber(*accuracy, 0, complaint_);
        if (WktNode const* meridian = node.child({"PRIMEM", "PRIMEMERIDIAN"}))
            primeMeridian(*meridian);
    }

    void primeMeridian(WktNode const& node) {
        WktNode const* const unit = node.child({"ANGLEUNIT", "UNIT"});
        double const degrees = unit ? wktUnit(*unit, Kind::angle, complaint_).factor : made_.angularUnit.factor;
        made_.datum.meridian = {wktText(node, 0, complaint_), wktLastNumber(node, 1, complaint_) * degrees,
                                wktCode(node)};
    }

    void projected(WktNode const& node) {
        WktNode const* const base = node.child({"BASEGEOGCRS", "BASEGEODCRS"});
        WktNode const* const conversion = node.child({"CONVERSION"});
        if (!base || !conversion)
            return complaint_.malformed(node.offset, node.value + " lacks its base system or its conversion");
        takeSystemName(made_, wktText(node, 0, complaint_));
        made_.code = wktCode(node);
        made_.baseName = wktText(*base, 0, complaint_);
        made_.baseCode = wktCode(*base);
        geographic(*base);
        method(*conversion, lengthOf(node));
        axes(node);
        usage(node);
    }

    /// The unit of a projected system's axes, which its parameters have where they state none.
    double lengthOf(WktNode const& node) {
        WktNode const* unit = node.child({"LENGTHUNIT", "UNIT"});
        WktNode const* const axis = node.child({"AXIS"});
        if (!unit && axis)
            unit = axis->child({"LENGTHUNIT", "UNIT"});
        return unit ? wktUnit(*unit, Kind::length, complaint_).factor : 1;
    }

    void method(WktNode const& conversion, double length) {
        made_.conversionName = wktText(conversion, 0, complaint_);
        made_.conversionCode = wktCode(conversion);
        WktNode const* const group = conversion.child({"METHOD", "PROJECTION"});
        if (!group)
            return complaint_.malformed(conversion.offset, "CONVERSION lacks its METHOD");
        StatedMethod stated{wktText(*group, 0, complaint_), wktCode(*group), group->offset, {}, 1, length};
        stated.angle = made_.angularUnit.factor;
        for (WktNode const* parameter : wktChildren(conversion, "PARAMETER"))
            stated.parameters.push_back(statedParameter(*parameter));
        if (!takeMethod(made_, stated, complaint_) &&
            !takeSpelledMethod(made_, {esriSpellings, gdalSpellings}, stated, complaint_))
            complaint_.unsupported(group->offset, "the method " + stated.name + " is not supported");
    }

    StatedParameter statedParameter(WktNode const& node) {
        StatedParameter made{wktText(node, 0, complaint_), wktCode(node), wktLastNumber(node, 1, complaint_), 0,
                             node.offset};
        if (WktNode const* angle = node.child({"ANGLEUNIT"}))
            made.factor = wktUnit(*angle, Kind::angle, complaint_).factor;
        else if (WktNode const* length = node.child({"LENGTHUNIT"}))
            made.factor = wktUnit(*length, Kind::length, complaint_).factor;
        else if (WktNode const* scale = node.child({"SCALEUNIT"}))
            made.factor = wktFactor(*scale, complaint_);
        return made;
    }

    void axes(WktNode const& node) {
        bool const geographic = !made_.isProjected();
        WktNode const* const common = node.child({geographic ? "ANGLEUNIT" : "LENGTHUNIT", "UNIT"});
        std::vector<StatedAxis> stated;
        for (WktNode const* axis : wktChildren(node, "AXIS")) {
            stated.push_back(wktAxis(*axis, complaint_));
            WktNode const* const own = axis->child({"ANGLEUNIT", "LENGTHUNIT", "UNIT"});
            Unit const fallback = geographic ? made_.angularUnit : made_.unit;
            WktNode const* const unit = own ? own : common;
            stated.back().unit =
                unit ? (geographic || unit->is({"ANGLEUNIT"}) ? wktUnit(*unit, Kind::angle, complaint_)
                                                              : wktUnit(*unit, Kind::length, complaint_))
                     : fallback;
            if (WktNode const* meridian = axis->child({"MERIDIAN"}))
                stated.back().meridian = meridianOf(*meridian);
        }
        if (!complaint_.made())
            takeAxes(made_, stated, complaint_);
    }

    double meridianOf(WktNode const& node) {
        WktNode const* const unit = node.child({"ANGLEUNIT", "UNIT"});
        return wktNumber(node, 0, complaint_) * (unit ? wktUnit(*unit, Kind::angle, complaint_).factor : 1);
    }

    /// The area of use, which stands in the system itself (2015) or in its usages (2019).
    void usage(WktNode const& node) {
        WktNode const* const usage = node.child({"USAGE"});
        WktNode const& holder = usage ? *usage : node;
        WktNode const* const box = holder.child({"BBOX"});
        if (!box)
            return;
        WktNode const* const area = holder.child({"AREA"});
        takeArea(made_,
                 {wktNumber(*box, 1, complaint_), wktNumber(*box, 0, complaint_), wktNumber(*box, 3, complaint_),
                  wktNumber(*box, 2, complaint_), area ? wktText(*area, 0, complaint_) : ""},
                 box->offset, complaint_);
    }

    void bound(WktNode const& node) {
        WktNode const* const source = node.child({"SOURCECRS"});
        WktNode const* const target = node.child({"TARGETCRS"});
        WktNode const* const shift = node.child({"ABRIDGEDTRANSFORMATION"});
        if (!source || source->children.empty() || !target || target->children.empty() || !shift)
            return complaint_.malformed(node.offset, "BOUNDCRS lacks its source, its target or its transformation");
        system(source->children[0]);
        if (!isWgs84(wktText(target->children[0], 0, complaint_)))
            return complaint_.unsupported(target->offset, "systems are bound to WGS 84 only");
        transformation(*shift);
    }

    void transformation(WktNode const& node) {
        WktNode const* const group = node.child({"METHOD"});
        if (!group)
            return complaint_.malformed(node.offset, "ABRIDGEDTRANSFORMATION lacks its METHOD");
        StatedMethod stated{wktText(*group, 0, complaint_), wktCode(*group), group->offset, {}};
        for (WktNode const* parameter : wktChildren(node, "PARAMETER"))
            stated.parameters.push_back(statedParameter(*parameter));
        WktNode const* const file = node.child({"PARAMETERFILE"});
        takeBinding(made_.datum, stated, file ? wktText(*file, 1, complaint_) : "", complaint_);
    }

    Complaint complaint_;
    WktNode root_;
    Definition made_;
};

} // namespace

OrProblem<Definition> readWkt2(std::string_view text) {
    return Wkt2Reader(text).read();
}

} // namespace ZrProj::systems

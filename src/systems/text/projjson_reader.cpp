// PROJJSON, version 0.5: the second generation of well-known text in JSON.
#include "host/text.h"
#include "systems/text/bound.h"
#include "systems/text/ellipsoid_shape.h"
#include "systems/text/json_tree.h"
#include "systems/text/number.h"
#include "systems/text/readers.h"
#include "systems/text/units.h"

#include <numbers>
#include <utility>

namespace ZrProj::systems {

namespace {

class ProjJsonReader {
public:
    explicit ProjJsonReader(std::string_view text) : complaint_(text), root_(readJsonTree(text, complaint_)) {}

    OrProblem<Definition> read() {
        if (!complaint_.made())
            system(root_);
        return finished(std::move(made_), std::move(complaint_));
    }

private:
    // Members, told where they are missing or of another kind.

    JsonNode const& need(JsonNode const& object, std::string_view name, JsonNode::Kind kind) {
        static JsonNode const nothing;
        JsonNode const* const found = object.member(name);
        if (found && found->kind == kind)
            return *found;
        complaint_.malformed(found ? found->offset : object.offset,
                             "the member \"" + std::string(name) + "\" was expected");
        return nothing;
    }

    std::string text(JsonNode const& object, std::string_view name) {
        return need(object, name, JsonNode::Kind::text).text;
    }

    std::string textOr(JsonNode const& object, std::string_view name) {
        return object.member(name) ? text(object, name) : "";
    }

    double number(JsonNode const& object, std::string_view name) {
        return need(object, name, JsonNode::Kind::number).number;
    }

    static Code codeOf(JsonNode const& object) {
        JsonNode const* id = object.member("id");
        if (JsonNode const* const ids = object.member("ids"); !id && ids && !ids->children.empty())
            id = &ids->children[0];
        JsonNode const* const authority = id ? id->member("authority") : nullptr;
        JsonNode const* const code = id ? id->member("code") : nullptr;
        if (!authority || !code || !equalIgnoringCase(authority->text, "EPSG"))
            return 0;
        double const value = code->kind == JsonNode::Kind::text ? wholeNumber(code->text).value_or(0) : code->number;
        return value > 0 && value < 1e9 ? static_cast<Code>(value) : 0;
    }

    // Units and measures.

    Unit unit(JsonNode const& node, Kind kind) {
        if (node.kind == JsonNode::Kind::text) {
            auto const named = unitNamed(kind, node.text);
            if (!named)
                complaint_.unknown(node.offset, "no unit is called " + node.text);
            return named.value_or(Unit());
        }
        double const factor = number(node, "conversion_factor");
        if (!(factor > 0))
            complaint_.malformed(node.offset, "the unit's size is not positive");
        return statedUnit(kind, kind == Kind::angle ? factor * (180 / std::numbers::pi) : factor, text(node, "name"),
                          codeOf(node));
    }

    /// A number in degrees or metres, or a value with its unit.
    double measure(JsonNode const& object, std::string_view name, Kind kind) {
        JsonNode const* const found = object.member(name);
        if (!found || found->kind != JsonNode::Kind::object)
            return number(object, name);
        JsonNode const* const stated = found->member("unit");
        return number(*found, "value") * (stated ? unit(*stated, kind).factor : 1);
    }

    // Systems.

    void system(JsonNode const& node) {
        std::string const type = text(node, "type");
        if (type == "GeographicCRS" || type == "GeodeticCRS")
            geographicSystem(node);
        else if (type == "ProjectedCRS")
            projected(node);
        else if (type == "BoundCRS")
            bound(node);
        else if (type == "CompoundCRS")
            compound(node);
        else
            complaint_.unsupported(node.offset, "a system of the type " + type + " is not supported");
    }

    void compound(JsonNode const& node) {
        JsonNode const& components = need(node, "components", JsonNode::Kind::array);
        if (components.children.empty())
            return complaint_.malformed(components.offset, "the compound system has no components");
        system(components.children[0]);
    }

    void geographicSystem(JsonNode const& node) {
        JsonNode const& cs = need(node, "coordinate_system", JsonNode::Kind::object);
        if (text(cs, "subtype") != "ellipsoidal")
            return complaint_.unsupported(node.offset, "geocentric systems are not supported");
        takeName(node);
        geographic(node);
        axes(cs);
        usage(node);
    }

    void takeName(JsonNode const& node) {
        takeSystemName(made_, text(node, "name"));
        made_.code = codeOf(node);
    }

    void geographic(JsonNode const& node) {
        bool const ensemble = node.member("datum_ensemble");
        JsonNode const& datum = need(node, ensemble ? "datum_ensemble" : "datum", JsonNode::Kind::object);
        made_.datum.name = textOr(datum, "name");
        made_.datum.code = codeOf(datum);
        ellipsoid(need(datum, "ellipsoid", JsonNode::Kind::object));
        if (ensemble)
            made_.datum.ensembleAccuracy = wholeNumber(textOr(datum, "accuracy")).value_or(0);
        if (JsonNode const* meridian = datum.member("prime_meridian"))
            made_.datum.meridian = {text(*meridian, "name"), measure(*meridian, "longitude", Kind::angle),
                                    codeOf(*meridian)};
    }

    void ellipsoid(JsonNode const& node) {
        Ellipsoid made{text(node, "name"), 0, 0, codeOf(node)};
        if (node.member("radius")) {
            made.semiMajor = measure(node, "radius", Kind::length);
        } else {
            made.semiMajor = measure(node, "semi_major_axis", Kind::length);
            if (node.member("semi_minor_axis"))
                made.inverseFlattening =
                    inverseFlattening(made.semiMajor, measure(node, "semi_minor_axis", Kind::length));
            else
                made.inverseFlattening = number(node, "inverse_flattening");
        }
        checkEllipsoid(made, node.offset, complaint_);
        made_.datum.ellipsoid = std::move(made);
    }

    void projected(JsonNode const& node) {
        JsonNode const& base = need(node, "base_crs", JsonNode::Kind::object);
        JsonNode const& cs = need(node, "coordinate_system", JsonNode::Kind::object);
        takeName(node);
        made_.baseName = text(base, "name");
        made_.baseCode = codeOf(base);
        geographic(base);
        if (JsonNode const* baseAxes = base.member("coordinate_system"))
            axes(*baseAxes);
        method(need(node, "conversion", JsonNode::Kind::object));
        axes(cs);
        usage(node);
    }

    void method(JsonNode const& conversion) {
        made_.conversionName = text(conversion, "name");
        made_.conversionCode = codeOf(conversion);
        StatedMethod const stated = statedMethod(conversion);
        if (!complaint_.made() && !takeMethod(made_, stated, complaint_))
            complaint_.unsupported(stated.offset, "the method " + stated.name + " is not supported");
    }

    /// The method of a conversion or a transformation, with its parameters.
    StatedMethod statedMethod(JsonNode const& operation) {
        JsonNode const& node = need(operation, "method", JsonNode::Kind::object);
        StatedMethod stated{text(node, "name"), codeOf(node), node.offset, {}};
        if (JsonNode const* parameters = operation.member("parameters"))
            for (JsonNode const& parameter : parameters->children)
                if (JsonNode const* value = parameter.member("value"); value && value->kind == JsonNode::Kind::number)
                    stated.parameters.push_back({text(parameter, "name"), codeOf(parameter), value->number,
                                                 factorOf(parameter), parameter.offset});
        return stated;
    }

    double factorOf(JsonNode const& parameter) {
        JsonNode const* const stated = parameter.member("unit");
        if (!stated)
            return 0;
        JsonNode const* const type = stated->member("type");
        std::string const measured = type ? type->text : stated->text;
        if (measured == "ScaleUnit")
            return number(*stated, "conversion_factor");
        if (measured == "unity")
            return 1;
        bool const angular = measured == "AngularUnit" || measured == "degree";
        return angular ? unit(*stated, Kind::angle).factor : unit(*stated, Kind::length).factor;
    }

    void axes(JsonNode const& cs) {
        std::vector<StatedAxis> stated;
        for (JsonNode const& axis : need(cs, "axis", JsonNode::Kind::array).children) {
            if (stated.size() == 2)
                break;
            StatedAxis made;
            made.name = text(axis, "name");
            made.direction = text(axis, "direction");
            made.offset = axis.offset;
            JsonNode const* const own = axis.member("unit");
            if (!own)
                complaint_.malformed(axis.offset, "the axis lacks its unit");
            else if (made_.isProjected())
                made.unit = unit(*own, Kind::length);
            else
                made.unit = unit(*own, Kind::angle);
            if (JsonNode const* meridian = axis.member("meridian"))
                made.meridian = measure(*meridian, "longitude", Kind::angle);
            stated.push_back(std::move(made));
        }
        if (!complaint_.made())
            takeAxes(made_, stated, complaint_);
    }

    /// The area of use, which stands in the system itself or in its usages.
    void usage(JsonNode const& node) {
        JsonNode const* const usages = node.member("usages");
        JsonNode const& holder = usages && !usages->children.empty() ? usages->children[0] : node;
        JsonNode const* const box = holder.member("bbox");
        if (!box)
            return;
        takeArea(made_,
                 {number(*box, "west_longitude"), number(*box, "south_latitude"), number(*box, "east_longitude"),
                  number(*box, "north_latitude"), textOr(holder, "area")},
                 box->offset, complaint_);
    }

    void bound(JsonNode const& node) {
        JsonNode const& target = need(node, "target_crs", JsonNode::Kind::object);
        JsonNode const& shift = need(node, "transformation", JsonNode::Kind::object);
        system(need(node, "source_crs", JsonNode::Kind::object));
        if (!isWgs84(text(target, "name")))
            return complaint_.unsupported(target.offset, "systems are bound to WGS 84 only");
        std::string grids;
        if (JsonNode const* parameters = shift.member("parameters"))
            for (JsonNode const& parameter : parameters->children)
                if (JsonNode const* value = parameter.member("value"); value && value->kind == JsonNode::Kind::text)
                    grids = value->text;
        takeBinding(made_.datum, statedMethod(shift), grids, complaint_);
    }

    Complaint complaint_;
    JsonNode root_;
    Definition made_;
};

} // namespace

OrProblem<Definition> readProjJson(std::string_view text) {
    return ProjJsonReader(text).read();
}

} // namespace ZrProj::systems

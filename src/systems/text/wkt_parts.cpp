#include "systems/text/wkt_parts.h"

#include "host/text.h"
#include "systems/text/ellipsoid_shape.h"
#include "systems/text/number.h"
#include "systems/text/units.h"

#include <algorithm>
#include <numbers>

namespace ZrProj::systems {

std::string wktText(WktNode const& group, std::size_t at, Complaint& complaint) {
    if (at < group.children.size() && group.children[at].kind != WktNode::Kind::group)
        return group.children[at].value;
    complaint.malformed(group.offset, group.value + " lacks its text number " + std::to_string(at + 1));
    return {};
}

double wktNumber(WktNode const& group, std::size_t at, Complaint& complaint) {
    if (at < group.children.size() && group.children[at].kind == WktNode::Kind::number)
        return group.children[at].number;
    std::size_t const offset = at < group.children.size() ? group.children[at].offset : group.offset;
    complaint.malformed(offset, group.value + " lacks its number, item " + std::to_string(at + 1));
    return 0;
}

double wktLastNumber(WktNode const& group, std::size_t at, Complaint& complaint) {
    double const number = wktNumber(group, at, complaint);
    if (at + 1 < group.children.size() && group.children[at + 1].kind == WktNode::Kind::number)
        complaint.malformed(group.children[at + 1].offset,
                            group.value + " takes no further number; the decimal mark is a point");
    return number;
}

Code wktCode(WktNode const& group) {
    WktNode const* const id = group.child({"ID", "AUTHORITY"});
    if (!id || id->children.size() < 2 || !equalIgnoringCase(id->children[0].value, "EPSG"))
        return 0;
    double const code = wholeNumber(id->children[1].value).value_or(0);
    return code > 0 && code < 1e9 ? static_cast<Code>(code) : 0;
}

double wktFactor(WktNode const& unit, Complaint& complaint) {
    double const factor = wktLastNumber(unit, 1, complaint);
    if (!(factor > 0))
        complaint.malformed(unit.offset, "the unit's size is not positive");
    return factor;
}

Unit wktUnit(WktNode const& group, Kind kind, Complaint& complaint) {
    double const factor = wktFactor(group, complaint);
    bool const angle = kind == Kind::angle;
    return statedUnit(kind, angle ? factor * (180 / std::numbers::pi) : factor, wktText(group, 0, complaint),
                      wktCode(group));
}

Ellipsoid wktEllipsoid(WktNode const& datum, Complaint& complaint) {
    WktNode const* const group = datum.child({"ELLIPSOID", "SPHEROID"});
    if (!group) {
        complaint.malformed(datum.offset, datum.value + " lacks its ellipsoid");
        return {};
    }
    WktNode const* const unit = group->child({"LENGTHUNIT", "UNIT"});
    double const metres = unit ? wktUnit(*unit, Kind::length, complaint).factor : 1;
    Ellipsoid const made{wktText(*group, 0, complaint), wktNumber(*group, 1, complaint) * metres,
                         wktLastNumber(*group, 2, complaint), wktCode(*group)};
    checkEllipsoid(made, group->offset, complaint);
    return made;
}

StatedAxis wktAxis(WktNode const& axis, Complaint& complaint) {
    StatedAxis made;
    made.name = wktText(axis, 0, complaint);
    made.direction = wktText(axis, 1, complaint);
    std::ranges::transform(made.direction, made.direction.begin(), asciiLower);
    made.offset = axis.offset;
    return made;
}

std::vector<WktNode const*> wktChildren(WktNode const& group, std::string_view keyword) {
    std::vector<WktNode const*> found;
    for (WktNode const& child : group.children)
        if (child.is({keyword}))
            found.push_back(&child);
    return found;
}

std::string wktQuoted(std::string_view text) {
    std::string made = "\"";
    for (char const c : text)
        made += c == '"' ? "\"\"" : std::string(1, c);
    return made + '"';
}

} // namespace ZrProj::systems

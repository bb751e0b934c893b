// The parts that both generations of well-known text share.
#pragma once

#include "systems/definition.h"
#include "systems/text/statements.h"
#include "systems/text/wkt_tree.h"

#include <string>
#include <vector>

namespace ZrProj::systems {

/// The text or word that stands at an index in a group; told where there is none.
std::string wktText(WktNode const& group, std::size_t at, Complaint& complaint);

/// The number that stands at an index in a group; told where there is none.
double wktNumber(WktNode const& group, std::size_t at, Complaint& complaint);

/// The same where no number may follow it, as it does when the decimal mark was a comma; told where one does.
double wktLastNumber(WktNode const& group, std::size_t at, Complaint& complaint);

/// The register's code that a group states, 0 where it states none.
Code wktCode(WktNode const& group);

/// The size of a unit, in whatever its kind counts in; told where it is not positive.
double wktFactor(WktNode const& unit, Complaint& complaint);

/// The unit that a group states. Its size is in metres, or in radians and made degrees, as its kind tells.
Unit wktUnit(WktNode const& group, Kind kind, Complaint& complaint);

/// SPHEROID or ELLIPSOID of a datum.
Ellipsoid wktEllipsoid(WktNode const& datum, Complaint& complaint);

/// The direction in small letters; told where an axis has none.
StatedAxis wktAxis(WktNode const& axis, Complaint& complaint);

/// All groups of a keyword within another.
std::vector<WktNode const*> wktChildren(WktNode const& group, std::string_view keyword);

/// A text in quotation marks, with those within it doubled.
std::string wktQuoted(std::string_view text);

} // namespace ZrProj::systems

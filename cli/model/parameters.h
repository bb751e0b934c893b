// The catalogue of projection parameters as options of the command, and as rows of its tables.
#pragma once

#include "cli/text/output.h"

#include <zrproj/zrproj.h>

#include <string>
#include <string_view>
#include <vector>

namespace ZrProj::Command {

/// What a parameter's value means, and so how it is read and shown.
enum class Quantity { Projection, Ellipsoid, Zone, Flag, Factor, Metres, Longitude, Latitude, Azimuth, Flattening };

struct Parameter {
    int id;
    std::string name; // of the catalogue
    Quantity quantity;
    std::string longOption; // "--central-longitude", from the name
    std::string option;     // the short form, "--lon0", where there is one, else the long one
};

/// The catalogue, in its order.
std::vector<Parameter> const& parameters();
Parameter const& parameter(int id);

/// The parameters that a type uses, in the catalogue's order for the type. For a type with an ellipsoid also the
/// ellipsoid's radius and flattening.
std::vector<int> usedParameters(ProjType type);

/// Reads a value and sets it in a record; flags take no text. The ellipsoid and the zone have finders of their own.
/// Throws UsageError, naming the option, when the text is no such value.
void setParameter(PROJDATA& record, Parameter const& parameter, std::string_view text);

/// A parameter's value as text, "" for a flag that is not set.
std::string parameterText(PROJDATA const& record, Parameter const& parameter);

std::string projectionName(ProjType type);
/// What to say where a record makes no map.
std::string noMapText(PROJDATA const& record);
std::string ellipsoidName(EllipsoidType type);

/// Find by number or name, or throw UsageError.
ProjType findProjection(std::string_view text);
EllipsoidType findEllipsoid(std::string_view text);

/// Adds the projection and the parameters that its type uses: name, value, and the option that sets it.
void addParameterRows(Table& table, PROJDATA const& record);

} // namespace ZrProj::Command

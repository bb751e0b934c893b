// The catalogue of projection parameters as options of the command, and as rows of its tables.
#pragma once

#include "cli/text/output.h"

#include <zrproj/c.h>
#include <zrproj/zrproj.h>

#include <string>
#include <string_view>
#include <vector>

namespace ZrProj::Command {

struct Parameter {
    int id = ProjParamNone;
    std::string name;                      // of the catalogue
    zrproj_kind kind = ZRPROJ_KIND_FACTOR; // how the value is read and shown
    std::string longOption;                // "--central-longitude", from the name
    std::string option;                    // the short form, "--lon0", where there is one, else the long one
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

/// Sets a parameter by its number, whatever it is.
void setNumber(PROJDATA& record, int id, double value);

/// A record of a system's parameters, and back; the datum is not a record's.
PROJDATA recordOf(zrproj_parameters const& parameters);
zrproj_parameters parametersOf(PROJDATA const& record);

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

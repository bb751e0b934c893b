// What the texts of systems state in words of their own, and what it means: methods with their parameters, and axes.
#pragma once

#include "systems/definition.h"
#include "systems/method_table.h"
#include "systems/text/problem.h"
#include "systems/text/spellings.h"

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ZrProj::systems {

/// Whether two names are one without regard to case, blanks and marks.
bool sameName(std::string_view a, std::string_view b);

/// The name of a system without the word that tells of its being deprecated, which goes to where it belongs.
void takeSystemName(Definition& definition, std::string name);

struct StatedParameter {
    std::string name;
    Code code = 0;
    double value = 0;
    double factor = 0; // of its unit: degrees, metres or ones; 0 where the text leaves that to its system's units
    std::size_t offset = 0;
};

struct StatedMethod {
    std::string name;
    Code code = 0;
    std::size_t offset = 0;
    std::vector<StatedParameter> parameters;
    double angle = 1;  // degrees a unit, where a parameter has none of its own
    double length = 1; // metres a unit
};

/// Gives the definition the method and its parameters by the register's codes and names. The ellipsoid must be known.
/// False where the register has no such method.
bool takeMethod(Definition& definition, StatedMethod const& stated, Complaint& complaint);

/// The same by the first row of the tables that fits. False where they have no such method.
bool takeSpelledMethod(Definition& definition, std::initializer_list<std::span<SpellingRow const>> tables,
                       StatedMethod const& stated, Complaint& complaint);

struct WrittenParameter {
    std::string_view name;
    double value; // degrees, metres or ones
    Kind kind;
    Code code = 0;
};

struct WrittenMethod {
    std::string_view name;
    std::vector<WrittenParameter> parameters;
};

/// The method and its parameters by the register's names.
WrittenMethod registerMethod(Definition const& definition);

/// The method by its name in PROJ strings, with the options that belong to it; nothing where they cannot say it.
std::optional<WrittenMethod> projMethod(Definition const& definition);

/// The method by a dialect's names, else by the register's; nothing where a reader would take it for another.
std::optional<WrittenMethod> wkt1Method(Definition const& definition, std::span<SpellingRow const> rows);

/// Gives the definition an area of use, in degrees; told where it is none.
void takeArea(Definition& definition, Area area, std::size_t offset, Complaint& complaint);

/// What a reader put together, or the first problem, which may be numbers that units or signs made unusable: what is
/// not finite, an ellipsoid or unit without size.
OrProblem<Definition> finished(Definition&& definition, Complaint&& complaint);

struct StatedAxis {
    std::string name;
    std::string direction;          // in small letters
    std::optional<double> meridian; // that a direction at a pole is along, degrees
    Unit unit;
    std::size_t offset = 0;
};

/// Gives the definition the order, senses and units of its first two axes. The method must be known.
void takeAxes(Definition& definition, std::span<StatedAxis const> axes, Complaint& complaint);

/// Whether the map is centred at a pole, where all directions are north or south: 1 the north pole, -1 the south pole,
/// 0 elsewhere.
int poleAtCentre(Definition const& definition);

} // namespace ZrProj::systems

// What writers of definitions share.
#pragma once

#include "systems/definition.h"
#include "systems/text/problem.h"
#include "systems/text/statements.h"

#include <array>
#include <string>
#include <string_view>

namespace ZrProj::systems {

/// That a form of text cannot say something.
Problem cannotSay(std::string_view form, std::string_view what);

/// Without the word that the register adds to the names of ensembles.
std::string_view withoutEnsemble(std::string_view datum);

/// Letters and digits with single underscores for all else between them.
std::string underscored(std::string_view name);

/// Radians of so many degrees, as a number's text.
std::string radiansText(double degrees);

/// A value in a unit of its kind.
double inUnit(WrittenParameter const& parameter, double degreesAUnit, double metresAUnit);

/// An axis of a definition.
struct WrittenAxis {
    std::string_view name, abbreviation, direction; // in small letters
    std::optional<double> meridian;                 // at a pole, degrees
};

/// Both axes in the authority's order.
std::array<WrittenAxis, 2> axesOf(Definition const& definition);

} // namespace ZrProj::systems

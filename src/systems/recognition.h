// Which system of the register a definition is, by what it says: numbers, not names alone.
#pragma once

#include "systems/definition.h"

#include <string>

namespace ZrProj::systems {

/// What a definition says other than a second one of the register, a phrase for people; "" when they say the same.
/// Names count for datums alone, which have no other content than their figure.
std::string difference(Definition const& said, Definition const& registered);

/// The code of the register's system that says the same; 0 when none does. The code and the name in the definition come
/// first, then a system in force before a deprecated one.
Code recognise(Definition const& definition);

/// A definition that a text gave, and what there is to tell about it.
struct Reconciled {
    /// With the register's code, name and area where it is of the register. Else without a code, but on the register's
    /// datum and geographic system where its numbers agree with what it calls them.
    Definition definition;
    /// Where a code or name of the system, its datum or a unit is contradicted by the numbers, which are taken; else
    /// "".
    std::string noticed;
};
Reconciled reconcile(Definition const& definition);

} // namespace ZrProj::systems

// What the page on the projection types says beyond the library's tables and the formulas' head comments.
#pragma once

#include "proj/projection_table.h"

#include <span>

namespace ZrProj::docs {

struct FamilyText {
    Family family;
    char const* title;
    char const* example; // a command, and what it prints
};

extern char const* const introduction;

/// In the order of the page.
std::span<FamilyText const> families();

/// The member of PROJDATA that holds a parameter, and what it means to a type.
char const* fieldOf(int parameter);
char const* meaningOf(ProjParam parameter, ProjectionRow const& type);

} // namespace ZrProj::docs

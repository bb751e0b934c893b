// What the page on the projection types says beyond the library's catalogue and the formulas' head comments.
#pragma once

#include <zrproj/projection.h>

#include <span>

namespace ZrProj::docs {

struct Member {
    ProjType type;
    char const* formula;   // the source in src/formulas
    char const* benchmark; // the row of the benchmark
};

struct Family {
    char const* title;
    char const* example; // a command, and what it prints
    std::span<Member const> members;
};

extern char const* const introduction;

std::span<Family const> families();

/// The member of PROJDATA that holds a parameter, and what it means to a type.
char const* fieldOf(int parameter);
char const* meaningOf(int parameter, ProjType type);

} // namespace ZrProj::docs

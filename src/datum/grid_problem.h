// Why a grid cannot be used.
#pragma once

#include <string>

namespace ZrProj::datum {

/// In words, for the user: the file, the record in it, and what was expected there.
struct GridProblem {
    std::string reason;
};

} // namespace ZrProj::datum

// Memory that runs out, to see what becomes of a call.
#pragma once

#include <functional>

namespace ZrProj::test {

/// Calls `call` with its first allocation by new failing, then with its second, until none is left to fail, and
/// `check(failed)` after each call. Returns how many allocations there were.
int withFailingMemory(std::function<void()> const& call, std::function<void(bool failed)> const& check);

} // namespace ZrProj::test

#include "levels/level.h"

#include <algorithm>
#include <atomic>

namespace ZrProj::levels {
namespace {

struct Row {
    char const* name;
    bool (*isAvailable)() noexcept;
};

constexpr auto rows = []<class... Homes>(LevelList<Homes...>) {
    return std::array{Row{Homes::name, Homes::isAvailable}...};
}(BuiltLevels{});

Row const& rowOf(Level level) noexcept {
    return rows[static_cast<std::size_t>(level)];
}

Level bestLevel() noexcept {
    return *std::find_if(allLevels.rbegin(), allLevels.rend(), isAvailable);
}

std::atomic<Level> chosen{bestLevel()};

} // namespace

char const* nameOf(Level level) noexcept {
    return rowOf(level).name;
}
bool isAvailable(Level level) noexcept {
    return rowOf(level).isAvailable();
}
Level levelInUse() noexcept {
    return chosen.load(std::memory_order_relaxed);
}
void useLevel(Level level) noexcept {
    chosen.store(level, std::memory_order_relaxed);
}

} // namespace ZrProj::levels

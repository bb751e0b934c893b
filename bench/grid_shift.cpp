#include "grid_shift.h"

#include "datum/grid_shift.h"
#include "host/platform.h"
#include "levels/level.h"
#include "support/ntv2_file.h"

#include <filesystem>
#include <fstream>
#include <numbers>
#include <random>
#include <stdexcept>

namespace ZrProj::bench {
namespace {

/// Germany's size, with one finer grid in it; gone with the object.
class GridFile {
public:
    GridFile() : path_(executableDirectory() + "/bench.gsb") {
        std::mt19937 random(1);
        std::uniform_real_distribution<float> bumps(-0.05F, 0.05F);
        auto const north = [&](int row, int column) {
            return 0.01F * static_cast<float>(row + column) + bumps(random);
        };
        auto const west = [&](int row, int column) {
            return 4 - 0.02F * static_cast<float>(row) + bumps(random) + 0.01F * static_cast<float>(column);
        };
        test::Ntv2File const file{{{"WIDE", "NONE", 169200, -56400, 360, 600, 84, 62, north, west},
                                   {"FINE", "WIDE", 180000, -50400, 60, 60, 61, 61, north, west}}};
        std::string const bytes = file.bytes();
        std::ofstream(path_, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }
    ~GridFile() {
        std::error_code error; // nobody is left to be told
        std::filesystem::remove(path_, error);
    }
    GridFile(GridFile const&) = delete;
    GridFile& operator=(GridFile const&) = delete;

    std::string const& path() const { return path_; }

private:
    std::string path_;
};

Contender contenderOf(std::string const& path, levels::Level level) {
    levels::useLevel(level);
    auto const opened = datum::GridShift::openNtv2(path);
    if (auto const* const problem = std::get_if<datum::GridProblem>(&opened))
        throw std::runtime_error(problem->reason);
    auto const shift = std::get<datum::GridShift>(opened);
    return {.name = levels::nameOf(level),
            .isOurs = true,
            .metres = 6371000 * std::numbers::pi / 180,
            .forward = [=](PROJPOINT* points, int count) { shift.forward(points, count); },
            .inverse = [=](PROJPOINT* points, int count) { shift.inverse(points, count); }};
}

} // namespace

Group gridShiftGroup() {
    static GridFile const file;
    Group group{{"NTv2", {}, {5.6, 15.5, 47.1, 55.2}, {}}, {}};
    auto const before = levels::levelInUse();
    for (auto const level : levels::allLevels)
        if (levels::isAvailable(level))
            group.contenders.push_back(contenderOf(file.path(), level));
    levels::useLevel(before);
#if defined(ZRPROJ_BENCH_PROJ)
    group.contenders.push_back(projDatumContender("+proj=hgridshift +grids=" + file.path()));
#endif
    return group;
}

} // namespace ZrProj::bench

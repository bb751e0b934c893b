#include "nadcon.h"

#include "host/platform.h"

#include <zrproj/datum.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <memory>
#include <random>

namespace ZrProj::bench {
namespace {

constexpr char gridName[] = "conus";
constexpr char ourRow[] = "NADCON/zrproj/1048576", plainRow[] = "NADCON/four-seeks-eight-reads/16384";
constexpr std::size_t ourCount = 1 << 20, plainCount = 1 << 14;
constexpr std::int32_t columns = 273, rows = 121;
constexpr float xmin = -131, ymin = 20, spacing = 0.25F;

std::string gridFile(char const* extension) {
    return executableDirectory() + '/' + gridName + extension;
}

/// The pair of files, gone with the object.
class Grid {
public:
    Grid() {
        std::vector<float> words(std::size_t{columns + 1} * (rows + 1));
        std::mt19937 random(1);
        std::uniform_real_distribution<float> arcseconds(-4, 4);
        for (float& word : words)
            word = arcseconds(random);
        struct {
            std::int32_t counts[3] = {columns, rows, 1};
            float places[4] = {xmin, spacing, ymin, spacing};
        } const header;
        std::memcpy(&words[16], &header, sizeof header);
        for (char const* extension : {".LAS", ".LOS"})
            std::ofstream(gridFile(extension), std::ios::binary)
                .write(reinterpret_cast<char const*>(words.data()),
                       static_cast<std::streamsize>(words.size() * sizeof(float)));
    }
    ~Grid() {
        for (char const* extension : {".LAS", ".LOS"})
            std::filesystem::remove(gridFile(extension));
    }
    Grid(Grid const&) = delete;
    Grid& operator=(Grid const&) = delete;
};

using Points = std::vector<DATUMPOINT>;

Points pointsInside(std::size_t count) {
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> lon(-130.9, -63.1), lat(20.1, 49.9);
    Points points(count);
    for (auto& point : points)
        point = {lon(random), lat(random)};
    return points;
}

using File = std::unique_ptr<std::FILE, decltype([](std::FILE* file) { static_cast<void>(std::fclose(file)); })>;

/// Two seeks and four reads.
double plainValue(std::FILE* file, DATUMPOINT const& point) {
    double const x = (point.x - double{xmin}) / spacing + 1, y = (point.y - double{ymin}) / spacing + 1;
    auto const column = static_cast<long>(x), row = static_cast<long>(y);
    double const fx = x - static_cast<double>(column), fy = y - static_cast<double>(row);
    std::array<float, 4> corners{};
    for (long i : {0, 1}) {
        std::fseek(file, 4 * ((row + i) * (columns + 1) + column), SEEK_SET);
        for (long j : {0, 1})
            if (std::fread(&corners[static_cast<std::size_t>(2 * i + j)], sizeof(float), 1, file) != 1)
                std::abort();
    }
    return (1 - fx) * (1 - fy) * corners[0] + fx * (1 - fy) * corners[1] + (1 - fx) * fy * corners[2] +
           fx * fy * corners[3];
}

/// Four seeks and eight reads a point.
bool convertPlainly(Points& points) {
    File const las(std::fopen(gridFile(".LAS").c_str(), "rb")), los(std::fopen(gridFile(".LOS").c_str(), "rb"));
    if (!las || !los)
        return false;
    for (auto& point : points) {
        DATUMPOINT const from = point;
        point.x += plainValue(las.get(), from) / 3600;
        point.y += plainValue(los.get(), from) / 3600;
    }
    return true;
}

bool convert(Points& points) {
    static DATUMXFORM const request{DatumTypeNad1927ConusNadcon, DatumTypeWorldGeodeticSystem1984, false, {}, {}};
    static CDatumTransform transform(&request);
    return transform.Convert(points.data(), static_cast<int>(points.size()));
}

void measure(benchmark::State& state, bool (*convertAll)(Points&), std::size_t count) {
    auto const source = pointsInside(count);
    for (auto _ : state) {
        auto points = source;
        auto const start = std::clock();
        if (!convertAll(points))
            state.SkipWithError("the grid cannot be read");
        state.SetIterationTime(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    using benchmark::Counter;
    state.counters[perPoint] =
        Counter(static_cast<double>(count), Counter::kIsIterationInvariantRate | Counter::kInvert);
}

/// Tells when the two ways do not give the same.
void compareWays() {
    auto ours = pointsInside(1000), plain = ours;
    double farthest = convert(ours) && convertPlainly(plain) ? 0 : HUGE_VAL;
    for (std::size_t i = 0; i < ours.size(); ++i)
        farthest = std::max({farthest, std::fabs(ours[i].x - plain[i].x), std::fabs(ours[i].y - plain[i].y)});
    if (!(farthest < 1e-12))
        std::printf("NADCON: not the plain way's results, up to %g degrees apart\n", farthest);
}

} // namespace

void registerNadcon() {
    static Grid const grid;
    compareWays();
    benchmark::RegisterBenchmark(ourRow, measure, convert, ourCount)->UseManualTime();
    benchmark::RegisterBenchmark(plainRow, measure, convertPlainly, plainCount)->UseManualTime();
}

void printNadcon(Collector const& measured) {
    double const ours = measured.nanoseconds(ourRow), plain = measured.nanoseconds(plainRow);
    if (ours > 0 && plain > 0)
        std::printf("\nNADCON: %.1f ns a point; with four seeks and eight reads %.1f ns, %.0f times as long\n", ours,
                    plain, plain / ours);
}

} // namespace ZrProj::bench

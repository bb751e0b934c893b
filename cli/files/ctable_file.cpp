// The layout: 160 bytes of header, of which 16 and 80 name the format and the grid, then the south-western corner and
// the spacings in radians and the counts of columns and rows; then rows from the south, and in each of them pairs of
// numbers of 32 bits from the west, the shifts of a longitude (west positive) and of a latitude in radians.
// Little-endian.
#include "cli/files/ctable_file.h"

#include "cli/files/plain_file.h"
#include "cli/text/usage_error.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <numbers>
#include <stdexcept>
#include <string_view>

namespace ZrProj::Command {
namespace {

constexpr std::size_t headerBytes = 160, nodeBytes = 8;
constexpr std::string_view magic = "CTABLE V2";
constexpr double degree = std::numbers::pi / 180;

/// What stands in the header from byte 16 on.
struct Layout {
    char name[80];
    double west, south, dx, dy; // radians
    std::int32_t columns, rows;
};

bool isGrid(Layout const& layout) {
    return layout.columns >= 2 && layout.rows >= 2 && std::isfinite(layout.west) && std::isfinite(layout.south) &&
           layout.dx > 0 && layout.dy > 0;
}

/// As the library has it: the corner and the spacings are numbers of 32 bits there.
zrproj_grid headerOf(Layout const& layout) {
    auto const degrees = [](double radians) { return static_cast<double>(static_cast<float>(radians / degree)); };
    zrproj_grid header{};
    header.size = sizeof header;
    header.columns = layout.columns, header.rows = layout.rows;
    header.west = degrees(layout.west), header.south = degrees(layout.south);
    header.dx = degrees(layout.dx), header.dy = degrees(layout.dy);
    std::copy_n(layout.name, std::min<std::size_t>(sizeof layout.name, 56), header.identification);
    std::string_view const program = "zrproj";
    std::replace_if(
        header.identification, header.identification + 56, [](char c) { return c < ' '; }, ' ');
    std::copy(program.begin(), program.end(), header.identification + 56);
    return header;
}

} // namespace

bool isCtable(std::string const& path) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) // a pipe would have us wait
        return false;
    std::array<char, magic.size()> bytes{};
    return std::ifstream(path, std::ios::binary).read(bytes.data(), bytes.size()) &&
           std::string_view(bytes.data(), bytes.size()) == magic;
}

CtableFile::CtableFile(std::string const& path) {
    std::ifstream file(path, std::ios::binary);
    std::array<char, headerBytes> bytes{};
    Layout layout{};
    if (file.read(bytes.data(), bytes.size()))
        std::memcpy(&layout, bytes.data() + 16, sizeof layout);
    if (!isGrid(layout))
        throw UsageError(path + " has no grid's header");
    header = headerOf(layout);
    auto const nodes = static_cast<unsigned long long>(layout.columns) * static_cast<unsigned long long>(layout.rows);
    auto const size = fileSize(path);
    if (size < headerBytes + nodes * nodeBytes) // counts below 2^31
        throw UsageError(path + " ends at byte " + std::to_string(size) + ", before the last of its " +
                         std::to_string(nodes) + " nodes");
    std::vector<float> shifts(2 * nodes);
    if (!file.read(reinterpret_cast<char*>(shifts.data()), static_cast<std::streamsize>(nodes * nodeBytes)))
        throw std::runtime_error(path + " cannot be read");
    auto const seconds = [](float radians) { return static_cast<float>(radians / degree * 3600); };
    for (std::size_t i = 0; i < shifts.size(); i += 2) {
        east.push_back(-seconds(shifts[i]));
        north.push_back(seconds(shifts[i + 1]));
    }
}

} // namespace ZrProj::Command

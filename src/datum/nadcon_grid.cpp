#include "datum/nadcon_grid.h"

#include "host/plain_file.h"
#include "host/replacement_file.h"
#include "levels/stage.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <system_error>
#include <vector>

namespace ZrProj {
namespace {

static_assert(std::endian::native == std::endian::little, "the grids' words are read as they stand");

constexpr std::size_t identificationBytes = 64;
constexpr std::int32_t leastColumns = 22; // with fewer, the header is longer than a record
constexpr std::int32_t mostColumns = 1 << 20;

/// What follows the text in the header.
struct Numbers {
    std::int32_t columns, rows, values; // of these, one a point
    float xmin, dx, ymin, dy;
};

std::optional<Numbers> readNumbers(PlainFile const& file) {
    Numbers numbers{};
    bool const isThere = file.read(identificationBytes, &numbers, sizeof numbers);
    return isThere ? std::optional(numbers) : std::nullopt;
}

bool isGrid(Numbers const& n) {
    bool const isFinite = std::isfinite(n.xmin) && std::isfinite(n.dx) && std::isfinite(n.ymin) && std::isfinite(n.dy);
    return n.columns >= 2 && n.rows >= 2 && isFinite && n.dx > 0 && n.dy > 0;
}

Numbers numbersOf(NadconGrid const& grid) {
    auto const word = [](double degrees) { return static_cast<float>(degrees); };
    return {grid.columns, grid.rows, 1, word(grid.xmin), word(grid.dx), word(grid.ymin), word(grid.dy)};
}

/// Why no shift can be relied on of a file of such a header, "" where one can.
std::string faultOf(Numbers const& numbers) {
    std::string const size = std::to_string(numbers.columns) + " columns and " + std::to_string(numbers.rows) + " rows";
    if (!isGrid(numbers) || numbers.columns > mostColumns)
        return "has no grid's header: " + size;
    if (numbers.columns < leastColumns)
        return "has " + size + "; with less than 22 columns, the header lies over the first rows";
    return "";
}

std::string faultOf(PlainFile const& file) {
    auto const numbers = readNumbers(file);
    return numbers ? faultOf(*numbers) : "is too short for a grid's header";
}

/// The header's text as it can be printed, without what pads it.
std::string readIdentification(PlainFile const& file) {
    std::string text(identificationBytes, ' ');
    file.read(0, text.data(), text.size());
    std::ranges::replace_if(
        text, [](char c) { return c < ' ' || c > '~'; }, ' ');
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

NadconSearch searched(PlainFile const& file, std::string const& path) {
    if (std::string const fault = faultOf(file); !fault.empty())
        return {std::nullopt, path, "", path + ' ' + fault};
    return {readNadconHeader(file), path, readIdentification(file), ""};
}

/// The bytes of the header's record.
std::vector<float> headerRecord(NadconGrid const& grid, std::string_view identification) {
    std::vector<float> record(static_cast<std::size_t>(grid.columns) + 1);
    std::string text(identification.substr(0, identificationBytes));
    text.resize(identificationBytes, ' ');
    Numbers const numbers = numbersOf(grid);
    auto* const bytes = reinterpret_cast<char*>(record.data());
    std::memcpy(bytes, text.data(), text.size());
    std::memcpy(bytes + text.size(), &numbers, sizeof numbers);
    return record;
}

bool write(std::FILE& file, std::span<float const> words) {
    return std::fwrite(words.data(), sizeof(float), words.size(), &file) == words.size();
}

/// Returns an errno, 0 when all went well.
int writeGrid(std::string const& path, std::span<float const> header, std::span<float const> values) {
    errno = 0;
    Stream const file = createFile(path);
    bool isGood = file && write(*file, header);
    std::size_t const columns = header.size() - 1;
    for (; isGood && !values.empty(); values = values.subspan(columns))
        isGood = write(*file, values.first(1)) && write(*file, values.first(columns));
    return isGood && std::fflush(file.get()) == 0 ? 0 : errno;
}

/// Fills a file that is to replace another. Returns why that failed, "" where it did not.
std::string fill(ReplacementFile const& file, std::span<float const> header, std::span<float const> values) {
    if (file.name().empty())
        return file.reason();
    int const error = writeGrid(file.name(), header, values);
    return error ? std::generic_category().message(error) : "";
}

std::string cannotWrite(std::string const& path, std::string const& why) {
    return "cannot write \"" + path + "\": " + why;
}

} // namespace

std::optional<NadconCell> NadconGrid::locate(DATUMPOINT const& point) const {
    if (levels::isMarked(point))
        return std::nullopt;
    double const x = (point.x - xmin) / dx + 1, y = (point.y - ymin) / dy + 1;
    if (!(x > -1 && x < columns && y >= 1 && y < rows))
        return std::nullopt;
    auto const column = static_cast<std::int32_t>(x), row = static_cast<std::int32_t>(y); // toward zero
    return NadconCell{row, column, x - column, y - row};
}

std::optional<NadconGrid> readNadconHeader(PlainFile const& file) {
    auto const n = readNumbers(file);
    if (!n || !isGrid(*n))
        return std::nullopt;
    return NadconGrid{n->columns, n->rows, n->xmin, n->dx, n->ymin, n->dy};
}

bool readNadconRow(PlainFile const& file, NadconGrid const& grid, int row, std::span<float> values) {
    return file.read(grid.wordOf(row, 1) * sizeof(float), values.data(), values.size_bytes());
}

NadconSearch findNadconGrid(std::string const& name) {
    for (std::string const& path : {name, name + ".LAS", name + ".las", executableDirectory() + '/' + name + ".LAS"})
        if (PlainFile const file(path); file.isOpen())
            return searched(file, path);
    return {std::nullopt, "", "", "there is no grid " + name + ": neither a file, nor one beside this program"};
}

bool isReliable(NadconGrid const& grid) {
    return faultOf(numbersOf(grid)).empty();
}

std::string writeNadconPair(std::string const& name, NadconGrid const& grid, std::string_view identification,
                            std::span<float const> las, std::span<float const> los) {
    auto const header = headerRecord(grid, identification);
    std::string const pathOfLas = name + ".LAS", pathOfLos = name + ".LOS";
    ReplacementFile newLas(pathOfLas), newLos(pathOfLos);
    if (auto const why = fill(newLas, header, las); !why.empty())
        return cannotWrite(pathOfLas, why);
    if (auto const why = fill(newLos, header, los); !why.empty())
        return cannotWrite(pathOfLos, why);
    if (!newLas.commit())
        return cannotWrite(pathOfLas, newLas.reason());
    return newLos.commit() ? "" : cannotWrite(pathOfLos, newLos.reason());
}

} // namespace ZrProj

#include "cli/files/grid_file.h"

#include "cli/text/numbers.h"
#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <array>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace ZrProj::Command {
namespace {

constexpr std::size_t headerBytes = 92;
constexpr int leastColumns = 22, mostColumns = 1 << 20; // with fewer, the header is longer than a record

/// The bytes of a text that can be printed, without what pads it.
std::string printable(std::string_view bytes) {
    std::string result;
    for (char c : bytes)
        result += c >= ' ' && c <= '~' ? c : ' ';
    result.erase(result.find_last_not_of(' ') + 1);
    return result;
}

} // namespace

std::string GridHeader::fault() const {
    bool const finite = std::isfinite(xmin) && std::isfinite(dx) && std::isfinite(ymin) && std::isfinite(dy);
    if (columns < 2 || rows < 2 || columns > mostColumns || !finite || !(dx > 0) || !(dy > 0))
        return "has no grid's header: " + std::to_string(columns) + " columns and " + std::to_string(rows) +
               " rows, every " + numberText(dx) + " and " + numberText(dy) + " degrees";
    if (columns < leastColumns)
        return "has " + std::to_string(columns) + " columns; with less than 22, the header lies over the first rows";
    return "";
}

/// As the library decides it: up to two columns west of the grid, but no row south of it.
bool GridHeader::covers(double longitude, double latitude) const {
    double const x = (longitude - double{xmin}) / dx + 1, y = (latitude - double{ymin}) / dy + 1;
    return x > -1 && x < columns && y >= 1 && y < rows;
}

GridFile::GridFile(std::string path) : m_path(std::move(path)) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(m_path, error)) // a pipe would have us wait
        throw UsageError("cannot open " + m_path + ": " + (error ? error.message() : "not a plain file"));
    m_file.open(m_path, std::ios::binary);
    if (!m_file)
        throw UsageError("cannot open " + m_path + ": " + systemMessage(errno));
    std::array<char, headerBytes> bytes{};
    if (!m_file.read(bytes.data(), bytes.size()))
        throw UsageError(m_path + " is too short for a grid's header");
    std::memcpy(&m_header, bytes.data() + 64, sizeof m_header);
    m_identification = printable({bytes.data(), 64});
    std::string const fault = m_header.fault();
    if (!fault.empty())
        throw UsageError(m_path + ' ' + fault);
}

std::vector<float> const& GridFile::record(int row) {
    m_record.resize(static_cast<std::size_t>(m_header.columns) + 1);
    auto const length = static_cast<std::streamoff>(m_record.size() * sizeof(float));
    m_file.clear();
    m_file.seekg(row * length);
    if (!m_file.read(reinterpret_cast<char*>(m_record.data()), length))
        throw std::runtime_error(m_path + " ends before its row " + std::to_string(row) + " of " +
                                 std::to_string(m_header.rows));
    return m_record;
}

std::string gridDirectory() {
    return std::filesystem::read_symlink("/proc/self/exe").parent_path().string() + '/';
}

char const* gridName(DatumType type) {
    return type == DatumTypeNad1927PuertoRicoVirginIslandsNadcon ? "prvi" : "conus";
}

} // namespace ZrProj::Command

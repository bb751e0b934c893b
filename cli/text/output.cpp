#include "cli/text/output.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstdint>

#include <unistd.h>

namespace ZrProj::Command {
namespace {

constexpr std::array<double, 16> powersOfTen{1,   1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                             1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

/// Writes `units`, counted in the last place, with its decimal point. Returns the end.
char* writeUnits(char* out, std::uint64_t units, int decimals) {
    auto const power = static_cast<std::uint64_t>(powersOfTen[static_cast<std::size_t>(decimals)]);
    out = std::to_chars(out, out + 20, units / power).ptr;
    if (decimals == 0)
        return out;
    *out = '.';
    std::uint64_t fraction = units % power;
    for (char* digit = out + decimals; digit > out; --digit, fraction /= 10)
        *digit = static_cast<char>('0' + fraction % 10);
    return out + decimals + 1;
}

bool isZero(std::string_view number) {
    return number.find_first_not_of("-0.") == std::string_view::npos;
}

/// The slow way for any finite number.
void appendAnyFixed(std::string& text, double value, int decimals) {
    std::array<char, 340> buffer;
    auto const result =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, decimals);
    std::string_view number(buffer.data(), static_cast<std::size_t>(result.ptr - buffer.data()));
    if (number.front() == '-' && isZero(number))
        number.remove_prefix(1);
    text += number;
}

} // namespace

/// Counts the last place in integers where that rounds as the exact decimal value does: below 2^45 the product is off
/// by less than 1/128, so that only a fraction near one half is in doubt.
void appendFixed(std::string& text, double value, int decimals) {
    double const scaled = std::fabs(value) * powersOfTen[static_cast<std::size_t>(decimals)];
    double const whole = std::floor(scaled);
    if (!(scaled < 0x1p45) || std::fabs(scaled - whole - 0.5) < 0x1p-6)
        return appendAnyFixed(text, value, decimals);
    auto const units = static_cast<std::uint64_t>(whole) + (scaled - whole > 0.5 ? 1 : 0);
    std::array<char, 48> buffer;
    char* out = buffer.data();
    if (std::signbit(value) && units != 0)
        *out++ = '-';
    out = writeUnits(out, units, decimals);
    text.append(buffer.data(), static_cast<std::size_t>(out - buffer.data()));
}

void Output::flushIfLarge() {
    if (m_text.size() >= std::size_t{1} << 16)
        flush();
}

bool Output::flush() {
    std::string_view rest = m_text;
    while (!rest.empty() && !m_error) {
        ssize_t const count = ::write(m_file, rest.data(), rest.size());
        if (count > 0)
            rest.remove_prefix(static_cast<std::size_t>(count));
        else if (count == 0 || errno != EINTR)
            m_error = count == 0 ? EIO : errno;
    }
    m_text.clear();
    return m_error == 0;
}

namespace {

void writeRow(Output& output, std::vector<std::string> const& row, std::vector<std::size_t> const& widths,
              std::string_view alignment) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
        std::string const padding(widths[i] - row[i].size(), ' ');
        line += i ? "  " : "";
        line += alignment[i] == 'r' ? padding + row[i] : row[i] + padding;
    }
    line.erase(line.find_last_not_of(' ') + 1);
    output << line << '\n';
}

} // namespace

void Table::write(Output& output) const {
    std::vector<std::size_t> widths(alignment.size(), 0);
    auto const measure = [&](std::vector<std::string> const& row) {
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], row[i].size());
    };
    measure(titles);
    std::for_each(rows.begin(), rows.end(), measure);
    if (!titles.empty())
        writeRow(output, titles, widths, alignment);
    for (auto const& row : rows)
        writeRow(output, row, widths, alignment);
}

} // namespace ZrProj::Command

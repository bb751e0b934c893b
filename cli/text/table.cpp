#include "cli/text/table.h"

#include <algorithm>

namespace ZrProj::Command {
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

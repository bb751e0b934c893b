#include "cli/points/point_list.h"

#include "cli/points/row_source.h"
#include "cli/points/rows.h"

#include <stdexcept>

namespace ZrProj::Command {
namespace {

class NoHeader : public RowHeader {
    std::string header(std::string_view, Layout const&) const override { return ""; }
};

void takePoints(RowPiece const& piece, ColumnRequest const& request, std::vector<std::optional<PROJPOINT>>& points) {
    for (RowSection const& section : piece.sections) {
        RowReader reader(section.layout, request);
        for (std::size_t i = section.begin; i < section.end; ++i) {
            Row row{piece.lines[i], piece.firstNumber + i, isVerbatim(piece.lines[i]), 0};
            if (row.verbatim)
                continue;
            BlockPoint const point = reader.read(row).point;
            points.push_back(point.state == PointState::Good ? std::optional(point.point) : std::nullopt);
        }
    }
}

} // namespace

std::vector<std::optional<PROJPOINT>> readPoints(std::string const& file, ColumnRequest const& request,
                                                 std::size_t most) {
    std::vector<std::string> const files{file};
    NoHeader const header;
    RowSource source(files, request, header);
    std::vector<std::optional<PROJPOINT>> points;
    while (points.size() < most) {
        auto const piece = source.next();
        if (!piece)
            break;
        if (!piece->failure.empty())
            throw std::runtime_error(piece->failure);
        if (piece->unusable)
            std::rethrow_exception(piece->unusable);
        takePoints(*piece, request, points);
    }
    points.resize(std::min(points.size(), most));
    return points;
}

} // namespace ZrProj::Command

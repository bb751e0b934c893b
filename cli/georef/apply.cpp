#include "cli/georef/apply.h"

#include "cli/points/row_stream.h"

#include <cfloat>

namespace ZrProj::Command {
namespace {

class Application : public PointWork {
public:
    explicit Application(GeorefFit const& map) : m_map(map) {}

    std::string header(std::string_view line, Layout const& layout) const override {
        return headerWith(line, layout, {"target_x", "target_y"});
    }

    void convert(PointBlock& block, Layout const&) const override {
        std::vector<GEOREFPOINT> mapped;
        for (PROJPOINT const& point : block.points)
            mapped.push_back({point.x, point.y});
        m_map.map(mapped);
        for (std::size_t i = 0; i < mapped.size(); ++i) {
            if (block.states[i] != PointState::Good)
                continue;
            block.points[i] = {mapped[i].x, mapped[i].y};
            if (mapped[i].x == DBL_MAX)
                block.states[i] = PointState::NoResult;
        }
    }

private:
    GeorefFit const& m_map;
};

} // namespace

int applyGeoref(GeorefFit const& map, GeorefJob const& job, Output& output) {
    Application const application(map);
    RowFiles const files{job.files, job.columns, 1};
    return RowStream(application, files, RowWriter(job.decimals, false), output).run(job.strict);
}

} // namespace ZrProj::Command

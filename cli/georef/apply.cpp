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

    void convert(PointBlock& block, Layout const&) override {
        m_mapped.clear();
        for (PROJPOINT const& point : block.points)
            m_mapped.push_back({point.x, point.y});
        m_map.map(m_mapped);
        for (std::size_t i = 0; i < m_mapped.size(); ++i) {
            if (block.states[i] != PointState::Good)
                continue;
            block.points[i] = {m_mapped[i].x, m_mapped[i].y};
            if (m_mapped[i].x == DBL_MAX)
                block.states[i] = PointState::NoResult;
        }
    }

private:
    GeorefFit const& m_map;
    std::vector<GEOREFPOINT> m_mapped;
};

} // namespace

int applyGeoref(GeorefFit const& map, GeorefJob const& job, Output& output) {
    Application application(map);
    RowWriter const writer(output, job.decimals, false);
    return RowStream(application, job.files, job.columns, writer, output).run(job.strict);
}

} // namespace ZrProj::Command

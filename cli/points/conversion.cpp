#include "cli/points/conversion.h"

#include "cli/points/row_stream.h"

namespace ZrProj::Command {
namespace {

/// Where each point has its own zone, the result has it beside the coordinates.
bool writesZones(ConversionJob const& job) {
    return job.projection.zonePerPoint && job.columns.direction == Direction::Forward;
}

class Conversion : public PointWork {
public:
    explicit Conversion(ConversionJob const& job)
        : m_job(job), m_transform(job.projection, job.columns.direction, job.shift) {}

    std::string header(std::string_view line, Layout const& layout) const override {
        std::vector<std::string> added{"longitude", "latitude"};
        if (m_job.columns.direction == Direction::Forward) {
            std::string const suffix(m_job.unit(layout.columns.unit).suffix);
            added = {"easting_" + suffix, "northing_" + suffix};
        }
        if (writesZones(m_job))
            added.emplace_back("zone");
        return headerWith(line, layout, added);
    }

    void convert(PointBlock& block, Layout const& layout) override {
        m_transform.run(block, m_job.unit(layout.columns.unit));
    }

private:
    ConversionJob const& m_job;
    Transform m_transform;
};

} // namespace

LengthUnit const& ConversionJob::unit(LengthUnit const* ofFile) const {
    if (columns.unit)
        return *columns.unit;
    if (ofFile)
        return *ofFile;
    return projection.unit ? *projection.unit : lengthUnits.front();
}

int convertPoints(ConversionJob const& job, Output& output) {
    Conversion conversion(job);
    RowWriter const writer(output, job.decimals, writesZones(job));
    return RowStream(conversion, job.files, job.columns, writer, output).run(job.strict);
}

} // namespace ZrProj::Command

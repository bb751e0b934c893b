// zrproj forward, zrproj inverse and the conversion of zrproj datum: the options that they share.
#include "cli/commands/commands.h"
#include "cli/commands/conversion_options.h"
#include "cli/commands/options.h"

namespace ZrProj::Command {
namespace {

class Convert : public Subcommand {
public:
    Convert(CommandLine line, Direction direction);
    int run(Output& output) override;

private:
    Direction m_direction;
    ProjectionOptions m_projection; // none for Direction::Datum
    DatumOptions m_datums;
    ConversionOptions m_conversion;
};

Convert::Convert(CommandLine line, Direction direction) : m_direction(direction), m_datums(direction) {
    bool const projects = direction != Direction::Datum;
    if (projects)
        m_projection.addTo(line);
    m_datums.addTo(line);
    m_conversion.addTo(line, projects ? "Unit of projected coordinates: m (the default), ft or us-ft" : nullptr,
                       direction == Direction::Forward ? "Cut the geometries of GeoJSON to what the map shows"
                                                       : nullptr);
    if (projects)
        m_projection.addParametersTo(line);
}

int Convert::run(Output& output) {
    ProjectionChoice projection;
    if (m_direction != Direction::Datum)
        projection = m_projection.choice(m_datums.ofMap());
    ConversionJob job = m_conversion.job(m_direction, projection.zonePerPoint);
    job.projection = projection;
    job.shift = m_datums.shift();
    return m_conversion.run(std::move(job), output);
}

} // namespace

std::unique_ptr<Subcommand> makeDatumConversion(CommandLine line) {
    return std::make_unique<Convert>(line, Direction::Datum);
}

std::unique_ptr<Subcommand> makeForward(CommandLine line) {
    line.footer(R"(Example: the places of a spreadsheet export, in feet, in new columns
  zrproj forward --state-plane "Arizona Central" --units ft places.csv)");
    return std::make_unique<Convert>(line, Direction::Forward);
}

std::unique_ptr<Subcommand> makeInverse(CommandLine line) {
    line.footer(R"(Example: one point
  echo 630084.301 4833438.586 | zrproj inverse --utm 17N)");
    return std::make_unique<Convert>(line, Direction::Inverse);
}

} // namespace ZrProj::Command

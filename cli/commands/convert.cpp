// zrproj forward, zrproj inverse and the conversion of zrproj datum: the options that they share.
#include "cli/commands/commands.h"
#include "cli/commands/conversion_options.h"
#include "cli/commands/options.h"

namespace ZrProj::Command {
namespace {

class Convert : public Subcommand {
public:
    Convert(CommandLine line, Operation operation);
    int run(Output& output) override;

private:
    Operation m_operation;
    ProjectionOptions m_projection; // none for Operation::Datum
    DatumOptions m_datums;
    ConversionOptions m_conversion;
};

Convert::Convert(CommandLine line, Operation operation) : m_operation(operation), m_datums(operation) {
    bool const projects = operation != Operation::Datum;
    if (projects)
        m_projection.addTo(line);
    m_datums.addTo(line);
    m_conversion.addTo(line, projects ? "Unit of projected coordinates: m (the default), ft or us-ft" : nullptr,
                       operation == Operation::Forward ? "Cut the geometries of GeoJSON to what the map shows"
                                                       : nullptr);
    if (projects)
        m_projection.addParametersTo(line);
}

int Convert::run(Output& output) {
    ProjectionChoice projection;
    if (m_operation != Operation::Datum)
        projection = m_projection.choice(m_datums.ofMap());
    ConversionJob job = m_conversion.job(m_operation, projection.zonePerPoint);
    job.projection = projection;
    job.shift = m_datums.shift();
    return m_conversion.run(std::move(job), output);
}

} // namespace

std::unique_ptr<Subcommand> makeDatumConversion(CommandLine line) {
    return std::make_unique<Convert>(line, Operation::Datum);
}

std::unique_ptr<Subcommand> makeForward(CommandLine line) {
    line.footer(R"(Example: the places of a spreadsheet export, in feet, in new columns
  zrproj forward --state-plane "Arizona Central" --units ft places.csv)");
    return std::make_unique<Convert>(line, Operation::Forward);
}

std::unique_ptr<Subcommand> makeInverse(CommandLine line) {
    line.footer(R"(Example: one point
  echo 630084.301 4833438.586 | zrproj inverse --utm 17N)");
    return std::make_unique<Convert>(line, Operation::Inverse);
}

} // namespace ZrProj::Command

// zrproj georef: fits maps to control points, tells how good they are, and converts points by them.
#include "cli/commands/commands.h"
#include "cli/commands/options.h"
#include "cli/files/plain_file.h"
#include "cli/georef/apply.h"
#include "cli/georef/plot.h"
#include "cli/georef/report.h"
#include "cli/text/numbers.h"
#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

namespace ZrProj::Command {
namespace {

constexpr int usualDecimals = 3;
constexpr int failureStatus = 1;

std::string methodKeys() {
    std::string keys;
    for (GeorefMethod const& row : georefMethods())
        keys += (keys.empty() ? "" : ", ") + std::string(row.key);
    return keys;
}

int complain(std::string const& message) {
    std::fprintf(stderr, "zrproj: %s\n", message.c_str());
    return failureStatus;
}

/// The options that fit and apply share: the controls, and the method.
struct ControlOptions {
    std::string file, columns, method = "affine";

    void addTo(CommandLine line, char const* columnsName) {
        line.argument("CONTROLS", file,
                      "File of control points: source x and y, target x and y, name; - is standard input")
            .require();
        line.option("--method", method, "METHOD", "How to fit: " + methodKeys()).showStandard();
        line.option(columnsName, columns, "A,B,C,D[,E]",
                    "Columns of the control points: source x, source y, target x, target y, and the name's");
    }
    std::vector<ControlPoint> read() const { return readControls(file, columns); }
};

class Fit : public Subcommand {
public:
    explicit Fit(CommandLine line) {
        m_controls.addTo(line, "--columns");
        line.flag("--compare", m_compare, "Show all methods that the control points allow side by side instead");
        line.option("--plot", m_plot, "FILE", "Draw the points, their residuals and a grid into this SVG file");
    }

    int run(Output& output) override {
        GeorefMethod const& method = findGeorefMethod(m_controls.method);
        auto const controls = m_controls.read();
        if (m_compare) {
            writeGeorefComparison(output, controls);
            return m_plot.empty() ? 0 : plot(method, controls, analyse(method, controls));
        }
        Analysis const analysis = analyse(method, controls);
        writeGeorefFit(output, method, controls, analysis);
        return m_plot.empty() ? 0 : plot(method, controls, analysis);
    }

private:
    int plot(GeorefMethod const& method, std::vector<ControlPoint> const& controls, Analysis const& analysis) const {
        try {
            writeWholeFile(m_plot, georefPlot(method, controls, analysis));
        } catch (std::runtime_error const& error) { // the report is good nevertheless
            return complain(error.what());
        }
        return 0;
    }

    ControlOptions m_controls;
    bool m_compare = false;
    std::string m_plot;
};

class Apply : public Subcommand {
public:
    explicit Apply(CommandLine line) {
        m_controls.addTo(line, "--control-columns");
        line.arguments("FILE", m_files, "Files of source points; standard input where none is given, and for -");
        line.option("--columns", m_columns, "X,Y",
                    "Columns of the points, x first: numbers from 1, or names of the header");
        line.option("--precision", m_precision, "N", "Decimals of the result, 0 to 15 (3)");
        line.flag("--strict", m_strict, "Status 1 also when a point cannot be mapped");
    }

    int run(Output& output) override {
        GeorefJob job{{Operation::Inverse, {}, nullptr, false},
                      readDecimals(m_precision, usualDecimals),
                      m_strict,
                      filesOrStandardInput(m_files)};
        if (!m_columns.empty())
            job.columns.columns = parseColumns(m_columns, false);
        if (std::count(job.files.begin(), job.files.end(), "-") + (m_controls.file == "-") > 1)
            throw UsageError("standard input can be read only once, for the control points or for the points");
        GeorefFit const map(findGeorefMethod(m_controls.method), m_controls.read());
        return applyGeoref(map, job, output);
    }

private:
    ControlOptions m_controls;
    std::vector<std::string> m_files;
    std::string m_columns, m_precision;
    bool m_strict = false;
};

class Georef : public Subcommand {
public:
    explicit Georef(CommandLine line)
        : m_fitLine(line.subcommand("fit", "Fit a map, and tell how well each control point is met")),
          m_applyLine(line.subcommand("apply", "Fit a map, and convert points by it")), m_fit(m_fitLine),
          m_apply(m_applyLine) {
        m_fitLine.footer(
            "Example: which of a scanned map's control points is wrong, and what a plate spline makes of them\n"
            "  zrproj georef fit controls.csv --method affine --plot controls.svg");
        m_applyLine.footer("Example: one pixel\n  echo 1200 850 | zrproj georef apply controls.csv --method second");
    }

    int run(Output& output) override {
        if (!m_fitLine.isGiven() && !m_applyLine.isGiven())
            throw UsageError("georef needs fit or apply; \"zrproj georef --help\" tells more");
        try {
            return m_fitLine.isGiven() ? m_fit.run(output) : m_apply.run(output);
        } catch (ControlsError const& error) {
            output.flush();
            return complain(error.what());
        }
    }

private:
    CommandLine m_fitLine, m_applyLine;
    Fit m_fit;
    Apply m_apply;
};

} // namespace

std::unique_ptr<Subcommand> makeGeoref(CommandLine line) {
    line.footer("Example: all methods side by side\n  zrproj georef fit controls.csv --compare");
    return std::make_unique<Georef>(line);
}

} // namespace ZrProj::Command

#include "cli/georef/report.h"

#include "cli/text/output.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace ZrProj::Command {
namespace {

constexpr int decimals = 3;

std::string fixed(double value) {
    std::string text;
    appendFixed(text, value, decimals);
    return text;
}

std::string fixedOrDash(std::optional<double> const& value) {
    return value ? fixed(*value) : "-";
}

/// As many digits as are surely right.
std::string full(double value) {
    std::array<char, 32> buffer;
    auto const end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general, 15).ptr;
    return {buffer.data(), end};
}

bool isOutlier(Analysis const& analysis, std::size_t i) {
    return std::find(analysis.outliers.begin(), analysis.outliers.end(), i) != analysis.outliers.end();
}

void writeCoefficients(Output& output, GeorefMethod const& method, std::vector<ControlPoint> const& controls) {
    auto const coefficients = georefCoefficients(method, controls);
    if (coefficients.empty())
        return;
    Table table{{"term", "X", "Y"}, "lrr", {}};
    for (auto const& c : coefficients)
        table.rows.push_back({std::string(c.term), full(c.x), full(c.y)});
    table.write(output);
    output << '\n';
}

void writeResiduals(Output& output, std::vector<ControlPoint> const& controls, Analysis const& analysis) {
    Table table{{"line", "point", "dx", "dy", "length", "left out", ""}, "rlrrrrl", {}};
    for (std::size_t i = 0; i < controls.size(); ++i) {
        Residual const& residual = analysis.residuals[i];
        table.rows.push_back({std::to_string(controls[i].line), controls[i].name, fixed(residual.offset.x),
                              fixed(residual.offset.y), fixed(residual.length), fixedOrDash(residual.left),
                              isOutlier(analysis, i) ? "<-- stands out" : ""});
    }
    table.write(output);
    Table summary{{}, "lrr", {}};
    summary.rows.push_back({"mean", fixed(analysis.mean), fixedOrDash(analysis.leftMean)});
    summary.rows.push_back({"root mean square", fixed(analysis.rms), fixedOrDash(analysis.leftRms)});
    output << '\n';
    summary.write(output);
}

std::string titleWithLine(ControlPoint const& control) {
    return control.title() + (control.name.empty() ? "" : " (line " + std::to_string(control.line) + ')');
}

/// The length that tells: left out where that could be made.
std::string awayText(GeorefMethod const& method, Analysis const& analysis) {
    std::string const by = analysis.judge == &method ? "" : " by " + std::string(analysis.judge->key);
    return analysis.worstLeft ? fixed(*analysis.worstLeft) + " from where the other points put it" + by
                              : fixed(analysis.worstLength) + " from where the fit puts it" + by;
}

/// Who tells that a point stands out, where it is not the method itself.
void writeJudge(Output& output, GeorefMethod const& method, std::vector<ControlPoint> const& controls,
                Analysis const& analysis) {
    if (!analysis.hasLooked)
        output << "too many points to look for one that stands out\n";
    else if (controls.size() < analysis.fewestToTell)
        output << "too few points for " << method.key << " to tell whether one stands out: it needs "
               << std::to_string(analysis.fewestToTell) << (analysis.judge == &method ? "" : "; judged by affine")
               << '\n';
}

/// A similarity cannot turn rows that count downwards into northings.
void writeMirrorHint(Output& output, std::vector<ControlPoint> const& controls, Analysis const& analysis) {
    auto mirrored = controls;
    for (auto& control : mirrored)
        control.source.y = -control.source.y;
    double const rms = analyse(georefMethods().front(), mirrored).rms;
    if (rms < analysis.rms / 10)
        output << "a similarity cannot mirror: with the source's y counted the other way the root mean square is "
               << fixed(rms) << '\n';
}

void writeVerdict(Output& output, GeorefMethod const& method, std::vector<ControlPoint> const& controls,
                  Analysis const& analysis) {
    ControlPoint const& worst = controls[analysis.worst];
    output << '\n';
    writeJudge(output, method, controls, analysis);
    output << "worst: " << titleWithLine(worst) << ", " << awayText(method, analysis) << '\n';
    for (std::size_t const i : analysis.outliers)
        output << "stands out: " << titleWithLine(controls[i]) << "; look for a mistake in its coordinates\n";
    if (analysis.rmsWithout)
        output << "without " << (analysis.outliers.size() == 1 ? "it" : "them") << " the "
               << (isExact(method) ? "left out" : "fit's") << " root mean square is " << fixed(*analysis.rmsWithout)
               << ", instead of " << fixed(isExact(method) ? analysis.leftRms.value_or(0) : analysis.rms) << '\n';
    if (method.method == TransformMethodHelmert)
        writeMirrorHint(output, controls, analysis);
}

} // namespace

void writeGeorefFit(Output& output, GeorefMethod const& method, std::vector<ControlPoint> const& controls,
                    Analysis const& analysis) {
    output << RefMethodName(method.method) << ", " << std::to_string(controls.size()) << " control points\n\n";
    writeCoefficients(output, method, controls);
    output << "Residuals, fit less given; \"left out\" by a fit to the other points\n\n";
    writeResiduals(output, controls, analysis);
    writeVerdict(output, method, controls, analysis);
}

void writeGeorefComparison(Output& output, std::vector<ControlPoint> const& controls) {
    Table table{{"method", "mean", "rms", "left out mean", "rms", "worst", "left out", ""}, "lrrrrlrl", {}};
    for (GeorefMethod const& method : georefMethods()) {
        if (controls.size() < method.needed)
            continue;
        try {
            Analysis const analysis = analyse(method, controls);
            table.rows.push_back({std::string(method.key), fixed(analysis.mean), fixed(analysis.rms),
                                  fixedOrDash(analysis.leftMean), fixedOrDash(analysis.leftRms),
                                  controls[analysis.worst].title(), fixedOrDash(analysis.worstLeft),
                                  std::string(analysis.outliers.empty() ? "" : "<-- stands out") +
                                      (analysis.judge == &method ? "" : " by affine")});
        } catch (ControlsError const&) { // the controls determine no such map
        }
    }
    if (table.rows.empty())
        throw ControlsError(whyNoFit(georefMethods().front(), controls));
    table.write(output);
}

} // namespace ZrProj::Command

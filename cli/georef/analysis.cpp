#include "cli/georef/analysis.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <new>

namespace ZrProj::Command {
namespace {

std::vector<double> pairsOf(std::vector<ControlPoint> const& controls, GEOREFPOINT ControlPoint::*side) {
    std::vector<double> pairs;
    pairs.reserve(2 * controls.size());
    for (ControlPoint const& control : controls)
        pairs.insert(pairs.end(), {(control.*side).x, (control.*side).y});
    return pairs;
}

/// A number that may be none.
std::optional<double> told(double value) {
    return std::isnan(value) ? std::nullopt : std::optional(value);
}

struct AnalysisDestroyer {
    void operator()(zrproj_analysis* analysis) const { zrproj_analysis_destroy(analysis); }
};
using AnalysisHandle = std::unique_ptr<zrproj_analysis, AnalysisDestroyer>;

AnalysisHandle lookInto(GeorefFit const& fit) {
    zrproj_analysis* analysis = nullptr;
    if (zrproj_analysis_create(fit.handle(), &analysis) != ZRPROJ_OK)
        throw std::bad_alloc();
    return AnalysisHandle(analysis);
}

GeorefMethod const& methodOf(int number) {
    return *std::ranges::find(georefMethods(), number, &GeorefMethod::method);
}

void takeSummary(Analysis& analysis, zrproj_fit_summary const& summary) {
    analysis.mean = summary.mean;
    analysis.rms = summary.rms;
    analysis.leftMean = told(summary.left_out_mean);
    analysis.leftRms = told(summary.left_out_rms);
    analysis.outliers.resize(summary.outliers);
    analysis.rmsWithout = told(summary.rms_without);
    analysis.judge = &methodOf(summary.judge);
    analysis.worst = summary.worst;
    analysis.worstLength = summary.worst_residual;
    analysis.worstLeft = told(summary.worst_left_out);
    analysis.fewestToTell = summary.fewest_to_tell;
    analysis.hasLooked = summary.looked != 0;
}

} // namespace

GeorefFit::GeorefFit(GeorefMethod const& method, std::vector<ControlPoint> const& controls) {
    auto const source = pairsOf(controls, &ControlPoint::source), target = pairsOf(controls, &ControlPoint::target);
    zrproj_fit* fit = nullptr;
    zrproj_status const status = zrproj_fit_create(method.method, source.data(), target.data(), controls.size(), &fit);
    if (status == ZRPROJ_NO_MEMORY)
        throw std::bad_alloc();
    if (status != ZRPROJ_OK) // the command tells lines, where the library counts points
        throw ControlsError(status == ZRPROJ_NOT_SOLVABLE ? whyNoFit(method, controls) : zrproj_message());
    m_fit.reset(fit);
}

void GeorefFit::map(std::span<GEOREFPOINT> points) const {
    if (points.empty())
        return;
    zrproj_fit_points(m_fit.get(), &points[0].x, &points[0].y, sizeof(GEOREFPOINT), points.size(), nullptr, 0);
    for (GEOREFPOINT& point : points)
        if (std::isnan(point.x))
            point = {DBL_MAX, DBL_MAX};
}

std::vector<GeorefCoefficient> georefCoefficients(GeorefMethod const& method,
                                                  std::vector<ControlPoint> const& controls) {
    GeorefFit const fit(method, controls);
    std::vector<GeorefCoefficient> result;
    char const* term = nullptr;
    double x = 0, y = 0;
    while (zrproj_fit_coefficient(fit.handle(), result.size(), &term, &x, &y) == ZRPROJ_OK)
        result.push_back({term, x, y});
    return result;
}

Analysis analyse(GeorefMethod const& method, std::vector<ControlPoint> const& controls) {
    AnalysisHandle const handle = lookInto(GeorefFit(method, controls));
    zrproj_fit_summary summary{};
    summary.size = sizeof summary;
    zrproj_analysis_summary(handle.get(), &summary);
    Analysis analysis;
    takeSummary(analysis, summary);
    for (std::size_t i = 0; i < summary.count; ++i) {
        zrproj_residual residual{};
        residual.size = sizeof residual;
        zrproj_analysis_residual(handle.get(), i, &residual);
        analysis.residuals.push_back({{residual.dx, residual.dy}, residual.length, told(residual.left_out)});
        if (residual.stands_out)
            analysis.outliers[static_cast<std::size_t>(residual.stands_out) - 1] = i;
    }
    return analysis;
}

} // namespace ZrProj::Command

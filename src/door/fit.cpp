#include "door/fit.h"

#include "georef/analysis.h"
#include "georef/method_table.h"

using namespace ZrProj;
using namespace ZrProj::Door;

struct zrproj_analysis {
    Analysis found;
    int method = 0;
};

namespace ZrProj::Door {

georef::Polynomial affineMap(std::span<double const, 6> coefficients) {
    auto const& c = coefficients;
    return {.terms = 3, .centre = {}, .x = {c[2], c[0], c[1]}, .y = {c[5], c[3], c[4]}};
}

std::vector<GEOREFPOINT> pairsOf(double const* pairs, std::size_t count) {
    std::vector<GEOREFPOINT> points(count);
    for (std::size_t i = 0; i < count; ++i)
        points[i] = {pairs[2 * i], pairs[2 * i + 1]};
    return points;
}

Answer checkPairs(double const* source, double const* target, std::size_t count) {
    constexpr std::size_t most = std::numeric_limits<std::int32_t>::max();
    if (count > 0 && (!source || !target))
        return badArgument("null pointer to control points");
    if (count > most)
        return badArgument("too many control points");
    if (!areFinite({source, 2 * count}) || !areFinite({target, 2 * count}))
        return badArgument("a control point's coordinate is not finite");
    return {};
}

Answer makeFit(zrproj_fit& fit, int method, std::vector<GEOREFPOINT> source, std::vector<GEOREFPOINT> target) {
    auto const type = static_cast<TransformMethod>(method);
    fit.method = method;
    fit.source = std::move(source);
    fit.target = std::move(target);
    if (areTooMany(type, fit.source.size()))
        return unsupported(whyNoFit(type, fit.controls()));
    fit.map = fitGeoref(type, fit.controls());
    if (!fit.map)
        return {ZRPROJ_NOT_SOLVABLE, whyNoFit(type, fit.controls())};
    fit.coefficients = coefficientsOf(*fit.map);
    return {};
}

Answer makeFit(zrproj_fit& fit, std::span<double const, 6> coefficients) {
    if (!areFinite(coefficients))
        return badArgument("a coefficient is not finite");
    fit.method = TransformMethodPrecalculatedAffineCoefficients;
    fit.map.emplace(affineMap(coefficients));
    fit.coefficients = coefficientsOf(*fit.map);
    return {};
}

} // namespace ZrProj::Door

namespace {

constexpr double cannotTell = std::numeric_limits<double>::quiet_NaN();

/// Whether a number is a method that control points are fitted by.
bool isFitted(int method) {
    auto const type = static_cast<TransformMethod>(method);
    return isGeorefMethod(type) && type != TransformMethodPrecalculatedAffineCoefficients;
}

void mapBlock(GeorefMap const& map, std::span<PROJPOINT> points, std::span<Reason> reasons) {
    std::array<GEOREFPOINT, blockPoints> mapped;
    for (std::size_t i = 0; i < points.size(); ++i)
        mapped[i] = {points[i].x, points[i].y};
    map.map(std::span(mapped).first(points.size()));
    for (std::size_t i = 0; i < points.size(); ++i) {
        points[i] = {mapped[i].x, mapped[i].y};
        if (hasResult(reasons[i]) && !hasResult(reasonOfInput(points[i])))
            reasons[i] = ZRPROJ_OFF_THE_MAP;
    }
}

zrproj_fit_summary summaryOf(zrproj_analysis const& analysis) {
    Analysis const& found = analysis.found;
    auto const method = static_cast<TransformMethod>(analysis.method);
    zrproj_fit_summary summary{};
    summary.size = sizeof summary;
    summary.count = found.residuals.size();
    summary.mean = found.mean;
    summary.rms = found.rms;
    summary.left_out_mean = found.leftOutMean.value_or(cannotTell);
    summary.left_out_rms = found.leftOutRms.value_or(cannotTell);
    summary.outliers = found.outliers.size();
    summary.rms_without = found.rmsWithout.value_or(cannotTell);
    summary.worst = found.worst;
    summary.worst_residual = found.worstResidual.length;
    summary.worst_left_out = found.worstResidual.leftOut.value_or(cannotTell);
    summary.judge = found.judge;
    summary.fewest_to_tell = fewestToTell(method);
    summary.looked = canFindOutliers(method, summary.count) ? 1 : 0;
    return summary;
}

zrproj_residual residualOf(Analysis const& found, std::size_t n) {
    Residual const& residual = found.residuals[n];
    auto const outlier = std::ranges::find(found.outliers, n);
    bool const standsOut = outlier != found.outliers.end();
    zrproj_residual result{};
    result.size = sizeof result;
    result.dx = residual.offset.x;
    result.dy = residual.offset.y;
    result.length = residual.length;
    result.left_out = residual.leftOut.value_or(cannotTell);
    result.leverage = residual.leverage.value_or(cannotTell);
    result.stands_out = standsOut ? static_cast<int>(outlier - found.outliers.begin()) + 1 : 0;
    return result;
}

} // namespace

zrproj_status zrproj_fit_create(int method, double const* source, double const* target, size_t count,
                                zrproj_fit** fit) {
    return answerWith(fit, [&](zrproj_fit& made) {
        if (!isFitted(method))
            return unknown("there is no method " + std::to_string(method) + " of fitting control points");
        Answer checked = checkPairs(source, target, count);
        return checked.isGood() ? makeFit(made, method, pairsOf(source, count), pairsOf(target, count)) : checked;
    });
}

zrproj_status zrproj_fit_create_affine(double const coefficients[6], zrproj_fit** fit) {
    return answerWith(fit, [&](zrproj_fit& made) {
        return coefficients ? makeFit(made, std::span<double const, 6>(coefficients, 6))
                            : badArgument("null pointer to coefficients");
    });
}

void zrproj_fit_destroy(zrproj_fit* fit) {
    std::unique_ptr<zrproj_fit>{fit}.reset();
}

zrproj_status zrproj_fit_points(zrproj_fit const* fit, double* x, double* y, ptrdiff_t stride, size_t count,
                                unsigned char* reasons, int threads) {
    return answer([&] {
        if (!fit)
            return badArgument("null pointer to a fit");
        if (Answer checked = checkThreads(threads); !checked.isGood())
            return checked;
        return convertArray({x, y, stride, count, reasons}, threads,
                            [&](auto block, auto why) { mapBlock(*fit->map, block, why); });
    });
}

zrproj_status zrproj_fit_coefficient(zrproj_fit const* fit, size_t n, char const** term, double* x, double* y) {
    return answer([&]() -> Answer {
        if (!fit)
            return badArgument("null pointer to a fit");
        if (!(n < fit->coefficients.size()))
            return pastTheLast(n, fit->coefficients.size());
        auto const& coefficient = fit->coefficients[n];
        give(term, coefficient.term);
        give(x, coefficient.x);
        give(y, coefficient.y);
        return {};
    });
}

zrproj_status zrproj_analysis_create(zrproj_fit const* fit, zrproj_analysis** analysis) {
    return answerWith(analysis, [&](zrproj_analysis& made) -> Answer {
        if (!fit)
            return badArgument("null pointer to a fit");
        if (!isFitted(fit->method))
            return unsupported("coefficients have no control points to look into");
        made.method = fit->method;
        made.found = analyse(static_cast<TransformMethod>(fit->method), *fit->map, fit->controls());
        return {};
    });
}

void zrproj_analysis_destroy(zrproj_analysis* analysis) {
    std::unique_ptr<zrproj_analysis>{analysis}.reset();
}

zrproj_status zrproj_analysis_summary(zrproj_analysis const* analysis, zrproj_fit_summary* summary) {
    return answer([&]() -> Answer {
        if (!analysis || !hasKnownSize(summary))
            return badArgument("no analysis, or no summary of a known size");
        *summary = summaryOf(*analysis);
        return {};
    });
}

zrproj_status zrproj_analysis_residual(zrproj_analysis const* analysis, size_t n, zrproj_residual* residual) {
    return answer([&]() -> Answer {
        if (!analysis || !hasKnownSize(residual))
            return badArgument("no analysis, or no residual of a known size");
        if (!(n < analysis->found.residuals.size()))
            return pastTheLast(n, analysis->found.residuals.size());
        *residual = residualOf(analysis->found, n);
        return {};
    });
}

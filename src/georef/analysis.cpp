#include "georef/analysis.h"

#include "georef/leverage.h"
#include "georef/method_table.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace ZrProj {
namespace {

constexpr double chance = 0.01;    // of calling good controls bad
constexpr double timesMedian = 12; // for methods that meet every control
constexpr std::size_t candidates = 3;
constexpr double highLeverage = 0.9; // few points have more: all leverages are as many as a coordinate's terms
constexpr TransformMethod affine = TransformMethodAffinePolynomial;

/// Control points that some can be taken out of.
class Pairs {
public:
    explicit Pairs(Controls const& controls)
        : m_source(controls.source.begin(), controls.source.end()),
          m_target(controls.target.begin(), controls.target.end()) {}

    std::size_t size() const { return m_source.size(); }
    std::vector<GEOREFPOINT> const& sources() const { return m_source; }
    Pairs without(std::size_t left) const {
        Pairs result = *this;
        auto const index = static_cast<std::ptrdiff_t>(left);
        result.m_source.erase(result.m_source.begin() + index);
        result.m_target.erase(result.m_target.begin() + index);
        return result;
    }
    std::optional<GeorefMap> fit(TransformMethod method) const { return fitGeoref(method, {m_source, m_target}); }
    /// Where a map puts a point, less where it is given.
    GEOREFPOINT offset(GeorefMap const& map, std::size_t i) const { return difference(map(m_source[i]), i); }
    std::vector<GEOREFPOINT> offsets(GeorefMap const& map) const;
    /// The longer side of the targets' bounding box.
    double extent() const;

private:
    GEOREFPOINT difference(GEOREFPOINT mapped, std::size_t i) const {
        return {mapped.x - m_target[i].x, mapped.y - m_target[i].y};
    }

    std::vector<GEOREFPOINT> m_source, m_target;
};

std::vector<GEOREFPOINT> Pairs::offsets(GeorefMap const& map) const {
    auto result = m_source;
    map.map(result);
    for (std::size_t i = 0; i < result.size(); ++i)
        result[i] = difference(result[i], i);
    return result;
}

double Pairs::extent() const {
    auto const [left, right] =
        std::minmax_element(m_target.begin(), m_target.end(), [](auto& a, auto& b) { return a.x < b.x; });
    auto const [low, high] =
        std::minmax_element(m_target.begin(), m_target.end(), [](auto& a, auto& b) { return a.y < b.y; });
    return std::max(right->x - left->x, high->y - low->y);
}

double length(GEOREFPOINT const& offset) {
    return std::hypot(offset.x, offset.y);
}

/// The sum of the squared lengths.
double squares(std::vector<GEOREFPOINT> const& offsets) {
    double sum = 0;
    for (auto const& offset : offsets)
        sum += offset.x * offset.x + offset.y * offset.y;
    return sum;
}

/// What the fit to all the others says of a point.
struct Left {
    std::optional<double> length;
    double squares = 0; // of that fit's residuals
};

Left leaveOut(TransformMethod method, Pairs const& pairs, std::size_t i) {
    Pairs const others = pairs.without(i);
    auto const map = others.fit(method);
    if (!map)
        return {};
    return {length(pairs.offset(*map, i)), isWarp(method) ? 0 : squares(others.offsets(*map))};
}

std::vector<Left> leaveEachOutOfWarp(TransformMethod method, Pairs const& pairs) {
    std::vector<Left> result(pairs.size());
    for (std::size_t i = 0; i < result.size() && canFindOutliers(method, pairs.size()); ++i)
        result[i] = leaveOut(method, pairs, i);
    return result;
}

/// By the leverages, from the offsets of the fit to all of them. Where a point has nearly all of the leverage, so that
/// its residual is mostly rounding, the others are fitted anew.
std::vector<Left> leaveEachOutOfLeastSquares(TransformMethod method, Pairs const& pairs,
                                             std::vector<GEOREFPOINT> const& offsets,
                                             std::vector<double> const& leverage) {
    double const all = squares(offsets);
    std::vector<Left> result(pairs.size());
    for (std::size_t i = 0; i < result.size(); ++i) {
        double const off = length(offsets[i]), rest = 1 - leverage[i];
        if (leverage[i] < highLeverage)
            result[i] = {off / rest, std::max(all - off * off / rest, 0.0)};
        else
            result[i] = leaveOut(method, pairs, i);
    }
    return result;
}

/// The logarithm of the chance that a good point is as far off as this one:
/// P(F(2, freedom) > f) = (1 + 2 f / freedom)^(-freedom / 2), with f = (length^2 (1 - leverage) / 2) / (squares /
/// freedom). What a residual shrinks by when its point joins the fit is 1 - leverage.
double logChance(Left const& left, double residual, double freedom) {
    if (!left.length)
        return 0;
    double const ratio = *left.length * residual / left.squares; // 2 f / freedom
    return std::isnan(ratio) ? 0 : -freedom / 2 * std::log1p(ratio);
}

/// The point that least-squares residuals speak against.
std::optional<std::size_t> snoop(TransformMethod method, Pairs const& pairs) {
    auto const map = pairs.fit(method);
    if (!map || pairs.size() < fewestToTell(method))
        return std::nullopt;
    auto const offsets = pairs.offsets(*map);
    auto const left = leaveEachOutOfLeastSquares(method, pairs, offsets, leverages(method, pairs.sources()));
    double const freedom =
        2 * static_cast<double>(pairs.size() - 1) - static_cast<double>(georefMethodRow(method).unknowns);
    double least = 0;
    std::size_t candidate = 0;
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        double const here = logChance(left[i], length(offsets[i]), freedom);
        if (here < least) {
            least = here;
            candidate = i;
        }
    }
    bool const rounding = left[candidate].length.value_or(0) <= 1e-9 * pairs.extent();
    if (rounding || !(least + std::log(static_cast<double>(pairs.size())) < std::log(chance)))
        return std::nullopt;
    return candidate;
}

std::optional<double> medianLength(std::vector<Left> const& left) {
    std::vector<double> lengths;
    for (auto const& one : left)
        if (one.length)
            lengths.push_back(*one.length);
    if (lengths.empty())
        return std::nullopt;
    auto const middle = lengths.begin() + static_cast<std::ptrdiff_t>(lengths.size() / 2);
    std::nth_element(lengths.begin(), middle, lengths.end());
    return *middle;
}

/// The point that the others of a warp agree best without, if it is far enough from where they put it.
std::optional<std::size_t> compareLengths(TransformMethod method, Pairs const& pairs) {
    if (pairs.size() < fewestToTell(method))
        return std::nullopt;
    auto const left = leaveEachOutOfWarp(method, pairs);
    std::vector<std::size_t> order(pairs.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return left[a].length.value_or(0) > left[b].length.value_or(0);
    });
    std::optional<std::size_t> best;
    double least = HUGE_VAL;
    for (std::size_t k = 0; k < candidates; ++k) {
        auto const median = medianLength(leaveEachOutOfWarp(method, pairs.without(order[k])));
        if (median && *median < least) {
            least = *median;
            best = order[k];
        }
    }
    double const off = best ? left[*best].length.value_or(0) : 0;
    if (off <= 1e-9 * pairs.extent() || !(off > timesMedian * least))
        return std::nullopt;
    return best;
}

/// How well the method fits what is left without the outliers; nothing where it cannot.
std::optional<double> rmsOf(TransformMethod method, Pairs const& pairs) {
    auto const map = pairs.fit(method);
    if (!map)
        return std::nullopt;
    double sum = 0;
    if (isWarp(method))
        for (auto const& left : leaveEachOutOfWarp(method, pairs))
            sum += left.length.value_or(0) * left.length.value_or(0);
    else
        sum = squares(pairs.offsets(*map));
    return std::sqrt(sum / static_cast<double>(pairs.size()));
}

/// Looks for outliers among the controls, at most a third of them, and says how the rest fits.
void findOutliers(TransformMethod method, Pairs pairs, Analysis& analysis) {
    TransformMethod const judge = analysis.judge;
    std::vector<std::size_t> indices(pairs.size()); // of the pairs that are left
    std::iota(indices.begin(), indices.end(), std::size_t{0});
    while (analysis.outliers.size() < indices.size() / 2) {
        auto const found = isWarp(judge) ? compareLengths(judge, pairs) : snoop(judge, pairs);
        if (!found)
            break;
        analysis.outliers.push_back(indices[*found]);
        indices.erase(indices.begin() + static_cast<std::ptrdiff_t>(*found));
        pairs = pairs.without(*found);
    }
    if (!analysis.outliers.empty())
        analysis.rmsWithout = rmsOf(method, pairs);
}

void summarise(Analysis& analysis) {
    double sum = 0, squared = 0, leftSum = 0, leftSquared = 0;
    bool allLeft = true;
    for (auto const& residual : analysis.residuals) {
        double const left = residual.leftOut.value_or(0);
        sum += residual.length;
        squared += residual.length * residual.length;
        leftSum += left;
        leftSquared += left * left;
        allLeft = allLeft && residual.leftOut;
    }
    auto const count = static_cast<double>(analysis.residuals.size());
    analysis.mean = sum / count;
    analysis.rms = std::sqrt(squared / count);
    if (allLeft) {
        analysis.leftOutMean = leftSum / count;
        analysis.leftOutRms = std::sqrt(leftSquared / count);
    }
}

std::size_t farthest(std::vector<Residual> const& residuals) {
    auto const size = [](Residual const& r) { return r.leftOut.value_or(r.length); };
    auto const most = std::max_element(residuals.begin(), residuals.end(),
                                       [&](Residual const& a, Residual const& b) { return size(a) < size(b); });
    return static_cast<std::size_t>(most - residuals.begin());
}

std::vector<Residual> residualsOf(TransformMethod method, Pairs const& pairs, GeorefMap const& map) {
    auto const offsets = pairs.offsets(map);
    auto const leverage = isWarp(method) ? std::vector<double>() : leverages(method, pairs.sources());
    auto const left = isWarp(method) ? leaveEachOutOfWarp(method, pairs)
                                     : leaveEachOutOfLeastSquares(method, pairs, offsets, leverage);
    std::vector<Residual> result;
    for (std::size_t i = 0; i < offsets.size(); ++i)
        result.push_back({offsets[i], length(offsets[i]), left[i].length,
                          leverage.empty() ? std::nullopt : std::optional(leverage[i])});
    return result;
}

/// The method itself, or the affine one where only that has points enough.
TransformMethod judgeOf(TransformMethod method, std::size_t controls) {
    return controls < fewestToTell(method) && controls >= fewestToTell(affine) ? affine : method;
}

/// The residuals of the judge: whatever else the controls determine, they determine an affine map.
std::vector<Residual> judgedResiduals(TransformMethod method, Pairs const& pairs, Analysis const& analysis) {
    auto const map = analysis.judge == method ? std::nullopt : pairs.fit(analysis.judge);
    return map ? residualsOf(analysis.judge, pairs, *map) : analysis.residuals;
}

} // namespace

bool canFindOutliers(TransformMethod method, std::size_t controls) {
    return controls <= (isWarp(method) ? 150U : 5000U);
}

std::size_t fewestToTell(TransformMethod method) {
    return isWarp(method) ? 5 : georefMethodRow(method).unknowns / 2 + 3;
}

Analysis analyse(TransformMethod method, GeorefMap const& map, Controls const& controls) {
    Pairs const pairs(controls);
    Analysis analysis;
    analysis.residuals = residualsOf(method, pairs, map);
    analysis.judge = judgeOf(method, controls.size());
    summarise(analysis);
    if (canFindOutliers(method, controls.size()))
        findOutliers(method, pairs, analysis);
    auto const judged = judgedResiduals(method, pairs, analysis);
    analysis.worst = analysis.outliers.empty() ? farthest(judged) : analysis.outliers.front();
    analysis.worstResidual = judged[analysis.worst];
    return analysis;
}

} // namespace ZrProj

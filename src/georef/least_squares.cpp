#include "georef/least_squares.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace ZrProj {
namespace {

double dot(std::span<double const> a, std::span<double const> b) {
    return std::inner_product(a.begin(), a.end(), b.begin(), 0.0);
}

/// Replaces x by its reflection x - 2 v (v^T x); v is a unit vector.
void reflect(std::span<double const> v, std::span<double> x) {
    double const twice = 2 * dot(v, x);
    for (std::size_t i = 0; i < v.size(); ++i)
        x[i] -= twice * v[i];
}

} // namespace

Factorisation::Factorisation(Matrix matrix)
    : m_reflectors(std::move(matrix)), m_diagonal(m_reflectors.columns), m_columns(m_reflectors.columns) {
    std::iota(m_columns.begin(), m_columns.end(), std::size_t{0});
}

/// Swaps the column whose part below the rows already eliminated is the longest with the column of the step.
void Factorisation::pivot(std::size_t step) {
    auto const squaredLengthBelow = [&](std::size_t column) {
        auto const below = m_reflectors.column(column).subspan(step);
        return dot(below, below);
    };
    std::size_t longest = step;
    for (std::size_t i = step + 1; i < m_columns.size(); ++i)
        if (squaredLengthBelow(i) > squaredLengthBelow(longest))
            longest = i;
    std::swap(m_columns[step], m_columns[longest]);
    if (longest != step)
        std::ranges::swap_ranges(m_reflectors.column(step), m_reflectors.column(longest));
}

void Factorisation::eliminate(std::size_t step) {
    auto const v = m_reflectors.column(step).subspan(step);
    double const length = std::sqrt(dot(v, v));
    m_diagonal[step] = std::copysign(length, -v[0]);
    if (length == 0)
        return;
    v[0] -= m_diagonal[step];
    double const norm = std::sqrt(dot(v, v));
    for (double& value : v)
        value /= norm;
    for (std::size_t i = step + 1; i < m_columns.size(); ++i)
        reflect(v, m_reflectors.column(i).subspan(step));
}

std::optional<Factorisation> Factorisation::of(Matrix matrix, double tolerance) {
    if (matrix.rows < matrix.columns)
        return std::nullopt;
    Factorisation result(std::move(matrix));
    for (std::size_t step = 0; step < result.m_columns.size(); ++step) {
        result.pivot(step);
        result.eliminate(step);
        if (!(std::fabs(result.m_diagonal[step]) > tolerance * std::fabs(result.m_diagonal[0])))
            return std::nullopt;
    }
    return result;
}

void Factorisation::applyQTransposed(std::span<double> vector) const {
    for (std::size_t i = 0; i < reflections(); ++i)
        reflect(reflector(i), vector.subspan(i));
}

void Factorisation::applyQ(std::span<double> vector) const {
    for (std::size_t i = reflections(); i-- > 0;)
        reflect(reflector(i), vector.subspan(i));
}

std::vector<double> Factorisation::solveTriangle(std::span<double const> y) const {
    std::vector<double> x(m_columns.size());
    for (std::size_t i = x.size(); i-- > 0;) {
        double rest = y[i];
        for (std::size_t j = i + 1; j < x.size(); ++j)
            rest -= m_reflectors.column(j)[i] * x[m_columns[j]];
        x[m_columns[i]] = rest / m_diagonal[i];
    }
    return x;
}

std::vector<double> Factorisation::solve(std::span<double const> b) const {
    std::vector<double> y(b.begin(), b.end());
    applyQTransposed(y);
    return solveTriangle(y);
}

} // namespace ZrProj

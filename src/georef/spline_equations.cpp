#include "georef/spline_equations.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

namespace ZrProj {
namespace {

constexpr std::size_t affineTerms = 3;

double dot(double const* a, double const* b, std::size_t count) {
    return std::inner_product(a, a + count, b, 0.0);
}

} // namespace

SplineEquations::SplineEquations(georef::Warp const& warp, Factorisation const& affine, std::vector<double> matrix)
    : m_affine(&affine), m_count(warp.controls), m_values(std::move(matrix)) {
    for (std::size_t i = 0; i < m_count; ++i)
        georef::kernels().basisRow(warp, i, m_values.data() + i * m_count);
    for (std::size_t i = 0; i < affine.reflections(); ++i)
        reflectBothSides(affine.reflector(i), i);
}

/// Replaces K by H K H, H = I - 2 v v^T being the reflection: K - v q^T - q v^T with q = 2 (K v - v (v^T K v)). The
/// reflector v is given from row `at` on and has zeros above.
void SplineEquations::reflectBothSides(std::span<double const> reflector, std::size_t at) {
    std::vector<double> v(m_count), q(m_count);
    std::ranges::copy(reflector, v.begin() + static_cast<std::ptrdiff_t>(at));
    for (std::size_t i = 0; i < m_count; ++i)
        q[i] = dot(row(i), v.data(), m_count);
    double const along = dot(q.data(), v.data(), m_count);
    for (std::size_t i = 0; i < m_count; ++i)
        q[i] = 2 * (q[i] - along * v[i]);
    for (std::size_t i = 0; i < m_count; ++i) {
        double* const to = m_values.data() + i * m_count;
        for (std::size_t j = 0; j < m_count; ++j)
            to[j] -= v[i] * q[j] + q[i] * v[j];
    }
}

georef::SymmetricMatrix SplineEquations::trailingBlock() {
    return {m_values.data() + affineTerms * (m_count + 1), m_count - affineTerms, m_count};
}

bool SplineEquations::factorise() {
    auto const matrix = trailingBlock();
    double largest = 0;
    for (std::size_t i = 0; i < matrix.size; ++i)
        largest = std::max(largest, matrix.row(i)[i]);
    double const leastPivot = 4 * std::numeric_limits<double>::epsilon() * largest;
    return georef::kernels().factorise(matrix, leastPivot);
}

std::optional<SplineEquations> SplineEquations::of(georef::Warp const& warp, Factorisation const& affine,
                                                   std::vector<double> matrix) {
    SplineEquations result(warp, affine, std::move(matrix));
    if (!result.factorise())
        return std::nullopt;
    return result;
}

SplineEquations::Solution SplineEquations::solve(std::vector<double> targets) const {
    m_affine->applyQTransposed(targets);
    std::vector<double> z(m_count);
    for (std::size_t i = affineTerms; i < m_count; ++i) // L z' = Q^T t, from the fourth row on
        z[i] = (targets[i] - dot(row(i) + affineTerms, z.data() + affineTerms, i - affineTerms)) / row(i)[i];
    for (std::size_t i = m_count; i-- > affineTerms;) { // L^T z = z'
        z[i] /= row(i)[i];
        for (std::size_t j = affineTerms; j < i; ++j)
            z[j] -= row(i)[j] * z[i];
    }
    for (std::size_t i = 0; i < affineTerms; ++i)
        targets[i] -= dot(row(i) + affineTerms, z.data() + affineTerms, m_count - affineTerms);
    Solution solution{std::move(z), m_affine->solveTriangle(targets)};
    m_affine->applyQ(solution.weights);
    return solution;
}

} // namespace ZrProj

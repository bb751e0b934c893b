// The equations of a warp that is a spline. With the basis values K of every control seen from every other, the terms
// P = (1, u, v) and the values t that are wanted at the controls, weights w and affine coefficients a solve
//
//     K w + P a = t,   P^T w = 0.
//
// The factorisation P = Q R splits space into the three dimensions of affine maps and the rest: with w = Q (0, z), what
// is left is a system in z alone whose matrix, the rest of Q^T K Q, is positive definite for each of the bases.
//
// Source    Wahba (1990), Spline Models for Observational Data, pp. 30-33; Wendland (2005), Scattered Data
//           Approximation, chapters 6 and 8, for the definiteness.
#pragma once

#include "georef/kernels/kernel_set.h"
#include "georef/least_squares.h"

#include <optional>
#include <span>
#include <vector>

namespace ZrProj {

class SplineEquations {
public:
    /// Nothing where the matrix is not positive definite to the precision of its numbers. `affine` is P's
    /// factorisation; it is referred to. `matrix` is room for as many numbers as the controls have pairs.
    static std::optional<SplineEquations> of(formulas::Warp const& warp, Factorisation const& affine,
                                             std::vector<double> matrix);

    struct Solution {
        std::vector<double> weights;
        std::vector<double> plane; // 1, u, v
    };
    Solution solve(std::vector<double> y) const; // y: what is wanted at the controls

private:
    SplineEquations(formulas::Warp const& warp, Factorisation const& affine, std::vector<double> matrix);
    void project(std::span<double const> reflector, std::size_t at);
    bool factorise();
    formulas::SymmetricMatrix rest();
    double const* row(std::size_t i) const { return m_values.data() + i * m_count; }

    Factorisation const* m_affine;
    std::size_t m_count;
    std::vector<double> m_values; // Q^T K Q, row after row, and of the rest its Cholesky factor
};

} // namespace ZrProj

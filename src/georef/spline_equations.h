// The equations of a warp that is a spline. With the matrix K of the basis between every two controls, the affine terms
// P = (1, u, v) at the controls, and the targets t, the weights w and the affine coefficients a solve
//
//     K w + P a = t,   P^T w = 0.
//
// The factorisation P = Q R splits space into the three dimensions of affine maps and their orthogonal complement: with
// w = Q (0, z), what is left is a system in z alone whose matrix, the trailing block of Q^T K Q without its first three
// rows and columns, is positive definite for each of the bases.
//
// Source    Wahba (1990), Spline Models for Observational Data, pp. 30-33; Wendland (2005), Scattered Data
//           Approximation, chapters 6 and 8, for the definiteness.
#pragma once

#include "georef/kernels.h"
#include "georef/least_squares.h"

#include <optional>
#include <span>
#include <vector>

namespace ZrProj {

class SplineEquations {
public:
    /// Sets the equations up and factorises them. Returns nothing where the trailing block is not positive definite to
    /// the precision of its numbers. `affine` is P's factorisation, which must outlive the result; `matrix` has the
    /// size of K, the square of the number of controls, whatever its values.
    static std::optional<SplineEquations> of(georef::Warp const& warp, Factorisation const& affine,
                                             std::vector<double> matrix);

    /// The weights w, one a control, and the affine coefficients a of 1, u and v.
    struct Solution {
        std::vector<double> weights;
        std::vector<double> affine;
    };
    /// Solves for the targets of one coordinate, one a control.
    Solution solve(std::vector<double> targets) const;

private:
    SplineEquations(georef::Warp const& warp, Factorisation const& affine, std::vector<double> matrix);
    void reflectBothSides(std::span<double const> reflector, std::size_t at);
    bool factorise();
    georef::SymmetricMatrix trailingBlock();
    double const* row(std::size_t i) const { return m_values.data() + i * m_count; }

    Factorisation const* m_affine;
    std::size_t m_count;
    std::vector<double> m_values; // Q^T K Q, row after row; its trailing block is replaced by the Cholesky factor L
};

} // namespace ZrProj

// What georeferencing computes over arrays, in registers, and what it computes with. The same for every processor
// level.
#pragma once

#include "levels/level.h"
#include "levels/stage.h"

#include <zrproj/registration.h>

#include <cstddef>

namespace ZrProj::georef {

/// X and Y as polynomials of u = x - centre.x and v = y - centre.y, terms in the order
/// 1, u, v, u^2, uv, v^2, u^3, u^2 v, u v^2, v^3; for 4 terms the fourth is uv.
struct Polynomial {
    int terms = 3; // 3, 4, 6 or 10
    GEOREFPOINT centre{};
    double x[10]{}, y[10]{};
};

/// An affine part plus weighted basis functions about the controls, in u = (x - centre.x) * perUnit and v likewise.
/// perUnit makes the unit s for the bases that have one. For inverse distances the weights are the residuals.
struct Warp {
    WarpingMethod method = WarpingMethodNone;
    GEOREFPOINT centre{};
    double perUnit = 1;
    double x[3]{}, y[3]{}; // 1, u, v
    std::size_t controls = 0;
    double const *u = nullptr, *v = nullptr; // the controls, not owned
    double const *weightX = nullptr, *weightY = nullptr;
};

/// A symmetric matrix, row after row; only what is on and below its diagonal need be set. Rows begin `stride` apart.
struct SymmetricMatrix {
    double* values;
    std::size_t size, stride;

    double* row(std::size_t i) const { return values + i * stride; }
};

struct KernelSet {
    void (*mapByPolynomial)(Polynomial const& map, levels::Points points) noexcept;
    void (*mapByWarp)(Warp const& map, levels::Points points) noexcept;
    /// basis(r) for every control, r its distance from control `i`; not for inverse distances.
    void (*basisRow)(Warp const& map, std::size_t i, double* row) noexcept;
    /// Cholesky's factor L, in place on and below the diagonal. False where a pivot is not above `leastPivot`.
    bool (*factorise)(SymmetricMatrix const& matrix, double leastPivot) noexcept;
};

/// At the processor level in use.
inline KernelSet const& kernels() noexcept {
    return levels::operationsInUse<KernelSet>();
}

} // namespace ZrProj::georef

// The terms of the polynomials that control points are fitted by, in the order of their coefficients.
#pragma once

#include <array>
#include <cstddef>
#include <span>

namespace ZrProj {

struct Term {
    char const* name;
    std::size_t u, v; // exponents of x and of y
};

inline constexpr std::array<Term, 10> completeTerms{{{"1", 0, 0},
                                                     {"x", 1, 0},
                                                     {"y", 0, 1},
                                                     {"x^2", 2, 0},
                                                     {"xy", 1, 1},
                                                     {"y^2", 0, 2},
                                                     {"x^3", 3, 0},
                                                     {"x^2 y", 2, 1},
                                                     {"x y^2", 1, 2},
                                                     {"y^3", 0, 3}}};
inline constexpr std::array<Term, 4> bilinearTerms{{{"1", 0, 0}, {"x", 1, 0}, {"y", 0, 1}, {"xy", 1, 1}}};

/// Those of a polynomial of 3, 4, 6 or 10 terms.
constexpr std::span<Term const> termsOf(int count) {
    if (count == 4)
        return bilinearTerms;
    return std::span(completeTerms).first(static_cast<std::size_t>(count));
}

constexpr double power(double base, std::size_t exponent) {
    double result = 1;
    for (; exponent > 0; --exponent)
        result *= base;
    return result;
}

} // namespace ZrProj

#include "georef/least_squares.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace ZrProj;

namespace {

constexpr double tolerance = 1e-12;

Matrix randomMatrix(std::size_t rows, std::size_t columns) {
    std::mt19937 random(11);
    std::normal_distribution<double> number;
    Matrix matrix(rows, columns);
    for (double& value : matrix.values)
        value = number(random);
    return matrix;
}

/// A x - b.
std::vector<double> residualsOf(Matrix const& a, std::vector<double> const& x, std::vector<double> const& b) {
    std::vector<double> result(a.rows);
    for (std::size_t i = 0; i < a.rows; ++i) {
        result[i] = -b[i];
        for (std::size_t j = 0; j < a.columns; ++j)
            result[i] += a.column(j)[i] * x[j];
    }
    return result;
}

double length(std::span<double const> vector) {
    double sum = 0;
    for (double const value : vector)
        sum += value * value;
    return std::sqrt(sum);
}

} // namespace

// The residuals of the shortest solution are at right angles to every column.
TEST(LeastSquares, LeavesResidualsAtRightAnglesToTheColumns) {
    for (std::size_t const rows : {4U, 5U, 40U}) {
        Matrix a = randomMatrix(rows, 4);
        for (double& value : a.column(2)) // columns of very unequal size, so that they are swapped
            value *= 1e6;
        std::vector<double> const b = randomMatrix(rows, 1).values;
        auto const factors = Factorisation::of(a, tolerance);
        ASSERT_TRUE(factors);
        auto const residuals = residualsOf(a, factors->solve(b), b);
        for (std::size_t j = 0; j < 4; ++j) {
            double along = 0;
            for (std::size_t i = 0; i < rows; ++i)
                along += a.column(j)[i] * residuals[i];
            EXPECT_LE(std::fabs(along), 1e-13 * length(a.column(j)) * length(b));
        }
        if (rows == 4) { // as many equations as unknowns
            EXPECT_LE(length(residuals), 1e-12 * length(b));
        }
    }
}

TEST(LeastSquares, QIsOrthogonal) {
    auto const factors = Factorisation::of(randomMatrix(9, 3), tolerance);
    ASSERT_TRUE(factors);
    std::vector<double> const given = randomMatrix(9, 1).values;
    auto vector = given;
    factors->applyQTransposed(vector);
    EXPECT_NEAR(length(vector), length(given), 1e-14 * length(given));
    factors->applyQ(vector);
    for (std::size_t i = 0; i < given.size(); ++i)
        EXPECT_NEAR(vector[i], given[i], 1e-14);
}

TEST(LeastSquares, RefusesColumnsThatDependOnOthers) {
    Matrix a = randomMatrix(6, 3);
    for (std::size_t i = 0; i < 6; ++i)
        a.column(2)[i] = 2 * a.column(0)[i] - a.column(1)[i];
    EXPECT_FALSE(Factorisation::of(a, tolerance));
    a.column(2)[3] += 1e-9 * length(a.column(0)); // above the tolerance
    EXPECT_TRUE(Factorisation::of(a, tolerance));
    EXPECT_FALSE(Factorisation::of(a, 1e-6));
    EXPECT_FALSE(Factorisation::of(Matrix(6, 3), tolerance)); // nothing but zeros
    Matrix unequal = randomMatrix(6, 3);
    for (double& value : unequal.column(0)) // short beside the longest column, which is not the first
        value *= 1e-14;
    EXPECT_FALSE(Factorisation::of(unequal, tolerance));
    EXPECT_FALSE(Factorisation::of(randomMatrix(2, 3), tolerance));
    a.column(1)[0] = std::nan("");
    EXPECT_FALSE(Factorisation::of(a, tolerance));
}

// Least squares by orthogonal factorisation.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace ZrProj {

/// A matrix, column after column.
struct Matrix {
    std::size_t rows, columns;
    std::vector<double> values;

    Matrix(std::size_t rowCount, std::size_t columnCount)
        : rows(rowCount), columns(columnCount), values(rowCount * columnCount) {}
    std::span<double> column(std::size_t i) { return std::span(values).subspan(i * rows, rows); }
    std::span<double const> column(std::size_t i) const { return std::span(values).subspan(i * rows, rows); }
};

/// A = Q R P^T of a matrix with at least as many rows as columns: R upper triangular, its diagonal falling in size, and
/// P a permutation.
///
/// Source    Golub & Van Loan (2013), Matrix Computations, 4th ed., algorithms 5.1.1 and 5.4.1.
class Factorisation {
public:
    /// Nothing where the columns are dependent: a part of a column, smaller than `tolerance` times the longest column,
    /// is all that is not made up of others.
    static std::optional<Factorisation> of(Matrix matrix, double tolerance);

    /// Householder vectors, each beginning at its own row; I - 2 v v^T.
    std::size_t reflections() const { return m_reflectors.columns; }
    std::span<double const> reflector(std::size_t i) const { return m_reflectors.column(i).subspan(i); }

    void applyQTransposed(std::span<double> vector) const;
    void applyQ(std::span<double> vector) const;
    /// The x of R P^T x = y; y has as many numbers as A has columns.
    std::vector<double> solveTriangle(std::span<double const> y) const;
    /// The x that makes A x - b shortest.
    std::vector<double> solve(std::span<double const> b) const;

private:
    explicit Factorisation(Matrix matrix);
    void bringForward(std::size_t step);
    void eliminate(std::size_t step);

    Matrix m_reflectors;                // on and below the diagonal; R above it
    std::vector<double> m_diagonal;     // of R
    std::vector<std::size_t> m_columns; // the column of A that stands at each place
};

} // namespace ZrProj

// Least squares by orthogonal factorisation.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace ZrProj {

/// A matrix, stored column after column.
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
    /// Factorises a matrix. Returns nothing where it does not have full rank: where what is left of some column, less
    /// its projection on the others, is no longer than `tolerance` times the longest column; and where it has fewer
    /// rows than columns.
    static std::optional<Factorisation> of(Matrix matrix, double tolerance);

    /// How many Householder reflections I - 2 v v^T make up Q.
    std::size_t reflections() const { return m_reflectors.columns; }
    /// The unit vector v of a reflection, from row i on; it has zeros above.
    std::span<double const> reflector(std::size_t i) const { return m_reflectors.column(i).subspan(i); }

    /// Multiplies a vector, which has as many numbers as A has rows, by Q^T in place.
    void applyQTransposed(std::span<double> vector) const;
    /// Multiplies a vector by Q in place.
    void applyQ(std::span<double> vector) const;
    /// The solution x of R P^T x = y; y has at least as many numbers as A has columns.
    std::vector<double> solveTriangle(std::span<double const> y) const;
    /// The x that makes the residuals A x - b shortest.
    std::vector<double> solve(std::span<double const> b) const;

private:
    explicit Factorisation(Matrix matrix);
    void pivot(std::size_t step);
    void eliminate(std::size_t step);

    Matrix m_reflectors;                // on and below the diagonal; R stands above it
    std::vector<double> m_diagonal;     // the diagonal of R
    std::vector<std::size_t> m_columns; // the permutation P: the column of A that each of the columns was
};

} // namespace ZrProj

// A = L L^T, column block by column block: the block's own rows, the rows below it, and then what these take off the
// rest of the matrix, which is nearly all of the work and goes tile by tile through registers.
#include "georef/kernels/kernels.h"

namespace ZrProj::georef::ZRPROJ_LEVEL {
namespace {

constexpr std::size_t blockColumns = 64; // a multiple of every register's size
constexpr std::size_t tileRows = 2, tileColumns = 4;

double sumOf(Register x) {
    double lane[lanes];
    store(lane, x);
    double sum = 0;
    for (double const value : lane)
        sum += value;
    return sum;
}

double dot(double const* a, double const* b, std::size_t count) {
    Register sum = 0.0;
    std::size_t i = 0;
    for (; i + lanes <= count; i += lanes)
        sum = sum + load(a + i) * load(b + i);
    double rest = 0;
    for (; i < count; ++i)
        rest += a[i] * b[i];
    return sumOf(sum) + rest;
}

/// Rows from `begin` on, in the columns from `begin` to `end`, once the columns before have been taken off.
bool factoriseColumns(SymmetricMatrix const& m, std::size_t begin, std::size_t end, double leastPivot) {
    for (std::size_t i = begin; i < m.size; ++i) {
        double* const row = m.row(i) + begin;
        for (std::size_t j = 0; j < end - begin && begin + j <= i; ++j) {
            double const* const other = m.row(begin + j) + begin;
            double const rest = row[j] - dot(row, other, j);
            if (begin + j < i)
                row[j] = rest / other[j];
            else if (rest > leastPivot)
                row[j] = sqrt(rest);
            else
                return false;
        }
    }
    return true;
}

/// Takes the products of the rows' last blockColumns columns off a tile of the matrix.
void takeOffTile(SymmetricMatrix const& m, std::size_t i, std::size_t j, std::size_t begin) {
    Register sums[tileRows][tileColumns] = {};
    for (std::size_t k = begin; k < begin + blockColumns; k += lanes)
        for (std::size_t r = 0; r < tileRows; ++r) {
            Register const left = load(m.row(i + r) + k);
            for (std::size_t c = 0; c < tileColumns; ++c)
                sums[r][c] = sums[r][c] + left * load(m.row(j + c) + k);
        }
    for (std::size_t r = 0; r < tileRows; ++r)
        for (std::size_t c = 0; c < tileColumns; ++c)
            m.row(i + r)[j + c] -= sumOf(sums[r][c]);
}

/// The columns from `begin` on, blockColumns of them, off the rest of the matrix. Above the diagonal a tile's values
/// are never looked at.
void takeOff(SymmetricMatrix const& m, std::size_t begin) {
    std::size_t const rest = begin + blockColumns;
    for (std::size_t i = rest; i < m.size; i += tileRows) {
        bool const wholeRows = i + tileRows <= m.size;
        std::size_t j = rest;
        for (; wholeRows && j + tileColumns <= m.size && j < i + tileRows; j += tileColumns)
            takeOffTile(m, i, j, begin);
        for (std::size_t r = i; r < i + tileRows && r < m.size; ++r)
            for (std::size_t c = j; c <= r; ++c)
                m.row(r)[c] -= dot(m.row(r) + begin, m.row(c) + begin, blockColumns);
    }
}

} // namespace

bool factorise(SymmetricMatrix const& m, double leastPivot) noexcept {
    for (std::size_t begin = 0; begin < m.size; begin += blockColumns) {
        std::size_t const end = begin + blockColumns < m.size ? begin + blockColumns : m.size;
        if (!factoriseColumns(m, begin, end, leastPivot))
            return false;
        if (end < m.size)
            takeOff(m, begin);
    }
    return true;
}

} // namespace ZrProj::georef::ZRPROJ_LEVEL

// Leverages. With orthonormal columns q spanning the terms at the controls, the leverage of control i is the sum of its
// q_i^2. A similarity is Z = a z + b in complex numbers, whose columns are 1 and z.
//
// Source    Cook & Weisberg (1982), Residuals and Influence in Regression, pp. 11-14.
#include "georef/leverage.h"

#include "georef/method_table.h"
#include "georef/terms.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace ZrProj {
namespace {

using Column = std::vector<double>;

double dot(Column const& a, Column const& b) {
    return std::inner_product(a.begin(), a.end(), b.begin(), 0.0);
}

void divide(Column& column, double by) {
    for (double& value : column)
        value /= by;
}

/// A coordinate of the controls, counted from its mean, which is no more than rounding off.
Column centred(std::span<GEOREFPOINT const> points, double GEOREFPOINT::*coordinate) {
    Column result;
    double mean = 0;
    for (auto const& point : points)
        mean += point.*coordinate / static_cast<double>(points.size());
    for (auto const& point : points)
        result.push_back(point.*coordinate - mean);
    return result;
}

/// Coordinates between -1 and 1, in one unit.
struct ScaledSources {
    Column u, v;

    explicit ScaledSources(std::span<GEOREFPOINT const> sources)
        : u(centred(sources, &GEOREFPOINT::x)), v(centred(sources, &GEOREFPOINT::y)) {
        double size = 0;
        for (std::size_t i = 0; i < u.size(); ++i)
            size = std::max({size, std::fabs(u[i]), std::fabs(v[i])});
        divide(u, size);
        divide(v, size);
    }
};

Column columnOf(Term const& term, ScaledSources const& scaled) {
    Column column(scaled.u.size());
    for (std::size_t i = 0; i < column.size(); ++i)
        column[i] = power(scaled.u[i], term.u) * power(scaled.v[i], term.v);
    return column;
}

/// By Gram and Schmidt, each column twice.
std::vector<Column> orthonormalColumns(std::span<Term const> terms, ScaledSources const& scaled) {
    std::vector<Column> done;
    for (Term const& term : terms) {
        Column column = columnOf(term, scaled);
        for (int round = 0; round < 2; ++round)
            for (Column const& other : done) {
                double const along = dot(other, column);
                for (std::size_t i = 0; i < column.size(); ++i)
                    column[i] -= along * other[i];
            }
        divide(column, std::sqrt(dot(column, column)));
        done.push_back(std::move(column));
    }
    return done;
}

std::vector<double> similarityLeverages(ScaledSources const& scaled) {
    auto const& [u, v] = scaled;
    double const all = dot(u, u) + dot(v, v);
    std::vector<double> result(u.size());
    for (std::size_t i = 0; i < result.size(); ++i)
        result[i] = 1 / static_cast<double>(result.size()) + (u[i] * u[i] + v[i] * v[i]) / all;
    return result;
}

} // namespace

std::vector<double> leverages(TransformMethod method, std::span<GEOREFPOINT const> sources) {
    ScaledSources const scaled(sources);
    if (method == TransformMethodHelmert)
        return similarityLeverages(scaled);
    std::vector<double> result(sources.size());
    for (Column const& column : orthonormalColumns(termsOf(georefMethodRow(method).terms), scaled))
        for (std::size_t i = 0; i < result.size(); ++i)
            result[i] += column[i] * column[i];
    return result;
}

} // namespace ZrProj

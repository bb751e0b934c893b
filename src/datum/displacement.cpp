#include "datum/displacement.h"

#include <cmath>
#include <numbers>

namespace ZrProj::datum {
namespace {

using Matrix = std::array<Vector, 3>;

Vector sum(Vector const& a, Vector const& b) {
    return {a[0] + b[0], a[1] + b[1], a[2] + b[2]};
}
Vector times(double factor, Vector const& a) {
    return {factor * a[0], factor * a[1], factor * a[2]};
}
double dot(Vector const& a, Vector const& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}
Vector cross(Vector const& a, Vector const& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}
Vector product(Matrix const& m, Vector const& a) {
    return {dot(m[0], a), dot(m[1], a), dot(m[2], a)};
}
Matrix transposed(Matrix const& m) {
    return {{{m[0][0], m[1][0], m[2][0]}, {m[0][1], m[1][1], m[2][1]}, {m[0][2], m[1][2], m[2][2]}}};
}
/// The columns of `b`, each multiplied by `a`.
Matrix product(Matrix const& a, Matrix const& b) {
    Matrix const columns = transposed(b);
    return transposed({product(a, columns[0]), product(a, columns[1]), product(a, columns[2])});
}
Matrix plusIdentity(Matrix m) {
    for (std::size_t i = 0; i < 3; ++i)
        m[i][i] += 1;
    return m;
}
Matrix inverted(Matrix const& m) {
    Matrix const columns = transposed(m);
    Vector const first = cross(columns[1], columns[2]);
    double const perDeterminant = 1 / dot(columns[0], first);
    return {times(perDeterminant, first), times(perDeterminant, cross(columns[2], columns[0])),
            times(perDeterminant, cross(columns[0], columns[1]))};
}

/// R of rotations in arcseconds.
Matrix skew(Vector const& rotation) {
    auto const [x, y, z] = times(std::numbers::pi / 180 / 3600, rotation);
    return {{{0, -z, y}, {z, 0, -x}, {-y, x, 0}}};
}

/// factor R + diagonal I
Matrix linearOf(double factor, Matrix const& r, double diagonal) {
    Matrix linear{times(factor, r[0]), times(factor, r[1]), times(factor, r[2])};
    for (std::size_t i = 0; i < 3; ++i)
        linear[i][i] += diagonal;
    return linear;
}

/// A linear part about a centre, and what is added to all places.
Displacement about(Vector const& centre, Matrix const& linear, Vector const& added) {
    return {linear, sum(added, times(-1, product(linear, centre)))};
}

} // namespace

Vector Displacement::of(Vector const& place) const {
    return sum(product(linear, place), constant);
}

// With L the linear part and t the constant, (I + L)^-1 - I = -(I + L)^-1 L, which loses no digits.
Displacement Displacement::inverse() const {
    Matrix const back = inverted(plusIdentity(linear));
    Matrix const columns = transposed(linear);
    return {transposed({times(-1, product(back, columns[0])), times(-1, product(back, columns[1])),
                        times(-1, product(back, columns[2]))}),
            times(-1, product(back, constant))};
}

Displacement Displacement::then(Displacement const& next) const {
    Displacement both;
    Matrix const together = product(next.linear, linear);
    for (std::size_t i = 0; i < 3; ++i)
        both.linear[i] = sum(sum(linear[i], next.linear[i]), together[i]);
    both.constant = sum(constant, next.of(constant));
    return both;
}

Displacement displacementBy(SevenParameters const& p) {
    double const s = p.scale * 1e-6;
    return about(p.pivot, linearOf(1 + s, skew(p.rotation), s), p.translation);
}

Displacement displacementBackBy(SevenParameters const& p) {
    double const perFactor = 1 / (1 + p.scale * 1e-6);
    return about(sum(p.pivot, p.translation), linearOf(-perFactor, skew(p.rotation), -p.scale * 1e-6 * perFactor),
                 times(-1, p.translation));
}

} // namespace ZrProj::datum

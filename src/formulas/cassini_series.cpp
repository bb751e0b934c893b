#include "formulas/cassini_series.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

/// A polynomial in s, by powers.
struct Polynomial {
    static constexpr int size = CassiniSeries::coefficients + 2;
    double c[size] = {};

    friend Polynomial operator+(Polynomial a, Polynomial const& b) {
        for (int i = 0; i < size; ++i)
            a.c[i] += b.c[i];
        return a;
    }
    friend Polynomial operator*(double factor, Polynomial a) {
        for (auto& coefficient : a.c)
            coefficient *= factor;
        return a;
    }
    friend Polynomial operator*(Polynomial const& a, Polynomial const& b) {
        Polynomial product;
        for (int i = 0; i < size; ++i)
            for (int j = 0; i + j < size; ++j)
                product.c[i + j] += a.c[i] * b.c[j];
        return product;
    }
};

Polynomial derivative(Polynomial const& a) {
    Polynomial slope;
    for (int i = 1; i < Polynomial::size; ++i)
        slope.c[i - 1] = i * a.c[i];
    return slope;
}

/// The coefficients of lambda^(2 k).
struct Recursion {
    static constexpr int orders = CassiniSeries::orders;

    Polynomial const s{{0, 1}};
    Polynomial spread;            // 2 c2 N / M, with c2 = 1 - s and N / M = 1 + E c2
    Polynomial alpha[orders];     // x = N cos phi lambda sum of alpha
    Polynomial beta[orders];      // y = ... + N sin phi cos phi lambda^2 sum of beta
    Polynomial along[orders];     // dx / d(north) = sin phi lambda sum of along
    Polynomial across[orders];    // dx / d(east) = sum of across
    Polynomial northward[orders]; // dy / d(north)

    explicit Recursion(double E) : spread(2.0 * Polynomial{{1 + E, -1 - 2 * E, E}}) {
        setDistance(0, {{1}});
        northward[0] = {{1}};
        for (int k = 1; k < orders; ++k)
            setDistance(k, distance(k));
        for (int k = 0; k < orders; ++k) {
            beta[k] = northing(k);
            if (k + 1 < orders)
                northward[k + 1] = (0.5 * spread + -1.0 * s) * beta[k] + s * spread * derivative(beta[k]);
        }
    }

    void setDistance(int k, Polynomial const& value) {
        alpha[k] = value;
        along[k] = -1.0 * value + spread * derivative(value);
        across[k] = (2 * k + 1.0) * value;
    }

    /// From across^2 + s lambda^2 along^2 = 1.
    Polynomial distance(int k) const {
        Polynomial rest;
        for (int i = 1; i < k; ++i)
            rest = rest + across[i] * across[k - i];
        for (int i = 0; i < k; ++i)
            rest = rest + s * along[i] * along[k - 1 - i];
        return (-0.5 / (2 * k + 1)) * rest;
    }

    /// From along northward + across dy / d(east) = 0, where dy / d(east) = sin phi lambda sum of 2 (k + 1) beta.
    Polynomial northing(int k) const {
        Polynomial rest = along[0] * northward[k];
        for (int i = 1; i <= k; ++i)
            rest = rest + along[i] * northward[k - i] + (2.0 * (k - i + 1)) * across[i] * beta[k - i];
        return (-0.5 / (k + 1)) * rest;
    }
};

} // namespace

CassiniSeries::CassiniSeries(double flattening) : meridian(flattening) {
    double const e2 = meridian.e2;
    Recursion const recursion(e2 / (1 - e2));
    for (int k = 0; k < orders; ++k)
        for (int power = 0; power < coefficients; ++power) {
            alpha[k][power] = recursion.alpha[k].c[power];
            beta[k][power] = recursion.beta[k].c[power];
        }
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL

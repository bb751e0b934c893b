// The geodesic from a centre to a place, which the azimuthal maps of the ellipsoid start from.
//
// Source    Karney (2013), Algorithms for geodesics, Journal of Geodesy 87, pp. 43-55; equation numbers are his.
// Departs   Newton's method in two dimensions on the direct problem, see geodesic.h.
// Accuracy  that of geodesic.h.
//
// beta1    reduced latitude of the centre          alpha1   azimuth of a place from there
#pragma once

#include "formulas/geodesic.h"
#include "formulas/world.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

/// A geodesic from the centre, its length in units of the semi-minor axis.
template <class R> struct Course {
    SinCos<R> alpha1;
    R length;
};

struct GeodesicsFromCentre {
    GeodesicSeries series;
    double f;
    SinCos<double> beta1;
    double focus; // the size of the astroid about the antipode, as an arc

    GeodesicsFromCentre(double flattening, double phi1)
        : series(flattening), f(flattening), beta1(series.reduced(phi1)),
          focus(f * pi * beta1.cos * beta1.cos * (1 - 0.25 * f * beta1.sin * beta1.sin)) {}

    template <class R> GeodesicLine<R> line(SinCos<R> alpha1) const {
        return series.line(SinCos<R>{beta1.sin, beta1.cos}, alpha1);
    }

    /// The geodesic to a place east of the centre. Two or three steps of Newton's method; a few more, up to 25, within
    /// metres of where the antipode's astroid ends.
    template <class R> Course<R> courseTo(SinCos<R> beta, R lambda) const {
        auto course = estimate(beta, lambda);
        auto arrived = lambda != lambda;
        for (int i = 0; i < 40 && !all(arrived); ++i) {
            auto const from = line(course.alpha1);
            auto const end = series.end(from, course.length / from.A1);
            auto const miss = series.miss(end, beta, lambda);
            R const reach = (1 - f) * series.reducedLength(from, end);
            R const turn = clamped(miss.right / larger(reach, R(1e-13)), -0.5, 0.5);
            auto const turned = angleOfPoint(sumOf(course.alpha1, sinCos(turn)));
            course.alpha1 = {select(arrived, course.alpha1.sin, turned.sin),
                             select(arrived, course.alpha1.cos, turned.cos)};
            course.length = course.length + select(arrived, R(0.0), miss.ahead / (1 - f));
            arrived = arrived | isLast(miss, turn);
        }
        return course;
    }

private:
    /// Within some 1e-5 of the geodesic.
    template <class R> Course<R> estimate(SinCos<R> beta, R lambda) const {
        auto const first = onSphere(beta, lambda);
        auto const second = onSphere(beta, lambda + f * beta1.cos * first.alpha1.sin * first.sigma12);
        Course<R> const usual{second.alpha1, lengthOf(second)};
        auto const antipodal = second.sigma12 > pi - 3 * focus;
        if (!any(antipodal)) // most often; the values of the others are the same either way
            return usual;
        R const x = (pi - lambda) * (beta1.cos / focus), y = (beta.sin * beta1.cos + beta.cos * beta1.sin) / focus;
        auto const before = beforeFocus(x, y);
        return {{select(antipodal, before.angle.cos, usual.alpha1.sin),
                 select(antipodal, before.angle.sin, usual.alpha1.cos)},
                select(antipodal, pi - focus * before.kappa, usual.length)};
    }

    /// A great circle from the centre to a place on the auxiliary sphere.
    template <class R> struct Circle {
        SinCos<R> alpha1, arc;
        R sigma12;
    };

    template <class R> Circle<R> onSphere(SinCos<R> beta, R omega) const {
        auto const half = sinCos(0.5 * omega);
        R const versine = 2.0 * half.sin * half.sin, east = 2.0 * beta.cos * half.sin * half.cos;
        R const north = beta1.cos * beta.sin - beta1.sin * beta.cos * (1.0 - versine);
        R const up = beta1.sin * beta.sin + beta1.cos * beta.cos * (1.0 - versine);
        R const across = sqrt(east * east + north * north);
        return {angleOfPoint<R>({east, north}), {across, up}, atan2(across, up)};
    }

    /// The length of the geodesic, (15) to the first order in k^2.
    template <class R> R lengthOf(Circle<R> const& circle) const {
        R const north = circle.alpha1.cos * beta1.cos; // cos alpha0 times cos sigma1; times sin sigma1 it is sin beta1
        double const sin2 = beta1.sin * beta1.sin;
        R const wave = (north * north - sin2) * circle.arc.cos - 2.0 * north * beta1.sin * circle.arc.sin;
        return circle.sigma12 + series.ep2 / 4 * ((north * north + sin2) * circle.sigma12 - wave * circle.arc.sin);
    }
};

} // namespace ZrProj::formulas::ZRPROJ_LEVEL

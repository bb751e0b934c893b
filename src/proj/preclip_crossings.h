// Where a segment in longitude and latitude crosses a curve: the points where a function along the segment changes its
// sign.
#pragma once

#include <cmath>

namespace ZrProj::preclip {

/// Finds all sign changes of a function on an interval, in order, given a bound on its second derivative: an interval
/// is halved until the bound tells that it has none or exactly one. What stays within 1e-9 of 0 may be passed over.
template <class Function, class Report> class SignChanges {
public:
    SignChanges(Function const& function, double curvature, Report const& report)
        : f_(function), curvature_(curvature), report_(report) {}

    void search(double s0, double f0, double s1, double f1) const {
        double const h = s1 - s0, bend = curvature_ * h * h, slack = bend / 8;
        if ((f0 >= 0) == (f1 >= 0)) {
            if (slack < negligible || std::fmin(std::fabs(f0), std::fabs(f1)) >= slack)
                return;
        } else if (slack < negligible || std::fabs(f1 - f0) > bend) {
            report_(root(s0, f0, s1, f1));
            return;
        }
        double const middle = s0 + h / 2, f = f_(middle);
        if (bend < flat && std::fabs(f0) + std::fabs(f) + std::fabs(f1) < negligible && (f0 >= 0) == (f1 >= 0))
            return; // the segment lies along the curve
        search(s0, f0, middle, f);
        search(middle, f, s1, f1);
    }

private:
    static constexpr double negligible = 1e-9, flat = 1e-3, exact = 1e-15;

    /// The one root between, by the Illinois form of false position: the end of the last interval where the function is
    /// not negative.
    double root(double s0, double f0, double s1, double f1) const {
        double inside = f0 >= 0 ? s0 : s1, fInside = f0 >= 0 ? f0 : f1;
        double outside = f0 >= 0 ? s1 : s0, fOutside = f0 >= 0 ? f1 : f0;
        double weightInside = fInside, weightOutside = fOutside;
        for (int i = 0; i < 60 && fInside > exact && std::fabs(outside - inside) > exact; ++i) {
            double const share = weightInside / (weightInside - weightOutside);
            double const s = inside + (outside - inside) * (i < 40 ? share : 0.5), f = f_(s);
            if (f >= 0) {
                inside = s;
                fInside = weightInside = f;
                weightOutside /= 2;
            } else {
                outside = s;
                weightOutside = f;
                weightInside /= 2;
            }
        }
        return inside;
    }

    Function const& f_;
    double curvature_;
    Report const& report_;
};

} // namespace ZrProj::preclip

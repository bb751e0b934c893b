// Complex numbers over any number type, for conformal maps that are polynomials.
#pragma once

#include "formulas/points.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

template <class R> struct Complex {
    R re, im;

    friend Complex operator+(Complex a, Complex b) { return {a.re + b.re, a.im + b.im}; }
    friend Complex operator-(Complex a, Complex b) { return {a.re - b.re, a.im - b.im}; }
    friend Complex operator*(Complex a, Complex b) { return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re}; }
    friend Complex operator/(Complex a, Complex b) {
        R const scale = 1.0 / (b.re * b.re + b.im * b.im);
        return {(a.re * b.re + a.im * b.im) * scale, (a.im * b.re - a.re * b.im) * scale};
    }
    R square() const { return re * re + im * im; }
};

} // namespace ZrProj::formulas::ZRPROJ_LEVEL

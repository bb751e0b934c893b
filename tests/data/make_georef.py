#!/usr/bin/env python3
"""Writes georef_polynomials.txt and georef_warps.txt: fits to control points, and what they map points to, worked out
with 60 digits (mpmath). Polynomials solve the normal equations of the raw terms; warps the equations

    sum_j w_j basis(|p_i - p_j|) + a + b x_i + c y_i = target_i,   sum w = sum w x = sum w y = 0,

in raw pixels. Run it in this folder.

A file holds cases: a line "case METHOD CONTROLS POINTS", then a line "x y X Y" for each control, then the same for each
point, whose X and Y are the result."""
import random

from mpmath import exp, log, lu_solve, matrix, mp, mpf, nstr, sqrt

mp.dps = 60
TERMS = {
    0: None,
    1: [(0, 0), (1, 0), (0, 1)],
    2: [(0, 0), (1, 0), (0, 1), (1, 1)],
    3: [(0, 0), (1, 0), (0, 1), (2, 0), (1, 1), (0, 2)],
    4: [(0, 0), (1, 0), (0, 1), (2, 0), (1, 1), (0, 2), (3, 0), (2, 1), (1, 2), (0, 3)],
}


def helmert(controls):
    """The similarity by its two pairs of equations a control, columns a, b, c, d."""
    rows, wanted = [], []
    for x, y, X, Y in controls:
        rows += [[x, -y, 1, 0], [y, x, 0, 1]]
        wanted += [X, Y]
    m, t = matrix(rows), matrix(wanted)
    a, b, c, d = lu_solve(m.T * m, m.T * t)
    return lambda x, y: (a * x - b * y + c, b * x + a * y + d)


def polynomial(terms, controls):
    m = matrix([[x**i * y**j for i, j in terms] for x, y, _, _ in controls])
    sides = [lu_solve(m.T * m, m.T * matrix([c[k] for c in controls])) for k in (2, 3)]
    return lambda x, y: tuple(sum(s[n] * x**i * y**j for n, (i, j) in enumerate(terms)) for s in sides)


def distance(p, q):
    return sqrt((p[0] - q[0])**2 + (p[1] - q[1])**2)


def mean_neighbour_distance(controls):
    nearest = [min(distance(p, q) for q in controls if q is not p) for p in controls]
    return sum(nearest) / len(nearest)


def basis_of(method, s):
    return {
        0: lambda r: r * r * log(r) if r else mpf(0),
        1: lambda r: r**3,
        2: lambda r: (1 + r / s) * exp(-r / s),
        3: lambda r: exp(-r / s),
        4: lambda r: 1 / (1 + (r / s)**2),
    }[method]


def spline(method, controls):
    n, basis = len(controls), basis_of(method, mean_neighbour_distance(controls))
    m = matrix(n + 3, n + 3)
    for i, p in enumerate(controls):
        for j, q in enumerate(controls):
            m[i, j] = basis(distance(p, q))
        for k, term in enumerate((mpf(1), p[0], p[1])):
            m[i, n + k] = m[n + k, i] = term
    sides = [lu_solve(m, matrix([c[k] for c in controls] + [0, 0, 0])) for k in (2, 3)]

    def mapped(x, y):
        row = [basis(distance((x, y), q)) for q in controls] + [mpf(1), x, y]
        return tuple(sum(a * b for a, b in zip(s, row)) for s in sides)

    return mapped


def inverse_distances(controls):
    plane = polynomial(TERMS[1], controls)
    rest = [(X - plane(x, y)[0], Y - plane(x, y)[1]) for x, y, X, Y in controls]

    def mapped(x, y):
        weights = [1 / distance((x, y), q)**2 for q in controls]
        return tuple(p + sum(w * r[k] for w, r in zip(weights, rest)) / sum(weights)
                     for k, p in enumerate(plane(x, y)))

    return mapped


def fit(method, controls):
    if method == 0:
        return helmert(controls)
    if method < 5:
        return polynomial(TERMS[method], controls)
    return inverse_distances(controls) if method == 11 else spline(method - 6, controls)


def number(value):
    return nstr(value, 22, strip_zeros=True)


def scan(count, size, noise, seed):
    """Controls all over a scan of size pixels, of a UTM map turned by a degree, with a lens's bend and noise in metres."""
    random.seed(seed)
    controls = []
    for _ in range(count):
        x, y = (mpf(round(random.uniform(0, size), 2)) for _ in range(2))
        u, v = x / size - mpf(1) / 2, y / size - mpf(1) / 2
        bend = 120 * (u * u + v * v)
        X = 465000 + mpf("2.54") * x + mpf("0.044") * y + bend * u + mpf(random.gauss(0, noise))
        Y = 5427000 + mpf("0.044") * x - mpf("2.54") * y + bend * v + mpf(random.gauss(0, noise))
        controls.append((x, y, mpf(float(X)), mpf(float(Y))))
    return controls


def write(name, about, cases):
    with open(name, "w", encoding="ascii") as out:
        out.write(f"# {about} Made by make_georef.py with mpmath, 60 digits.\n")
        for method, controls, size in cases:
            mapped = fit(method, [tuple(mpf(float(v)) for v in c) for c in controls])
            points = [(mpf(round(random.uniform(-size * 0.1, size * 1.1), 1)),
                       mpf(round(random.uniform(-size * 0.1, size * 1.1), 1))) for _ in range(6)]
            out.write(f"case {method} {len(controls)} {len(points)}\n")
            for c in controls:
                out.write(" ".join(repr(float(v)) for v in c) + "\n")
            for p in points:
                p = tuple(mpf(float(v)) for v in p)
                out.write(" ".join([repr(float(p[0])), repr(float(p[1])), *map(number, mapped(*p))]) + "\n")


def main():
    write("georef_polynomials.txt", "Least-squares fits to noisy controls.",
          [(method, scan(count, size, noise, 10 * method + seed), size)
           for method in range(5)
           for seed, (count, size, noise) in enumerate([(12, 40000, 3), (40, 100000, 500)])])
    write("georef_warps.txt", "Image registrations between and around their controls.",
          [(method, scan(count, size, noise, 10 * method + seed), size)
           for method in range(6, 12)
           for seed, (count, size, noise) in enumerate([(3, 4000, 5), (15, 40000, 30)])])


if __name__ == "__main__":
    main()

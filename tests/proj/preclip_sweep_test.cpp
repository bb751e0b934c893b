// Random lines and areas in every projection. ZRPROJ_PRECLIP_SWEEP in the environment sets how many of each a
// projection gets.
#include <zrproj/preclip.h>

#include "support/cases.h"
#include "support/faults.h"
#include "support/registry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <random>
#include <sstream>
#include <utility>

using namespace ZrProj;
using namespace ZrProj::test;

namespace {

using Points = std::vector<PROJPOINT>;
using Chains = std::vector<Points>;

constexpr double degree = 3.141592653589793 / 180;

enum Kind { line, area };

struct Shape {
    Kind kind;
    Points points;
    bool isSimple = false; // a ring that does not meet itself
    bool holdsItsLeft = true;
};

int shapesPerProjection() {
    char const* const asked = std::getenv("ZRPROJ_PRECLIP_SWEEP");
    return asked ? static_cast<int>(std::strtol(asked, nullptr, 10)) : 200;
}

double stepOf(double from, double to) {
    return std::fabs(to - from) > 180 ? std::remainder(to - from, 360) : to - from;
}

/// Calls `segment(from, to)` with the segments of a path, in unwrapped longitudes.
template <class Segment> void forSegments(Kind kind, Points const& points, Segment const& segment) {
    double lon = points[0].x;
    for (std::size_t i = 1; i < points.size() + (kind == area ? 1 : 0); ++i) {
        auto const &a = points[i - 1], &b = points[i % points.size()];
        double const next = lon + stepOf(a.x, b.x);
        segment(PROJPOINT{lon, a.y}, PROJPOINT{next, b.y});
        lon = next;
    }
}

/// The integral of a latitude's sine or cosine over longitude along a segment, in radians; `whole` is the other's
/// integral.
template <class Function, class Whole>
double alongEdge(PROJPOINT const& a, PROJPOINT const& b, Function const& function, Whole const& whole) {
    double const p = a.y * degree, q = b.y * degree;
    double const mean = std::fabs(q - p) < 1e-7 ? function((p + q) / 2) : (whole(q) - whole(p)) / (q - p);
    return mean * (b.x - a.x) * degree;
}

/// The way north and south, and the way east and west, on the unit sphere.
double lengthOf(Points const& points) {
    double length = 0;
    forSegments(line, points, [&](PROJPOINT a, PROJPOINT b) {
        auto const cosine = [](double x) { return std::cos(x); };
        auto const sine = [](double x) { return std::sin(x); };
        length += std::fabs(b.y - a.y) * degree + std::fabs(alongEdge(a, b, cosine, sine));
    });
    return length;
}

/// What lies to the left of a ring on the unit sphere, less what a pole adds, and how often the ring winds around.
struct Measure {
    double area = 0, turns = 0;
};

Measure measureOf(Points const& ring) {
    Measure sum;
    forSegments(area, ring, [&](PROJPOINT a, PROJPOINT b) {
        sum.area -= alongEdge(
            a, b, [](double x) { return std::sin(x); }, [](double x) { return -std::cos(x); });
        sum.turns += (b.x - a.x) / 360;
    });
    return sum;
}

/// The area that rings bound together, having it all to the left or all to the right.
double areaOf(Chains const& rings, bool left) {
    Measure sum;
    for (auto const& ring : rings) {
        auto const one = measureOf(ring);
        sum.area += one.area;
        sum.turns += one.turns;
    }
    return (left ? sum.area : -sum.area) + 360 * degree * std::fabs(std::round(sum.turns));
}

class Shapes {
public:
    explicit Shapes(PROJPOINT centre) : centre_(centre) {}

    Shape next() {
        switch (random_() % 6) {
        case 0:
            return {line, walk(2 + int(random_() % 8), 170)};
        case 1:
            return {line, walk(20, 10)};
        case 2:
            return {area, walk(3 + int(random_() % 8), 170)};
        case 3:
            return around();
        default:
            return star();
        }
    }

private:
    double between(double low, double high) { return std::uniform_real_distribution<double>(low, high)(random_); }

    static double latitude(double y) { return std::clamp(y, -90.0, 90.0); }

    /// Now and then on a line that is delicate.
    PROJPOINT place(PROJPOINT p) {
        constexpr double delicate[] = {0, 90, 180, -90, 45, -180};
        if (random_() % 16 == 0)
            p.x = centre_.x + delicate[random_() % 6];
        if (random_() % 16 == 0)
            p.y = delicate[random_() % 2] * (random_() % 2 ? 1 : -1);
        if (random_() % 64 == 0)
            p = {centre_.x + 180, -centre_.y};
        return {std::remainder(p.x, 360), latitude(p.y)};
    }

    PROJPOINT anywhere() { return {between(-180, 180), std::asin(between(-1, 1)) / degree}; }

    Points walk(int count, double step) {
        Points points{place(anywhere())};
        while (int(points.size()) < count) {
            auto const& last = points.back();
            points.push_back(
                place({last.x + between(-step, step), last.y + between(-step, step) / (step > 90 ? 2 : 1)}));
        }
        return points;
    }

    Shape oriented(Points points, bool left) {
        if (random_() % 2)
            return {area, std::move(points), true, left};
        std::ranges::reverse(points);
        return {area, std::move(points), true, !left};
    }

    Shape star() {
        PROJPOINT const middle = anywhere();
        double const size = std::pow(10, between(-1, 1.9));
        int const count = 8 + int(random_() % 30);
        Points points;
        bool isSimple = true;
        double eastmostNorth = HUGE_VAL, westmostSouth = -HUGE_VAL; // of the next vertices that the poles cut off
        for (int i = 0; i < count; ++i) {
            double const angle = (i + between(0, 0.9)) * 360 / count * degree, radius = size * between(0.3, 1);
            double const lon = middle.x + radius * std::cos(angle), lat = middle.y + radius * std::sin(angle);
            if (lat > 90)
                isSimple = isSimple && lon <= std::exchange(eastmostNorth, lon);
            if (lat < -90)
                isSimple = isSimple && lon >= std::exchange(westmostSouth, lon);
            points.push_back({std::remainder(lon, 360), latitude(lat)});
        }
        auto star = oriented(std::move(points), true);
        star.isSimple = isSimple;
        return star;
    }

    /// Around a pole.
    Shape around() {
        double const lat = between(-85, 85), rough = between(0, std::fmin(20, 88 - std::fabs(lat)));
        int const count = 4 + int(random_() % 40); // no step of half a turn
        Points points;
        double integral = 0;
        for (int i = 0; i < count; ++i)
            points.push_back({std::remainder((i + between(0, 0.9)) * 360 / count, 360), lat + between(-rough, rough)});
        forSegments(area, points, [&](PROJPOINT a, PROJPOINT b) { integral += (a.y + b.y) * (b.x - a.x); });
        return oriented(std::move(points), integral > 0);
    }

    std::mt19937_64 random_{7};
    PROJPOINT centre_;
};

/// A projection, and what preclipping to it must be like.
class Subject {
public:
    explicit Subject(std::string const& words) : projection_(words), record_(recordOf(words)), projector_(&record_) {}

    PROJDATA const& record() { return projection_.record(); }

    Chains preclip(Kind kind, Points const& points) {
        CPROJCHAIN* chains = nullptr;
        auto const count = static_cast<unsigned>(points.size());
        bool const done = kind == line ? projector_.LLPreclipPolyline(points.data(), count, &chains)
                                       : projector_.LLPreclipPolygon(points.data(), count, &chains);
        EXPECT_TRUE(done);
        Chains result;
        for (auto const* chain = chains; chain; chain = chain->pNext) {
            result.push_back({chain->pPoints, chain->pPoints + chain->nPoints});
            EXPECT_EQ(chain->bClosed, kind == area);
        }
        ProjFreeChains(chains);
        return result;
    }

    /// Whether a point is in range and comes back from the map.
    bool isGood(PROJPOINT const& point) {
        if (!projection_.isInRange(point))
            return false;
        auto const map = projection_.forward(point);
        if (isMarked(map) || isBeyondTheSeries(point))
            return !isMarked(map);
        auto const back = projection_.inverse(map);
        if (isMarked(back))
            return false;
        double const near = isTransverse() ? 1e-7 : 1e-9;
        if (std::hypot(longitudesApart(back.x, point.x) * std::cos(point.y * degree), back.y - point.y) < near)
            return true;
        auto const again = projection_.forward(back);
        return std::hypot(again.x - map.x, again.y - map.y) <
               projection_.mapLength(1e-6) + 1e-12 * std::hypot(map.x, map.y) + projection_.mapMove(point, 1e-12);
    }

    /// Whether the map goes on between two points of a path: halved and halved again, no step stays long.
    bool goesOn(PROJPOINT a, PROJPOINT b) {
        b.x = a.x + stepOf(a.x, b.x);
        constexpr int parts = 24;
        auto const at = [&](double s) { return PROJPOINT{a.x + s * (b.x - a.x), a.y + s * (b.y - a.y)}; };
        for (int i = 0; i < parts; ++i)
            if (jumps(at(double(i) / parts), at(double(i + 1) / parts)))
                return false;
        return true;
    }

private:
    bool isTransverse() {
        auto const type = record().Type;
        return (type == ProjTypeTransverseMercator || type == ProjTypeGaussKruger ||
                type == ProjTypeUniversalTransverseMercator) &&
               record().Flattening != 0;
    }

    bool isBeyondTheSeries(PROJPOINT const& point) { return isTransverse() && std::fabs(point.x - record().Lon0) > 3; }

    bool jumps(PROJPOINT a, PROJPOINT b) {
        auto p = projection_.forward(a), q = projection_.forward(b);
        double const least = projection_.mapLength(1e5);
        for (int i = 0; i < 60; ++i) {
            if (isMarked(p) || isMarked(q)) // a chord of a round edge may lie outside
                return false;
            if (std::fabs(a.y) > 89.999 || std::fabs(b.y) > 89.999) // a pole may be infinitely far from anywhere
                return false;
            double const far = std::fmax(std::hypot(p.x, p.y), std::hypot(q.x, q.y));
            if (std::hypot(q.x - p.x, q.y - p.y) < least + 0.1 * far)
                return false;
            if (std::hypot(b.x - a.x, b.y - a.y) < 1e-11)
                return true;
            PROJPOINT const middle{(a.x + b.x) / 2, (a.y + b.y) / 2}, m = projection_.forward(middle);
            if (isMarked(m))
                return false;
            bool const first = std::hypot(m.x - p.x, m.y - p.y) > std::hypot(q.x - m.x, q.y - m.y);
            (first ? b : a) = middle;
            (first ? q : p) = m;
        }
        return false;
    }

    Projection projection_;
    PROJDATA record_;
    CProjector projector_;
};

/// Of a record's words, those that tell its type and its figure.
std::string figureOf(std::string const& words) {
    std::istringstream in(words);
    std::string figure;
    for (std::string word; in >> word;)
        for (char const* const key : {"type=", "ellipsoid=", "radius=", "rf=", "flattening="})
            figure += word.starts_with(key) ? word + ' ' : "";
    return figure;
}

/// The records whose areas make up the globe together with the given one's.
std::vector<std::string> complements(std::string const& words) {
    PROJDATA const r = recordOf(words);
    auto const about = [&](double east) {
        return figureOf(words) + "lon0=" + std::to_string(std::remainder(r.Lon0 + east, 360));
    };
    switch (r.Type) {
    case ProjTypePolyconic:
    case ProjTypeCassini:
        return {about(180)};
    case ProjTypeTransverseMercator:
    case ProjTypeGaussKruger:
    case ProjTypeUniversalTransverseMercator:
        return {about(90), about(180), about(270)};
    case ProjTypeOrthographic:
        return {about(180) + " lat0=" + std::to_string(-r.Lat0)};
    case ProjTypeGnomonic:
        return {about(180) + " lat1=" + std::to_string(-r.Lat1)};
    default:
        return {};
    }
}

bool isSame(Points const& a, Points const& b) {
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(PROJPOINT)) == 0;
}

std::string textOf(Points const& points) {
    std::ostringstream text;
    text.precision(17);
    for (std::size_t i = 0; i < points.size() && i < 40; ++i)
        text << points[i] << ' ';
    return text.str();
}

class Sweep {
public:
    explicit Sweep(std::string const& words)
        : words_(words), subject_(words), points_(words + ": points"), twice_(words + ": cut twice"),
          steps_(words + ": jumps"), sizes_(words + ": sizes") {
        for (auto const& other : complements(words))
            others_.emplace_back(other);
        auto const& r = subject_.record();
        isState_ = recordOf(words).Type == ProjTypeStatePlane1927 || recordOf(words).Type == ProjTypeStatePlane1983;
        centre_ = {r.Lon0, r.Type == ProjTypeGnomonic || r.Type == ProjTypeAzimuthalEquidistant ||
                                   r.Type == ProjTypeLambertAzimuthalEqualArea
                               ? r.Lat1
                               : r.Lat0};
    }

    void run(int count) {
        Shapes shapes(centre_);
        for (int i = 0; i < count; ++i) {
            auto const shape = shapes.next();
            auto const chains = subject_.preclip(shape.kind, shape.points);
            for (auto const& chain : chains)
                check(shape, chain, chains.size(), i % 16 == 0);
            compareSizes(shape, chains);
        }
    }

private:
    void check(Shape const& shape, Points const& chain, std::size_t count, bool thoroughly) {
        for (auto const& point : chain)
            if (!subject_.isGood(point))
                points_.add(point, " of ", textOf(shape.points));
        auto const again = subject_.preclip(shape.kind, chain);
        // One ring of several may not say alone what it contains.
        bool const isAlone = (shape.kind == line || count == 1) && !runsAlongTheEdge(shape.points);
        if ((again.size() != 1 && isAlone) || (again.empty() && isAlone) ||
            (!again.empty() && !isSame(again[0], chain)))
            twice_.add(again.size(), " of ", textOf(shape.points), " first ", textOf(chain), " then ",
                       again.empty() ? "nothing" : textOf(again[0]));
        if (!thoroughly)
            return;
        for (std::size_t i = 1; i < chain.size() + (shape.kind == area ? 1 : 0); ++i)
            if (!subject_.goesOn(chain[i - 1], chain[i % chain.size()]))
                steps_.add(chain[i - 1], chain[i % chain.size()], " of ", textOf(shape.points));
    }

    /// Along a meridian that two maps end at, and both count; along the equator where that is a horizon; or to the
    /// place where an azimuthal equidistant map is torn.
    bool runsAlongTheEdge(Points const& points) {
        auto const type = subject_.record().Type;
        auto const onMeridian = [&](PROJPOINT const& a, PROJPOINT const& b) {
            return a.x == b.x && std::fabs(std::remainder(a.x - subject_.record().Lon0, 45)) < 1e-9;
        };
        if (!others_.empty() && std::ranges::adjacent_find(points, onMeridian) != points.end())
            return true;
        if (type != ProjTypeGnomonic && type != ProjTypeOrthographic && type != ProjTypeAzimuthalEquidistant)
            return false;
        return std::ranges::any_of(points, [&](PROJPOINT const& p) {
            if (centre_.y == 0 && std::fabs(p.y) == 90) // poles on the horizon
                return true;
            return std::fabs(centre_.y) == 90 ? p.y == 0 : p.y == -centre_.y;
        });
    }

    /// How much of a shape no map may show: Hotine's lacks a strip of the ellipsoid, and Cassini's is torn along the
    /// last 90 f degrees of the equator on either side, where a segment along the equator meets at most two tears of
    /// both maps, and one that crosses it meets them as long as it is near.
    double lackingOf(Shape const& shape) {
        auto const& r = subject_.record();
        if (r.Type == ProjTypeHotineObliqueMercator && r.Flattening != 0)
            return HUGE_VAL;
        double lacking = 0;
        if (r.Type == ProjTypeCassini && shape.kind == line)
            forSegments(line, shape.points, [&](PROJPOINT a, PROJPOINT b) {
                double const near = 4e-6 / std::fmax(std::fabs(b.y - a.y), 4e-6); // the share of it
                if (a.y * b.y <= 0)
                    lacking += std::fmin(near * std::fabs(b.x - a.x), 4 * 91 * r.Flattening) * degree;
            });
        return lacking;
    }

    void compareSizes(Shape const& shape, Chains const& chains) {
        if (isState_ || (shape.kind == line ? runsAlongTheEdge(shape.points) : !shape.isSimple))
            return;
        auto const sizeOf = [&](Chains const& of) {
            double sum = 0;
            for (auto const& chain : of)
                sum += shape.kind == line ? lengthOf(chain) : 0;
            return shape.kind == line ? sum : areaOf(of, shape.holdsItsLeft);
        };
        double sum = sizeOf(chains), whole = sizeOf({shape.points});
        for (auto& other : others_)
            sum += sizeOf(other.preclip(shape.kind, shape.points));
        double const tolerance = shape.kind == line ? 1e-5 : 2e-3;
        if (!(sum - whole < tolerance && whole - sum < tolerance + lackingOf(shape)))
            sizes_.add(shape.kind == line ? "length " : "area ", sum, " of ", whole, " ", textOf(shape.points));
    }

    std::string words_;
    Subject subject_;
    std::vector<Subject> others_;
    Faults points_, twice_, steps_, sizes_;
    bool isState_ = false;
    PROJPOINT centre_{};
};

class PreclipSweep : public testing::TestWithParam<ProjType> {};

} // namespace

TEST_P(PreclipSweep, RandomLinesAndAreas) {
    auto const sets = parameterSets(GetParam());
    for (auto const& words : sets)
        Sweep(words).run(shapesPerProjection() / int(sets.size()) + 1);
}

INSTANTIATE_TEST_SUITE_P(EveryType, PreclipSweep, testing::ValuesIn(projectingTypes()),
                         [](auto const& type) { return std::to_string(type.param); });

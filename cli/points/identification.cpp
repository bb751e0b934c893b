#include "cli/points/identification.h"

#include "cli/model/way.h"
#include "cli/points/point_converter.h"
#include "cli/text/text.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <numbers>
#include <stdexcept>
#include <tuple>
#include <unordered_map>

namespace ZrProj::Command {
namespace {

constexpr double earthRadius = 6371000;
constexpr double greatestShift = 5000; // metres, from any datum of the register to WGS 84
constexpr std::size_t mostShifted =
    120;                              // systems that are compared on WGS 84, as ways between datums take long to find
constexpr std::size_t mostTried = 16; // points by which systems are sorted out first

double radians(double degrees) {
    return degrees * std::numbers::pi / 180;
}

/// On a sphere, by haversines.
double distance(PROJPOINT a, PROJPOINT b) {
    double const dy = std::sin(radians(b.y - a.y) / 2), dx = std::sin(radians(b.x - a.x) / 2);
    double const chord = dy * dy + std::cos(radians(a.y)) * std::cos(radians(b.y)) * dx * dx;
    return 2 * earthRadius * std::asin(std::min(1.0, std::sqrt(chord)));
}

KnownPoints swapped(KnownPoints points) {
    for (PROJPOINT& point : points.coordinates)
        point = {point.y, point.x};
    return points;
}

/// Points from all over.
KnownPoints thinned(KnownPoints const& points) {
    std::size_t const step = 1 + (points.places.size() - 1) / mostTried;
    KnownPoints result;
    for (std::size_t i = 0; i < points.places.size(); i += step) {
        result.coordinates.push_back(points.coordinates[i]);
        result.places.push_back(points.places[i]);
    }
    return result;
}

/// How far from their places the points come out, infinite where one of them does not.
double offBy(Way const& way, KnownPoints const& points) {
    std::vector<PROJPOINT> found = points.coordinates;
    if (zrproj_transform_points(way.handle(), 0, &found[0].x, &found[0].y, sizeof(PROJPOINT), found.size(), nullptr) !=
        ZRPROJ_OK)
        throw std::runtime_error(zrproj_message());
    double sum = 0;
    for (std::size_t i = 0; i < found.size(); ++i) {
        if (!std::isfinite(found[i].x) || !(std::fabs(found[i].y) <= 90))
            return HUGE_VAL;
        double const off = distance(found[i], points.places[i]);
        sum += off * off;
    }
    return std::sqrt(sum / static_cast<double>(found.size()));
}

/// Null for a system that cannot be computed.
SystemPointer systemOfCode(int code) {
    zrproj_system* handle = nullptr;
    zrproj_status const status = zrproj_system_create(std::to_string(code).c_str(), &handle);
    return status == ZRPROJ_OK ? std::make_shared<System const>(handle) : nullptr;
}

bool isWithin(double west, double east, double longitude) {
    double const turned = west + std::fmod(std::fmod(longitude - west, 360) + 360, 360);
    return turned <= (east < west ? east + 360 : east);
}

bool isInArea(System const& system, std::vector<PROJPOINT> const& places) {
    double west = 0, south = 0, east = 0, north = 0;
    if (zrproj_system_area(system.handle(), &west, &south, &east, &north) != ZRPROJ_OK)
        return false;
    return std::ranges::all_of(places, [&](PROJPOINT const& place) {
        return south <= place.y && place.y <= north && isWithin(west, east, place.x);
    });
}

/// A search without conditions finds all but the deprecated ones.
std::vector<bool> deprecatedEntries() {
    std::size_t count = 0;
    zrproj_register_search(nullptr, nullptr, nullptr, 0, &count);
    std::vector<std::size_t> current(count);
    zrproj_register_search(nullptr, nullptr, current.data(), count, &count);
    std::size_t all = 0;
    while (zrproj_register_entry(all, nullptr, nullptr, nullptr) == ZRPROJ_OK)
        ++all;
    std::vector<bool> isDeprecated(all, true);
    for (std::size_t const entry : current)
        isDeprecated[entry] = false;
    return isDeprecated;
}

struct Candidate {
    Identified found;
    SystemPointer system;
};

/// The better order of x and y, on the system's own datum.
Candidate tried(Identified found, SystemPointer system, KnownPoints const& points, KnownPoints const& turned) {
    Way const way(system, system->geographic());
    double const straight = offBy(way, points), crossed = offBy(way, turned);
    found.isSwapped = crossed < straight;
    found.off = std::min(straight, crossed);
    found.isInArea = isInArea(*system, points.places);
    return {std::move(found), std::move(system)};
}

/// All systems that may put the points within so many metres, those to be listed first in front.
std::vector<Candidate> candidates(KnownPoints const& points, double within) {
    KnownPoints const straight = thinned(points), turned = swapped(straight);
    std::vector<bool> const isDeprecated = deprecatedEntries();
    std::vector<Candidate> result;
    for (std::size_t n = 0; n < isDeprecated.size(); ++n) {
        Identified entry;
        char const* name = nullptr;
        zrproj_register_entry(n, &entry.code, &name, nullptr);
        entry.name = name;
        entry.isDeprecated = isDeprecated[n];
        if (SystemPointer const system = systemOfCode(entry.code)) {
            Candidate candidate = tried(std::move(entry), system, straight, turned);
            if (candidate.found.off <= within + greatestShift)
                result.push_back(std::move(candidate));
        }
    }
    std::ranges::sort(result, [](auto const& a, auto const& b) { return a.found.goesBefore(b.found); });
    return result;
}

/// Compares on WGS 84, where there is a way to it.
void shift(Candidate& candidate, SystemPointer const& wgs84, KnownPoints const& points) {
    Identified& found = candidate.found;
    KnownPoints const& given = found.isSwapped ? swapped(points) : points;
    try {
        Way const way(candidate.system, wgs84);
        found.off = offBy(way, given);
        found.accuracy = way.accuracy();
    } catch (std::runtime_error const&) {
        found.accuracy = HUGE_VAL;
        found.off = offBy(Way(candidate.system, candidate.system->geographic()), given);
    }
}

double median(std::vector<double> values) {
    auto const middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

} // namespace

KnownPoints pointsAbout(std::vector<PROJPOINT> const& coordinates, PROJPOINT place) {
    std::vector<double> x, y;
    for (PROJPOINT const& point : coordinates) {
        x.push_back(point.x);
        y.push_back(point.y);
    }
    return {{{median(x), median(y)}}, {place}};
}

bool Identified::goesBefore(Identified const& other) const {
    auto const centimetres = [](double metres) { return std::round(100 * metres); };
    auto const known = [](double stated) { return std::isnan(stated) ? DBL_MAX : stated; };
    return std::tuple(isDeprecated, !isInArea, centimetres(off), known(accuracy), code) <
           std::tuple(other.isDeprecated, !other.isInArea, centimetres(other.off), known(other.accuracy), other.code);
}

/// Without the version of the datum ("NAD83(CSRS)v7"), the zone, and other numbers behind the datum.
std::string familyOf(std::string_view name) {
    std::size_t const slash = std::min(name.find(" / "), name.size());
    std::string_view datum = name.substr(0, slash), rest = name.substr(slash);
    while (!datum.empty() && isDigit(datum.back()))
        datum.remove_suffix(1);
    std::string family(datum.ends_with(")v") ? datum.substr(0, datum.size() - 1) : name.substr(0, slash));
    if (std::size_t const zone = rest.find("zone "); zone != std::string_view::npos) {
        std::size_t const end = std::min(rest.find(' ', zone + 5), rest.size());
        family += rest.substr(0, zone);
        rest = rest.substr(end);
    }
    std::ranges::copy_if(rest, std::back_inserter(family), [](char c) { return !isDigit(c); });
    return family;
}

std::vector<Identified> identify(KnownPoints const& points, double within) {
    std::vector<Candidate> tried = candidates(points, within);
    tried.resize(std::min(tried.size(), mostShifted));
    SystemPointer const wgs84 = systemOfDefinition("EPSG:4326");
    for (Candidate& candidate : tried)
        shift(candidate, wgs84, points);
    std::erase_if(tried, [&](Candidate const& candidate) { return !(candidate.found.off <= within); });
    std::ranges::sort(tried, [](auto const& a, auto const& b) { return a.found.goesBefore(b.found); });
    std::vector<Identified> result;
    std::unordered_map<std::string, std::size_t> firsts; // of families, in the result
    for (Candidate& candidate : tried) {
        auto const [first, isNew] = firsts.emplace(familyOf(candidate.found.name), result.size());
        if (isNew)
            result.push_back(std::move(candidate.found));
        else
            ++result[first->second].others;
    }
    return result;
}

} // namespace ZrProj::Command

#include "reading.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string_view>

namespace ZrProj::peer {

namespace {

constexpr double degree = std::numbers::pi / 180, metresADegree = 111195;

/// PROJ says what it cannot read on a channel of its own; nobody listens.
PJ_CONTEXT* context() {
    static PJ_CONTEXT* const made = [] {
        PJ_CONTEXT* const quiet = proj_context_create();
        proj_log_level(quiet, PJ_LOG_NONE);
        return quiet;
    }();
    return made;
}

/// A datum's way to WGS 84 that a text has is put around the system.
Peer withoutShift(Peer system) {
    if (system && proj_get_type(system.get()) == PJ_TYPE_BOUND_CRS)
        return Peer(proj_get_source_crs(context(), system.get()));
    return system;
}

struct Axes {
    bool yFirst = false;
    double factor = 1; // radians or metres a unit
};

/// East and north name the axes; at a pole, where both run along meridians, the first one's name does.
Axes axesOf(PJ const* system) {
    Peer const axes(proj_crs_get_coordinate_system(context(), system));
    char const *name = "", *abbreviation = "", *direction = "";
    double factor = 1;
    proj_cs_get_axis_info(context(), axes.get(), 0, &name, &abbreviation, &direction, &factor, nullptr, nullptr,
                          nullptr);
    char const *second = "", *secondName = "";
    proj_cs_get_axis_info(context(), axes.get(), 1, &secondName, nullptr, &second, nullptr, nullptr, nullptr, nullptr);
    auto const runsAlongMeridians = [](std::string_view way) { return way == "north" || way == "south"; };
    bool const polar = runsAlongMeridians(direction) && runsAlongMeridians(second);
    bool const northing = std::string_view(name).starts_with("North") || std::string_view(abbreviation) == "N";
    return {polar ? northing : runsAlongMeridians(direction), factor};
}

PJ_WKT_TYPE wktTypeOf(zrproj_format format, int year) {
    if (format == ZRPROJ_WKT2)
        return year == 2015 ? PJ_WKT2_2015 : PJ_WKT2_2019;
    return format == ZRPROJ_WKT1 ? PJ_WKT1_GDAL : PJ_WKT1_ESRI;
}

double groundDistance(Point a, Point b) {
    double const east = std::remainder(a.x - b.x, 360) * std::cos(std::min(std::fabs(a.y), std::fabs(b.y)) * degree);
    return std::hypot(east, a.y - b.y) * metresADegree;
}

bool isShown(Point p) {
    return std::isfinite(p.x) && std::isfinite(p.y);
}

void widen(double& greatest, double metres) {
    if (!std::isnan(greatest) && !(metres <= greatest)) // a NaN stays
        greatest = metres;
}

} // namespace

Places placesOf(zrproj_system const& system) {
    double west = -180, south = -90, east = 180, north = 90;
    zrproj_system_area(&system, &west, &south, &east, &north);
    double const width = east < west ? east + 360 - west : east - west;
    Places places;
    for (std::size_t i = 0; i < places.size(); ++i) {
        auto const column = static_cast<double>(i % 7), row = static_cast<double>(i / 7);
        places[i] = {std::remainder(west + width * column / 6, 360), south + (north - south) * row / 6};
    }
    return places;
}

Places from(double meridian, Places places) {
    for (Point& place : places)
        place.x = std::remainder(place.x - meridian, 360);
    return places;
}

Ours::Ours(std::string const& definition) {
    zrproj_system *made = nullptr, *base = nullptr;
    if (zrproj_system_create(definition.c_str(), &made) != ZRPROJ_OK) {
        why_ = zrproj_message();
        return;
    }
    system_.reset(made);
    isProjected_ = zrproj_system_unit(made, &unit_) == ZRPROJ_OK;
    zrproj_system_geographic(made, &base);
    System const geographic(base);
    zrproj_transform* way = nullptr;
    if (zrproj_transform_create(base, made, nullptr, &way) != ZRPROJ_OK)
        why_ = zrproj_message();
    transform_.reset(way);
}

Figure Ours::figure() const {
    double radius = 0, flattening = 0;
    zrproj_system_ellipsoid(&system(), &radius, &flattening);
    return {radius, radius * (1 - flattening)};
}

std::string Ours::text(zrproj_format format) const {
    std::size_t length = 0;
    zrproj_system_text(&system(), format, nullptr, 0, &length);
    std::string text(length, '\0');
    return zrproj_system_text(&system(), format, text.data(), length + 1, nullptr) == ZRPROJ_OK ? text : "";
}

Point Ours::run(int backwards, Point point) const {
    zrproj_transform_points(transform_.get(), backwards, &point.x, &point.y, sizeof(double), 1, nullptr);
    return point;
}

Theirs::Theirs(std::string const& definition)
    : system_(withoutShift(Peer(proj_create(context(), definition.c_str())))) {
    if (!system_)
        return;
    if (proj_get_type(system_.get()) == PJ_TYPE_PROJECTED_CRS)
        takeConversion();
    Peer const ellipsoid(proj_get_ellipsoid(context(), system_.get()));
    proj_ellipsoid_get_parameters(context(), ellipsoid.get(), &figure_.semiMajor, &figure_.semiMinor, nullptr, nullptr);
    Peer const meridian(proj_get_prime_meridian(context(), system_.get()));
    double longitude = 0, factor = degree;
    proj_prime_meridian_get_parameters(context(), meridian.get(), &longitude, &factor, nullptr);
    meridian_ = longitude * factor / degree;
}

void Theirs::takeConversion() {
    conversion_.reset(proj_crs_get_coordoperation(context(), system_.get()));
    char const* name = nullptr;
    proj_coordoperation_get_method_info(context(), conversion_.get(), &name, nullptr, nullptr);
    method_ = name ? name : "";
    Peer const base(proj_crs_get_geodetic_crs(context(), system_.get()));
    Axes const geographic = axesOf(base.get()), map = axesOf(system_.get());
    latitudeFirst_ = geographic.yFirst;
    degreesAUnit_ = geographic.factor / degree;
    northingFirst_ = map.yFirst;
    converts_ = proj_coordoperation_is_instantiable(context(), conversion_.get()) != 0;
}

std::string Theirs::text(zrproj_format format, int year) const {
    char const* const options[] = {"MULTILINE=NO", nullptr};
    char const* text = nullptr;
    if (format == ZRPROJ_PROJJSON)
        text = proj_as_projjson(context(), system_.get(), options);
    else if (format == ZRPROJ_PROJ_STRING)
        text = proj_as_proj_string(context(), system_.get(), PJ_PROJ_5, nullptr);
    else
        text = proj_as_wkt(context(), system_.get(), wktTypeOf(format, year), options);
    return text ? text : "";
}

bool Theirs::isSameAs(Theirs const& other) const {
    return proj_is_equivalent_to_with_ctx(context(), system_.get(), other.system_.get(),
                                          PJ_COMP_EQUIVALENT_EXCEPT_AXIS_ORDER_GEOGCRS) != 0;
}

Point Theirs::forward(Point place) const {
    double const lon = place.x / degreesAUnit_, lat = place.y / degreesAUnit_;
    PJ_COORD const in = latitudeFirst_ ? proj_coord(lat, lon, 0, 0) : proj_coord(lon, lat, 0, 0);
    PJ_COORD const out = proj_trans(conversion_.get(), PJ_FWD, in);
    return northingFirst_ ? Point{out.xy.y, out.xy.x} : Point{out.xy.x, out.xy.y};
}

Point Theirs::inverse(Point map) const {
    PJ_COORD const in = northingFirst_ ? proj_coord(map.y, map.x, 0, 0) : proj_coord(map.x, map.y, 0, 0);
    PJ_COORD const out = proj_trans(conversion_.get(), PJ_INV, in);
    Point const place = latitudeFirst_ ? Point{out.xy.y, out.xy.x} : Point{out.xy.x, out.xy.y};
    return {place.x * degreesAUnit_, place.y * degreesAUnit_};
}

template <class First, class Second>
Distances distancesBetween(First const& first, Second const& second, Places const& places, double metresAUnit) {
    Distances far;
    for (Point const place : places) {
        Point const one = first.forward(place), other = second.forward(place);
        far.onlyFirst += isShown(one) && !isShown(other);
        far.onlySecond += !isShown(one) && isShown(other);
        if (!isShown(one) || !isShown(other))
            continue;
        ++far.compared;
        Point const back = first.inverse(other), otherBack = second.inverse(other);
        widen(far.forward, std::hypot(one.x - other.x, one.y - other.y) * metresAUnit);
        widen(far.inverse, groundDistance(back, otherBack));
        widen(far.firstTrip, groundDistance(back, place));
        widen(far.secondTrip, groundDistance(otherBack, place));
    }
    return far;
}

template Distances distancesBetween(Ours const&, Theirs const&, Places const&, double);
template Distances distancesBetween(Ours const&, Ours const&, Places const&, double);
template Distances distancesBetween(Theirs const&, Theirs const&, Places const&, double);

} // namespace ZrProj::peer

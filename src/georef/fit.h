// A map through control points, by any of the methods.
#pragma once

#include "georef/controls.h"
#include "georef/terms.h"
#include "georef/warp_fit.h"

#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace ZrProj {

/// A map of the plane, ready to use. Immutable.
class GeorefMap {
public:
    explicit GeorefMap(georef::Polynomial const& polynomial) : m_map(polynomial) {}
    explicit GeorefMap(FittedWarp warp) : m_map(std::move(warp)) {}

    /// Points in place, as RefForward maps them: marked ones stay so, and results that are not finite become so.
    void map(std::span<GEOREFPOINT> points) const noexcept;
    GEOREFPOINT operator()(GEOREFPOINT point) const noexcept {
        map({&point, 1});
        return point;
    }

    /// Null for a warp.
    georef::Polynomial const* polynomial() const { return std::get_if<georef::Polynomial>(&m_map); }

private:
    std::variant<georef::Polynomial, FittedWarp> m_map;
};

/// Nothing where the controls determine no such map (whyNoFit), and for method 5, which has none. May run out of
/// memory.
std::optional<GeorefMap> fitGeoref(TransformMethod method, Controls const& controls);

/// Whether a method cannot take so many control points, because its equations would need too much memory.
bool areTooMany(TransformMethod method, std::size_t controls);

/// What is wrong with controls that fitGeoref makes no map of. Points are counted from 1.
std::string whyNoFit(TransformMethod method, Controls const& controls);

/// A term of a polynomial and its coefficients for X and for Y.
struct Coefficient {
    char const* term;
    double x, y;
};

/// Written out for source coordinates as they are; none for a warp.
std::vector<Coefficient> coefficientsOf(GeorefMap const& map);

} // namespace ZrProj

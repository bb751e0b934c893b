// The ellipsoid catalogue's functions. Flattenings are worked out when this is compiled, so that no call computes.
#include "ellipsoid_table.h"

#include "host/text.h"

#include <zrproj/ellipsoid.h>

#include <algorithm>
#include <array>
#include <cstddef>

namespace ZrProj {

namespace {

constexpr auto flattenings = [] {
    std::array<double, ellipsoidTable.size()> result = {};
    std::ranges::transform(ellipsoidTable, result.begin(), &EllipsoidRow::flattening);
    return result;
}();

/// Whether the type is an ellipsoid of the catalogue with figures of its own.
constexpr bool hasFigures(EllipsoidType type) {
    return type > EllipsoidTypeUserDefined && type < EllipsoidTypeNone;
}

constexpr EllipsoidRow const& row(EllipsoidType type) {
    return ellipsoidTable[static_cast<std::size_t>(type)];
}

template <class Predicate> EllipsoidType firstEllipsoid(Predicate predicate) {
    auto const found = std::ranges::find_if(ellipsoidTable, predicate);
    return static_cast<EllipsoidType>(found - ellipsoidTable.begin());
}

/// The nearest entry for the codes of the Clarke 1880 and Everest families that have none of their own.
EllipsoidType nearestForPosc(int code) {
    if ((code >= 7010 && code <= 7014) || code == 7034)
        return EllipsoidTypeClarke1880Mod;
    return code >= 7015 && code <= 7018 ? EllipsoidTypeEverest1830 : EllipsoidTypeNone;
}

} // namespace

bool EllipsoidInfo(EllipsoidType type, char* name, double* radius, double* flattening) {
    if (type == EllipsoidTypeUserDefined)
        copyText(name, "user-defined");
    if (!hasFigures(type))
        return false;
    copyText(name, row(type).name);
    if (radius)
        *radius = EllipsoidRadius(type);
    if (flattening)
        *flattening = EllipsoidFlattening(type);
    return true;
}

double EllipsoidRadius(EllipsoidType type) {
    return hasFigures(type) ? row(type).radius : 1.0;
}

double EllipsoidFlattening(EllipsoidType type) {
    return hasFigures(type) ? flattenings[static_cast<std::size_t>(type)] : 0.0;
}

bool EllipsoidFromName(EllipsoidType* type, char const* name) {
    if (!type || !name)
        return false;
    EllipsoidType const found =
        firstEllipsoid([name](EllipsoidRow const& candidate) { return equalIgnoringCase(candidate.name, name); });
    *type = found == EllipsoidTypeNone ? EllipsoidTypeUserDefined : found;
    return found != EllipsoidTypeNone;
}

bool EllipsoidFromPOSCNumber(int code, EllipsoidType* type) {
    if (code == 0)
        return false;
    EllipsoidType const exact =
        firstEllipsoid([code](EllipsoidRow const& candidate) { return candidate.posc == code; });
    EllipsoidType const found = exact == EllipsoidTypeNone ? nearestForPosc(code) : exact;
    if (type && found != EllipsoidTypeNone)
        *type = found;
    return exact != EllipsoidTypeNone;
}

bool EllipsoidToPOSCNumber(EllipsoidType type, int* code) {
    if (!hasFigures(type) || row(type).posc == 0)
        return false;
    if (code)
        *code = row(type).posc;
    return true;
}

} // namespace ZrProj

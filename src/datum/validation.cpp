// The check of a datum conversion's request.
#include "datum/method_table.h"
#include "frame/errors.h"
#include "host/fpenv.h"

#include <zrproj/datum.h>

#include <array>
#include <cstdio>
#include <cstring>

namespace ZrProj {
namespace {

constexpr char sourceFile[] = ".\\zrDatum.cpp";
constexpr int nullRequest = 998;
constexpr int destinationCodes = 12; // what a destination's code is above a source's
constexpr std::size_t messageSize = 260;

using Record = DATUM2WGS84 const&;

struct Fault {
    int code;       // 0: there is none
    unsigned error; // number of its text
};

bool always(Record) {
    return true;
}

/// Methods that compute with the record's parameters; the others look at none.
bool hasParameters(Record r) {
    return datumMethodIs(r.Method, &DatumMethodRow::hasShifts);
}

bool hasOwnEllipsoid(Record r) {
    return hasParameters(r) && r.Ellipsoid == EllipsoidTypeUserDefined;
}

bool rotates(Record r) {
    return datumMethodIs(r.Method, &DatumMethodRow::hasRotations);
}

/// A NaN fits.
bool shiftFits(double shift) {
    constexpr double bound = 1.7014117331926443e38; // half the largest single-precision number
    return !(shift < -bound || shift > bound);
}

bool isWithin(double bound, double angle) {
    return angle >= -bound && angle <= bound;
}

/// A check holds of the records that it applies to.
struct Check {
    bool (*applies)(Record);
    bool (*holds)(Record);
    Fault fault;
};

// In this order: the first check that fails names the fault. Scales are not checked: the catalogue has zero and
// negative ones.
// clang-format off
constexpr std::array checks{
    Check{always,          [](Record r) { return datumMethodRow(r.Method) != nullptr; },                                {3, 20262}},
    Check{hasParameters,   [](Record r) { return r.Ellipsoid >= 0 && r.Ellipsoid < EllipsoidTypeNone; }, {4, 20263}},
    Check{hasOwnEllipsoid, [](Record r) { return r.MajorRadius > 0; },                                 {13, 20249}},
    Check{hasOwnEllipsoid, [](Record r) { return r.Flattening >= 0 && r.Flattening < 1; },             {14, 20250}},
    Check{hasParameters,   [](Record r) { return isWithin(180, r.PrimeMeridian); },                    {5, 20264}},
    Check{hasParameters,   [](Record r) { return shiftFits(r.dX); },                                   {6, 20265}},
    Check{hasParameters,   [](Record r) { return shiftFits(r.dY); },                                   {7, 20266}},
    Check{hasParameters,   [](Record r) { return shiftFits(r.dZ); },                                   {8, 20267}},
    Check{rotates,         [](Record r) { return isWithin(3600, r.rX); },                              {9, 20268}},
    Check{rotates,         [](Record r) { return isWithin(3600, r.rY); },                              {10, 20269}},
    Check{rotates,         [](Record r) { return isWithin(3600, r.rZ); },                              {11, 20270}},
};
// clang-format on

Fault findFault(Record record) {
    for (auto const& check : checks)
        if (check.applies(record) && !check.holds(record))
            return check.fault;
    return {};
}

bool isDatum(DatumType type) {
    return type >= DatumTypeUserDefined && type < DatumTypeNone;
}

Fault findFault(DATUMXFORM const& request) {
    if (!isDatum(request.Source))
        return {1, 20260};
    if (!isDatum(request.Destination))
        return {2, 20261};
    if (request.Source == DatumTypeUserDefined)
        if (auto const fault = findFault(request.SourceParams); fault.code != 0)
            return fault;
    if (request.Destination != DatumTypeUserDefined)
        return {};
    auto const fault = findFault(request.DestinationParams);
    return fault.code == 0 ? fault : Fault{fault.code + destinationCodes, fault.error};
}

void describe(unsigned error, char* message) {
    auto const text = errorText(error);
    std::snprintf(message, messageSize, "%s", text ? text : "Unable to load error message text!");
}

} // namespace

int DatCheckParams(DATUMXFORM const* xform, char* message, bool report) {
    if (message)
        *message = '\0';
    if (!xform) {
        if (message)
            std::strcpy(message, "NULL Pointer to datum parameters");
        return nullRequest;
    }
    auto const fault = withDefaultFloatingPoint([&] { return findFault(*xform); });
    if (fault.code != 0) {
        if (message)
            describe(fault.error, message);
        if (report)
            ReportError(sourceFile, __LINE__, fault.error, nullptr);
    }
    return fault.code;
}

} // namespace ZrProj

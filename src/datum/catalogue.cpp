#include "datum/catalogue.h"

#include "datum/method_table.h"
#include "host/text.h"

#include <algorithm>

namespace ZrProj {
namespace {

constexpr char userDefinedName[] = "User Defined";

/// The first row that the predicate holds for; the end row where there is none.
template <class Predicate> DatumRow const& firstRow(Predicate predicate) {
    return *std::find_if(datumTable.begin(), datumTable.end() - 1, predicate);
}

bool isEnd(DatumRow const& row) {
    return row.type == DatumTypeNone;
}

} // namespace

DatumRow const& datumRow(DatumType type) noexcept {
    return firstRow([&](DatumRow const& row) { return row.type == type; });
}

DatumRow const& twoWayDatumRow(DatumType type) noexcept {
    return firstRow(
        [&](DatumRow const& row) { return row.type == type && datumMethodIs(row.method, &DatumMethodRow::inverts); });
}

void completeFigures(DATUM2WGS84& record) noexcept {
    if (record.Ellipsoid == EllipsoidTypeUserDefined)
        return;
    record.MajorRadius = EllipsoidRadius(record.Ellipsoid);
    record.Flattening = EllipsoidFlattening(record.Ellipsoid);
}

bool standsOn(DATUM2WGS84 const& datum, Figure const& figure) noexcept {
    Figure const own = figureOf(datum);
    return own.type == EllipsoidTypeNone || (datum.PrimeMeridian == 0 && areNear(own, figure, 1, 1));
}

void fillRecord(DATUM2WGS84& record, DatumRow const& row) noexcept {
    record.Method = row.method;
    record.bFromWGS84 = false;
    record.Ellipsoid = row.ellipsoid;
    record.PrimeMeridian = row.primeMeridian;
    record.dX = row.dX;
    record.dY = row.dY;
    record.dZ = row.dZ;
    record.rX = row.rX;
    record.rY = row.rY;
    record.rZ = row.rZ;
    record.Scale = row.scale;
    completeFigures(record);
}

int DatNumDatums() {
    return DatumTypeNone;
}

void DatGetDatumName(DatumType type, char* name) {
    copyText(name, type == DatumTypeUserDefined ? userDefinedName : datumRow(type).name);
}

bool DatGetDatumFromName(DatumType* type, char const* name) {
    if (!type || !name)
        return false;
    if (equalIgnoringCase(name, userDefinedName)) {
        *type = DatumTypeUserDefined;
        return true;
    }
    auto const& found = firstRow([&](DatumRow const& row) { return equalIgnoringCase(row.name, name); });
    if (isEnd(found))
        return false;
    *type = found.type;
    return true;
}

bool DatGetDatumPOSCNumber(DatumType type, int* code) {
    int const posc = datumRow(type).posc;
    if (posc != 0 && code)
        *code = posc;
    return posc != 0;
}

bool DatGetDatumFromPOSCNumber(DatumType* type, int code) {
    if (!type || code == 0)
        return false;
    auto const& found = firstRow([&](DatumRow const& row) { return row.posc == code; });
    if (isEnd(found))
        return false;
    *type = found.type;
    return true;
}

bool DatReversible(DatumType type) {
    return datumMethodIs(datumRow(type).method, &DatumMethodRow::inverts);
}

bool DatGetDatumParams(DatumType type, DATUM2WGS84* params) {
    if (!params)
        return false;
    auto const& row = twoWayDatumRow(type);
    if (isEnd(row))
        return false;
    fillRecord(*params, row);
    return true;
}

bool DatGetDatumMethod(DatumType type, DatumMethod* method) {
    if (!method)
        return false;
    auto const& row = datumRow(type);
    if (isEnd(row))
        return false;
    *method = row.method;
    return true;
}

} // namespace ZrProj

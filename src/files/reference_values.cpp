#include "files/reference_values.h"

#include "datum/method_table.h"
#include "files/map_record.h"
#include "files/side_text.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace ZrProj {

namespace {

/// Longer than every name of a catalogue.
using Name = std::array<char, 64>;

/// Fields are packed, so they are copied and never referred to.
template <class Value> Value fieldValue(void const* field) {
    Value value;
    std::memcpy(&value, field, sizeof value);
    return value;
}

template <class Value> void setField(void* field, Value value) {
    std::memcpy(field, &value, sizeof value);
}

void appendName(std::string& text, char const* name) {
    text += *name ? name : "UNKNOWN";
}

bool writeReal(void const* field, std::string& text) {
    appendNumber(text, fieldValue<double>(field));
    return true;
}

void readReal(void* field, std::string_view text) {
    setField(field, readNumber(text));
}

/// Any byte but 0 is true.
bool writeFlag(void const* field, std::string& text) {
    text += fieldValue<unsigned char>(field) ? "true" : "false";
    return true;
}

void readFlag(void* field, std::string_view text) {
    setField(field, beginsWith(text, "true"));
}

bool writeInteger(void const* field, std::string& text) {
    text += std::to_string(fieldValue<std::int32_t>(field));
    return true;
}

void readIntegerField(void* field, std::string_view text) {
    setField<std::int32_t>(field, readInteger(text));
}

bool writeProjection(void const* field, std::string& text) {
    Name name = {};
    ProjGetProjectionInfo(fieldValue<ProjType>(field), name.data());
    appendName(text, name.data());
    return true;
}

void readProjection(void* field, std::string_view text) {
    ProjType found = ProjTypeUndefined;
    for (int i = 0; i < ProjNumProjections() && found == ProjTypeUndefined; ++i) {
        Name name = {};
        ProjGetProjectionInfo(static_cast<ProjType>(i), name.data());
        if (equalButBlanks(text, name.data()))
            found = static_cast<ProjType>(i);
    }
    setField(field, found);
}

bool writeStateZone(void const* field, std::string& text) {
    auto const zone = fieldValue<StateZoneType>(field);
    if (zone == StateZoneTypeNone)
        return false;
    Name name = {};
    ProjGetStateZoneInfo(zone, name.data(), nullptr);
    appendName(text, name.data());
    return true;
}

void readStateZone(void* field, std::string_view text) {
    StateZoneType zone = StateZoneTypeNone;
    ProjGetStateZoneFromName(&zone, std::string(trimBlanks(text)).c_str());
    setField(field, zone);
}

bool writeEllipsoid(void const* field, std::string& text) {
    auto const ellipsoid = fieldValue<EllipsoidType>(field);
    if (ellipsoid == EllipsoidTypeNone)
        return false;
    Name name = {};
    text += EllipsoidInfo(ellipsoid, name.data(), nullptr, nullptr) ? name.data() : "USER-DEFINED";
    return true;
}

void readEllipsoid(void* field, std::string_view text) {
    EllipsoidType ellipsoid = EllipsoidTypeUserDefined;
    EllipsoidFromName(&ellipsoid, std::string(trimBlanks(text)).c_str());
    setField(field, ellipsoid);
}

bool writeDatum(void const* field, std::string& text) {
    Name name = {};
    DatGetDatumName(fieldValue<DatumType>(field), name.data());
    appendName(text, name.data());
    return true;
}

void readDatum(void* field, std::string_view text) {
    DatumType datum = DatumTypeNone;
    DatGetDatumFromName(&datum, std::string(trimBlanks(text)).c_str());
    setField(field, datum);
}

struct GeorefName {
    TransformMethod method;
    char const* name;
};

/// Names that other writers give the georeference methods.
constexpr std::array otherGeorefNames{
    GeorefName{TransformMethodHelmert, "Helmert"},
    GeorefName{TransformMethodAffinePolynomial, "Affine"},
    GeorefName{TransformMethod1stOrderPolynomial, "First Order"},
    GeorefName{TransformMethod2ndOrderPolynomial, "Second Order"},
    GeorefName{TransformMethod3rdOrderPolynomial, "Third Order"},
    GeorefName{TransformMethodPrecalculatedAffineCoefficients, "Known Coefficients"},
};

TransformMethod georefMethodOf(std::string_view text) {
    for (std::int32_t i = 0; i < TransformMethodNone; ++i)
        if (auto const method = static_cast<TransformMethod>(i); equalButBlanks(text, RefMethodName(method)))
            return method;
    auto const other = std::ranges::find_if(otherGeorefNames,
                                            [text](GeorefName const& row) { return equalButBlanks(text, row.name); });
    return other == otherGeorefNames.end() ? TransformMethodNone : other->method;
}

bool writeDatumMethod(void const* field, std::string& text) {
    auto const* const row = datumMethodRow(fieldValue<DatumMethod>(field));
    appendName(text, row ? row->fileName : "");
    return true;
}

void readDatumMethod(void* field, std::string_view text) {
    auto const row = std::ranges::find_if(
        datumMethodTable, [text](DatumMethodRow const& each) { return equalButBlanks(text, each.fileName); });
    setField(field, row == datumMethodTable.end() ? unknownDatumMethod : row->method);
}

bool writeGeorefMethod(void const* field, std::string& text) {
    appendName(text, RefMethodName(fieldValue<TransformMethod>(field)));
    return true;
}

void readGeorefMethod(void* field, std::string_view text) {
    setField(field, georefMethodOf(text));
}

} // namespace

Encoding const realValue{writeReal, readReal};
Encoding const flagValue{writeFlag, readFlag};
Encoding const integerValue{writeInteger, readIntegerField};
Encoding const projectionName{writeProjection, readProjection};
Encoding const stateZoneName{writeStateZone, readStateZone};
Encoding const ellipsoidName{writeEllipsoid, readEllipsoid};
Encoding const datumName{writeDatum, readDatum};
Encoding const datumMethodName{writeDatumMethod, readDatumMethod};
Encoding const georefMethodName{writeGeorefMethod, readGeorefMethod};

} // namespace ZrProj

// Requests and handles of datum conversions, as the tests need them.
#pragma once

#include <zrproj/datum.h>

#include <gtest/gtest.h>

#include <cfloat>

namespace ZrProj::test {

/// A user-defined end carries nothing yet.
inline DATUMXFORM datumRequest(DatumType source, DatumType destination) {
    DATUMXFORM request{};
    request.Source = source;
    request.Destination = destination;
    return request;
}

/// From a datum to WGS 84 ("from"), or from WGS 84 to it, and nothing else: the other end does nothing.
inline DATUMXFORM toOrFromWgs84(DatumType datum, bool from) {
    return from ? datumRequest(datum, DatumTypeUserDefined) : datumRequest(DatumTypeUserDefined, datum);
}

struct DatumHandle {
    explicit DatumHandle(DATUMXFORM const& request) : handle(DatCreateDatum(&request)) {}
    ~DatumHandle() { DatDeleteDatum(handle); }
    DatumHandle(DatumHandle const&) = delete;
    DatumHandle& operator=(DatumHandle const&) = delete;

    DATUMPOINT operator()(double lon, double lat) const {
        DATUMPOINT point{lon, lat};
        EXPECT_TRUE(DatConvertDatum(handle, &point, 1));
        return point;
    }

    void* handle;
};

inline bool isMarked(DATUMPOINT const& point) {
    return point.x == DBL_MAX && point.y == DBL_MAX;
}

} // namespace ZrProj::test

// Datums: placeholder until the catalogue arrives.
#ifndef ZRPROJ_DATUM_H
#define ZRPROJ_DATUM_H

#include "api.h"
#include "ellipsoid.h"

#include <cstdint>

namespace ZrProj {

enum DatumType : std::int32_t { DatumTypeUserDefined = 0 };
enum DatumMethod : std::int32_t {
    DatumMethodNone = 0,
    DatumMethodNadcon = 1,
    DatumMethodBursaWolf = 2,
    DatumMethodMolodensky = 3,
    DatumMethodReserved = 4,
    DatumMethodMRE = 5,
};
#pragma pack(push, 1)
struct DATUM2WGS84 {
    DatumMethod Method;
    bool bFromWGS84;
    EllipsoidType Ellipsoid;
    double PrimeMeridian, dX, dY, dZ, rX, rY, rZ, Scale, MajorRadius, Flattening;
    unsigned char Reserved[64];
};
struct DATUMXFORM {
    DatumType Source, Destination;
    bool bFlag;
    DATUM2WGS84 SourceParams, DestinationParams;
};
#pragma pack(pop)
struct DATUMPOINT {
    double x, y;
};
ZRPROJ_API int DatCheckParams(DATUMXFORM const* xform, char* message, bool report);

} // namespace ZrProj

#endif

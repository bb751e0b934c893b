// Offsets of longitude and latitude.
//
// Source    IOGP (2022), Geomatics guidance note 7-2, section 4.4.4.
// Domain    all; what would lie beyond a pole is lost.
#include "datum/kernels/shift.h"

namespace ZrProj::datum::ZRPROJ_LEVEL {
namespace {

template <int sign> struct Moved {
    using Constants = OffsetShift;
    OffsetShift const& c;

    template <class R> Pair<R> moved(Pair<R> degrees) const {
        R const latitude = degrees.y + sign * c.latitude;
        return {degrees.x + sign * c.longitude, select(abs(latitude) <= 90.0, latitude, R(unplottable))};
    }
};

} // namespace

ShiftCode offsetShift() noexcept {
    return shiftCodeOf<Moved<1>, Moved<-1>>();
}

} // namespace ZrProj::datum::ZRPROJ_LEVEL

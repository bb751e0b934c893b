// CImageRegistration: a warp, shared by the copies of the object that it was calibrated in.
#include "georef/warp_fit.h"
#include "host/fpenv.h"

#include <zrproj/registration.h>

#include <atomic>
#include <exception>
#include <memory>
#include <utility>

namespace ZrProj {

struct CImageRegistration::Fitted {
    std::atomic<int> owners{1};
    FittedWarp map;

    static Fitted* share(Fitted* fitted) {
        if (fitted)
            fitted->owners.fetch_add(1, std::memory_order_relaxed);
        return fitted;
    }
    static void release(Fitted* fitted) {
        if (fitted && fitted->owners.fetch_sub(1, std::memory_order_acq_rel) == 1)
            std::unique_ptr<Fitted>{fitted}.reset();
    }
};

CImageRegistration::CImageRegistration() = default;

CImageRegistration::CImageRegistration(CImageRegistration const& other) : m_fitted(Fitted::share(other.m_fitted)) {}

CImageRegistration::~CImageRegistration() {
    Fitted::release(m_fitted);
}

CImageRegistration& CImageRegistration::operator=(CImageRegistration const& other) {
    Fitted::release(std::exchange(m_fitted, Fitted::share(other.m_fitted)));
    return *this;
}

bool CImageRegistration::Calibrate(WarpingMethod method, GEOREFPOINT const* source, GEOREFPOINT const* target,
                                   int count) {
    Fitted::release(std::exchange(m_fitted, nullptr));
    if (!source || !target || count < 1)
        return false;
    auto const size = static_cast<std::size_t>(count);
    try {
        auto map = withDefaultFloatingPoint([&] { return fitWarp(method, {{source, size}, {target, size}}); });
        if (!map)
            return false;
        auto fitted = std::make_unique<Fitted>();
        fitted->map = std::move(*map);
        m_fitted = fitted.release();
    } catch (std::exception const&) { // no memory, or no array so long
        return false;
    }
    return true;
}

WarpingMethod CImageRegistration::Method() const {
    return m_fitted ? m_fitted->map.warp.method : WarpingMethodNone;
}

bool CImageRegistration::Transform(GEOREFPOINT* points, int count) const {
    if (!m_fitted || !points || count < 1)
        return false;
    FloatingPointScope const scope;
    georef::kernels().mapByWarp(m_fitted->map.warp, levels::pointsOf(points, static_cast<std::size_t>(count)));
    return true;
}

} // namespace ZrProj

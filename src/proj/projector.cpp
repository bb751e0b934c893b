// CProjector: owns a projection handle.
#include "proj/handle.h"

#include <zrproj/preclip.h>

#include <utility>

namespace ZrProj {

CProjector::CProjector() : m_handle(nullptr) {}

CProjector::CProjector(PROJDATA* data) : m_handle(ProjCreateProjection(data)) {}

CProjector::CProjector(CProjector const& other) : m_handle(nullptr) {
    PROJDATA record;
    if (ProjGetHandleInfo(other.m_handle, &record)) // a copy: creation completes the record that it is given
        m_handle = ProjCreateProjection(&record);
}

CProjector::~CProjector() {
    ProjDeleteProjection(m_handle);
}

CProjector& CProjector::operator=(CProjector const& other) {
    ProjDeleteProjection(std::exchange(m_handle, shareProjection(other.m_handle)));
    return *this;
}

bool CProjector::Create(PROJDATA* data) {
    Delete();
    m_handle = ProjCreateProjection(data);
    return IsCreated();
}

void CProjector::Delete() {
    ProjDeleteProjection(std::exchange(m_handle, nullptr));
}

bool CProjector::IsCreated() const {
    return m_handle != nullptr;
}

bool CProjector::Forward(PROJPOINT* points, int count) {
    return ProjForward(m_handle, points, count);
}

bool CProjector::Inverse(PROJPOINT* points, int count) {
    return ProjInverse(m_handle, points, count);
}

int CProjector::Result() {
    return ProjResult(m_handle);
}

bool CProjector::GetInfo(PROJDATA* out) {
    return ProjGetHandleInfo(m_handle, out);
}

bool CProjector::LLInProjection(PROJPOINT const* point) {
    return ProjLLInProjection(m_handle, point);
}

bool CProjector::LLOffsetSplitObject(PROJPOINT const* points, unsigned count, double* out1, double* out2) {
    return ProjLLOffsetSplitObject(m_handle, points, count, out1, out2);
}

bool CProjector::LLPreclipPolyline(PROJPOINT const* points, unsigned count, CPROJCHAIN** chains) {
    return ProjLLPreclipPolyline(m_handle, points, count, chains);
}

bool CProjector::LLPreclipPolygon(PROJPOINT const* points, unsigned count, CPROJCHAIN** chains) {
    return ProjLLPreclipPolygon(m_handle, points, count, chains);
}

} // namespace ZrProj

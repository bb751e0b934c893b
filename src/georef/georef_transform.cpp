// CGeorefTransform: owns a georeference system.
#include "georef/handle.h"

#include <utility>

namespace ZrProj {

CGeorefTransform::CGeorefTransform() : m_handle(nullptr) {}

CGeorefTransform::CGeorefTransform(GEOREF const* georef) : m_handle(RefCreateSystem(georef)) {}

CGeorefTransform::CGeorefTransform(CGeorefTransform const& other) : m_handle(nullptr) {
    GEOREF record;
    if (RefGetHandleInfo(other.m_handle, &record))
        m_handle = RefCreateSystem(&record);
}

CGeorefTransform::~CGeorefTransform() {
    RefDeleteSystem(m_handle);
}

CGeorefTransform& CGeorefTransform::operator=(CGeorefTransform const& other) {
    RefDeleteSystem(std::exchange(m_handle, shareSystem(other.m_handle)));
    return *this;
}

bool CGeorefTransform::Create(GEOREF const* georef) {
    void* const made = RefCreateSystem(georef); // before letting go: the record may be the present system's
    RefDeleteSystem(std::exchange(m_handle, made));
    return IsCreated();
}

void CGeorefTransform::Delete() {
    RefDeleteSystem(std::exchange(m_handle, nullptr));
}

bool CGeorefTransform::IsCreated() const {
    return m_handle != nullptr;
}

bool CGeorefTransform::Forward(GEOREFPOINT* points, int count) {
    return RefForward(m_handle, points, count);
}

bool CGeorefTransform::ComputeError(double* meanError, double* pointErrors) {
    return RefComputeError(m_handle, meanError, pointErrors);
}

bool CGeorefTransform::GetInfo(GEOREF* georef) {
    return RefGetHandleInfo(m_handle, georef);
}

} // namespace ZrProj

// CDatumTransform: owns a datum handle.
#include "datum/handle.h"

#include <utility>

namespace ZrProj {

CDatumTransform::CDatumTransform() : m_handle(nullptr) {}

CDatumTransform::CDatumTransform(DATUMXFORM const* xform) : m_handle(DatCreateDatum(xform)) {}

CDatumTransform::CDatumTransform(CDatumTransform const& other) : m_handle(nullptr) {
    DATUMXFORM request;
    if (DatGetHandleInfo(other.m_handle, &request))
        m_handle = DatCreateDatum(&request);
}

CDatumTransform::~CDatumTransform() {
    DatDeleteDatum(m_handle);
}

CDatumTransform& CDatumTransform::operator=(CDatumTransform const& other) {
    DatDeleteDatum(std::exchange(m_handle, shareDatum(other.m_handle)));
    return *this;
}

bool CDatumTransform::Create(DATUMXFORM const* xform) {
    Delete();
    m_handle = DatCreateDatum(xform);
    return IsCreated();
}

void CDatumTransform::Delete() {
    DatDeleteDatum(std::exchange(m_handle, nullptr));
}

bool CDatumTransform::IsCreated() const {
    return m_handle != nullptr;
}

bool CDatumTransform::Convert(DATUMPOINT* points, int count) {
    return DatConvertDatum(m_handle, points, count);
}

bool CDatumTransform::HadUnplottables() {
    return DatHadUnplottables(m_handle);
}

bool CDatumTransform::GetInfo(DATUMXFORM* xform) {
    return DatGetHandleInfo(m_handle, xform);
}

} // namespace ZrProj

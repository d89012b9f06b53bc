#include "cad/UdDbObject.h"

Udad::Error UdDbObject::GetGeomExtents(hrx::CVec3<double>& lowest, hrx::CVec3<double>& highest) const {
    const std::optional<hrx::CExtents3> extents = m_givenExtents ? m_givenExtents : geometryExtents();
    if (!extents)
        return Udad::eNoExtents;
    lowest = extents->low;
    highest = extents->high;
    return Udad::eOk;
}

void UdDbObject::setHandle(long long handle) {
    m_handle = handle;
    if (m_view)
        m_view->setHandle(handle);
}

void UdDbObject::attachView(std::unique_ptr<UdDbObject> view) {
    m_view = std::move(view);
    m_view->setHandle(m_handle);
    linkViews(*m_view);
}

UdDbHandle UdDbObjectId::Handle() const {
    return m_object ? m_object->Handle() : UdDbHandle();
}

Udad::Error UdDbOpenUdDbObject(UdDbObject*& object, UdDbObjectId id, UdDb::OpenMode, bool) {
    if (!id.m_object)
        return Udad::eNullId;
    if (!id.m_object->opens())
        return Udad::eNotOpen;
    object = id.m_object;
    return Udad::eOk;
}

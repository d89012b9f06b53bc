#pragma once

#include "cad/UdDb.h"
#include "cad/UdDbHandle.h"
#include "cad/UdDbObjectId.h"
#include "cad/UdRxObject.h"
#include "geometry/CExtents3.h"
#include "geometry/CVec3.h"

#include <memory>
#include <optional>

/// An object of a document. Derived directly (as UdDbPlainObject does), it is a drawing object that is
/// neither site element nor 3-D model object.
class UdDbObject : public UdRxObject {
public:
    UdDbHandle Handle() const { return UdDbHandle(m_handle); }

    /// Lowest and highest corner of the object's geometry, or of the extents it was given instead. An object
    /// without either leaves both corners as they are and answers eNoExtents.
    Udad::Error GetGeomExtents(hrx::CVec3<double>& lowest, hrx::CVec3<double>& highest) const;

    bool opens() const { return !m_refusesToOpen; }

    // For whoever builds a document.
    void setHandle(long long handle);
    void setExtents(const hrx::CExtents3& extents) { m_givenExtents = extents; }
    void setRefusesToOpen(bool refuses) { m_refusesToOpen = refuses; }

    /// Makes `view` the second view of this object and takes it over. Both have one handle; each has extents
    /// of its own.
    void attachView(std::unique_ptr<UdDbObject> view);

protected:
    explicit UdDbObject(ClassBits classes) : UdRxObject(classes) {}

    /// The extents of the geometry; nothing when there is none.
    virtual std::optional<hrx::CExtents3> geometryExtents() const { return std::nullopt; }

private:
    long long m_handle = 0;
    bool m_refusesToOpen = false;
    std::optional<hrx::CExtents3> m_givenExtents;
    std::unique_ptr<UdDbObject> m_view;
};

class UdDbPlainObject : public UdDbObject {
public:
    UdDbPlainObject() : UdDbObject(0) {}
};

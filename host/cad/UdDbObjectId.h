#pragma once

#include "cad/UdDb.h"
#include "cad/UdDbHandle.h"

class UdDbObject;

/// Refers to an object of an open document; not to be kept beyond the document's life. Default-constructed
/// ids are invalid and have handle 0.
class UdDbObjectId {
public:
    UdDbObjectId() = default;
    explicit UdDbObjectId(UdDbObject* object) : m_object(object) {}

    bool IsValid() const { return m_object != nullptr; }
    UdDbHandle Handle() const;

private:
    friend Udad::Error UdDbOpenUdDbObject(UdDbObject*& object, UdDbObjectId id, UdDb::OpenMode mode,
                                          bool openErased);

    UdDbObject* m_object = nullptr;
};

/// Opens the object that `id` names. `object` is set on eOk only; it belongs to its document.
Udad::Error UdDbOpenUdDbObject(UdDbObject*& object, UdDbObjectId id, UdDb::OpenMode mode, bool openErased);

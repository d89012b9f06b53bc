#pragma once

#include "cad/UdDbObject.h"

#include <memory>
#include <vector>

using UdDbObjects = std::vector<std::unique_ptr<UdDbObject>>;

/// Steps through a container once, in its order. Invalid as soon as the container changes.
class UdDbObjContainerIterator {
public:
    explicit UdDbObjContainerIterator(const UdDbObjects& objects)
        : m_current(objects.data()), m_end(objects.data() + objects.size()) {}
    virtual ~UdDbObjContainerIterator() = default;

    bool Done() const { return m_current == m_end; }

    /// Opens the current object; `object` is set on eOk only and belongs to its document.
    Udad::Error GetItem(UdDbObject*& object, UdDb::OpenMode, bool) const {
        if (!(*m_current)->opens())
            return Udad::eNotOpen;
        object = m_current->get();
        return Udad::eOk;
    }

    void Step(bool, bool) { ++m_current; }

private:
    const std::unique_ptr<UdDbObject>* m_current;
    const std::unique_ptr<UdDbObject>* m_end;
};

/// Owns its objects and keeps them in the order in which they were appended.
class UdDbObjContainer {
public:
    virtual ~UdDbObjContainer() = default;

    /// The caller owns the iterator and deletes it.
    UdDbObjContainerIterator* NewIterator(bool, bool) const {
        return new UdDbObjContainerIterator(m_objects);
    }

    const UdDbObjects& objects() const { return m_objects; }
    UdDbObject* append(std::unique_ptr<UdDbObject> object);

private:
    UdDbObjects m_objects;
};

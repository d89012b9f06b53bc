#pragma once

#include "cad/UdDbBlock.h"

#include <memory>
#include <unordered_map>
#include <utility>

/// The database of one drawing: a model space, whose objects it owns, and their handles.
class UdDbDocument {
public:
    enum class Content { ModelSpace, Nothing };

    /// With Content::Nothing the document has no model space at all.
    explicit UdDbDocument(Content content = Content::ModelSpace);

    /// Null when the document has none.
    UdDbBlock* GetModelSpace() { return m_modelSpace.get(); }

    /// The object with that handle, or null when there is none or it refuses to open.
    UdDbObject* GetItem(long long handle, UdDb::OpenMode mode) const;

    /// Appends an object to the model space under `handle`, which no other object may have; 0 takes the next
    /// free one.
    template <class Object> Object& append(std::unique_ptr<Object> object, long long handle = 0) {
        Object& appended = *object;
        appendObject(std::move(object), handle);
        return appended;
    }

    bool hasHandle(long long handle) const { return m_byHandle.count(handle) != 0; }

private:
    void appendObject(std::unique_ptr<UdDbObject> object, long long handle);

    std::unique_ptr<UdDbBlock> m_modelSpace;
    std::unordered_map<long long, UdDbObject*> m_byHandle;
    long long m_nextHandle = 1;
};

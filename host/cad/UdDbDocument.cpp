#include "cad/UdDbDocument.h"

#include <stdexcept>

UdDbObject* UdDbObjContainer::append(std::unique_ptr<UdDbObject> object) {
    m_objects.push_back(std::move(object));
    return m_objects.back().get();
}

UdDbDocument::UdDbDocument(Content content) {
    if (content == Content::ModelSpace)
        m_modelSpace = std::make_unique<UdDbBlock>();
}

UdDbObject* UdDbDocument::GetItem(long long handle, UdDb::OpenMode) const {
    const auto found = m_byHandle.find(handle);
    return found != m_byHandle.end() && found->second->opens() ? found->second : nullptr;
}

void UdDbDocument::appendObject(std::unique_ptr<UdDbObject> object, long long handle) {
    if (!m_modelSpace)
        throw std::logic_error("the document has no model space");
    if (handle == 0) {
        while (hasHandle(m_nextHandle))
            ++m_nextHandle;
        handle = m_nextHandle;
    }
    if (!m_byHandle.emplace(handle, object.get()).second)
        throw std::invalid_argument("the handle is taken");
    object->setHandle(handle);
    m_modelSpace->append(std::move(object));
}

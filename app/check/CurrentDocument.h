#pragma once

#include "cad/UdApDocManager.h"

#include <memory>

namespace firecheck {

/// A document that is open and current as long as this lives.
class CurrentDocument {
public:
    explicit CurrentDocument(std::unique_ptr<UdDbDocument> database)
        : m_document(UdDocManagerPtr()->open(std::move(database))) {}
    ~CurrentDocument() { UdDocManagerPtr()->close(m_document); }
    CurrentDocument(const CurrentDocument&) = delete;
    CurrentDocument& operator=(const CurrentDocument&) = delete;

    const UdDbObjects& objects() const { return m_document->Database()->GetModelSpace()->objects(); }
    UdDbObject* object(long long handle) const {
        return m_document->Database()->GetItem(handle, UdDb::kForRead);
    }

private:
    UdApDocument* m_document;
};

} // namespace firecheck

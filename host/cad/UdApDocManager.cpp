#include "cad/UdApDocManager.h"

#include <algorithm>

UdApDocument* UdApDocManager::open(std::unique_ptr<UdDbDocument> database) {
    m_documents.push_back(std::make_unique<UdApDocument>(std::move(database)));
    m_current = m_documents.back().get();
    return m_current;
}

void UdApDocManager::close(UdApDocument* document) {
    const auto isClosed = [document](const auto& open) { return open.get() == document; };
    m_documents.erase(std::remove_if(m_documents.begin(), m_documents.end(), isClosed), m_documents.end());
    if (m_current == document)
        m_current = nullptr;
}

UdApDocManager* UdDocManagerPtr() {
    static UdApDocManager manager;
    return &manager;
}

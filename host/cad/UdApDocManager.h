#pragma once

#include "cad/UdDbDocument.h"

#include <memory>
#include <utility>
#include <vector>

/// A document as the application holds it: a window on a database document, which may be missing.
class UdApDocument {
public:
    explicit UdApDocument(std::unique_ptr<UdDbDocument> database) : m_database(std::move(database)) {}

    UdDbDocument* Database() const { return m_database.get(); }

private:
    std::unique_ptr<UdDbDocument> m_database;
};

/// The application's open documents, of which at most one is current.
class UdApDocManager {
public:
    /// Null when no document is current.
    UdApDocument* CurDocument() const { return m_current; }

    /// Takes the document over and makes it current.
    UdApDocument* open(std::unique_ptr<UdDbDocument> database);

    /// Null leaves no document current.
    void setCurrent(UdApDocument* document) { m_current = document; }

    /// Destroys the document; when it was the current one, none is current afterwards.
    void close(UdApDocument* document);

private:
    std::vector<std::unique_ptr<UdApDocument>> m_documents;
    UdApDocument* m_current = nullptr;
};

/// The process's document manager; never null.
UdApDocManager* UdDocManagerPtr();

#pragma once

#include "edit/EditSession.h"

#include <memory>
#include <string>

namespace firecheck {

/// Serves the page of one session, and its requests one after another, to this computer alone.
class EditServer {
public:
    /// Port 0 takes a free one. Throws InputError for one that cannot be had. Refers to the session.
    EditServer(EditSession& session, int port);
    ~EditServer();
    EditServer(const EditServer&) = delete;
    EditServer& operator=(const EditServer&) = delete;

    /// Of the page; whoever knows it may change the site.
    std::string address() const;

    /// Answers requests until the page asks to end, or `stop` is called.
    void serve();

    /// From any thread; without effect before `serve` has begun.
    void stop();

private:
    class Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace firecheck

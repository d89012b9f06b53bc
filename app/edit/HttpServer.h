#pragma once

#include "edit/request_guard.h"

#include <functional>
#include <httplib.h>
#include <mutex>

namespace firecheck {

class HttpConnection;

/// What a request that was let in asks for, below the address of the page.
struct HttpRequest {
    bool isRead = true; ///< GET, else POST
    std::string wanted;
    std::string handle; ///< of "?handle=413"
    std::string body;
};

struct HttpAnswer {
    int status = 200;
    std::string content;
    std::string mediaType;
};

/// Serves those whom a guard lets in on a port of 127.0.0.1. Sizes, times, rates and connections are bounded.
class HttpServer : private httplib::Server {
public:
    /// Is called by several threads at once.
    using Respond = std::function<HttpAnswer(const HttpRequest& request)>;

    /// Port 0 takes a free one. Throws InputError for one that cannot be had.
    HttpServer(int port, Respond respond);

    std::string address() const { return m_guard.address(); }

    /// Until `end`, which may be called by any thread. It has no effect before this has begun.
    void serve();
    void end() { stop(); }

private:
    int bound(int port);
    bool process_and_close_socket(socket_t socket) override;
    bool awaitsRequest(const HttpConnection& connection) const;
    void waitForTurn();
    HandlerResponse refuseOrPass(const httplib::Request& request, httplib::Response& response) const;

    const RequestGuard m_guard;
    const Respond m_respond;
    std::mutex m_turns;
    std::chrono::steady_clock::time_point m_nextTurn; ///< behind the last one that was given
};

} // namespace firecheck

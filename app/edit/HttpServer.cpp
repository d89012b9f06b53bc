#include "edit/HttpServer.h"

#include "InputError.h"
#include "edit/HttpConnection.h"

#include <thread>

namespace firecheck {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr std::size_t kConnections = 16; // at once; further ones wait
constexpr std::size_t kLargestHead = 64 * 1024;
constexpr milliseconds kTimeOfRequest{10000};
constexpr milliseconds kTimeBetweenRequests{5000};
constexpr milliseconds kTimeToNoticeTheEnd{100};
constexpr milliseconds kTimeOfTurn{5}; // at most 200 requests a second
constexpr milliseconds kBurst{500};    // of turns that nobody took

httplib::Headers securityHeaders() {
    return {{"Content-Security-Policy",
             "default-src 'none'; script-src 'self'; style-src 'self'; img-src 'self' data:; "
             "connect-src 'self'; base-uri 'none'; form-action 'none'; frame-ancestors 'none'"},
            {"X-Content-Type-Options", "nosniff"},
            {"Referrer-Policy", "no-referrer"},
            {"Cross-Origin-Resource-Policy", "same-origin"},
            {"Cache-Control", "no-store"}};
}

RequestHead headOf(const httplib::Request& request) {
    return {request.method,
            request.path,
            request.get_header_value("Host"),
            request.get_header_value("Origin"),
            request.get_header_value("Content-Type"),
            request.get_header_value("Content-Encoding"),
            request.get_header_value("Transfer-Encoding"),
            request.get_header_value("Content-Length")};
}

} // namespace

HttpServer::HttpServer(int port, Respond respond) : m_guard(bound(port)), m_respond(std::move(respond)) {
    set_default_headers(securityHeaders());
    new_task_queue = [] { return new httplib::ThreadPool(kConnections); };
    set_expect_100_continue_handler([this](const httplib::Request& request, httplib::Response& response) {
        return refuseOrPass(request, response) == HandlerResponse::Handled ? response.status : 100;
    });
    set_pre_routing_handler([this](const httplib::Request& request, httplib::Response& response) {
        return refuseOrPass(request, response);
    });
    const auto handle = [this](const httplib::Request& request, httplib::Response& response) {
        const HttpAnswer answer = m_respond({request.method == "GET", m_guard.below(request.path),
                                             request.get_param_value("handle"), request.body});
        response.status = answer.status;
        response.set_content(answer.content, answer.mediaType);
    };
    Get(".*", handle);
    Post(".*", handle);
}

int HttpServer::bound(int port) {
    const std::string host = "127.0.0.1";
    set_address_family(AF_INET);
    set_tcp_nodelay(true); // else the second piece of an answer waits for the browser's word on the first
    set_socket_options([](socket_t socket) { // no port that another program serves
        const int yes = 1;
        setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    });
    if (port == 0)
        port = bind_to_any_port(host);
    else if (!bind_to_port(host, port))
        port = -1;
    if (port <= 0)
        throw InputError("Option --port: the port cannot be had. Another program may use it.");
    return port;
}

httplib::Server::HandlerResponse HttpServer::refuseOrPass(const httplib::Request& request,
                                                          httplib::Response& response) const {
    const int refusal = m_guard.refusalOf(headOf(request));
    if (refusal == 0)
        return HandlerResponse::Unhandled;
    response.status = refusal;
    response.set_content(R"({"error": "refused"})", "application/json");
    return HandlerResponse::Handled;
}

void HttpServer::serve() {
    listen_after_bind();
}

void HttpServer::waitForTurn() {
    steady_clock::time_point turn;
    {
        const std::lock_guard<std::mutex> lock(m_turns);
        turn = std::max(m_nextTurn, steady_clock::now() - kBurst);
        m_nextTurn = turn + kTimeOfTurn;
    }
    std::this_thread::sleep_until(turn);
}

bool HttpServer::awaitsRequest(const HttpConnection& connection) const {
    const auto end = steady_clock::now() + kTimeBetweenRequests;
    // It counts as running until every connection has ended.
    while (svr_sock_ != INVALID_SOCKET && steady_clock::now() < end)
        if (connection.awaitsReading(kTimeToNoticeTheEnd))
            return true;
    return false;
}

bool HttpServer::process_and_close_socket(socket_t socket) {
    HttpConnection connection(socket);
    bool isClosed = false;
    while (!isClosed && awaitsRequest(connection)) {
        connection.allow(kLargestHead + kLargestRequestBody, kTimeOfRequest);
        // Whoever is refused, or sends what is no request, has sent a body perhaps that nobody reads.
        bool isLetIn = false;
        const bool isAnswered = process_request(connection, false, isClosed, [&](httplib::Request& request) {
            isLetIn = m_guard.refusalOf(headOf(request)) == 0;
            request.headers.erase("Accept-Encoding"); // to press an answer takes longer than to send it
            if (isLetIn)
                return waitForTurn();
            request.headers.erase("Connection");
            request.set_header("Connection", "close");
        });
        isClosed = isClosed || !isAnswered || !isLetIn;
    }
    return true;
}

} // namespace firecheck

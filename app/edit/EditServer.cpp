#include "edit/EditServer.h"

#include "edit/edit_requests.h"
#include "edit/page_files.h"
#include "edit/request_guard.h"

#include <httplib.h>

#include <mutex>

namespace firecheck {

namespace {

const std::string kApi = "api/";

httplib::Headers securityHeaders() {
    return {{"Content-Security-Policy",
             "default-src 'none'; script-src 'self'; style-src 'self'; img-src 'self' data:; "
             "connect-src 'self'; base-uri 'none'; form-action 'none'; frame-ancestors 'none'"},
            {"X-Content-Type-Options", "nosniff"},
            {"Referrer-Policy", "no-referrer"},
            {"Cross-Origin-Resource-Policy", "same-origin"},
            {"Cache-Control", "no-store"}};
}

int statusOf(EditAnswer::Outcome outcome) {
    switch (outcome) {
    case EditAnswer::Outcome::Done:
        return 200;
    case EditAnswer::Outcome::NoSuchRequest:
        return 404;
    case EditAnswer::Outcome::Malformed:
        return 400;
    case EditAnswer::Outcome::Refused:
        return 422;
    case EditAnswer::Outcome::Conflict:
        return 409;
    case EditAnswer::Outcome::Failed:
        break;
    }
    return 500;
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

void refuse(httplib::Response& response, int status) {
    response.status = status;
    response.set_content(R"({"error": "refused"})", "application/json");
}

} // namespace

class EditServer::Implementation {
public:
    Implementation(EditSession& session, int port) : m_session(session), m_guard(bound(port)) {
        m_server.set_default_headers(securityHeaders());
        m_server.set_pre_routing_handler([this](const httplib::Request& request, httplib::Response& response) {
            const int refusal = m_guard.refusalOf(headOf(request));
            if (refusal == 0)
                return httplib::Server::HandlerResponse::Unhandled;
            refuse(response, refusal);
            return httplib::Server::HandlerResponse::Handled;
        });
        const auto answer = [this](const httplib::Request& request, httplib::Response& response) {
            this->answer(request, response);
        };
        m_server.Get(".*", answer);
        m_server.Post(".*", answer);
    }

    std::string address() const { return m_guard.address(); }
    void serve() { m_server.listen_after_bind(); }
    void stop() { m_server.stop(); }

private:
    int bound(int port) {
        const std::string host = "127.0.0.1";
        m_server.set_address_family(AF_INET);
        if (port == 0)
            port = m_server.bind_to_any_port(host);
        else if (!m_server.bind_to_port(host, port))
            port = -1;
        if (port <= 0)
            throw InputError("Option --port: the port cannot be had. Another program may use it.");
        return port;
    }

    void answer(const httplib::Request& request, httplib::Response& response) {
        const std::string wanted = m_guard.below(request.path);
        if (wanted.compare(0, kApi.size(), kApi) == 0)
            answerApi(request, wanted.substr(kApi.size()), response);
        else if (const auto file = request.method == "GET" ? pageFile(wanted) : std::nullopt)
            response.set_content(file->content, file->mediaType);
        else
            refuse(response, 404);
    }

    void answerApi(const httplib::Request& request, const std::string& name, httplib::Response& response) {
        if (name == "quit" && request.method == "POST") {
            response.set_content("{}", "application/json");
            stop();
            return;
        }
        const std::lock_guard<std::mutex> turn(m_turn);
        const EditAnswer answer = answerRequest(m_session, request.method == "GET", name,
                                                request.get_param_value("handle"), request.body);
        response.status = statusOf(answer.outcome);
        response.set_content(answer.json.dump(-1, ' ', false, Json::error_handler_t::replace),
                             "application/json");
    }

    EditSession& m_session;
    std::mutex m_turn; ///< the session's
    httplib::Server m_server;
    const RequestGuard m_guard;
};

EditServer::EditServer(EditSession& session, int port)
    : m_implementation(std::make_unique<Implementation>(session, port)) {}

EditServer::~EditServer() = default;

std::string EditServer::address() const {
    return m_implementation->address();
}

void EditServer::serve() {
    m_implementation->serve();
}

void EditServer::stop() {
    m_implementation->stop();
}

} // namespace firecheck

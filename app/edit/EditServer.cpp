#include "edit/EditServer.h"

#include "edit/HttpServer.h"
#include "edit/edit_requests.h"
#include "edit/page_files.h"

#include <mutex>

namespace firecheck {

namespace {

const std::string kApi = "api/";
const std::string kJsonType = "application/json";

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

} // namespace

class EditServer::Implementation {
public:
    Implementation(EditSession& session, int port)
        : m_session(session), m_server(port, [this](const HttpRequest& request) { return answer(request); }) {
    }

    HttpServer& server() { return m_server; }

private:
    HttpAnswer answer(const HttpRequest& request) {
        if (request.wanted.compare(0, kApi.size(), kApi) == 0)
            return answerApi(request, request.wanted.substr(kApi.size()));
        const auto file = request.isRead ? pageFile(request.wanted) : std::nullopt;
        return file ? HttpAnswer{200, file->content, file->mediaType}
                    : HttpAnswer{404, R"({"error": "there is no such file"})", kJsonType};
    }

    HttpAnswer answerApi(const HttpRequest& request, const std::string& name) {
        if (name == "quit" && !request.isRead) {
            m_server.end();
            return {200, "{}", kJsonType};
        }
        const std::lock_guard<std::mutex> turn(m_turn);
        const EditAnswer answer =
            answerRequest(m_session, request.isRead, name, request.handle, request.body);
        return {statusOf(answer.outcome), answer.json.dump(-1, ' ', false, Json::error_handler_t::replace),
                kJsonType};
    }

    EditSession& m_session;
    std::mutex m_turn; ///< the session's
    HttpServer m_server;
};

EditServer::EditServer(EditSession& session, int port)
    : m_implementation(std::make_unique<Implementation>(session, port)) {}

EditServer::~EditServer() = default;

std::string EditServer::address() const {
    return m_implementation->server().address();
}

void EditServer::serve() {
    m_implementation->server().serve();
}

void EditServer::stop() {
    m_implementation->server().end();
}

} // namespace firecheck

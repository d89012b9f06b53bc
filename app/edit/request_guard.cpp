#include "edit/request_guard.h"

#include <QByteArray>
#include <QRandomGenerator>
#include <QString>

#include <array>

namespace firecheck {

namespace {

std::string newToken() {
    std::array<quint32, 6> bits{};
    QRandomGenerator::system()->generate(bits.begin(), bits.end());
    std::string token;
    for (const quint32 part : bits)
        token += QString("%1").arg(part, 8, 16, QChar('0')).toStdString();
    return token;
}

/// As long for any two texts of these lengths.
bool areEqual(const std::string& secret, const std::string& given) {
    unsigned difference = secret.size() == given.size() ? 0U : 1U;
    for (std::size_t i = 0; i < secret.size(); ++i) {
        const char other = given.empty() ? '\0' : given[i % given.size()];
        difference |= static_cast<unsigned>(static_cast<unsigned char>(secret[i] ^ other));
    }
    return difference == 0U;
}

bool isJson(const std::string& contentType) {
    const QString type = QString::fromStdString(contentType).section(';', 0, 0).trimmed().toLower();
    return type == "application/json";
}

} // namespace

RequestGuard::RequestGuard(int port) : m_port(std::to_string(port)), m_token(newToken()) {}

std::string RequestGuard::address() const {
    return "http://127.0.0.1:" + m_port + "/" + m_token + "/";
}

bool RequestGuard::isOwnHost(const std::string& host) const {
    return host == "127.0.0.1:" + m_port || host == "localhost:" + m_port;
}

bool RequestGuard::hasToken(const std::string& path) const {
    const std::size_t end = path.find('/', 1);
    return areEqual(
        m_token, path.substr(std::min<std::size_t>(1, path.size()), end == std::string::npos ? 0 : end - 1));
}

std::string RequestGuard::below(const std::string& path) const {
    return path.substr(m_token.size() + 2);
}

int RequestGuard::refusalOf(const RequestHead& head) const {
    if (!isOwnHost(head.host) || (!head.origin.empty() && head.origin != "http://" + head.host))
        return 403;
    if (!hasToken(head.path))
        return 404;
    if (head.method == "GET")
        return head.contentLength.empty() && head.transferEncoding.empty() ? 0 : 400;
    if (head.method != "POST")
        return 405;
    if (!isJson(head.contentType) || !head.contentEncoding.empty())
        return 415;
    bool isNumber = false;
    const qulonglong length = QString::fromStdString(head.contentLength).toULongLong(&isNumber);
    if (!isNumber || !head.transferEncoding.empty())
        return 411;
    return length > kLargestRequestBody ? 413 : 0;
}

} // namespace firecheck

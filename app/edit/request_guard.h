#pragma once

#include <cstddef>
#include <string>

namespace firecheck {

/// The largest body of a request, bytes: a change of some thousand objects.
constexpr std::size_t kLargestRequestBody = 4 * 1024 * 1024;

/// What a request says of itself before its body is read; empty texts for headers that it does not have.
struct RequestHead {
    std::string method;
    std::string path;
    std::string host;
    std::string origin;
    std::string contentType;
    std::string contentEncoding;
    std::string transferEncoding;
    std::string contentLength;
};

/// Who may ask the server of one page anything: whoever was told the token, from a page of this very server.
class RequestGuard {
public:
    /// The token is made anew: 192 random bits.
    explicit RequestGuard(int port);

    /// "http://127.0.0.1:8080/TOKEN/".
    std::string address() const;

    /// The status of HTTP with which the request is refused; 0 for one that is let in.
    int refusalOf(const RequestHead& head) const;

    /// What the request asks for, below the page's address.
    std::string below(const std::string& path) const;

private:
    bool isOwnHost(const std::string& host) const;
    bool hasToken(const std::string& path) const;

    std::string m_port;
    std::string m_token;
};

} // namespace firecheck

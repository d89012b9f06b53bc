#include "edit/HttpConnection.h"

#include <poll.h>

namespace firecheck {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds kTimeToThrowAway{2000};

} // namespace

HttpConnection::~HttpConnection() {
    shutdown(m_socket, SHUT_WR);
    allow(0, kTimeToThrowAway);
    while (timeLeft() > milliseconds(0) && isReady(POLLIN, timeLeft()) &&
           recv(m_socket, m_buffer.data(), m_buffer.size(), 0) > 0) {
    }
    close(m_socket);
}

bool HttpConnection::isReady(short events, milliseconds time) const {
    pollfd wanted{m_socket, events, 0};
    return poll(&wanted, 1, static_cast<int>(time.count())) > 0;
}

milliseconds HttpConnection::timeLeft() const {
    return std::max(milliseconds(0), std::chrono::duration_cast<milliseconds>(m_deadline - Clock::now()));
}

bool HttpConnection::awaitsReading(milliseconds time) const {
    return m_begin < m_end || isReady(POLLIN, time);
}

void HttpConnection::allow(std::size_t bytes, milliseconds time) {
    m_bytesLeft = bytes;
    m_deadline = Clock::now() + time;
}

bool HttpConnection::is_readable() const {
    return awaitsReading(timeLeft());
}

bool HttpConnection::is_writable() const {
    return isReady(POLLOUT, timeLeft());
}

ssize_t HttpConnection::read(char* target, std::size_t size) {
    if (m_bytesLeft == 0)
        return -1;
    if (m_begin == m_end) {
        if (!isReady(POLLIN, timeLeft()))
            return -1;
        const ssize_t received = recv(m_socket, m_buffer.data(), m_buffer.size(), 0);
        if (received <= 0)
            return received;
        m_begin = 0;
        m_end = static_cast<std::size_t>(received);
    }
    const std::size_t taken = std::min({size, m_end - m_begin, m_bytesLeft});
    std::copy_n(m_buffer.data() + m_begin, taken, target);
    m_begin += taken;
    m_bytesLeft -= taken;
    return static_cast<ssize_t>(taken);
}

ssize_t HttpConnection::write(const char* source, std::size_t size) {
    return is_writable() ? send(m_socket, source, size, MSG_NOSIGNAL) : -1;
}

void HttpConnection::get_remote_ip_and_port(std::string& address, int& port) const {
    address.clear();
    port = 0;
}

void HttpConnection::get_local_ip_and_port(std::string& address, int& port) const {
    address.clear();
    port = 0;
}

} // namespace firecheck

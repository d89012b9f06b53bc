#pragma once

#include <array>
#include <chrono>
#include <httplib.h>

namespace firecheck {

/// One connection of a browser, whose requests are bounded in size and time: the library alone would take a
/// line without end, and wait for every byte anew.
class HttpConnection : public httplib::Stream {
public:
    /// Owns the socket.
    explicit HttpConnection(socket_t socket) : m_socket(socket) {}
    /// Lets the browser read the last answer: what it is still sending is taken for a while and thrown away.
    ~HttpConnection() override;
    HttpConnection(const HttpConnection&) = delete;
    HttpConnection& operator=(const HttpConnection&) = delete;

    /// Whether the next request begins within that time.
    bool awaitsReading(std::chrono::milliseconds time) const;
    /// From now on, `bytes` may be read until `time` from now.
    void allow(std::size_t bytes, std::chrono::milliseconds time);

    bool is_readable() const override;
    bool is_writable() const override;
    ssize_t read(char* target, std::size_t size) override;
    ssize_t write(const char* source, std::size_t size) override;
    void get_remote_ip_and_port(std::string& address, int& port) const override;
    void get_local_ip_and_port(std::string& address, int& port) const override;
    socket_t socket() const override { return m_socket; }

private:
    using Clock = std::chrono::steady_clock;

    bool isReady(short events, std::chrono::milliseconds time) const;
    std::chrono::milliseconds timeLeft() const;

    socket_t m_socket;
    std::size_t m_bytesLeft = 0;
    Clock::time_point m_deadline;
    std::array<char, 16384> m_buffer{};
    std::size_t m_begin = 0; ///< of what is in the buffer
    std::size_t m_end = 0;
};

} // namespace firecheck

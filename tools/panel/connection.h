#pragma once

#include <chrono>
#include <functional>
#include <httplib.h>

namespace panel {

/// One connection of a browser, with its one request, kept within bounds: the request is read whole before anything is
/// done about it, it is small and comes soon, and an answer that nobody takes in time ends. Whatever a peer does, it
/// costs one thread for a few seconds at most.
class Connection : public httplib::Stream
{
public:
    static constexpr std::size_t kLongestHead = 16 * 1024;
    static constexpr std::size_t kLongestBody = 4 * 1024;

    explicit Connection(int socket);
    ~Connection() override;
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    /// Reads the request. 0, or the status of the refusal that fits; -1 when there is nobody to refuse.
    /// @param hurry asked again and again: whether others wait for the thread.
    int readRequest(const std::function<bool()> &hurry);
    /// Sends an answer without a body that tells the status alone.
    void refuse(int status);
    /// A new piece of an answer begins: it may take as long as a whole one.
    void beginPiece();
    /// The connection that this thread serves.
    static Connection *current();

    bool is_readable() const override;
    bool is_writable() const override;
    ssize_t read(char *to, size_t size) override;
    ssize_t write(const char *from, size_t size) override;
    using httplib::Stream::write;
    void get_remote_ip_and_port(std::string &ip, int &port) const override;
    void get_local_ip_and_port(std::string &ip, int &port) const override;
    socket_t socket() const override { return m_socket; }

private:
    using Clock = std::chrono::steady_clock;
    int missing() const;
    bool receive(int waitMs);
    void linger();

    int m_socket;
    std::string m_request;
    std::size_t m_taken = 0; // of the request, by the library
    Clock::time_point m_begun = Clock::now();
    Clock::time_point m_writeUntil;
};

} // namespace panel

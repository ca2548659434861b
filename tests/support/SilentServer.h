#pragma once

#include <QString>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

/// A port that takes connections and says nothing.
class SilentServer
{
public:
    SilentServer()
        : m_socket(::socket(AF_INET, SOCK_STREAM, 0))
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        auto *general = reinterpret_cast<sockaddr *>(&address);
        if (::bind(m_socket, general, size) == 0 && ::listen(m_socket, 8) == 0 &&
            ::getsockname(m_socket, general, &size) == 0)
            m_port = ntohs(address.sin_port);
    }
    ~SilentServer() { ::close(m_socket); }
    [[nodiscard]] QString url() const { return QStringLiteral("svn://127.0.0.1:%1").arg(m_port); }

private:
    int m_socket;
    int m_port = 0;
};

#pragma once

#include <QtGlobal>

#include <csignal>
#include <sys/resource.h>

/// No file of this process may grow beyond a size, as if the disk were full.
class SizeLimit
{
public:
    explicit SizeLimit(qint64 bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_old);
        const rlimit limit{rlim_t(bytes), m_old.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_old);
        std::signal(SIGXFSZ, m_handler);
    }
    SizeLimit(const SizeLimit &) = delete;
    SizeLimit &operator=(const SizeLimit &) = delete;

private:
    rlimit m_old{};
    void (*m_handler)(int);
};

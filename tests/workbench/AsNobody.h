#pragma once

#include <sys/prctl.h>
#include <unistd.h>

/// Takes the rights of the superuser from this process for a while, so that folders without write
/// permission are just that.
class AsNobody
{
public:
    AsNobody()
        : m_user(geteuid())
    {
        constexpr uid_t Nobody = 65534;
        if (m_user == 0 && seteuid(Nobody) != 0)
            m_failed = true;
    }
    ~AsNobody()
    {
        if (m_user != 0)
            return;
        if (seteuid(m_user) != 0)
            _exit(1);
        prctl(PR_SET_DUMPABLE, 1); // as before, so that leak checkers may look into it
    }
    AsNobody(const AsNobody &) = delete;
    AsNobody &operator=(const AsNobody &) = delete;

    [[nodiscard]] bool failed() const { return m_failed; }

private:
    const uid_t m_user;
    bool m_failed = false;
};

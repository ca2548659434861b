#pragma once

#include <string_view>

/// Id of an interface, made of the interface's name. An interface's own id is a static object of
/// its iid() function.
class mzIIDS
{
public:
    /// Keeps the address: a literal.
    constexpr explicit mzIIDS(const char *name)
        : m_name(name)
        , m_hash(hash(m_name))
    {
    }

    [[nodiscard]] constexpr const char *name() const { return m_name.data(); }
    friend constexpr bool operator==(const mzIIDS &a, const mzIIDS &b)
    {
        return a.m_hash == b.m_hash && a.m_name == b.m_name;
    }

private:
    static constexpr unsigned long long hash(std::string_view text)
    {
        unsigned long long result = 14695981039346656037ULL; // FNV-1a
        for (const char each : text)
            result = (result ^ static_cast<unsigned char>(each)) * 1099511628211ULL;
        return result;
    }

    std::string_view m_name;
    unsigned long long m_hash;
};

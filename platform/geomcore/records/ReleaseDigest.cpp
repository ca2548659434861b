#include "ReleaseDigest.h"

ReleaseDigest::ReleaseDigest(const ReleaseMappingC &release)
    : m_release(release)
{
}

std::optional<ReleaseDigest::Text> ReleaseDigest::text() const
{
    const std::lock_guard guard(m_mutex);
    return m_text;
}

void ReleaseDigest::note(const Text &text)
{
    const std::lock_guard guard(m_mutex);
    m_text = text;
}

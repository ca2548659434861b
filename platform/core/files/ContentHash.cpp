#include "ContentHash.h"

#include <xxhash.h>

namespace {

QByteArray digits(XXH128_hash_t hash)
{
    XXH128_canonical_t canonical;
    XXH128_canonicalFromHash(&canonical, hash);
    return QByteArray(reinterpret_cast<const char *>(canonical.digest), sizeof canonical.digest)
        .toHex();
}

} // namespace

void ContentHash::Free::operator()(XXH3_state_s *state) const
{
    XXH3_freeState(state);
}

ContentHash::ContentHash()
    : m_state(XXH3_createState())
{
    Q_CHECK_PTR(m_state.get());
    XXH3_128bits_reset(m_state.get());
}

ContentHash::~ContentHash() = default;

void ContentHash::add(QByteArrayView content)
{
    XXH3_128bits_update(m_state.get(), content.data(), size_t(content.size()));
}

QByteArray ContentHash::result() const
{
    return digits(XXH3_128bits_digest(m_state.get()));
}

QByteArray ContentHash::of(QByteArrayView content)
{
    return digits(XXH3_128bits(content.data(), size_t(content.size())));
}

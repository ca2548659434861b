#pragma once

#include <core/VelkCoreGlobal.h>

#include <QByteArray>
#include <QByteArrayView>

#include <memory>

struct XXH3_state_s;

/// A number of 128 bits by which contents are told apart, some twenty times as fast as reading them
/// from a disk: XXH3 with 128 bits, as xxHash has it since 0.8. It guards against chance,
/// not against somebody who makes a content on purpose. The same on all machines.
class VELKCORE_EXPORT ContentHash
{
public:
    ContentHash();
    ~ContentHash();
    ContentHash(const ContentHash &) = delete;
    ContentHash &operator=(const ContentHash &) = delete;

    void add(QByteArrayView content);
    /// Of all that was added so far, 32 hexadecimal digits.
    [[nodiscard]] QByteArray result() const;

    [[nodiscard]] static QByteArray of(QByteArrayView content);

private:
    struct Free
    {
        void operator()(XXH3_state_s *state) const;
    };
    std::unique_ptr<XXH3_state_s, Free> m_state;
};

#pragma once

#include <QIODevice>

#include <array>
#include <memory>

/// Input stream of the JSON reader over a device, which it reads in pieces. Begins behind a byte
/// order mark and ends with zeros.
class JsonDeviceStream
{
public:
    using Ch = char;

    explicit JsonDeviceStream(QIODevice &device)
        : m_device(device)
        , m_buffer(std::make_unique_for_overwrite<Buffer>())
    {
        refill();
        static constexpr char Mark[] = "\xEF\xBB\xBF";
        if (m_end - m_at > 3 && std::equal(Mark, Mark + 3, m_at))
            m_at += 3;
    }

    [[nodiscard]] Ch Peek() const { return *m_at; }
    Ch Take()
    {
        const Ch c = *m_at;
        if (++m_at == m_end)
            refill();
        return c;
    }
    /// Offset in the device, whatever was skipped.
    [[nodiscard]] size_t Tell() const { return m_before + size_t(m_at - m_buffer->data()); }

    /// What has been read ahead, to be looked at; skipTo() goes to a place in it.
    [[nodiscard]] const char *aheadBegin() const { return m_at; }
    /// Null behind the end of the device.
    [[nodiscard]] const char *aheadEnd() const { return m_end; }
    void skipTo(const char *place)
    {
        m_at = place;
        if (m_at == m_end)
            refill();
    }

    // Only for writing in place, which the reader does not do here.
    Ch *PutBegin() { return nullptr; }
    void Put(Ch) {}
    void Flush() {}
    size_t PutEnd(Ch *) { return 0; }

private:
    static constexpr qint64 PieceSize = 64 * 1024;
    /// The reader may take some characters behind the end before it notices.
    static constexpr size_t Zeros = 16;
    using Buffer = std::array<char, PieceSize + Zeros>;

    void refill()
    {
        m_before += size_t(m_end ? m_end - m_buffer->data() : 0);
        m_at = m_buffer->data();
        const qint64 size = qMax(qint64(0), m_device.read(m_buffer->data(), PieceSize));
        m_end = m_at + size;
        std::fill_n(m_buffer->data() + size, Zeros, '\0');
        if (size == 0)
            m_end = nullptr; // never reached
    }

    QIODevice &m_device;
    std::unique_ptr<Buffer> m_buffer;
    size_t m_before = 0; ///< bytes of earlier pieces
    const char *m_at = nullptr;
    const char *m_end = nullptr;
};

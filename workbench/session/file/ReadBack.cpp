#include "ReadBack.h"

#include <QFile>

#include <algorithm>
#include <cstring>

namespace {

constexpr qint64 PieceSize = 256 * 1024;

} // namespace

ReadBack::ReadBack(QFile &file)
    : m_file(file)
    , m_piece(std::size_t(PieceSize))
{
    open(QIODevice::WriteOnly);
}

bool ReadBack::isSame()
{
    return m_same && m_file.read(m_piece.data(), 1) == 0;
}

void ReadBack::expect(qint64 size, const QByteArray &hash)
{
    ContentHash found;
    for (qint64 done = 0; m_same && done < size;) {
        const QByteArrayView piece = next(size - done);
        found.add(piece);
        done += piece.size();
    }
    m_same = m_same && found.result() == hash;
}

qint64 ReadBack::writeData(const char *data, qint64 size)
{
    for (qint64 done = 0; m_same && done < size;) {
        const QByteArrayView piece = next(size - done);
        m_same = m_same && std::memcmp(piece.data(), data + done, std::size_t(piece.size())) == 0;
        done += piece.size();
    }
    return m_same ? size : -1;
}

/// Of the file, at most \a size bytes; if it has fewer than there should be, it is not the same.
QByteArrayView ReadBack::next(qint64 size)
{
    const qint64 wanted = std::min(size, PieceSize);
    const qint64 part = m_file.read(m_piece.data(), wanted);
    m_same = part == wanted;
    const QByteArrayView piece(m_piece.data(), std::max(part, qint64(0)));
    m_hash.add(piece);
    m_size += piece.size();
    return piece;
}

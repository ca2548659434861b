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

qint64 ReadBack::writeData(const char *data, qint64 size)
{
    for (qint64 done = 0; m_same && done < size;) {
        const qint64 part = std::min(size - done, PieceSize);
        m_same = m_file.read(m_piece.data(), part) == part &&
                 std::memcmp(m_piece.data(), data + done, std::size_t(part)) == 0;
        m_hash.add(QByteArrayView(m_piece.data(), part));
        done += part;
    }
    m_size += size;
    return m_same ? size : -1;
}

#pragma once

#include <core/files/ContentHash.h>

#include <QIODevice>

#include <vector>

class QFile;

/// Takes what a file should hold and compares it with what it holds, piece by piece. Any thread.
class ReadBack : public QIODevice
{
public:
    /// \a file is open for reading, at its begin, and outlives this object.
    explicit ReadBack(QFile &file);

    /// Compares the next \a size bytes by their hash alone.
    void expect(qint64 size, const QByteArray &hash);
    /// Whether the file holds what was written here and nothing behind it.
    [[nodiscard]] bool isSame();
    /// Of what was read and is the same.
    [[nodiscard]] qint64 readSize() const { return m_size; }
    [[nodiscard]] QByteArray hash() const { return m_hash.result(); }

protected:
    /// Fails at the first byte that differs.
    qint64 writeData(const char *data, qint64 size) override;
    qint64 readData(char *, qint64) override { return -1; }

private:
    [[nodiscard]] QByteArrayView next(qint64 size);

    QFile &m_file;
    std::vector<char> m_piece;
    ContentHash m_hash;
    qint64 m_size = 0;
    bool m_same = true;
};

#pragma once

#include <QString>

/// By what a file or directory is known to be as it was: time of the last change in nanoseconds and
/// size. A value.
struct FileStamp
{
    qint64 time = 0;
    qint64 size = Missing;

    static constexpr qint64 Missing = -1;
    /// Equal to no file: what was read is to be read again.
    static constexpr qint64 Distrusted = -2;

    /// Follows links.
    [[nodiscard]] static FileStamp of(const QString &file);
    /// A file that was written so shortly before it was read may change again within the same tick
    /// of its clock: such a stamp is made equal to none.
    void distrustIfYoung();

    friend bool operator==(const FileStamp &, const FileStamp &) = default;
};

/// Stamps of the files of one directory, which costs less than asking by whole paths.
class DirectoryStamps
{
public:
    /// \a directory: native path.
    explicit DirectoryStamps(const QString &directory);
    ~DirectoryStamps();
    Q_DISABLE_COPY_MOVE(DirectoryStamps)

    [[nodiscard]] const QString &directory() const { return m_directory; }
    /// Of a name in the directory, or of a path.
    [[nodiscard]] FileStamp of(const QString &file) const;

private:
    const QString m_directory;
    int m_handle = -1;
};

#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace Mapper {

/// Time and size of some files at one moment: equal as long as nobody has written to them.
class FileStamps
{
public:
    FileStamps() = default;
    explicit FileStamps(const QStringList &nativePaths);

    [[nodiscard]] const QStringList &paths() const { return m_paths; }
    /// Makes the stamps of files written since that moment (milliseconds since 1970) equal to
    /// nothing: what was read meanwhile may be half of it.
    void distrustSince(qint64 moment);

    friend bool operator==(const FileStamps &, const FileStamps &) = default;

private:
    struct Stamp
    {
        qint64 time = 0;
        qint64 size = -1; ///< No such file.
        friend bool operator==(const Stamp &, const Stamp &) = default;
    };

    QStringList m_paths;
    std::vector<Stamp> m_stamps;
};

} // namespace Mapper

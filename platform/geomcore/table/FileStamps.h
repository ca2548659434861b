#pragma once

#include <QString>
#include <QStringList>

#include <array>
#include <vector>

namespace VKTab {

/// What some files are known by at one moment: equal as long as nobody has written to them or put
/// others in their place.
class FileStamps
{
public:
    FileStamps() = default;
    explicit FileStamps(const QStringList &nativePaths);

    [[nodiscard]] const QStringList &paths() const { return m_paths; }
    /// Makes the stamps of files written since that moment (milliseconds since 1970), or so shortly
    /// before that a clock need not have gone on, equal to nothing: what was read meanwhile may be
    /// half of it.
    void distrustSince(qint64 moment);

    friend bool operator==(const FileStamps &, const FileStamps &) = default;

private:
    struct Stamp
    {
        qint64 time = 0;                ///< of the last change, nanoseconds
        qint64 size = -1;               ///< No such file.
        std::array<qint64, 3> object{}; ///< device, file, time of its last change of any kind
        friend bool operator==(const Stamp &, const Stamp &) = default;
    };

    QStringList m_paths;
    std::vector<Stamp> m_stamps;
};

} // namespace VKTab

#pragma once

#include <release/VelkReleaseGlobal.h>

#include <QList>
#include <QString>

class ReleaseMappingC;

namespace VelkRelease {

/// One of several shares of a work: "2/8". Counts from 1.
struct ShareNumber
{
    static constexpr int MaxShares = 100'000;

    int share = 0; ///< 0: none
    int shares = 0;

    /// Without a share if the text is none: both numbers are there, share from 1 to shares.
    [[nodiscard]] VELKRELEASE_EXPORT static ShareNumber fromText(const QString &text);
    [[nodiscard]] QString text() const
    {
        return QStringLiteral("%1/%2").arg(QString::number(share), QString::number(shares));
    }
    [[nodiscard]] bool isValid() const { return share > 0; }
    friend bool operator==(const ShareNumber &, const ShareNumber &) = default;
};

/// Divides projects into shares of about the same size, the largest first, each to the share that
/// has least so far. Everybody who sees the same files gets the same shares, in whatever order they
/// work. The size of a project is that of its lines: the CSV file beside it, else the table that it
/// names.
class VELKRELEASE_EXPORT ReleaseShares
{
public:
    /// \a positions of projects in the release; \a sourceRoot holds its catalog directory.
    ReleaseShares(const ReleaseMappingC &release, const QList<int> &positions,
                  const QString &sourceRoot, int shares);

    /// Ascending; \a share counts from 1.
    [[nodiscard]] QList<int> positions(int share) const { return m_positions.value(share - 1); }
    /// Bytes of its tables.
    [[nodiscard]] qint64 size(int share) const { return m_sizes.value(share - 1); }

private:
    QList<QList<int>> m_positions;
    QList<qint64> m_sizes;
};

} // namespace VelkRelease

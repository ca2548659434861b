#pragma once

#include <release/VelkReleaseGlobal.h>

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

namespace VelkRelease {

/// The rows of several journals by session. Sessions that begin with the same record are one, and a
/// record that another file has, too, counts once, so that copies of a journal add nothing.
class VELKRELEASE_EXPORT HistorySessions
{
public:
    struct Session
    {
        QByteArray opening; ///< its first record; empty if that is lost
        QList<QByteArray> records;
    };

    /// False with \a error if the file cannot be read, or is none.
    [[nodiscard]] bool add(const QString &file, QString *error);
    [[nodiscard]] const QList<Session> &sessions() const { return m_sessions; }
    /// Names a step for other records, by the first record of its session and its number there.
    [[nodiscard]] static QString stepKey(const QByteArray &opening, int number);
    [[nodiscard]] int damagedRows() const { return m_damaged; }
    /// What these have and the others do not, as journal rows.
    [[nodiscard]] QByteArray rowsBeyond(const HistorySessions &others) const;

private:
    using Counts = QHash<QByteArray, int>; ///< how often a session has a record
    struct Known
    {
        qsizetype place = 0;
        Counts records;
    };

    void take(const QByteArray &opening, const QByteArray &record, Counts &inThisFile);

    QList<Session> m_sessions;
    QHash<QByteArray, Known> m_known; ///< by opening
    int m_damaged = 0;
};

} // namespace VelkRelease

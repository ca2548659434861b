#pragma once

#include <workbench/session/change/MappingDifference.h>
#include <workbench/session/common/SessionTypes.h>

#include <QList>
#include <QString>

#include <functional>

class PJsonValue;

/// Reads the journal of a mapping file.
class JournalReader
{
public:
    /// The part from one opening of the mapping file to the next, in the order of writing. What
    /// stands behind a session that was closed, or behind damage that may hide an opening, begins
    /// an unknown one.
    struct Session
    {
        bool isKnown = false; ///< its opening could be read; if not, all up to `closed` is empty
        SessionOwner owner;
        QString sourceDate;
        QString targetDate;
        QByteArray fileHash;       ///< of the mapping file when it was opened
        bool closed = false;       ///< orderly, with or without saving
        QList<QByteArray> records; ///< without those that open and close
        /// Places that cannot be read, each told by the index of the first record behind it.
        QList<int> gaps;
    };
    /// A step as it can be shown to the user.
    struct Step
    {
        int record = 0; ///< its index in the session
        int number = 0;
        QDateTime time;
        QString text;
        QString origin; ///< "edit", "undo", "redo", "recover"
    };

    /// False with \a error if the file cannot be read; a file that is not there holds no session.
    [[nodiscard]] bool read(const QString &path, QString *error = nullptr);

    [[nodiscard]] const QList<Session> &sessions() const { return m_sessions; }
    /// The steps of a session that can be read, from a record on.
    [[nodiscard]] static QList<Step> steps(const Session &session, int from = 0);
    [[nodiscard]] static PJsonValue parse(const QByteArray &record);
    /// Whether the row of a record says so; all begin with their kind.
    [[nodiscard]] static bool isKind(QByteArrayView record, const char *kind);

private:
    void take(QByteArrayView record);
    void noteDamage();
    [[nodiscard]] Session &openSession();

    QList<Session> m_sessions;
};

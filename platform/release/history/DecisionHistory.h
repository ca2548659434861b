#pragma once

#include <release/VelkReleaseGlobal.h>

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

class PJsonValue;

namespace VelkRelease {

/// Who decided what about the lines of a mapping file, when and why: read from its journal, from
/// the journals that were put aside, and from the decisions of other copies that were merged into
/// it. What a session discarded is left out.
class VELKRELEASE_EXPORT DecisionHistory
{
public:
    /// An entry of a line in the mapping.
    struct Entry
    {
        QString target;   ///< path; empty: of lines without a target, or not noted
        int line = -1;    ///< -1: none
        int state = 0;    ///< as in the mapping file
        QString extended; ///< text of value ranges
        bool conflict = false;

        friend bool operator==(const Entry &, const Entry &) = default;
    };
    struct Decision
    {
        QDateTime time; ///< UTC
        QString author;
        QString host;
        QString release; ///< source date
        QString path;
        QString version;
        int line = -1;
        QList<Entry> former; ///< what is gone or became another one; empty: nothing was there
        QList<Entry> next;   ///< what came of it; empty: it was taken away
        QString action;      ///< what undo says of the step
        QString origin;      ///< "edit", "undo", "redo", "recover"; "reason": a reason alone
        QString reason;
        QString carriedFrom;  ///< file of the former mapping, if it was taken over from there
        bool isSaved = false; ///< into the mapping file
    };

    /// False with \a error if one of the files cannot be read; without any file it is empty.
    [[nodiscard]] bool read(const QString &mappingFile, QString *error);
    /// In the order of time.
    [[nodiscard]] const QList<Decision> &decisions() const { return m_decisions; }
    /// Of one line, or of one project if \a line is negative; all releases.
    [[nodiscard]] QList<Decision> of(const QString &path, int line) const;
    /// Rows that could not be read; what stood there is not in the history.
    [[nodiscard]] int damagedRows() const { return m_damaged; }

    /// Takes the decisions of another copy over that the copy \a into does not have, for good: into
    /// a file of their own beside it. False with \a error.
    [[nodiscard]] static bool adopt(const QString &from, const QString &into, QString *error);
    /// The same of files that hold journals or parts of them, wherever these lie.
    [[nodiscard]] static bool adoptFiles(const QStringList &from, const QString &into,
                                         QString *error);
    /// The decisions that were made in this file itself, for others to adopt; empty if there are
    /// none, or with \a error.
    [[nodiscard]] static QByteArray ownRows(const QString &mappingFile, QString *error);
    /// Where adopt() puts them.
    [[nodiscard]] static QString adoptedFile(const QString &mappingFile);
    /// A name for a journal that is put aside, or was never the one of an open file.
    [[nodiscard]] static QString nameAside(const QString &mappingFile);
    /// All files that hold decisions, the oldest first; those that are there.
    [[nodiscard]] static QStringList files(const QString &mappingFile);

    /// A decision as a row of CSV, and the row above them all; with line feed.
    [[nodiscard]] static QByteArray csvHeader();
    [[nodiscard]] static QByteArray csvRow(const Decision &decision);
    /// "new/bolt.prj:17", several with "; "; "-" for a line without a successor.
    [[nodiscard]] static QString text(const QList<Entry> &entries);

private:
    QList<Decision> m_decisions;
    int m_damaged = 0;
};

} // namespace VelkRelease

#include "PastSteps.h"

#include "UndoHistory.h"

#include <core/files/EditLock.h>
#include <release/history/DecisionHistory.h>
#include <release/history/HistorySessions.h>
#include <release/history/JournalRow.h>
#include <workbench/session/journal/JournalReader.h>

#include <QFileInfo>

#include <algorithm>

using VelkRelease::DecisionHistory;
using VelkRelease::HistorySessions;

namespace {

constexpr qint64 MaxSize = 64 << 20; // bytes of all journals

QString text(const PJsonValue &record, const char *member)
{
    return record.value(QString::fromLatin1(member)).toText();
}

QDateTime stampOf(const PJsonValue &record)
{
    QDateTime time = QDateTime::fromString(text(record, "time"), Qt::ISODateWithMs);
    time.setTimeSpec(Qt::UTC);
    return time;
}

/// The number that a change says, without reading all of it.
int numberOf(const QByteArray &change)
{
    constexpr QByteArrayView Begin = "{\"kind\":\"change\",\"step\":";
    if (!change.startsWith(Begin))
        return -1;
    const qsizetype end = change.indexOf(',', Begin.size());
    return end < 0 ? -1 : change.mid(Begin.size(), end - Begin.size()).toInt();
}

/// One session after another.
class StepReader
{
public:
    StepReader(const QString &sourceDate, UndoHistory &into)
        : m_date(sourceDate)
        , m_history(into)
    {
    }
    void read(const HistorySessions::Session &session, bool isAdopted);

private:
    void take(const QByteArray &row);
    void takeChange(const QByteArray &row);
    void takeStep(const PJsonValue &record);
    [[nodiscard]] int meant(const PJsonValue &record, bool undone) const;

    const QString m_date;
    UndoHistory &m_history;
    const QString m_user = EditLock::self().user;
    QByteArray m_opening;
    QString m_author;
    bool m_isAdopted = false;
    QByteArrayList m_rows; ///< of the step in the making
    int m_number = -1;     ///< of its changes
};

void StepReader::read(const HistorySessions::Session &session, bool isAdopted)
{
    const PJsonValue opened = JournalReader::parse(session.opening);
    if (text(opened, "sourceDate") != m_date)
        return;
    m_opening = session.opening;
    m_author = text(opened, "user");
    m_isAdopted = isAdopted;
    m_history.markClean();
    for (const QByteArray &row : session.records)
        take(row);
    m_rows.clear();
    m_history.dropUnsaved();
}

void StepReader::take(const QByteArray &row)
{
    if (JournalReader::isKind(row, "change")) {
        takeChange(row);
    } else if (JournalReader::isKind(row, "targetDate") ||
               JournalReader::isKind(row, "replacements")) {
        m_rows.append(row);
    } else if (JournalReader::isKind(row, "step")) {
        takeStep(JournalReader::parse(row));
        m_rows.clear();
    } else if (JournalReader::isKind(row, "saved")) {
        m_history.markClean();
    } else if (JournalReader::isKind(row, "merged")) {
        m_history.dropUnsaved();
    } else if (JournalReader::isKind(row, "made")) {
        m_history.clear();
    }
}

void StepReader::takeChange(const QByteArray &row)
{
    const int number = numberOf(row);
    if (number != m_number)
        m_rows.clear(); // what has no step of its own
    m_number = number;
    m_rows.append(row);
}

void StepReader::takeStep(const PJsonValue &record)
{
    const QString origin = text(record, "origin");
    if (origin == u"undo" || origin == u"redo") {
        const bool back = origin == u"undo";
        const int index = meant(record, !back);
        if (index >= 0 && back)
            m_history.noteUndone(index);
        else if (index >= 0)
            m_history.noteRedone(index);
        return;
    }
    if (origin == u"mark" || m_rows.isEmpty())
        return;
    UndoStep step;
    step.text = text(record, "text");
    step.lines.reset();
    step.key =
        HistorySessions::stepKey(m_opening, int(record.value(QStringLiteral("step")).toInt()));
    step.time = stampOf(record);
    step.author = m_author;
    step.isOwn = !m_isAdopted && m_author == m_user;
    step.rows = m_rows;
    m_history.addPast(step);
}

/// The step that was taken back or again.
int StepReader::meant(const PJsonValue &record, bool undone) const
{
    const QString key = text(record, "of");
    if (!key.isEmpty())
        return m_history.find(key);
    return undone ? m_history.nextRedo() : m_history.nextUndo();
}

/// The newest that are not too long together.
QStringList newest(const QStringList &files)
{
    qint64 size = 0;
    qsizetype first = files.size();
    for (; first > 0; --first) {
        size += QFileInfo(files[first - 1]).size();
        if (size > MaxSize)
            break;
    }
    return files.mid(first);
}

} // namespace

void PastSteps::read(const QString &mappingFile, const QString &sourceDate, UndoHistory &into)
{
    struct Known
    {
        QDateTime time;
        const HistorySessions::Session *session;
        bool isAdopted;
    };
    const QString adopted = DecisionHistory::adoptedFile(mappingFile);
    HistorySessions own;
    HistorySessions others;
    QString error;
    for (const QString &file : newest(DecisionHistory::files(mappingFile)))
        (void)(file == adopted ? others : own).add(file, &error);
    std::vector<Known> all;
    const auto add = [&all](const HistorySessions &sessions, bool isAdopted) {
        for (const HistorySessions::Session &session : sessions.sessions()) {
            if (!session.opening.isEmpty())
                all.push_back(
                    {stampOf(JournalReader::parse(session.opening)), &session, isAdopted});
        }
    };
    add(own, false);
    add(others, true);
    std::ranges::stable_sort(all, {}, &Known::time);
    StepReader reader(sourceDate, into);
    for (const Known &known : all)
        reader.read(*known.session, known.isAdopted);
}

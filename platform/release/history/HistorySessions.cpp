#include "HistorySessions.h"

#include "JournalRow.h"

#include <release/text/releaseText.h>

#include <QFile>
#include <QFileInfo>

namespace VelkRelease {

namespace {

bool isOpening(QByteArrayView record)
{
    return record.startsWith("{\"kind\":\"opened\"");
}

} // namespace

bool HistorySessions::add(const QString &file, QString *error)
{
    // A pipe would be waited for.
    const QFileInfo info(file);
    QFile journal(file);
    if (info.isSymLink() || !info.isFile() || !journal.open(QIODevice::ReadOnly)) {
        *error =
            file + QStringLiteral(": ") +
            (info.isFile() && !info.isSymLink() ? journal.errorString()
                                                : releaseText("das ist keine gewöhnliche Datei"));
        return false;
    }
    QByteArray opening;
    QHash<QByteArray, Counts> inThisFile;
    while (!journal.atEnd()) {
        QByteArray row = journal.readLine();
        if (row == "\n") // what half a row was ended with
            continue;
        if (row.endsWith('\n'))
            row.chop(1);
        const std::optional<QByteArrayView> whole = JournalRow::unframe(row);
        if (!whole) {
            ++m_damaged;
            continue;
        }
        const QByteArray record = whole->toByteArray();
        if (isOpening(record))
            opening = record;
        take(opening, record, inThisFile[opening]);
        // What follows without an opening is nobody's.
        if (record.startsWith("{\"kind\":\"closed\""))
            opening.clear();
    }
    return true;
}

void HistorySessions::take(const QByteArray &opening, const QByteArray &record, Counts &inThisFile)
{
    Known &session = m_known[opening];
    if (session.records.isEmpty()) {
        session.place = m_sessions.size();
        m_sessions.append({opening, {}});
    }
    const int count = record == opening ? 1 : ++inThisFile[record];
    int &known = session.records[record];
    if (count <= known)
        return;
    known = count;
    m_sessions[session.place].records.append(record);
}

QByteArray HistorySessions::rowsBeyond(const HistorySessions &others) const
{
    QByteArray rows;
    for (const Session &session : m_sessions) {
        const Counts known = others.m_known.value(session.opening).records;
        Counts counts;
        QByteArray missing;
        for (const QByteArray &record : session.records) {
            if (record != session.opening && ++counts[record] > known.value(record))
                missing += JournalRow::frame(record);
        }
        // Of a session whose opening is lost nobody could say whose it is.
        if (!missing.isEmpty() && !session.opening.isEmpty())
            rows += JournalRow::frame(session.opening) + missing;
    }
    return rows;
}

QString HistorySessions::stepKey(const QByteArray &opening, int number)
{
    return QStringLiteral("%1.%2").arg(QString::number(JournalRow::checksum(opening), 16),
                                       QString::number(number));
}

} // namespace VelkRelease

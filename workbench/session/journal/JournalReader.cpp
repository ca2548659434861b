#include "JournalReader.h"

#include <core/json/PJsonValue.h>
#include <release/history/JournalRow.h>
#include <workbench/session/file/OwnFile.h>

#include <QFile>

namespace {

QDateTime timeOf(const PJsonValue &record)
{
    return QDateTime::fromString(record.value(QStringLiteral("time")).toText(), Qt::ISODateWithMs);
}

JournalReader::Session makeSession(const PJsonValue &record)
{
    JournalReader::Session session;
    session.isKnown = true;
    session.owner.user = record.value(QStringLiteral("user")).toText();
    session.owner.host = record.value(QStringLiteral("host")).toText();
    session.owner.program = record.value(QStringLiteral("program")).toText();
    session.owner.process = record.value(QStringLiteral("process")).toInt();
    session.owner.since = timeOf(record);
    session.sourceDate = record.value(QStringLiteral("sourceDate")).toText();
    session.targetDate = record.value(QStringLiteral("targetDate")).toText();
    session.fileHash = record.value(QStringLiteral("fileHash")).toText().toLatin1();
    return session;
}

} // namespace

bool JournalReader::read(const QString &path, QString *error)
{
    m_sessions.clear();
    if (OwnFile::place(path) == OwnFile::Place::Free)
        return true;
    QFile file;
    if (!OwnFile::open(file, path, QIODevice::ReadOnly, error))
        return false;
    while (!file.atEnd()) {
        QByteArray row = file.readLine();
        const bool whole = row.endsWith('\n');
        if (whole)
            row.chop(1);
        const std::optional<QByteArrayView> record = VelkRelease::JournalRow::unframe(row);
        if (whole && record)
            take(*record);
        else
            noteDamage();
    }
    return true;
}

void JournalReader::take(QByteArrayView record)
{
    if (isKind(record, "opened"))
        m_sessions.append(makeSession(parse(record.toByteArray())));
    else if (isKind(record, "closed"))
        openSession().closed = true;
    else
        openSession().records.append(record.toByteArray());
}

void JournalReader::noteDamage()
{
    Session &session = openSession();
    const int at = int(session.records.size());
    if (session.gaps.isEmpty() || session.gaps.last() != at)
        session.gaps.append(at);
}

JournalReader::Session &JournalReader::openSession()
{
    if (m_sessions.isEmpty() || m_sessions.last().closed)
        m_sessions.append(Session());
    return m_sessions.last();
}

PJsonValue JournalReader::parse(const QByteArray &record)
{
    PJsonValue value;
    return value.parse(record) ? value : PJsonValue();
}

bool JournalReader::isKind(QByteArrayView record, const char *kind)
{
    return record.startsWith(QByteArray("{\"kind\":\"") + kind + '"');
}

QList<JournalReader::Step> JournalReader::steps(const Session &session, int from)
{
    QList<Step> result;
    for (int i = from; i < session.records.size(); ++i) {
        const QByteArray &row = session.records[i];
        if (!isKind(row, "step"))
            continue;
        const PJsonValue record = parse(row);
        result.append({i, int(record.value(QStringLiteral("step")).toInt()), timeOf(record),
                       record.value(QStringLiteral("text")).toText(),
                       record.value(QStringLiteral("origin")).toText()});
    }
    return result;
}

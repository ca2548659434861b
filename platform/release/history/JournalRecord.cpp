#include "JournalRecord.h"

#include <core/files/EditLock.h>

#include <QDateTime>

namespace VelkRelease {

PJsonValue JournalRecord::of(const char *kind)
{
    PJsonValue json(PJsonValue::Object);
    json[QStringLiteral("kind")] = PJsonValue(QString::fromLatin1(kind));
    json[QStringLiteral("time")] =
        PJsonValue(QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs));
    return json;
}

PJsonValue JournalRecord::opened(const QString &sourceDate, const QString &targetDate,
                                 const QByteArray &fileHash)
{
    PJsonValue json = of("opened");
    const SessionOwner self = EditLock::self();
    json[QStringLiteral("user")] = PJsonValue(self.user);
    json[QStringLiteral("host")] = PJsonValue(self.host);
    json[QStringLiteral("program")] = PJsonValue(self.program);
    json[QStringLiteral("process")] = PJsonValue::fromInt(self.process);
    json[QStringLiteral("sourceDate")] = PJsonValue(sourceDate);
    json[QStringLiteral("targetDate")] = PJsonValue(targetDate);
    json[QStringLiteral("fileHash")] = PJsonValue(QString::fromLatin1(fileHash));
    return json;
}

PJsonValue JournalRecord::closed(bool modified)
{
    PJsonValue json = of("closed");
    json[QStringLiteral("modified")] = PJsonValue::fromBool(modified);
    return json;
}

PJsonValue JournalRecord::step(int number, const QString &origin, const QString &text)
{
    PJsonValue json = of("step");
    json[QStringLiteral("step")] = PJsonValue::fromInt(number);
    json[QStringLiteral("origin")] = PJsonValue(origin);
    json[QStringLiteral("text")] = PJsonValue(text);
    return json;
}

PJsonValue JournalRecord::stored(const char *kind, int step, const QByteArray &fileHash)
{
    PJsonValue json = of(kind);
    json[QStringLiteral("step")] = PJsonValue::fromInt(step);
    json[QStringLiteral("fileHash")] = PJsonValue(QString::fromLatin1(fileHash));
    return json;
}

PJsonValue JournalRecord::note(const char *kind, const PJsonValue &note)
{
    PJsonValue json = of(kind);
    json[QStringLiteral("note")] = note;
    return json;
}

} // namespace VelkRelease

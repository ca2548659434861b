#include "ReportJournal.h"

#include "JournalReader.h"

#include <core/json/PJsonValue.h>

#include <algorithm>

namespace {

VelkRelease::ReleaseReport::Sample sampleOf(const PJsonValue &record)
{
    const PJsonValue note = record.value(QStringLiteral("note"));
    VelkRelease::ReleaseReport::Sample sample;
    sample.time =
        QDateTime::fromString(record.value(QStringLiteral("time")).toText(), Qt::ISODateWithMs);
    sample.judge = note.value(QStringLiteral("judge")).toText();
    sample.lines = int(note.value(QStringLiteral("lines")).toInt());
    sample.judged = int(note.value(QStringLiteral("judged")).toInt());
    sample.right = int(note.value(QStringLiteral("right")).toInt());
    bool isNumber = false;
    const double bound = note.value(QStringLiteral("bound")).toText().toDouble(&isNumber);
    if (isNumber)
        sample.bound = bound;
    return sample;
}

} // namespace

void addJournal(VelkRelease::ReleaseReport &report, const QString &journalFile,
                const QString &release)
{
    JournalReader reader;
    if (!reader.read(journalFile))
        return;
    for (const JournalReader::Session &session : reader.sessions()) {
        if (!session.isKnown || session.sourceDate != release)
            continue;
        for (const JournalReader::Step &step : JournalReader::steps(session))
            report.decisions.push_back({step.time, session.owner.user, step.text});
        for (const QByteArray &record : session.records) {
            if (JournalReader::isKind(record, "sample"))
                report.samples.push_back(sampleOf(JournalReader::parse(record)));
        }
    }
}

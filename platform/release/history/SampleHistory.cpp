#include "SampleHistory.h"

#include "DecisionHistory.h"
#include "HistorySessions.h"

#include <core/json/PJsonValue.h>

#include <algorithm>

namespace VelkRelease {

namespace {

PJsonValue part(const PJsonValue &json, const char *name)
{
    return json.value(QString::fromLatin1(name));
}

JudgedSample sampleOf(const PJsonValue &record, const QString &release)
{
    const PJsonValue note = part(record, "note");
    JudgedSample sample;
    sample.time = QDateTime::fromString(part(record, "time").toText(), Qt::ISODateWithMs);
    sample.time.setTimeSpec(Qt::UTC);
    sample.release = release;
    sample.judge = part(note, "judge").toText();
    sample.lines = int(part(note, "lines").toInt());
    const PJsonValue drawn = part(note, "drawn");
    for (int i = 0; i < drawn.size(); ++i)
        sample.drawn += drawn.at(i).toText();
    sample.judged = int(part(note, "judged").toInt());
    sample.right = int(part(note, "right").toInt());
    sample.certainty = part(note, "certainty").toText().toDouble();
    if (note.contains(QStringLiteral("bound")))
        sample.bound = part(note, "bound").toText().toDouble();
    return sample;
}

} // namespace

std::optional<std::vector<JudgedSample>> readJudgedSamples(const QString &mappingFile,
                                                           QString *error)
{
    HistorySessions sessions;
    const QStringList files = DecisionHistory::files(mappingFile);
    for (const QString &file : files) {
        if (!sessions.add(file, error))
            return std::nullopt;
    }
    std::vector<JudgedSample> samples;
    for (const HistorySessions::Session &session : sessions.sessions()) {
        PJsonValue opening;
        const QString release =
            opening.parse(session.opening) ? part(opening, "sourceDate").toText() : QString();
        for (const QByteArray &bytes : session.records) {
            PJsonValue record;
            if (bytes.contains("\"sample\"") && record.parse(bytes) &&
                part(record, "kind").toText() == u"sample")
                samples.push_back(sampleOf(record, release));
        }
    }
    std::ranges::stable_sort(samples, {}, &JudgedSample::time);
    return samples;
}

} // namespace VelkRelease

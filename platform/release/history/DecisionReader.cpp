#include "DecisionReader.h"

#include "CarriedHistory.h"

#include <utility>

namespace VelkRelease {

namespace {

constexpr qsizetype plainLine = 5;
constexpr qsizetype fullLine = 3;

PJsonValue member(const PJsonValue &json, const char *name)
{
    return json.value(QString::fromLatin1(name));
}

QDateTime timeOf(const PJsonValue &record)
{
    QDateTime time = QDateTime::fromString(member(record, "time").toText(), Qt::ISODateWithMs);
    time.setTimeSpec(Qt::UTC);
    return time;
}

std::optional<DecisionHistory::Entry> entryOf(const PJsonValue &json, const QString &target)
{
    if (!json.isArray() || json.size() < 4)
        return std::nullopt;
    return DecisionHistory::Entry{target, int(json.at(0).toInt()), int(json.at(1).toInt()),
                                  json.at(2).toText(), json.at(3).toBool()};
}

} // namespace

QList<DecisionHistory::Decision> DecisionReader::read(const HistorySessions::Session &session)
{
    DecisionReader reader;
    for (const QByteArray &bytes : session.records) {
        PJsonValue record;
        if (record.parse(bytes))
            reader.take(record);
    }
    return reader.m_decisions;
}

void DecisionReader::take(const PJsonValue &record)
{
    const QString kind = member(record, "kind").toText();
    if (kind == u"opened") {
        m_head.author = member(record, "user").toText();
        m_head.host = member(record, "host").toText();
        m_head.release = member(record, "sourceDate").toText();
    } else if (kind == u"change") {
        takeChange(record);
    } else if (kind == u"step") {
        takeStep(record);
    } else if (kind == u"carried") {
        m_carried = member(record, "note");
    } else if (kind == u"reason") {
        takeReason(record);
    } else if (kind == u"saved") {
        takeEnd(false);
    } else if (kind == u"closed") {
        takeEnd(member(record, "modified").toBool());
    }
}

void DecisionReader::takeChange(const PJsonValue &record)
{
    // Changes without a step of their own are marks.
    const qint64 step = member(record, "step").toInt();
    if (step != m_openStep)
        m_open.clear();
    m_openStep = step;
    const PJsonValue project = member(record, "project");
    const LineKey key{project.at(0).toText(), project.at(1).toText(), -1};
    const PJsonValue targets = member(record, "targets");
    for (int i = 0; i < targets.size(); ++i) {
        const PJsonValue target = targets.at(i);
        const bool differs = target.contains(QStringLiteral("after"));
        const QString path = member(target, "path").toText();
        const QString before = differs ? member(member(target, "before"), "path").toText() : path;
        const QString after = differs ? member(member(target, "after"), "path").toText() : path;
        const PJsonValue lines = member(target, "lines");
        for (int line = 0; line < lines.size(); ++line)
            takeLine(lines.at(line), key, before, after);
    }
}

void DecisionReader::takeLine(const PJsonValue &line, const LineKey &project, const QString &before,
                              const QString &after)
{
    LineKey key = project;
    key.line = int(line.at(0).toInt());
    if (line.size() == plainLine) {
        note(key, after, Entry{before, int(line.at(1).toInt()), int(line.at(2).toInt()), {}, false},
             Entry{after, int(line.at(3).toInt()), int(line.at(4).toInt()), {}, false});
    } else if (line.size() == fullLine) {
        const auto formerly = entryOf(line.at(1), before);
        const auto now = entryOf(line.at(2), after);
        note(key, now ? after : before, formerly, now);
    }
}

void DecisionReader::note(const LineKey &key, const QString &target,
                          const std::optional<Entry> &before, const std::optional<Entry> &after)
{
    auto &changes = m_open[key];
    const auto known = changes.find(target);
    if (known == changes.end())
        changes.emplace(target, Change{before, after});
    else
        known->second.after = after;
}

void DecisionReader::takeStep(const PJsonValue &record)
{
    if (member(record, "step").toInt() != m_openStep)
        m_open.clear();
    Decision decision = m_head;
    decision.time = timeOf(record);
    decision.action = member(record, "text").toText();
    decision.origin = member(record, "origin").toText();
    const PJsonValue carried = std::exchange(m_carried, PJsonValue());
    decision.carriedFrom = member(carried, "former").toText();
    if (m_open.empty() && carried.isObject())
        takeCarried(decision, carried);
    for (const auto &[key, changes] : m_open) {
        decision.path = key.path;
        decision.version = key.version;
        decision.line = key.line;
        decision.former.clear();
        decision.next.clear();
        for (const auto &[target, change] : changes) {
            if (change.before == change.after)
                continue;
            if (change.before)
                decision.former.append(*change.before);
            if (change.after)
                decision.next.append(*change.after);
        }
        if (!decision.former.isEmpty() || !decision.next.isEmpty())
            m_decisions.append(decision);
    }
    m_open.clear();
}

/// Of a step without changes: who wrote it knew only what came of it.
void DecisionReader::takeCarried(Decision decision, const PJsonValue &note)
{
    for (const CarriedLine &line : carriedLines(note)) {
        decision.path = line.project;
        decision.version = line.version;
        decision.line = line.line;
        decision.next = {{line.target, line.targetLine,
                          line.isCertain ? PRJMAPPING::Mapped : PRJMAPPING::ToCheck, QString(),
                          false}};
        m_decisions.append(decision);
    }
}

void DecisionReader::takeReason(const PJsonValue &record)
{
    const PJsonValue note = member(record, "note");
    const PJsonValue lines = member(note, "lines");
    Decision decision = m_head;
    decision.time = timeOf(record);
    decision.origin = QStringLiteral("reason");
    decision.reason = member(note, "reason").toText();
    decision.path = member(note, "project").toText();
    decision.version = member(note, "version").toText();
    decision.isSaved = true; // it stands nowhere else
    for (int i = 0; i < lines.size(); ++i) {
        decision.line = int(lines.at(i).toInt());
        m_decisions.append(decision);
    }
}

/// What was saved holds; what was discarded was never decided.
void DecisionReader::takeEnd(bool modified)
{
    if (modified)
        m_decisions.removeIf([](const Decision &decision) { return !decision.isSaved; });
    for (Decision &decision : m_decisions)
        decision.isSaved = true;
}

} // namespace VelkRelease

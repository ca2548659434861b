#include "CarriedHistory.h"

#include "DecisionHistory.h"
#include "HistorySessions.h"
#include "JournalRecord.h"
#include "JournalRow.h"

#include <core/files/DurableFile.h>
#include <release/text/releaseText.h>

#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace VelkRelease {

namespace {

PJsonValue field(const PJsonValue &json, const char *name)
{
    return json.value(QString::fromLatin1(name));
}

/// One of a session that bears on what was carried over.
struct CarryEvent
{
    std::optional<CarriedStep> step;
    QString undone; ///< key of a step that was taken back
    QString redone;
};

/// Reads the records of one session.
class CarriedReader
{
public:
    explicit CarriedReader(const QByteArray &opening)
        : m_opening(opening)
    {
        PJsonValue opened;
        if (opened.parse(opening)) {
            m_head.author = field(opened, "user").toText();
            m_head.release = field(opened, "sourceDate").toText();
        }
    }

    void take(const QByteArray &row)
    {
        const auto isKind = [&row](const char *kind) {
            return row.startsWith(QByteArray("{\"kind\":\"") + kind + '"');
        };
        PJsonValue record;
        if (isKind("saved"))
            m_saved = m_events.size();
        else if (isKind("carried") && record.parse(row))
            takeNote(record);
        else if (isKind("step") && record.parse(row))
            takeStep(record);
        else if (isKind("closed") && record.parse(row) && field(record, "modified").toBool())
            m_events.resize(m_saved); // what was discarded
    }
    [[nodiscard]] const std::vector<CarryEvent> &events() const { return m_events; }

private:
    void takeNote(const PJsonValue &record)
    {
        const PJsonValue note = field(record, "note");
        CarriedStep step = m_head;
        step.time = QDateTime::fromString(field(record, "time").toText(), Qt::ISODateWithMs);
        step.time.setTimeSpec(Qt::UTC);
        step.former = field(note, "former").toText();
        step.formerTarget = field(note, "formerTarget").toText();
        step.lines = carriedLines(note);
        m_noted = step;
    }

    void takeStep(const PJsonValue &record)
    {
        const QString origin = field(record, "origin").toText();
        const QString of = field(record, "of").toText();
        if (origin == u"undo") {
            m_events.push_back({std::nullopt, of, QString()});
        } else if (origin == u"redo") {
            m_events.push_back({std::nullopt, QString(), of});
        } else if (m_noted && origin == u"edit") {
            m_noted->key = HistorySessions::stepKey(m_opening, int(field(record, "step").toInt()));
            m_events.push_back({std::exchange(m_noted, std::nullopt), QString(), QString()});
        }
    }

    const QByteArray m_opening;
    CarriedStep m_head;
    std::optional<CarriedStep> m_noted; ///< its step has not come yet
    std::vector<CarryEvent> m_events;
    std::size_t m_saved = 0; ///< events that were saved
};

} // namespace

PJsonValue carriedNote(const QString &formerFile, const QString &formerTarget,
                       const std::vector<CarriedLine> &lines)
{
    PJsonValue projects(PJsonValue::Array);
    PJsonValue project;
    PJsonValue rows;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const CarriedLine &line = lines[i];
        const CarriedLine *const former = i == 0 ? nullptr : &lines[i - 1];
        if (!former || former->project != line.project || former->version != line.version ||
            former->target != line.target) {
            project = PJsonValue(PJsonValue::Object);
            project[QStringLiteral("path")] = PJsonValue(line.project);
            project[QStringLiteral("version")] = PJsonValue(line.version);
            project[QStringLiteral("target")] = PJsonValue(line.target);
            rows = PJsonValue(PJsonValue::Array);
        }
        PJsonValue row(PJsonValue::Array);
        row.append(PJsonValue::fromInt(line.line));
        row.append(PJsonValue::fromInt(line.targetLine));
        row.append(PJsonValue::fromInt(line.isCertain ? 1 : 0));
        rows.append(row);
        const CarriedLine *const next = i + 1 == lines.size() ? nullptr : &lines[i + 1];
        if (!next || next->project != line.project || next->version != line.version ||
            next->target != line.target) {
            project[QStringLiteral("lines")] = rows;
            projects.append(project);
        }
    }
    PJsonValue note(PJsonValue::Object);
    note[QStringLiteral("former")] = PJsonValue(formerFile);
    note[QStringLiteral("formerTarget")] = PJsonValue(formerTarget);
    note[QStringLiteral("projects")] = projects;
    return note;
}

std::vector<CarriedLine> carriedLines(const PJsonValue &note)
{
    std::vector<CarriedLine> lines;
    const PJsonValue projects = field(note, "projects");
    for (int i = 0; i < projects.size(); ++i) {
        const PJsonValue project = projects.at(i);
        const PJsonValue rows = field(project, "lines");
        CarriedLine line;
        line.project = field(project, "path").toText();
        line.version = field(project, "version").toText();
        line.target = field(project, "target").toText();
        for (int row = 0; row < rows.size(); ++row) {
            line.line = int(rows.at(row).at(0).toInt());
            line.targetLine = int(rows.at(row).at(1).toInt());
            line.isCertain = rows.at(row).at(2).toInt() != 0;
            lines.push_back(line);
        }
    }
    return lines;
}

bool writeCarriedJournal(const QString &mappingFile, const ReleaseMappingC &release,
                         const QString &formerFile, const QString &formerTarget,
                         const std::vector<CarriedLine> &lines, QString *error)
{
    const QByteArray hash = FileState::of(mappingFile).hash;
    const QString text = releaseText("Entscheidungen übernommen aus %1: %2")
                             .arg(QFileInfo(formerFile).fileName(), QString::number(lines.size()));
    QByteArray rows;
    for (const PJsonValue &record :
         {JournalRecord::opened(release.getSourceDate(), release.getTargetDate(), hash),
          JournalRecord::note("carried", carriedNote(formerFile, formerTarget, lines)),
          JournalRecord::step(1, QStringLiteral("edit"), text),
          JournalRecord::stored("saved", 1, hash), JournalRecord::closed(false)})
        rows += JournalRow::frame(record.toByteArray(true));
    return DurableFile::write(DecisionHistory::nameAside(mappingFile), rows, error);
}

std::optional<std::vector<CarriedStep>> readCarriedSteps(const QString &mappingFile, QString *error)
{
    HistorySessions sessions;
    const QStringList files = DecisionHistory::files(mappingFile);
    for (const QString &file : files) {
        if (!sessions.add(file, error))
            return std::nullopt;
    }
    std::vector<CarriedStep> steps;
    QHash<QString, bool> isUndone; // by key
    for (const HistorySessions::Session &session : sessions.sessions()) {
        CarriedReader reader(session.opening);
        for (const QByteArray &record : session.records)
            reader.take(record);
        for (const CarryEvent &event : reader.events()) {
            if (event.step)
                steps.push_back(*event.step);
            else if (!event.undone.isEmpty())
                isUndone[event.undone] = true;
            else
                isUndone.remove(event.redone);
        }
    }
    std::erase_if(steps, [&](const CarriedStep &step) { return isUndone.contains(step.key); });
    std::ranges::stable_sort(steps, {}, &CarriedStep::time);
    return steps;
}

CarriedLines::CarriedLines(const std::vector<CarriedStep> &steps, const QString &sourceDate)
{
    for (const CarriedStep &step : steps) {
        if (step.release != sourceDate)
            continue;
        for (const CarriedLine &line : step.lines)
            m_places[{line.project, line.version}][line.line] = {m_steps.size(), line.target,
                                                                 line.targetLine};
        m_steps.push_back(step);
        m_steps.back().lines.clear();
    }
}

const CarriedStep *CarriedLines::stepOf(const PrjMappingC &mapping, int line) const
{
    const auto project = m_places.constFind({mapping.getSourcePath(), mapping.getSourceVersion()});
    if (project == m_places.cend())
        return nullptr;
    const auto place = project->constFind(line);
    if (place == project->cend())
        return nullptr;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        const PrjMappingTargetC &target = mapping.targetAt(i);
        const LineTable::Iterator entry = target.lines().find(line);
        if (entry && target.getTargetPath() == place->target &&
            entry.targetLine() == place->targetLine)
            return &m_steps[place->step];
    }
    return nullptr;
}

std::vector<int> CarriedLines::linesOf(const PrjMappingC &mapping) const
{
    std::vector<int> lines;
    const auto project = m_places.constFind({mapping.getSourcePath(), mapping.getSourceVersion()});
    if (project == m_places.cend())
        return lines;
    lines.reserve(std::size_t(project->size()));
    for (auto place = project->keyBegin(); place != project->keyEnd(); ++place) {
        if (stepOf(mapping, *place))
            lines.push_back(*place);
    }
    std::ranges::sort(lines);
    return lines;
}

} // namespace VelkRelease

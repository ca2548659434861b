#include "LinkProof.h"

#include "LineFates.h"

#include <core/parallel/WorkerPool.h>
#include <release/pattern/CellParts.h>
#include <release/pattern/ChangeFamilies.h>
#include <release/pattern/LineComparer.h>
#include <release/text/releaseText.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <mutex>
#include <set>
#include <tuple>

namespace VelkRelease {

namespace {

/// Numbers by the lines of one project that they hang on.
using NumbersOfLines = std::map<int, QStringList>;

constexpr double all = 100; // percent

} // namespace

class LinkProof::Run
{
public:
    Run(LinkProof &proof, const ReleaseMappingC &release, const std::atomic<bool> &interrupted)
        : m_proof(proof)
        , m_release(release)
        , m_interrupted(interrupted)
        , m_families(release.getReplacements())
    {
    }

    [[nodiscard]] bool read(PLinkDbC &linkDb);
    [[nodiscard]] bool prove();

private:
    void proveProject(const QString &path, const NumbersOfLines &lines);
    void compare(const PrjMappingC &mapping, const NumbersOfLines &lines, const LineFates &fates);
    [[nodiscard]] bool isAgreed(const ValueChange &change, const OpenPair &pair) const;
    void collectClaims();

    LinkProof &m_proof;
    const ReleaseMappingC &m_release;
    const std::atomic<bool> &m_interrupted;
    const ChangeFamilies m_families;
    QHash<QString, int> m_positions; ///< of mappings by their source paths
    std::map<QString, NumbersOfLines> m_projects;
    std::mutex m_mutex; ///< over the proof's lists and the places
    std::map<QString, std::set<Place>> m_places;
    QHash<QString, QList<Place>> m_origins;
};

bool LinkProof::Run::read(PLinkDbC &linkDb)
{
    const PString table = linkDb.getTableName("PLMTABLE2");
    const PLinkDbRecordC record = linkDb.createRecord(table);
    const int index = record.indexOf(m_proof.m_column);
    if (index < 0) {
        m_proof.m_problem = record.columns().count() == 0
                                ? linkDb.lastError().text
                                : releaseText("die Tabelle der Dokumente hat keine Spalte %1")
                                      .arg(m_proof.m_column);
        return false;
    }
    const QString column = linkDb.identifier(record.columns().names().at(index));
    const PRefPtr<PLinkDbQueryI> found = linkDb.executeSelectStatement(
        QStringLiteral("SELECT DISTINCT ") + column + QStringLiteral(", PRJ_PATH, LINE_ID FROM ") +
        table + QStringLiteral(" WHERE ") + column + QStringLiteral(" <> ''"));
    if (!found->isValid()) {
        m_proof.m_problem = linkDb.lastError().text;
        return false;
    }
    for (int i = m_release.countMappings() - 1; i >= 0; --i)
        m_positions.insert(m_release.mappingAt(i).getSourcePath(), i);
    std::set<QString> here;
    std::set<QString> elsewhere;
    for (qsizetype i = 0; i < found->rowCount(); ++i) {
        const QVariantList &row = found->row(i);
        const QString number = row.at(0).toString();
        const Place place{row.at(1).toString(), row.at(2).toInt()};
        m_places[number].insert(place);
        m_origins[number].append(place);
        if (m_positions.contains(place.path)) {
            m_projects[place.path][place.line].append(number);
            here.insert(number);
        } else {
            elsewhere.insert(number);
        }
    }
    m_proof.m_numbers = int(here.size());
    m_proof.m_elsewhere = int(elsewhere.size());
    return true;
}

/// A number that is near enough, or what the release agrees to.
bool LinkProof::Run::isAgreed(const ValueChange &change, const OpenPair &pair) const
{
    if (change.agreed)
        return true;
    const auto value = std::ranges::find(pair.values, change.variable, &OpenPair::Value::variable);
    if (value == pair.values.end())
        return false;
    const auto before = numberOf(value->before);
    const auto after = numberOf(value->after);
    return before && after &&
           std::abs(*after - *before) * all <= m_proof.m_tolerance * std::abs(*before);
}

void LinkProof::Run::compare(const PrjMappingC &mapping, const NumbersOfLines &lines,
                             const LineFates &fates)
{
    LineComparer comparer(m_proof.m_sourceRoot, mapping, m_release, &m_interrupted);
    QList<Differing> found;
    for (const auto &[line, numbers] : lines) {
        const LineFates::Entry entry = fates.of(line);
        if (entry.fate != LineFates::Assigned || m_interrupted)
            continue;
        const auto read = comparer.assigned(line);
        if (!read || read->targetLine != entry.targetLine)
            continue;
        OpenPair pair;
        pair.line = line;
        pair.target = read->target;
        pair.targetLine = read->targetLine;
        pair.comparable = true;
        for (const ComparedVariableC &variable : read->variables) {
            if (variable.outcome != ComparedVariableC::Equal)
                pair.values.push_back({variable.name, variable.oldValue, variable.newValue});
        }
        QList<ValueChange> changes = m_families.changesOf(pair, mapping.getSourcePath());
        changes.removeIf([&](const ValueChange &change) { return isAgreed(change, pair); });
        if (changes.isEmpty())
            continue;
        const QString target = mapping.targetAt(entry.target).getTargetPath();
        for (const QString &number : numbers)
            found.append({number, Place{mapping.getSourcePath(), line},
                          Place{target, entry.targetLine}, changes});
    }
    const std::lock_guard lock(m_mutex);
    m_proof.m_differing += found;
    m_proof.m_errors += comparer.errors();
}

void LinkProof::Run::proveProject(const QString &path, const NumbersOfLines &lines)
{
    const PrjMappingC mapping = m_release.mappingAt(m_positions.value(path));
    const LineFates fates(mapping);
    bool isAnyAssigned = false;
    {
        const std::lock_guard lock(m_mutex);
        for (const auto &[line, numbers] : lines) {
            const LineFates::Entry entry = fates.of(line);
            const Place place{path, line};
            if (entry.fate == LineFates::Open)
                m_proof.m_open.append({place, numbers});
            for (const QString &number : numbers) {
                if (entry.fate == LineFates::Gone || entry.fate == LineFates::Unknown)
                    m_proof.m_gone.append({number, place, entry.fate == LineFates::Gone});
                if (entry.fate != LineFates::Assigned)
                    continue;
                isAnyAssigned = true;
                std::set<Place> &places = m_places[number];
                places.erase(place);
                places.insert({mapping.targetAt(entry.target).getTargetPath(), entry.targetLine});
            }
        }
    }
    if (isAnyAssigned && m_proof.hasCompared())
        compare(mapping, lines, fates);
}

void LinkProof::Run::collectClaims()
{
    for (const auto &[number, places] : m_places) {
        if (places.size() > 1)
            m_proof.m_claimed.append(
                {number, QList<Place>(places.begin(), places.end()), m_origins.value(number)});
    }
}

bool LinkProof::Run::prove()
{
    std::vector<std::pair<QString, const NumbersOfLines *>> projects;
    projects.reserve(m_projects.size());
    for (const auto &[path, lines] : m_projects)
        projects.emplace_back(path, &lines);
    const int count = int(projects.size());
    const bool done = WorkerPool::instance().run(
        count, [&](int i) { proveProject(projects[size_t(i)].first, *projects[size_t(i)].second); },
        [&](int made) {
            if (m_proof.m_observer)
                m_proof.m_observer(made, count);
            return !m_interrupted;
        });
    if (!done || m_interrupted)
        return false;
    collectClaims();
    for (Open &open : m_proof.m_open)
        open.numbers.sort();
    std::ranges::sort(m_proof.m_gone, [](const Gone &a, const Gone &b) {
        return std::tie(a.number, a.place) < std::tie(b.number, b.place);
    });
    std::ranges::sort(m_proof.m_differing, [](const Differing &a, const Differing &b) {
        return std::tie(a.number, a.before) < std::tie(b.number, b.before);
    });
    std::ranges::sort(m_proof.m_open, [](const Open &a, const Open &b) {
        return a.numbers.size() != b.numbers.size() ? a.numbers.size() > b.numbers.size()
                                                    : a.place < b.place;
    });
    m_proof.m_errors.sort();
    return true;
}

LinkProof::LinkProof(const QString &column)
    : m_column(column)
{
}

bool LinkProof::run(const ReleaseMappingC &release, PLinkDbC &linkDb,
                    const std::atomic<bool> &interrupted)
{
    m_gone.clear();
    m_claimed.clear();
    m_differing.clear();
    m_open.clear();
    m_errors.clear();
    m_problem.clear();
    Run run(*this, release, interrupted);
    return run.read(linkDb) && run.prove();
}

} // namespace VelkRelease

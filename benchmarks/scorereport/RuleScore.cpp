#include "RuleScore.h"

#include "ReferenceRule.h"

#include <core/text/PPathName.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/mapper/PrjMapperC.h>
#include <geomcore/records/CatalogMappingC.h>
#include <geomcore/table/ContentRef.h>
#include <geomcore/table/LineView.h>
#include <geomcore/table/readProjectTable.h>
#include <geomcore/table/TableData.h>
#include <release/pattern/DifferencePatterns.h>

#include <algorithm>
#include <atomic>
#include <map>
#include <set>

namespace {

/// "catalog/a/bolt.prj" becomes "a/bolt".
QString tableName(const QString &projectPath)
{
    const qsizetype begin = projectPath.indexOf('/') + 1;
    return projectPath.mid(begin, projectPath.lastIndexOf('.') - begin);
}

QString textOf(const QList<VelkRelease::ValueChange> &changes)
{
    QStringList texts;
    for (const VelkRelease::ValueChange &change : changes)
        texts << change.text({"near", "other number", "wording", "added", "missing", "notation",
                              "project", "another name", "changed", "one or more of these"});
    return texts.join("; ");
}

QString textOf(const VelkRelease::DifferencePatterns &patterns, int pattern)
{
    QStringList texts;
    if (!patterns.changes(pattern).isEmpty())
        texts << textOf(patterns.changes(pattern));
    if (!patterns.isComparable(pattern))
        texts << "not comparable";
    if (patterns.isDoubtful(pattern))
        texts << "in doubt";
    return texts.isEmpty() ? "no difference" : texts.join("; ");
}

/// What becomes of an open line: its proposal is right or wrong; it has none, and no successor or
/// one.
enum class Open { Right, Wrong, Expired, NotFound };

class Scorer
{
public:
    Scorer(const SampleSet &set, const QString &sourceRoot)
        : m_set(set)
        , m_sourceRoot(sourceRoot)
    {
    }

    void add(int position, const PrjMappingC &mapping, const ReleaseMappingC &head)
    {
        m_position = position;
        m_names[position] = tableName(mapping.getSourcePath());
        const QString source = tableName(mapping.getSourcePath());
        const auto table = m_set.olds.find(source);
        VKTab::ContentRef content;
        const QString file =
            (PPathName(m_sourceRoot) + PPathName(mapping.getSourcePath())).native();
        if (table == m_set.olds.end() ||
            !VKTab::readProjectTable(
                file, content,
                {.catalogPath = mapping.getSourcePath(), .allLines = true, .tells = false}))
            return;
        ReleaseMappingC release = head;
        release.addMapping(mapping);
        CatalogMappingC catalog;
        catalog.addRelease(release);
        PrjMapperC mapper(IndexTreeC::instance());
        mapper.setCreatorMode(true);
        mapper.setSourceProject(PPathName(mapping.getSourcePath()));
        mapper.setSourceTable(content);
        (void)mapper.findMapping(mapping.getSourcePath(), mapping.getSourceVersion(), catalog);
        QStringList targets;
        for (const PrjMappingTargetC &target : mapping.getTargets()) {
            const QString name = tableName(target.getTargetPath());
            if (m_set.news.contains(name) && !targets.contains(name))
                targets << name;
        }
        const auto reference = ReferenceRule::partners(*table, m_set.news, targets);
        for (int line = 1; line <= int(table->lines.size()); ++line)
            addLine(mapper, content, {source, line}, mapping, reference.value(line));
    }
    /// One decision for each pattern that is right in all its lines; of another one, one for each
    /// project in which it is. A pattern without successor is right where no line has one. In a
    /// project none of whose lines without a proposal has a successor, these are confirmed as
    /// expired together; one for each other open line.
    void addDecisions(const VelkRelease::DifferencePatterns &patterns)
    {
        const std::set<int> goneProjects = projectsOfGoneLines();
        std::vector<int> all = patterns.ranked();
        const std::vector<int> withoutSuccessor = patterns.rankedGone();
        all.insert(all.end(), withoutSuccessor.begin(), withoutSuccessor.end());
        for (const int pattern : all) {
            // One decision on the project takes its other groups too.
            if (patterns.gone(pattern) && isWithin(patterns.places(pattern), goneProjects))
                continue;
            std::map<int, std::pair<int, int>> projects; // all lines, and right ones
            const Open wanted = patterns.gone(pattern) ? Open::Expired : Open::Right;
            for (const auto &place : patterns.places(pattern)) {
                const auto open = m_open.find({place.project, place.line});
                if (open == m_open.end())
                    continue;
                auto &[lines, right] = projects[place.project];
                ++lines;
                right += open->second == wanted ? 1 : 0;
                m_open.erase(open);
            }
            if (projects.empty())
                continue;
            int decisions = 0;
            int lines = 0;
            int wrong = 0;
            bool allRight = true;
            const QStringList examples = examplesOf(patterns, pattern);
            for (const auto &[project, counts] : projects) {
                const bool isRight = counts.first == counts.second;
                decisions += isRight ? 1 : counts.first;
                allRight = allRight && isRight;
                lines += counts.first;
                wrong += counts.first - counts.second;
            }
            decisions = allRight ? std::min(1, decisions) : decisions;
            m_score.decisions += decisions;
            m_score.decided << QStringLiteral("%1 for %2 lines, %3 wrong, in %4 projects: %5")
                                   .arg(decisions)
                                   .arg(lines)
                                   .arg(wrong)
                                   .arg(projects.size())
                                   .arg(textOf(patterns, pattern));
            for (const QString &example : examples)
                m_score.decided << "    " + example;
        }
        std::map<int, std::pair<int, int>> expired; // lines without a proposal, and gone ones
        for (const auto &[place, state] : m_open) {
            if (state != Open::Expired && state != Open::NotFound) {
                ++m_score.decisions;
                m_score.decided << "1 for a proposal without a pattern";
                continue;
            }
            auto &[lines, gone] = expired[place.first];
            ++lines;
            gone += state == Open::Expired ? 1 : 0;
        }
        for (const auto &[project, counts] : expired) {
            const int decisions = counts.first == counts.second ? 1 : counts.first;
            m_score.decisions += decisions;
            m_score.decided << QStringLiteral("%1 for %2 lines without a proposal, %3 gone")
                                   .arg(decisions)
                                   .arg(counts.first)
                                   .arg(counts.second);
        }
    }
    /// Some lines of a pattern, with their changes if these are others.
    [[nodiscard]] QStringList examplesOf(const VelkRelease::DifferencePatterns &patterns,
                                         int pattern) const
    {
        QStringList examples;
        for (const auto &place : patterns.places(pattern, 12)) {
            const auto own = patterns.changesAt(place);
            examples << QStringLiteral("%1:%2, %3 %4")
                            .arg(m_names.value(place.project))
                            .arg(place.line)
                            .arg(patterns.probability(place).value_or(0), 0, 'f', 3)
                            .arg(own == patterns.changes(pattern) ? QString() : textOf(own));
        }
        return examples;
    }
    /// Projects in which all lines without a proposal are gone.
    [[nodiscard]] std::set<int> projectsOfGoneLines() const
    {
        std::set<int> projects;
        std::set<int> others;
        for (const auto &[place, state] : m_open) {
            if (state == Open::Expired)
                projects.insert(place.first);
            else if (state == Open::NotFound)
                others.insert(place.first);
        }
        for (const int project : others)
            projects.erase(project);
        return projects;
    }
    /// Whether the places are all in one of these projects.
    template<class Places>
    [[nodiscard]] static bool isWithin(const Places &places, const std::set<int> &projects)
    {
        return !places.empty() && projects.contains(places.front().project) &&
               std::all_of(places.begin(), places.end(), [&](const auto &place) {
                   return place.project == places.front().project;
               });
    }
    /// Lines of tables without a mapping.
    void addRest()
    {
        for (auto entry = m_set.truth.begin(); entry != m_set.truth.end(); ++entry) {
            if (entry->unknown || m_seen.contains(entry.key()))
                continue;
            ++(entry->places.isEmpty() ? m_score.gone : m_score.known);
            if (!entry->places.isEmpty())
                m_score.misses << entry.key().first + ": no mapping";
        }
    }
    [[nodiscard]] const RuleScore &score() const { return m_score; }

private:
    void addLine(PrjMapperC &mapper, const VKTab::Content &content, const TruthFile::Place &line,
                 const PrjMappingC &mapping, const TruthFile::Place &reference)
    {
        const auto entry = m_set.truth.find(line);
        if (entry == m_set.truth.end() || entry->unknown)
            return;
        m_seen.insert(line, true);
        const bool gone = entry->places.isEmpty();
        ++(gone ? m_score.gone : m_score.known);
        const VKTab::LineView view(content, VKTab::LineId(line.second));
        const PrjMappingLineC stored = mapping.findLine(line.second, view);
        const bool found = stored.isValid() && stored.isFound();
        const TruthFile::Place assigned =
            found ? TruthFile::Place(
                        tableName(mapping.targetAt(stored.getTargetIndex()).getTargetPath()),
                        stored.getTargetLineId())
                  : TruthFile::Place();
        const bool right = found && entry->places.contains(assigned);
        const bool mapped = found && stored.getCheckState() == PRJMAPPING::Mapped;
        m_score.mappedWrong += mapped && !right ? 1 : 0;
        m_score.goneProposed += gone && found ? 1 : 0;
        m_score.proposed += right ? 1 : 0;
        m_score.proposedWrong += !gone && found && !right ? 1 : 0;
        const bool referenceRight = entry->places.contains(reference);
        m_score.referenceBest += referenceRight ? 1 : 0;
        m_score.referenceGone += gone && reference.second > 0 ? 1 : 0;
        const LineCandidatesC all = mapper.candidates(line.second, view);
        const bool isBest = addCandidates(all, *entry);
        if (!mapped) {
            ++m_score.open;
            const Open proposed = right ? Open::Right : Open::Wrong;
            const Open alone = gone ? Open::Expired : Open::NotFound;
            m_open[{m_position, line.second}] = found ? proposed : alone;
        }
        if (right == gone || (gone && found))
            m_score.misses << QStringLiteral("%1:%2 -> %3:%4, %5 (%6), %7")
                                      .arg(line.first, QString::number(line.second), assigned.first,
                                           QString::number(assigned.second), all.explanation,
                                           QString::number(all.noSuccessor, 'f', 2),
                                           expected(*entry, mapping)) +
                                  (isBest ? ", best" : "") + (referenceRight ? ", reference" : "") +
                                  (isAlike(line, all, *entry) ? ", alike" : "");
    }

    /// Where the line went, and whether that is among the targets at all.
    static QString expected(const TruthFile::Entry &entry, const PrjMappingC &mapping)
    {
        QStringList targets;
        for (const PrjMappingTargetC &target : mapping.getTargets())
            targets << tableName(target.getTargetPath());
        QStringList texts;
        for (const auto &[table, line] : entry.places)
            texts << QStringLiteral("%1:%2%3").arg(
                table, QString::number(line),
                targets.contains(table) ? QString() : ", no target but " + targets.join(' '));
        return texts.isEmpty() ? QStringLiteral("gone") : texts.join("; ");
    }

    /// Whether the best candidate is another row that has what the right one has in all variables
    /// that the old table has as well: only the order of lines can tell.
    [[nodiscard]] bool isAlike(const TruthFile::Place &line, const LineCandidatesC &all,
                               const TruthFile::Entry &entry) const
    {
        if (all.candidates.isEmpty())
            return false;
        const LineCandidateC &best = all.candidates.first();
        const TruthFile::Place place(tableName(best.targetPath), best.lineId.value(0));
        const std::vector<std::string> &names = m_set.olds.find(line.first)->names;
        return std::ranges::any_of(entry.places, [&](const TruthFile::Place &right) {
            return right != place && m_set.valuesAt(right, names) == m_set.valuesAt(place, names);
        });
    }

    /// Whether the best one is right.
    bool addCandidates(const LineCandidatesC &all, const TruthFile::Entry &entry)
    {
        bool best = false;
        bool any = false;
        for (qsizetype i = 0; i < all.candidates.size(); ++i) {
            const LineCandidateC &candidate = all.candidates[i];
            const bool right = entry.places.contains(
                TruthFile::Place(tableName(candidate.targetPath), candidate.lineId.value(0)));
            best = best || (i == 0 && right);
            any = any || right;
            m_score.calibration.add(candidate.probability, right);
        }
        m_score.best += best ? 1 : 0;
        m_score.five += any ? 1 : 0;
        return best;
    }

    const SampleSet &m_set;
    const QString m_sourceRoot;
    QHash<TruthFile::Place, bool> m_seen;
    int m_position = 0;
    QHash<int, QString> m_names;                ///< Source tables by mapping.
    std::map<std::pair<int, int>, Open> m_open; ///< By mapping and line.
    RuleScore m_score;
};

} // namespace

void Calibration::add(double probability, bool right)
{
    Class &at = classes[size_t(std::min(9, int(probability * 10)))];
    ++at.count;
    at.said += probability;
    at.right += right ? 1 : 0;
}

void Calibration::add(const Calibration &other)
{
    for (size_t i = 0; i < classes.size(); ++i) {
        classes[i].count += other.classes[i].count;
        classes[i].said += other.classes[i].said;
        classes[i].right += other.classes[i].right;
    }
}

double Calibration::error() const
{
    double distance = 0;
    int count = 0;
    for (const Class &at : classes) {
        distance += std::abs(at.said - at.right);
        count += at.count;
    }
    return count > 0 ? distance / count : 0;
}

RuleScore RuleScore::of(const SampleSet &set, const ReleaseMappingC &release,
                        const QString &sourceRoot, const QString &targetRoot)
{
    IndexTreeC::instance()->setCatalogRoot(PPathName(targetRoot));
    const ReleaseMappingC head = release.head();
    Scorer scorer(set, sourceRoot);
    for (int i = 0; i < release.countMappings(); ++i)
        scorer.add(i, release.mappingAt(i), head);
    const std::atomic<bool> cancelled = false;
    if (const auto patterns =
            VelkRelease::DifferencePatterns::compute(sourceRoot, release, cancelled))
        scorer.addDecisions(*patterns);
    scorer.addRest();
    return scorer.score();
}

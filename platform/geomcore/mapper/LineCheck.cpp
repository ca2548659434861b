#include "LineCheck.h"

#include "CertaintyRules.h"
#include "CheckMessages.h"
#include "ComparedValues.h"
#include "ExactSearch.h"
#include "PairJoin.h"
#include "TargetTable.h"

#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/table/TableData.h>

#include <algorithm>

namespace Mapper {

namespace {

/// Lines that a message names.
constexpr int MaxNamed = 10;

} // namespace

LineCheck::LineCheck(TargetSet &targets, const PrjMappingC &mapping)
    : m_targets(targets)
    , m_mapping(mapping)
{
}

bool LineCheck::passes(const Assignment &assignment, CheckModeFlags mode)
{
    m_assignment = &assignment;
    m_quiet = true;
    return run(mode);
}

bool LineCheck::hasEqualValues(const Assignment &assignment)
{
    m_assignment = &assignment;
    m_quiet = true;
    m_hasValues = false;
    m_target = m_targets.at(assignment.targetIndex, m_mapping);
    const int row = m_target && m_target->isOpen()
                        ? m_target->table()->data().rowOf(assignment.targetLine)
                        : -1;
    if (row < 0)
        return false;
    if (isJoined(row))
        return true;
    takeValues();
    return m_values.texts.countValues() > 0 && checkDifferences(row);
}

QStringList LineCheck::messages(const Assignment &assignment, CheckModeFlags mode)
{
    m_assignment = &assignment;
    m_quiet = false;
    m_messages.clear();
    run(mode);
    return m_messages;
}

bool LineCheck::run(CheckModeFlags mode)
{
    m_hasValues = false;
    m_target = m_targets.at(m_assignment->targetIndex, m_mapping);
    if (!m_target)
        return complain(CheckMessages::noTable(QString()));
    bool ok = true;
    if (mode & (CheckValues | CheckDesignations))
        ok = checkLine(mode);
    if (mode & CheckConditions && (ok || !m_quiet))
        ok = checkConditions() && ok;
    return ok && m_assignment->automatic ? checkProposedRules(mode) : ok;
}

bool LineCheck::checkProposedRules(CheckModeFlags mode)
{
    TargetSet::Plain *const plain = m_targets.withoutProposals(m_mapping);
    if (!plain)
        return true;
    Assignment assignment = *m_assignment;
    assignment.targetVarset = nullptr;
    return LineCheck(plain->targets, plain->mapping).passes(assignment, mode) ||
           complain(CheckMessages::proposedRules());
}

bool LineCheck::complain(const QString &message)
{
    if (!m_quiet)
        m_messages.append(message);
    return false;
}

bool LineCheck::checkLine(CheckModeFlags mode)
{
    if (!m_target->isOpen())
        return complain(CheckMessages::noTable(m_target->path()));
    const int row = m_target->table()->data().rowOf(m_assignment->targetLine);
    if (row < 0)
        return complain(CheckMessages::noLine(m_target->path(), m_assignment->targetLine));
    bool ok = true;
    if (mode & CheckValues)
        ok = checkValues(row);
    if (mode & CheckDesignations && (ok || !m_quiet))
        ok = checkDesignations(row) && ok;
    return ok;
}

bool LineCheck::usesJoins() const
{
    return m_assignment->line.stored && m_targets.ranges().isEmpty();
}

void LineCheck::takeValues()
{
    if (m_hasValues)
        return;
    m_hasValues = true;
    if (m_assignment->targetVarset)
        m_target->takeValues(*m_assignment->targetVarset, m_values);
    else
        m_target->takeValues(m_assignment->line, m_values);
}

bool LineCheck::checkValues(int row)
{
    if (!checkEqual(row))
        return false;
    bool ok = true;
    for (bool (LineCheck::*check)(int) :
         {&LineCheck::checkTargets, &LineCheck::checkCombinations, &LineCheck::checkCompared,
          &LineCheck::checkProject, &LineCheck::checkClaims, &LineCheck::checkConfirmed}) {
        ok = (this->*check)(row) && ok;
        if (!ok && m_quiet)
            return false;
    }
    return ok;
}

bool LineCheck::isJoined(int row) const
{
    if (!usesJoins() || m_assignment->targetVarset || !m_target->textsAreStored())
        return false;
    const PairJoin *join = m_target->join();
    const int sourceRow = m_assignment->line.row;
    return join->hit(sourceRow) == row &&
           (join->isUndisputed(sourceRow) || m_target->hasSameTexts(sourceRow, row));
}

bool LineCheck::isKnownToDiffer(int row) const
{
    return usesJoins() && !m_assignment->targetVarset && m_assignment->line.row >= 0 &&
           m_target->join()->areDifferent(m_assignment->line.row, row);
}

bool LineCheck::checkEqual(int row)
{
    if (isJoined(row) && !m_target->join()->isSeveral(m_assignment->line.row))
        return true;
    if (m_quiet && isKnownToDiffer(row))
        return false;
    takeValues();
    if (m_values.texts.countValues() == 0)
        return complain(CheckMessages::nothingInCommon());
    return checkDifferences(row) && checkAlone(row);
}

bool LineCheck::checkDifferences(int row)
{
    bool ok = true;
    std::string scratch;
    const std::vector<int> &variables = m_values.search->variables();
    for (size_t place = 0; place < variables.size() && (ok || !m_quiet); ++place) {
        const LineTexts::Value &value = m_values.texts.values[place];
        if (m_values.search->equals(value, row, place) &&
            (!m_target->isText(variables[place]) ||
             m_values.search->equalsAsText(value, row, place)))
            continue;
        const std::string_view cell = m_target->table()->text(row, variables[place], scratch);
        const QString &name = m_target->table()->variables()[size_t(variables[place])].name;
        ok = complain(m_quiet ? QString() : CheckMessages::difference(name, value.text, cell));
    }
    return ok;
}

bool LineCheck::checkAlone(int row)
{
    QList<int> lines;
    for (int other : m_target->equalRows(m_values, m_quiet ? 2 : MaxNamed + 1)) {
        if (other != row)
            lines.append(m_target->table()->data().lineNumber(other));
    }
    return lines.isEmpty() || complain(CheckMessages::equalTargetLines(lines));
}

const PairJoin *LineCheck::joinOf(const BoundTarget &target) const
{
    return m_assignment->line.row >= 0 && target.isOpen() ? target.join() : nullptr;
}

int LineCheck::equalRowOf(const BoundTarget &target)
{
    const PairJoin *join = joinOf(target);
    if (usesJoins())
        return join->hit(m_assignment->line.row);
    if (target.conditionsHold(m_assignment->line)) {
        target.takeValues(m_assignment->line, m_otherValues);
        const int row = target.findEqual(m_otherValues).row;
        if (row >= 0)
            return row;
    }
    // One of the other combinations.
    return join && !m_targets.ranges().isEmpty() ? join->hit(m_assignment->line.row) : -1;
}

bool LineCheck::checkTargets(int row)
{
    bool ok = true;
    for (int i = 0; i < m_targets.count() && (ok || !m_quiet); ++i) {
        const BoundTarget *target = m_targets.at(i, m_mapping);
        if (!target)
            continue;
        if (target->faultyCondition())
            ok = complain(CheckMessages::faultyCondition(*target->faultyCondition()));
        else if (target != m_target)
            ok = checkOtherTarget(*target, row) && ok;
    }
    return ok;
}

bool LineCheck::mayTakeLine(const BoundTarget &target) const
{
    // Without its table nobody knows what becomes of the other combinations of a line.
    return !m_targets.ranges().isEmpty() || target.conditionsHold(m_assignment->line);
}

bool LineCheck::checkOtherTarget(const BoundTarget &other, int row)
{
    if (!other.isOpen())
        return !mayTakeLine(other) || complain(CheckMessages::noTable(other.path()));
    const int otherRow = equalRowOf(other);
    const bool same = otherRow == row && TargetSet::haveSameProject(other, *m_target);
    if (otherRow < 0 || same)
        return true;
    const int line = other.table()->data().lineNumber(otherRow);
    return complain(m_quiet ? QString() : CheckMessages::equalElsewhere(other.path(), line));
}

bool LineCheck::checkCombinations(int /*row*/)
{
    const PairJoin *join = m_targets.ranges().isEmpty() ? nullptr : joinOf(*m_target);
    if (!join)
        return true;
    const int sourceRow = m_assignment->line.row;
    bool divided = join->isDivided(sourceRow);
    for (int i = 0; i < m_targets.count() && !divided && join->refusesSome(sourceRow); ++i) {
        const BoundTarget *other = m_targets.at(i, m_mapping);
        const PairJoin *joined = other && other != m_target ? joinOf(*other) : nullptr;
        divided = joined && joined->takesSome(sourceRow);
    }
    return !divided || complain(CheckMessages::dividedLine());
}

template<class Visit>
void LineCheck::forEachOfProject(Visit visit)
{
    for (int i = 0; i < m_targets.count(); ++i) {
        const BoundTarget *target = m_targets.at(i, m_mapping);
        if (target && target->isOpen() && TargetSet::haveSameProject(*target, *m_target))
            visit(*target);
    }
}

bool LineCheck::checkClaims(int row)
{
    const int sourceRow = m_assignment->line.row;
    if (sourceRow < 0)
        return true;
    int others = 0;
    bool known = true;
    forEachOfProject([&](const BoundTarget &target) {
        const PairJoin *join = target.join();
        const bool proposed = join->hit(sourceRow) == row;
        if (proposed && join->isUndisputed(sourceRow))
            return;
        const int own = proposed || &target == m_target ? 1 : 0;
        others += std::max(0, join->claims(row) - own);
        known = known && join->knowsClaims(row);
    });
    if (others == 0)
        return known || complain(CheckMessages::tooManyOverlap());
    return complain(CheckMessages::equalSourceLines(m_quiet ? QList<int>() : claimingLines(row)));
}

QList<int> LineCheck::claimingLines(int row)
{
    const VKTab::TableData &source = *m_targets.source().data();
    std::vector<const PairJoin *> joins;
    forEachOfProject([&](const BoundTarget &target) { joins.push_back(target.join()); });
    QList<int> lines;
    for (int other = 0; other < source.rowCount() && lines.size() <= MaxNamed; ++other) {
        const bool claims = std::any_of(joins.begin(), joins.end(), [&](const PairJoin *join) {
            return join->hit(other) == row;
        });
        if (claims && other != m_assignment->line.row)
            lines.append(source.lineNumber(other));
    }
    return lines;
}

bool LineCheck::checkConfirmed(int row)
{
    const int line = m_targets.confirmedFor(*m_target, row, m_mapping);
    return line == TargetSet::Nobody || line == m_assignment->line.lineId ||
           complain(CheckMessages::confirmedForOther(line == TargetSet::Several ? -1 : line));
}

bool LineCheck::checkCompared(int /*row*/)
{
    if (m_target->comparesEverything() && !m_assignment->targetVarset)
        return true;
    const LineInput &line = m_assignment->line;
    int compared = 0;
    int values = 0;
    if (m_assignment->targetVarset || !m_target->countCompared(line, compared, values)) {
        takeValues();
        m_target->countCompared(line, m_values, compared, values);
    }
    return enoughCompared(compared, values) ||
           complain(CheckMessages::tooLittleCompared(namesNotCompared()));
}

QStringList LineCheck::namesNotCompared() const
{
    if (m_quiet)
        return {};
    const Varset own =
        m_assignment->line.view ? varsetOf(*m_assignment->line.view) : *m_assignment->line.varset;
    QStringList names;
    const QSet<QString> compared = m_target->comparedSourceNames();
    for (auto at = own.begin(); at != own.end(); ++at) {
        if (!at->getValue().toString().trimmed().isEmpty() && !compared.contains(at.key()))
            names.append(at.key());
    }
    names.sort();
    return names;
}

bool LineCheck::checkProject(int /*row*/)
{
    if (!m_assignment->automatic)
        return true;
    bool ok = true;
    if (m_targets.rank(*m_target) == NameRank::Other)
        ok = complain(CheckMessages::otherProject(m_targets.sourcePath(), m_target->path()));
    const PairJoin *join = m_assignment->line.row >= 0 ? m_target->join() : nullptr;
    if (join && join->agreement() < EnoughAgreement)
        ok = complain(CheckMessages::reworkedTable(m_target->path()));
    return ok;
}

bool LineCheck::checkDesignations(int row)
{
    const LineInput &line = m_assignment->line;
    const SourceTable &source = m_targets.source();
    const std::string from =
        line.view ? source.normDesignation(*line.view) : source.normDesignation(*line.varset);
    const std::string to = m_target->table()->normDesignation(row);
    return from == to || complain(CheckMessages::otherDesignation(from, to));
}

bool LineCheck::checkConditions()
{
    if (m_target->conditionsHold(m_assignment->line))
        return true;
    if (!m_quiet) {
        for (const QString &condition : m_target->failingConditions(m_assignment->line))
            complain(CheckMessages::failedCondition(condition));
    }
    return false;
}

} // namespace Mapper

#include "LineCheck.h"

#include "CheckMessages.h"
#include "ExactSearch.h"
#include "PairJoin.h"
#include "Proposals.h"
#include "SimilarityRules.h"
#include "TargetTable.h"

#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/table/TableData.h>

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
    return ok;
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
    for (bool (LineCheck::*check)() :
         {&LineCheck::checkOtherTargets, &LineCheck::checkCompared, &LineCheck::checkProject}) {
        ok = (this->*check)() && ok;
        if (!ok && m_quiet)
            return false;
    }
    return checkClaims(row) && ok;
}

bool LineCheck::checkEqual(int row)
{
    if (usesJoins() && !m_assignment->targetVarset) {
        const PairJoin *join = m_target->join();
        const int sourceRow = m_assignment->line.row;
        if (join->hit(sourceRow) == row && !join->isSeveral(sourceRow))
            return true;
    }
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
        if (m_values.search->equals(value, row, place))
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

int LineCheck::equalRowOf(const BoundTarget &target)
{
    if (usesJoins())
        return target.join()->hit(m_assignment->line.row);
    if (!target.conditionsHold(m_assignment->line))
        return -1;
    target.takeValues(m_assignment->line, m_otherValues);
    return target.findEqual(m_otherValues).row;
}

bool LineCheck::checkOtherTargets()
{
    bool ok = true;
    for (int i = 0; i < m_targets.count() && (ok || !m_quiet); ++i) {
        const BoundTarget *other = m_targets.at(i, m_mapping);
        if (!other || !other->isOpen() || other->path() == m_target->path())
            continue;
        const int row = equalRowOf(*other);
        if (row < 0)
            continue;
        const int line = other->table()->data().lineNumber(row);
        ok = complain(m_quiet ? QString() : CheckMessages::equalElsewhere(other->path(), line));
    }
    return ok;
}

bool LineCheck::checkClaims(int row)
{
    const PairJoin *join = m_assignment->line.row >= 0 ? m_target->join() : nullptr;
    if (!join || join->claims(row) <= 1)
        return true;
    QList<int> lines;
    const VKTab::TableData &source = *m_targets.source().data();
    for (int other = 0; !m_quiet && other < source.rowCount() && lines.size() <= MaxNamed;
         ++other) {
        if (other != m_assignment->line.row && join->hit(other) == row)
            lines.append(source.lineNumber(other));
    }
    return complain(CheckMessages::equalSourceLines(lines));
}

bool LineCheck::checkCompared()
{
    if (m_target->comparesEverything() && !m_assignment->targetVarset)
        return true;
    const LineInput &line = m_assignment->line;
    int compared = 0;
    int values = 0;
    if (m_assignment->targetVarset || !m_target->countCompared(line, compared, values)) {
        takeValues();
        compared = m_values.texts.countValues();
        values = countValues(line, m_targets.source());
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
    const QStringList compared = m_target->comparedSourceNames();
    for (auto at = own.begin(); at != own.end(); ++at) {
        if (!at->getValue().toString().trimmed().isEmpty() && !compared.contains(at.key()))
            names.append(at.key());
    }
    names.sort();
    return names;
}

bool LineCheck::checkProject()
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

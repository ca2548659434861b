#include "PrjMappingTargetC.h"

#include <geomcore/binding/VarsetConditionI.h>
#include <geomcore/binding/VarsetModifierI.h>
#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/table/LineView.h>

#include <algorithm>

class PrjMappingTargetData : public QSharedData
{
public:
    QString path;
    QString version;
    QString tabVersion;
    bool valid = false;
    bool proposedRules = false;
    LineTable lines;
    std::vector<std::shared_ptr<const VarsetConditionI>> conditions;
    std::vector<std::shared_ptr<const VarsetModifierI>> modifiers;
};

namespace {

template<class T>
QList<const T *> pointersOf(const std::vector<std::shared_ptr<const T>> &owners)
{
    QList<const T *> list;
    list.reserve(qsizetype(owners.size()));
    for (const auto &owner : owners)
        list.append(owner.get());
    return list;
}

template<class Values>
bool allHold(const std::vector<std::shared_ptr<const VarsetConditionI>> &conditions,
             const Values &values)
{
    return std::all_of(conditions.begin(), conditions.end(),
                       [&](const auto &condition) { return condition->holds(values); });
}

} // namespace

PrjMappingTargetC::PrjMappingTargetC()
{
    // Many are made only to be passed or replaced.
    static const QSharedDataPointer<PrjMappingTargetData> empty(new PrjMappingTargetData);
    d = empty;
}

PrjMappingTargetC::PrjMappingTargetC(const PrjMappingTargetC &) = default;

PrjMappingTargetC::PrjMappingTargetC(PrjMappingTargetC &&) noexcept = default;

PrjMappingTargetC &PrjMappingTargetC::operator=(const PrjMappingTargetC &) = default;

PrjMappingTargetC &PrjMappingTargetC::operator=(PrjMappingTargetC &&) noexcept = default;

PrjMappingTargetC::~PrjMappingTargetC() = default;

bool PrjMappingTargetC::isValid() const
{
    return d->valid;
}

void PrjMappingTargetC::setValid(bool valid)
{
    d->valid = valid;
}

QString PrjMappingTargetC::getTargetPath() const
{
    return d->path;
}

void PrjMappingTargetC::setTargetPath(const QString &path)
{
    d->path = path;
}

bool PrjMappingTargetC::isNotFoundTarget() const
{
    return d->path.isEmpty();
}

QString PrjMappingTargetC::getTargetVersion() const
{
    return d->version;
}

void PrjMappingTargetC::setTargetVersion(const QString &version)
{
    d->version = version;
}

QString PrjMappingTargetC::getTabVersion() const
{
    return d->tabVersion;
}

void PrjMappingTargetC::setTabVersion(const QString &version)
{
    d->tabVersion = version;
}

int PrjMappingTargetC::countLines() const
{
    return d->lines.counts().lines();
}

QHash<int, PrjMappingTargetLineC> PrjMappingTargetC::getMappedLines() const
{
    QHash<int, PrjMappingTargetLineC> lines;
    lines.reserve(countLines());
    for (const LineTable::Iterator &line : d->lines)
        lines.insert(line.sourceLine(), line.line());
    return lines;
}

PrjMappingTargetLineC PrjMappingTargetC::getMappedLine(int sourceLineId) const
{
    return d->lines.value(sourceLineId);
}

bool PrjMappingTargetC::containsLine(int sourceLineId) const
{
    return d->lines.contains(sourceLineId);
}

const LineTable &PrjMappingTargetC::lines() const
{
    return d->lines;
}

void PrjMappingTargetC::addLineId(int sourceLineId, int targetLineId, PRJMAPPING::CheckState state,
                                  const QString &extended)
{
    d->lines.set(sourceLineId, targetLineId, state, false,
                 extended.isEmpty() ? ExtendedTextPtr()
                                    : ExtendedTextPtr(new ExtendedText(extended)));
}

void PrjMappingTargetC::setMappedLine(int sourceLineId, const PrjMappingTargetLineC &line)
{
    d->lines.set(sourceLineId, line);
}

void PrjMappingTargetC::appendMappedLines(LineTable::Iterator &from, int count)
{
    d->lines.append(from, count);
}

void PrjMappingTargetC::removeLineId(int sourceLineId)
{
    if (containsLine(sourceLineId))
        d->lines.remove(sourceLineId);
}

void PrjMappingTargetC::setLines(const LineTable &lines)
{
    d->lines = lines;
}

void PrjMappingTargetC::clearLines(bool keepVerified)
{
    if (keepVerified)
        d->lines.removeUnverified();
    else
        d->lines.clear();
}

void PrjMappingTargetC::verifyLines()
{
    d->lines.setAllStates(PRJMAPPING::Verified);
}

bool PrjMappingTargetC::getLineConflicted(int sourceLineId) const
{
    const LineTable::Iterator entry = d->lines.find(sourceLineId);
    return entry && entry->conflict();
}

void PrjMappingTargetC::setLineConflicted(int sourceLineId, bool conflicted)
{
    d->lines.setConflict(sourceLineId, conflicted);
}

QList<const VarsetConditionI *> PrjMappingTargetC::getConditions() const
{
    return pointersOf(d->conditions);
}

void PrjMappingTargetC::addCondition(const VarsetConditionI *condition)
{
    if (condition)
        d->conditions.emplace_back(condition);
}

void PrjMappingTargetC::clearConditions()
{
    d->conditions.clear();
    d->proposedRules = false;
}

void PrjMappingTargetC::takeConditions(const PrjMappingTargetC &from)
{
    d->conditions = from.d->conditions;
}

bool PrjMappingTargetC::conditionsHold(const QHash<QString, MapVarValueC> &varset) const
{
    return allHold(d->conditions, varset);
}

bool PrjMappingTargetC::conditionsHold(const VKTab::LineView &line) const
{
    return allHold(d->conditions, line);
}

QList<const VarsetModifierI *> PrjMappingTargetC::getVarsetModifier() const
{
    return pointersOf(d->modifiers);
}

void PrjMappingTargetC::addModifier(const VarsetModifierI *modifier)
{
    if (modifier)
        d->modifiers.emplace_back(modifier);
}

void PrjMappingTargetC::clearModifier()
{
    d->modifiers.clear();
    d->proposedRules = false;
}

void PrjMappingTargetC::takeModifiers(const PrjMappingTargetC &from)
{
    d->modifiers = from.d->modifiers;
}

bool PrjMappingTargetC::hasProposedRules() const
{
    return d->proposedRules;
}

void PrjMappingTargetC::setProposedRules(bool proposed)
{
    d->proposedRules = proposed;
}

QHash<QString, MapVarValueC>
PrjMappingTargetC::updateVarset(const QHash<QString, MapVarValueC> &varset) const
{
    QHash<QString, MapVarValueC> result = varset;
    for (const auto &modifier : d->modifiers)
        modifier->updateVarset(varset, result);
    return result;
}

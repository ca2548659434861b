#include "PrjMappingC.h"

using PRJMAPPING::MappingState;

class PrjMappingData : public QSharedData
{
public:
    void updateState();

    QString sourcePath;
    QString sourceVersion;
    QString tabVersion;
    MappingState state;
    QList<PrjMappingTargetC> targets;
};

namespace {

constexpr int KeptStates =
    PRJMAPPING::StateUsable | PRJMAPPING::StateReserved | PRJMAPPING::StateTableError;

LineCounts countLines(const QList<PrjMappingTargetC> &targets)
{
    LineCounts counts;
    for (const PrjMappingTargetC &target : targets)
        counts.add(target.lineCounts());
    return counts;
}

MappingState stateOf(const LineCounts &counts)
{
    MappingState state;
    state.setFlag(PRJMAPPING::StateIncomplete, counts.assigned() > 0 || counts.lines() == 0);
    state.setFlag(PRJMAPPING::StateUnverified, counts.unverified() > 0);
    state.setFlag(PRJMAPPING::StateUnmapped, counts.unmapped() > 0);
    state.setFlag(PRJMAPPING::StateVerified, counts.verified() > 0);
    return state;
}

/// The rule by which several targets that hold a line are told apart; \a values is whatever the
/// conditions can be asked with.
template<class Values>
PrjMappingLineC findLineIn(const QList<PrjMappingTargetC> &targets, int sourceLine,
                           const Values &values)
{
    int chosen = -1;
    int candidates = 0;
    for (int i = 0; i < targets.size(); ++i) {
        if (targets[i].containsLine(sourceLine) && ++candidates == 1)
            chosen = i;
    }
    for (int i = chosen; candidates > 1 && i < targets.size(); ++i) {
        const PrjMappingTargetC &target = targets[i];
        if (!target.isNotFoundTarget() && target.containsLine(sourceLine) &&
            target.conditionsHold(values)) {
            chosen = i;
            break;
        }
    }
    PrjMappingLineC line;
    line.setSourceLineId(sourceLine);
    if (chosen < 0)
        return line;
    const LineTable::Iterator entry = targets[chosen].lines().find(sourceLine);
    line.setValid(true);
    line.setTargetIndex(chosen);
    line.setTargetLineId(entry->targetLine());
    line.setCheckState(entry->state());
    line.setInRealTarget(!targets[chosen].isNotFoundTarget());
    return line;
}

} // namespace

void PrjMappingData::updateState()
{
    state = (state & MappingState::fromInt(KeptStates)) | stateOf(countLines(targets));
}

PrjMappingC::PrjMappingC()
{
    // Many are made only to be passed or replaced.
    static const QSharedDataPointer<PrjMappingData> empty(new PrjMappingData);
    d = empty;
}

PrjMappingC::PrjMappingC(const PrjMappingC &) = default;

PrjMappingC::PrjMappingC(PrjMappingC &&) noexcept = default;

PrjMappingC &PrjMappingC::operator=(const PrjMappingC &) = default;

PrjMappingC &PrjMappingC::operator=(PrjMappingC &&) noexcept = default;

PrjMappingC::~PrjMappingC() = default;

bool PrjMappingC::isValid() const
{
    return !d->sourcePath.isEmpty();
}

QString PrjMappingC::getSourcePath() const
{
    return d->sourcePath;
}

void PrjMappingC::setSourcePath(const QString &path)
{
    d->sourcePath = path;
}

QString PrjMappingC::getSourceVersion() const
{
    return d->sourceVersion;
}

void PrjMappingC::setSourceVersion(const QString &version)
{
    d->sourceVersion = version;
}

QString PrjMappingC::getTabVersion() const
{
    return d->tabVersion;
}

void PrjMappingC::setTabVersion(const QString &version)
{
    d->tabVersion = version;
}

MappingState PrjMappingC::getMappingState() const
{
    return d->state;
}

void PrjMappingC::setMappingState(MappingState state)
{
    d->state = state;
}

void PrjMappingC::updateMappingState()
{
    d->updateState();
}

bool PrjMappingC::getContainsConflicts() const
{
    return lineCounts().conflicts() > 0;
}

LineCounts PrjMappingC::lineCounts() const
{
    return countLines(d->targets);
}

QList<PrjMappingTargetC> PrjMappingC::getTargets() const
{
    return d->targets;
}

int PrjMappingC::countTargets() const
{
    return int(d->targets.size());
}

PrjMappingTargetC PrjMappingC::findTarget(int index) const
{
    return d->targets.value(index);
}

const PrjMappingTargetC &PrjMappingC::targetAt(int index) const
{
    return d->targets.at(index);
}

PrjMappingTargetC &PrjMappingC::writableTarget(int index)
{
    return d->targets[index];
}

int PrjMappingC::addTarget(const PrjMappingTargetC &target)
{
    return insertTarget(countTargets(), target);
}

void PrjMappingC::setTargets(const QList<PrjMappingTargetC> &targets)
{
    d->targets = targets;
    d->updateState();
}

int PrjMappingC::addTarget(const QString &path, const QString &version)
{
    if (const int notFound = path.isEmpty() ? getNotFoundTarget() : -1; notFound >= 0)
        return notFound;
    PrjMappingTargetC target;
    target.setTargetPath(path);
    target.setTargetVersion(version);
    target.setValid(true);
    return addTarget(target);
}

int PrjMappingC::insertTarget(int index, const PrjMappingTargetC &target)
{
    const int at = qBound(0, index, countTargets());
    d->targets.insert(at, target);
    d->updateState();
    return at;
}

void PrjMappingC::updateTarget(int index, const PrjMappingTargetC &target)
{
    if (index < 0 || index >= countTargets())
        return;
    d->targets[index] = target;
    d->updateState();
}

void PrjMappingC::removeTarget(int index)
{
    if (index < 0 || index >= countTargets())
        return;
    d->targets.removeAt(index);
    d->updateState();
}

int PrjMappingC::getNotFoundTarget() const
{
    for (int i = 0; i < d->targets.size(); ++i) {
        if (d->targets[i].isNotFoundTarget())
            return i;
    }
    return -1;
}

int PrjMappingC::ensureNotFoundTarget()
{
    const int index = getNotFoundTarget();
    return index == -1 ? addTarget(QString(), QString()) : index;
}

PrjMappingLineC PrjMappingC::findLine(int sourceLineId,
                                      const QHash<QString, MapVarValueC> &varset) const
{
    return findLineIn(d->targets, sourceLineId, varset);
}

PrjMappingLineC PrjMappingC::findLine(int sourceLineId, const VKTab::LineView &line) const
{
    return findLineIn(d->targets, sourceLineId, line);
}

void PrjMappingC::verifyAll()
{
    for (PrjMappingTargetC &target : d->targets)
        target.verifyLines();
    d->updateState();
}

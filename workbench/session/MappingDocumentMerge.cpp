#include "MappingDocumentPrivate.h"

#include <geomcore/records/sameTargetHead.h>
#include <release/merge/mergeReleases.h>

namespace {

bool sameRelease(const ReleaseMappingC &a, const ReleaseMappingC &b)
{
    if (a.countMappings() != b.countMappings() || a.getTargetDate() != b.getTargetDate())
        return false;
    for (int i = 0; i < a.countMappings(); ++i) {
        if (!sameMapping(a.mappingAt(i), b.mappingAt(i)))
            return false;
    }
    return true;
}

} // namespace

/// The new beginning of the session is what stands in the file; what is ours on top of it is one
/// step, so that undoing it leads to the file and never to a state that would overwrite it.
MergeOutcome MappingDocumentPrivate::mergeFile()
{
    finishStep();
    MergeOutcome outcome;
    if (!isOpen || !file.isEditable() || m_saving) {
        outcome.text = MappingDocument::tr("Es ist keine Datei zum Bearbeiten geöffnet.");
        return outcome;
    }
    m_saving = true; // events come meanwhile
    const DocumentFile::Reading reading =
        DocumentFile::read(file.path(), release().getSourceDate(), nullptr);
    m_saving = false;
    if (!reading.release) {
        outcome.text = reading.errorText;
        return outcome;
    }
    const VelkRelease::MergeResult result =
        VelkRelease::mergeReleases(file.loaded(), release(), *reading.release);
    file.setKnown(reading.content.state, *reading.release);
    mergeState = MergeState(result);
    steps.history().clear();
    steps.noteSaved(reading.content.state.hash);
    outcome.merged = true;
    outcome.text = MergeState::text(result);
    const bool isOurs = !sameRelease(*reading.release, result.release);
    if (isOurs) {
        steps.begin(MappingDocument::tr("Eigene Änderungen auf dem Stand der Datei"));
        steps.noteRelease(*reading.release, result.release);
    }
    applyRelease(result.release);
    if (isOurs && steps.end())
        finishStep();
    tellModified();
    Q_EMIT q->undoChanged();
    Q_EMIT q->countsChanged();
    return outcome;
}

void MappingDocumentPrivate::settle(const QList<VelkRelease::MergeClash> &clashes,
                                    MergeState::Side side)
{
    const QString text = side == MergeState::Side::Ours
                             ? MappingDocument::tr("%n Konflikt(e): eigene Entscheidung", nullptr,
                                                   int(clashes.size()))
                             : MappingDocument::tr("%n Konflikt(e): Entscheidung der anderen Seite",
                                                   nullptr, int(clashes.size()));
    q->beginStep(text);
    for (const VelkRelease::MergeClash &clash : clashes) {
        const PrjMappingC mapping =
            release().findMapping(clash.sourcePath, clash.sourceVersion, QString());
        if (mapping.isValid())
            q->updateMapping(MergeState::settled(mapping, clash, side));
    }
    q->endStep();
}

#include "MappingDocumentPrivate.h"

#include <geomcore/records/sameTargetHead.h>
#include <release/merge/mergeReleases.h>
#include <release/merge/setStanding.h>

namespace {

bool sameRelease(const ReleaseMappingC &a, const ReleaseMappingC &b)
{
    if (a.countMappings() != b.countMappings() || a.getTargetDate() != b.getTargetDate())
        return false;
    for (int i = 0; i < a.countMappings(); ++i) {
        if (!a.sharesMapping(b, i) && !sameMapping(a.mappingAt(i), b.mappingAt(i)))
            return false;
    }
    return true;
}

} // namespace

/// The new beginning of the session is what stands in the file; what is ours on top of it is one
/// step, so that undoing it leads to the file and never to a state that would overwrite it.
MergeOutcome MappingDocumentPrivate::mergeFile(const VelkRelease::MergeResult *known)
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
    VelkRelease::MergeResult result =
        VelkRelease::mergeReleases(file.loaded(), release(), *reading.release);
    const ReleaseMappingC merged = result.release;
    if (known)
        result = *known;
    result.release = merged;
    file.setKnown(reading.known());
    mergeState = MergeState(result);
    steps.noteMerged();
    steps.noteSaved(reading.content.state.hash);
    outcome.merged = true;
    outcome.text = MergeState::text(result);
    const bool isOurs = !sameRelease(*reading.release, result.release);
    if (isOurs) {
        steps.begin(MappingDocument::tr("Eigene Änderungen auf dem Stand der Datei"));
        noteAndApply(*reading.release, result.release);
        if (steps.end())
            finishStep();
    } else {
        show(prepare(result.release));
    }
    tellModified();
    Q_EMIT q->undoChanged();
    Q_EMIT q->countsChanged();
    return outcome;
}

namespace {

QString settledText(MergeState::Side side, int lines)
{
    switch (side) {
    case MergeState::Side::Ours:
        return MappingDocument::tr("%Ln Konflikt(e): eigene Entscheidung", nullptr, lines);
    case MergeState::Side::Theirs:
        return MappingDocument::tr("%Ln Konflikt(e): Entscheidung der anderen Seite", nullptr,
                                   lines);
    case MergeState::Side::Neither:
        break;
    }
    return MappingDocument::tr("%Ln Konflikt(e): neu zu entscheiden", nullptr, lines);
}

} // namespace

void MappingDocumentPrivate::settle(const QList<VelkRelease::MergeClash> &clashes,
                                    MergeState::Side side)
{
    QList<QPair<ProjectId, QList<QPair<int, VelkRelease::LineStanding>>>> projects;
    for (const VelkRelease::MergeClash &clash : clashes) {
        const ProjectId project{clash.sourcePath, clash.sourceVersion, QString()};
        if (projects.isEmpty() || projects.last().first != project)
            projects.append({project, {}});
        projects.last().second.append({clash.line, MergeState::standing(clash, side)});
    }
    q->beginStep(settledText(side, int(clashes.size())));
    for (const auto &[project, standings] : std::as_const(projects)) {
        PrjMappingC mapping =
            release().findMapping(project.path, project.version, project.tabVersion);
        if (!mapping.isValid())
            continue;
        VelkRelease::setStandings(mapping, standings);
        q->updateMapping(mapping);
    }
    q->endStep();
}

#include "ReviewCommands.h"

#include <core/json/PJsonValue.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/session/tasks/BulkOperation.h>
#include <workbench/window/message/ReasonDialog.h>

#include <map>
#include <set>

namespace {

std::map<int, QList<int>> linesByProject(const QList<ReviewWork::Place> &places)
{
    std::map<int, QList<int>> lines;
    for (const ReviewWork::Place &place : places)
        lines[place.project].append(place.line);
    return lines;
}

} // namespace

QList<ReviewCommands::Place> ReviewCommands::goneOf(const std::vector<Place> &places) const
{
    const VelkRelease::DifferencePatterns &patterns = m_work->patterns();
    QList<Place> gone;
    for (const Place &place : places) {
        const int pattern = patterns.patternOf(place);
        if (pattern >= 0 && patterns.gone(pattern))
            gone.append(place);
    }
    return gone;
}

/// The dialog tells what the reason is for. False if the user does not want it.
bool ReviewCommands::askReason(const std::vector<Place> &places, const QString &details)
{
    std::set<int> projects;
    for (const Place &place : places)
        projects.insert(place.project);
    QString text = tr("%Ln Zeile(n)", nullptr, int(places.size())) + u' ' +
                   tr("in %Ln Projekt(en)", nullptr, int(projects.size()));
    if (const int doubtful = doubtfulIn(places); doubtful > 0)
        text += QStringLiteral(", ") + tr("%Ln davon ist/sind unsicher.", nullptr, doubtful);
    if (!details.isEmpty())
        text += QStringLiteral(": ") + details;
    ReasonDialog dialog({text}, m_reason, m_window);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    m_reason = dialog.reason();
    return true;
}

/// A target line in a project that is not there any more goes.
void ReviewCommands::confirmGone(const QList<Place> &places)
{
    for (const auto &[position, lines] : linesByProject(places))
        (void)BulkOperation(*m_document, m_work->projectAt(position), lines)
            .run(BulkOperation::RemoveAndConfirm);
}

/// Behind the decision in the journal, so that it is for these lines.
void ReviewCommands::noteReason(const QList<Place> &places) const
{
    if (m_document->isReadOnly())
        return;
    for (const auto &[position, lines] : linesByProject(places)) {
        const ProjectId project = m_work->projectAt(position);
        PJsonValue list(PJsonValue::Array);
        for (const int line : lines)
            list.append(PJsonValue::fromInt(line));
        PJsonValue note(PJsonValue::Object);
        note[QStringLiteral("project")] = PJsonValue(project.path);
        note[QStringLiteral("version")] = PJsonValue(project.version);
        note[QStringLiteral("lines")] = list;
        note[QStringLiteral("reason")] = PJsonValue(m_reason);
        m_document->writeNote("reason", note);
    }
}

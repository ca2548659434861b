#include "NeighbourCommands.h"

#include <workbench/review/NeighbourDock.h>
#include <workbench/review/NeighbourModel.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/session/tasks/NeighbourWork.h>
#include <workbench/window/editor/EditorArea.h>

NeighbourCommands::NeighbourCommands(MappingDocument *document, EditorArea *editor, QWidget *window)
    : m_document(document)
    , m_editor(editor)
    , m_work(new NeighbourWork(document, this))
    , m_dock(new NeighbourDock(m_work, window))
{
    connect(editor, &EditorArea::editorMade, m_work, &NeighbourWork::restart);
    connect(m_dock, &NeighbourDock::chosen, this, &NeighbourCommands::goToCurrent);
}

NeighbourCommands::~NeighbourCommands() = default;

void NeighbourCommands::showList()
{
    m_dock->show();
    m_dock->raise();
    m_dock->focusList();
}

void NeighbourCommands::goToCurrent()
{
    const NeighbourWork::Place *const place = m_dock->current();
    if (!place)
        return;
    if (!m_editor->goTo({m_work->projectAt(place->project), place->finding.firstLine}))
        Q_EMIT noted(tr("Die Zeile %1 kann nicht gezeigt werden").arg(place->finding.firstLine));
}

void NeighbourCommands::mend()
{
    const NeighbourWork::Place *const current = m_dock->current();
    if (!current || m_dock->isHidden())
        return Q_EMIT noted(tr("Es ist keine Fundstelle gewählt"));
    const NeighbourWork::Place place = *current; // it goes with the change
    const PrjMappingC mapping = m_document->mapping(m_work->projectAt(place.project));
    const QString text =
        tr("Behoben: %1 in %2").arg(NeighbourModel::text(place.finding), mapping.getSourcePath());
    m_document->beginStep(text);
    m_document->updateMapping(VelkRelease::mended(mapping, place.finding));
    m_document->endStep();
    Q_EMIT done(text);
}

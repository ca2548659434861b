#include "PrintCommands.h"

#include "EditorArea.h"

#include <geomcoregui/table/VkTableView.h>
#include <gui/print/HtmlPages.h>
#include <mapping/view/CatalogMappingWidget.h>
#include <workbench/window/document/ReleaseCommands.h>
#include <workbench/window/look/PreviewAccess.h>
#include <workbench/window/message/Question.h>

#include <QFileInfo>
#include <QPrinter>
#include <QPrintPreviewDialog>

namespace {

constexpr qreal marginMillimeters = 15;
/// Of the window, for the preview.
constexpr double previewPart = 0.9;

} // namespace

PrintCommands::PrintCommands(EditorArea *editor, ReleaseCommands *release, QWidget *window)
    : QObject(window)
    , m_editor(editor)
    , m_release(release)
    , m_window(window)
{
}

void PrintCommands::printTable()
{
    const VkTableView *const table =
        m_editor->isOpen() ? m_editor->editor()->tableInSight() : nullptr;
    if (!table)
        return Q_EMIT noted(tr("Es ist keine Tabelle zu sehen, die gedruckt werden kann"));
    const PageHead head = m_release->pageHead({m_editor->currentPath(), table->title()});
    run(m_editor->currentPath(), true,
        [table, head](QPrinter &printer) { return table->print(printer, head); });
}

void PrintCommands::printReport()
{
    const auto page = m_release->reportForPaper();
    if (!page)
        return;
    const PageHead head = m_release->pageHead();
    run(tr("Bericht"), false,
        [&page, head](QPrinter &printer) { return HtmlPages(printer, *page, head).print(); });
}

void PrintCommands::run(const QString &title, bool isWide,
                        const std::function<bool(QPrinter &printer)> &paint)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(title);
    printer.setPageOrientation(isWide ? QPageLayout::Landscape : QPageLayout::Portrait);
    printer.setPageMargins(
        QMarginsF(marginMillimeters, marginMillimeters, marginMillimeters, marginMillimeters),
        QPageLayout::Millimeter);
    QPrintPreviewDialog dialog(&printer, m_window);
    dialog.setObjectName(QStringLiteral("PrintPreview"));
    dialog.setWindowTitle(tr("Drucken: %1").arg(title));
    PreviewAccess::name(dialog, title, tr("Seite"));
    dialog.resize(m_window->size() * previewPart);
    bool isPainted = true;
    connect(&dialog, &QPrintPreviewDialog::paintRequested, this,
            [&](QPrinter *pages) { isPainted = paint(*pages); });
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString file = printer.outputFileName();
    if (isPainted)
        return Q_EMIT noted(file.isEmpty() ? tr("%1 wurde an den Drucker gegeben").arg(title)
                                           : tr("%1 nach %2 gedruckt").arg(title, file));
    Question::tell(m_window, tr("%1 konnte nicht gedruckt werden.").arg(title),
                   file.isEmpty() ? tr("Der Drucker nimmt keine Seiten an.")
                                  : tr("%1 kann nicht geschrieben werden.").arg(file));
}

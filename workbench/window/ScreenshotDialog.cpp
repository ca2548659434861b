#include "ScreenshotDialog.h"

#include "EditorArea.h"

#include <formula/DlgFormulaEditor.h>
#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/table/Content.h>
#include <selection/dlgSearchSelect.h>

#include <QEventLoop>
#include <QTimer>

namespace {

/// For the check while typing, or for the search and its index.
constexpr int formulaMilliseconds = 800;
constexpr int searchMilliseconds = 5000;
constexpr QSize formulaSize(560, 260);
constexpr QSize searchSize(640, 520);

QPixmap grabLater(QWidget &dialog, const QSize &size, int milliseconds)
{
    dialog.resize(size);
    dialog.show();
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
    return dialog.grab();
}

QPixmap formula(const QString &text, const EditorArea &editor)
{
    const VKTab::ContentRef table = editor.sourceTable();
    const auto variables =
        table.isValid()
            ? createVarsetFromVKTable(table, table.getLineInfoList().value(0).getLineId(), {})
            : QHash<QString, MapVarValueC>();
    DlgFormulaEditor dialog(variables, variables, QString(), nullptr);
    dialog.setShowContextMenu(true, true, true, true);
    dialog.setFormula(text);
    return grabLater(dialog, formulaSize, formulaMilliseconds);
}

QPixmap search(const QString &text)
{
    dlgSearchSelect dialog(nullptr, false, true);
    dialog.setSearchKeyWord(text);
    return grabLater(dialog, searchSize, searchMilliseconds);
}

} // namespace

QPixmap ScreenshotDialog::take(const QString &name, const QString &text, const EditorArea &editor)
{
    if (name == QLatin1String("formula"))
        return formula(text, editor);
    return name == QLatin1String("search") ? search(text) : QPixmap();
}

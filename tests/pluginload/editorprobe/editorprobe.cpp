// What a host does with the mapping editor, in a library that comes and goes with the plug-in.

#include <formula/DlgFormulaEditor.h>
#include <geomcore/records/PrjMappingC.h>
#include <geomcore/records/PrjMappingTargetC.h>
#include <geomcore/records/ReleaseMappingC.h>
#include <mapping/data/ReleaseMappingHandler.h>
#include <mapping/view/CatalogMappingWidget.h>
#include <selection/dlgSearchSelect.h>
#include <selection/dlgSelect.h>

#include <QAbstractProxyModel>
#include <QApplication>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include <memory>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#include <sanitizer/lsan_interface.h>
#define VELK_STAYS(object) __lsan_ignore_object(object)
#endif
#endif
#ifndef VELK_STAYS
#define VELK_STAYS(object) static_cast<void>(object)
#endif

namespace {

ReleaseMappingC exampleRelease()
{
    PrjMappingC mapping;
    mapping.setSourcePath(QStringLiteral("standardparts/keys/din6885.prj"));
    PrjMappingTargetC target;
    target.setTargetPath(QStringLiteral("standardparts/keys/din6885-a.prj"));
    target.setValid(true);
    target.addLineId(1, 1, PRJMAPPING::Mapped, QString());
    mapping.addTarget(target);
    ReleaseMappingC release;
    release.addMapping(mapping);
    return release;
}

QPushButton *verifyAllButton(const QWidget &editor)
{
    for (QPushButton *button : editor.findChildren<QPushButton *>()) {
        if (button->toolTip() == QStringLiteral("Alle Zuordnungen bestätigen"))
            return button;
    }
    return nullptr;
}

/// False if a dialog does not open.
bool useDialogs()
{
    const QTemporaryDir cache; // of the search
    qputenv("XDG_CACHE_HOME", cache.path().toUtf8());
    DlgFormulaEditor formula({}, {}, QString(), nullptr);
    formula.setShowContextMenu(true, true, true, true);
    formula.setFormula(QStringLiteral("ROUND(1.5) .EQ. 2"));
    dlgSelect select(nullptr);
    const QSignalSpy selected(&select, &dlgSelect::itemSelected);
    dlgSearchSelect search(nullptr, false, true);
    const QSignalSpy found(&search, &dlgSearchSelect::itemSelected);
    for (QDialog *const dialog : std::initializer_list<QDialog *>{&formula, &select, &search}) {
        dialog->show();
        if (!QTest::qWaitForWindowExposed(dialog))
            return false;
    }
    QApplication::processEvents();
    return formula.checkSyntax(false);
}

} // namespace

/// Opens a project of the example catalog in the editor and confirms all its lines, with keyboard
/// and mouse, and opens the dialogs. Gives the number of confirmed lines, -1 if the editor is not
/// as expected.
extern "C" Q_DECL_EXPORT int useEditor(const QString &sourceRoot)
{
    auto *const handler =
        new ReleaseMappingHandler(exampleRelease(), QStringLiteral("standardparts"), QString());
    const auto editor =
        std::make_unique<CatalogMappingWidget>(sourceRoot, handler, nullptr, nullptr);
    editor->show();
    if (!QTest::qWaitForWindowExposed(editor.get()))
        return -1;
    auto *const tree = editor->findChild<QTreeView *>(QStringLiteral("treeView"));
    QPushButton *const verifyAll = verifyAllButton(*editor);
    if (!tree || !verifyAll)
        return -1;
    // The tree's model stays when the widget goes. cmake/leaks.ignore knows it by the names of
    // functions, and after unloading there are none.
    VELK_STAYS(qobject_cast<QAbstractProxyModel *>(tree->model())->sourceModel());
    tree->setFocus();
    QTest::keyClick(tree, Qt::Key_Home);
    for (int i = 0; i < 8; ++i) // opens a directory, then goes to its first row
        QTest::keyClick(tree, Qt::Key_Right);
    QApplication::processEvents();
    QTest::mouseClick(verifyAll, Qt::LeftButton);
    QApplication::processEvents();
    return useDialogs() ? handler->countVerified() : -1;
}

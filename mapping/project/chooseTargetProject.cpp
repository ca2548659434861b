#include "chooseTargetProject.h"

#include <geomcore/index/DisplayIndexC.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/index/IndexTreeDisplayItemI.h>
#include <selection/dlgSearchSelect.h>

#include <QPointer>
#include <QScopeGuard>

QString chooseTargetProject(QWidget *parent, const QString &sourcePath)
{
    // The parent, and the dialog with it, can go while the dialog is open.
    const QPointer<dlgSearchSelect> dialog(new dlgSearchSelect(parent, false, true));
    const auto dropDialog = qScopeGuard([&dialog] { delete dialog; });
    const qsizetype slash = sourcePath.indexOf(u'/');
    if (slash >= 0) {
        const QString catalog = sourcePath.left(slash);
        dialog->preselectCatalog(catalog);
        const PRefPtr<IndexTreeNodeC> node =
            IndexTreeC::instance()->findNodeByTreePath(QStringLiteral("cat/") + catalog, QString());
        if (node) {
            dialog->setCurrentCatalog(node);
            dialog->setSearchCatalog(node);
        }
    }
    dialog->setCloseAfterSelect(true);
    if (dialog->exec() != QDialog::Accepted || !dialog)
        return QString();
    const PRefPtr<IndexTreeDisplayItemI> item = dialog->getSelectedItem();
    return item ? item->data(DisplayIndexC(QVariant(35), QVariant(4))).toString() : QString();
}

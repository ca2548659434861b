#include "chooseTargetProject.h"

#include <core/message/PMessage.h>
#include <core/text/PString.h>
#include <geomcore/index/IndexTreeC.h>

#include <QDir>
#include <QFileDialog>
#include <QPointer>
#include <QScopeGuard>

namespace {

QString startDirectory(const QString &root, const QString &sourcePath)
{
    const qsizetype slash = sourcePath.indexOf(u'/');
    const QString catalog = slash < 0 ? root : root + u'/' + sourcePath.left(slash);
    return QDir(catalog).exists() ? catalog : root;
}

/// Empty if the file is elsewhere. A folder of the root may be a link to another place.
QString pathBelow(const QString &root, const QString &file)
{
    const auto relative = [](const QString &directory, const QString &below) {
        const QString path = QDir(directory).relativeFilePath(below);
        return path.startsWith(QLatin1String("..")) || QDir::isAbsolutePath(path) ? QString()
                                                                                  : path;
    };
    const QString path = relative(QDir::cleanPath(root), QDir::cleanPath(file));
    return path.isEmpty()
               ? relative(QFileInfo(root).canonicalFilePath(), QFileInfo(file).canonicalFilePath())
               : path;
}

} // namespace

QString chooseTargetProject(QWidget *parent, const QString &sourcePath)
{
    const QString root = IndexTreeC::instance()->catalogRoot().native();
    // The parent, and the dialog with it, can go while the dialog is open.
    const QPointer<QFileDialog> dialog(new QFileDialog(
        parent, PString::translate("Zielprojekt auswählen", "VelkLinkDbGui"),
        startDirectory(root, sourcePath), PString::translate("Projekte (*.prj)", "VelkLinkDbGui")));
    const auto dropDialog = qScopeGuard([&dialog] { delete dialog; });
    dialog->setObjectName(QStringLiteral("chooseTargetProject"));
    dialog->setFileMode(QFileDialog::ExistingFile);
    if (dialog->exec() != QDialog::Accepted || !dialog || dialog->selectedFiles().isEmpty())
        return QString();
    const QString file = pathBelow(root, dialog->selectedFiles().constFirst());
    if (file.isEmpty()) {
        PMessage::Show(PString::translate("Das Projekt liegt nicht unter dem Katalogverzeichnis %1",
                                          "VelkLinkDbGui")
                           .arg(QDir::toNativeSeparators(root)));
        return QString();
    }
    return file;
}

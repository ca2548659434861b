#include "chooseTargetProject.h"

#include <core/message/PMessage.h>
#include <core/text/PString.h>
#include <geomcore/index/IndexTreeC.h>

#include <QDir>
#include <QFileDialog>

namespace {

QString startDirectory(const QString &root, const QString &sourcePath)
{
    const qsizetype slash = sourcePath.indexOf(u'/');
    const QString catalog = slash < 0 ? root : root + u'/' + sourcePath.left(slash);
    return QDir(catalog).exists() ? catalog : root;
}

} // namespace

QString chooseTargetProject(QWidget *parent, const QString &sourcePath)
{
    const QString root = IndexTreeC::instance()->catalogRoot().native();
    QFileDialog dialog(parent, PString::translate("Zielprojekt auswählen", "VelkLinkDbGui"),
                       startDirectory(root, sourcePath),
                       PString::translate("Projekte (*.prj)", "VelkLinkDbGui"));
    dialog.setObjectName(QStringLiteral("chooseTargetProject"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return QString();
    QString file =
        QDir(QFileInfo(root).canonicalFilePath())
            .relativeFilePath(QFileInfo(dialog.selectedFiles().constFirst()).canonicalFilePath());
    if (file.startsWith(QLatin1String("..")) || QDir::isAbsolutePath(file)) {
        PMessage::Show(PString::translate("Das Projekt liegt nicht unter dem Katalogverzeichnis %1",
                                          "VelkLinkDbGui")
                           .arg(QDir::toNativeSeparators(root)));
        return QString();
    }
    return file;
}

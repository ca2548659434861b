#include "FileNames.h"

#include <QFileDialog>
#include <QFileInfo>

namespace {

QString filter()
{
    return QCoreApplication::translate("FileNames", "Mapping-Dateien (*.json);;Alle Dateien (*)");
}

} // namespace

QString FileNames::askOpen(QWidget *parent, const QString &former)
{
    return QFileDialog::getOpenFileName(parent, tr("Mapping-Datei öffnen"),
                                        QFileInfo(former).path(), filter());
}

QString FileNames::askSave(QWidget *parent, const QString &former)
{
    QFileDialog dialog(parent, tr("Mapping-Datei speichern"), QFileInfo(former).path(), filter());
    dialog.setObjectName("SaveFileDialog");
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("json");
    dialog.selectFile(QFileInfo(former).fileName());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString FileNames::askDirectory(QWidget *parent, const QString &title, const QString &former)
{
    return QFileDialog::getExistingDirectory(parent, title, former);
}

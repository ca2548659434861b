#include "FileNames.h"

#include <QFileDialog>
#include <QFileInfo>

namespace {

QString filter()
{
    return QCoreApplication::translate("FileNames", "Mapping-Dateien (*.json);;Alle Dateien (*)");
}

QString askForNew(QFileDialog &dialog, const QString &suggested)
{
    dialog.setObjectName("SaveFileDialog");
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.selectFile(QFileInfo(suggested).fileName());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace

QString FileNames::askOpen(QWidget *parent, const QString &former)
{
    return QFileDialog::getOpenFileName(parent, tr("Mapping-Datei öffnen"),
                                        QFileInfo(former).path(), filter());
}

QString FileNames::askFormer(QWidget *parent, const QString &folder)
{
    QFileDialog dialog(parent, tr("Entscheidungen übernehmen aus"), folder, filter());
    dialog.setObjectName("FormerFileDialog");
    dialog.setFileMode(QFileDialog::ExistingFile);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString FileNames::askSave(QWidget *parent, const QString &former)
{
    QFileDialog dialog(parent, tr("Mapping-Datei speichern"), QFileInfo(former).path(), filter());
    dialog.setDefaultSuffix("json");
    return askForNew(dialog, former);
}

QString FileNames::askForTable(QWidget *parent, const QString &suggested)
{
    QFileDialog dialog(parent, tr("Tabelle speichern"), QFileInfo(suggested).path(),
                       tr("Tabellen (*.csv);;Alle Dateien (*)"));
    dialog.setDefaultSuffix("csv");
    return askForNew(dialog, suggested);
}

QString FileNames::askShared(QWidget *parent, const QString &former)
{
    QFileDialog dialog(parent, tr("Gemeinsame Kopie wählen"), QFileInfo(former).path(), filter());
    dialog.setObjectName("SharedFileDialog");
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite); // nothing is overwritten
    dialog.setDefaultSuffix("json");
    dialog.selectFile(QFileInfo(former).fileName());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString FileNames::askDirectory(QWidget *parent, const QString &title, const QString &former)
{
    return QFileDialog::getExistingDirectory(parent, title, former);
}

#pragma once

#include <QCoreApplication>
#include <QString>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// Asks for names of mapping files and directories. Empty if the user gives none.
class FileNames
{
    Q_DECLARE_TR_FUNCTIONS(FileNames)

public:
    /// Beside \a former.
    [[nodiscard]] static QString askOpen(QWidget *parent, const QString &former);
    /// A mapping that the open one follows; in the directory \a folder.
    [[nodiscard]] static QString askFormer(QWidget *parent, const QString &folder);
    /// With the ending ".json" if none is given; an existing file is to be confirmed.
    [[nodiscard]] static QString askSave(QWidget *parent, const QString &former);
    /// \a suggested is the file's name; ".csv" as above.
    [[nodiscard]] static QString askForTable(QWidget *parent, const QString &suggested);
    /// A shared copy that is there or is to be made.
    [[nodiscard]] static QString askShared(QWidget *parent, const QString &former);
    [[nodiscard]] static QString askDirectory(QWidget *parent, const QString &title,
                                              const QString &former);
};

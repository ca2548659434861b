#pragma once

#include "FileStamp.h"

#include <QByteArray>
#include <QList>
#include <QSet>
#include <QString>

/// The files that a project's entry in the index was made of.
struct IndexedFiles
{
    QString directory; ///< Native path of the project's.
    FileStamp project;
    QString descriptor; ///< Native path; empty for a project without a table.
    FileStamp descriptorStamp;
    QString lines; ///< Native path of the CSV file.
    FileStamp linesStamp;

    /// Whether all of them are as they were; descriptor and lines may be names that lie beside the
    /// project. \a projectName: the project's in its directory.
    [[nodiscard]] bool areUnchanged(const QString &projectName,
                                    const DirectoryStamps &beside) const;
};

/// The values of one column of a project's table.
struct IndexedColumn
{
    QString name; ///< Folded.
    QString unit;
    bool isRange = false;
    char decimalChar = '.';
    /// Whether there are numbers among the values; the least and the greatest of them.
    bool hasNumbers = false;
    double least = 0;
    double greatest = 0;
    /// The different values, separated by NUL; null if there are too many to be kept.
    QByteArray values;
};

/// What the index keeps of a project.
struct IndexedProject
{
    QString path;
    QString title;
    QString normNumber;
    int lineCount = -1; ///< -1: no table that can be read.
    QString head;       ///< Folded words of path, titles, norm numbers and designations.
    QSet<QString> headTokens;
    QSet<QString> lineTokens;
    QList<IndexedColumn> columns;
    IndexedFiles files;

    /// Reads a project below a catalog root; what cannot be read of it is left out. Any thread.
    [[nodiscard]] static IndexedProject read(const QString &root, const QString &catalogPath);
};

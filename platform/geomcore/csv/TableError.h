#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QList>
#include <QString>

namespace VKTab {

/// One thing wrong with a file, and where.
struct VELKGEOMCORE_EXPORT TableError
{
    /// Native path, or the name given for data from memory.
    QString file;
    /// From 1; 0 if the error concerns the whole file. Of a CSV file the row as a spreadsheet
    /// counts it, the header row being 1; of a text file the line.
    int row = 0;
    /// From 1; 0 if unknown. Of a CSV file the cell in its row, of a text file the character.
    int column = 0;
    /// What is wrong and what to do about it, in English.
    QString text;

    /// "file: row 3, column 2: text", leaving out what is unknown.
    [[nodiscard]] QString toString() const;

    friend bool operator==(const TableError &, const TableError &) = default;
};

using TableErrorList = QList<TableError>;

} // namespace VKTab

#include "CsvFolder.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

namespace {

/// Where the record that begins at \a begin has its end, or its first cell if \a cell.
qsizetype endOf(const QByteArray &csv, qsizetype begin, bool cell)
{
    bool quoted = false;
    for (qsizetype i = begin; i < csv.size(); ++i) {
        if (csv[i] == '"')
            quoted = !quoted;
        else if (!quoted && (csv[i] == '\n' || (cell && csv[i] == ',')))
            return i;
    }
    return csv.size();
}

bool copyFile(const QString &from, const QString &to)
{
    QFile in(from);
    if (!in.open(QIODevice::ReadOnly))
        return false;
    const QByteArray csv = withoutFirstColumn(in.readAll());
    if (csv.isEmpty())
        return true;
    QFile out(to);
    return QDir().mkpath(QFileInfo(to).path()) && out.open(QIODevice::WriteOnly) &&
           out.write(csv) == csv.size();
}

} // namespace

QByteArray withoutFirstColumn(const QByteArray &csv)
{
    QByteArray rest;
    for (qsizetype begin = 0; begin < csv.size();) {
        const qsizetype end = endOf(csv, begin, false);
        const qsizetype comma = endOf(csv, begin, true);
        if (comma >= end)
            return {};
        rest += QByteArrayView(csv).sliced(comma + 1, end - comma - 1);
        rest += '\n';
        begin = end + 1;
    }
    return rest;
}

bool copyWithoutFirstColumns(const QString &from, const QString &to)
{
    QDirIterator files(from, {"*.csv"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        if (!copyFile(file, to + '/' + QDir(from).relativeFilePath(file)))
            return false;
    }
    return true;
}

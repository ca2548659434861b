#pragma once

#include <tests/road/TruthFile.h>

#include <QHash>
#include <QMap>
#include <QString>

#include <map>
#include <string>
#include <vector>

/// A table in memory: names of the variables and lines of as many cells.
struct SampleTable
{
    std::vector<std::string> names;
    std::vector<std::vector<std::string>> lines;
};

/// Two releases of a collection and what became of each old line.
struct SampleSet
{
    using Tables = QMap<QString, SampleTable>; ///< By path below the folder, without ".csv".
    using Truth = QHash<TruthFile::Place, TruthFile::Entry>;

    QString name;
    Tables olds;
    Tables news;
    Truth truth;

    /// False if a file cannot be read.
    [[nodiscard]] bool read(const QString &oldFolder, const QString &newFolder,
                            const QString &truthFile);
    void removeFirstColumns();
    /// Cells of a new line in the columns of these names, by name; none without such a line.
    [[nodiscard]] std::map<std::string, std::string>
    valuesAt(const TruthFile::Place &place, const std::vector<std::string> &names) const;
    /// Writes both releases as trees of CSV files.
    [[nodiscard]] bool write(const QString &oldFolder, const QString &newFolder) const;
};

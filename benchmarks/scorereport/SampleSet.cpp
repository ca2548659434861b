#include "SampleSet.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <algorithm>

namespace {

using Line = std::vector<std::string>;

std::vector<Line> parsed(const QByteArray &csv)
{
    std::vector<Line> lines;
    Line line;
    std::string cell;
    bool quoted = false;
    for (qsizetype i = 0; i < csv.size(); ++i) {
        const char c = csv[i];
        if (quoted && c == '"' && i + 1 < csv.size() && csv[i + 1] == '"') {
            cell += csv[++i];
        } else if (c == '"') {
            quoted = !quoted;
        } else if (!quoted && c == ',') {
            line.push_back(std::exchange(cell, {}));
        } else if (!quoted && c == '\n') {
            line.push_back(std::exchange(cell, {}));
            lines.push_back(std::exchange(line, {}));
        } else if (quoted || c != '\r') {
            cell += c;
        }
    }
    if (!line.empty() || !cell.empty()) {
        line.push_back(cell);
        lines.push_back(line);
    }
    return lines;
}

bool readTables(const QString &folder, SampleSet::Tables &tables)
{
    QDirIterator files(folder, {"*.csv"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly))
            return false;
        std::vector<Line> lines = parsed(file.readAll());
        if (lines.empty())
            continue;
        SampleTable table{lines.front(), {}};
        for (size_t i = 1; i < lines.size(); ++i) {
            lines[i].resize(table.names.size());
            table.lines.push_back(std::move(lines[i]));
        }
        QString name = QDir(folder).relativeFilePath(file.fileName());
        name.chop(4);
        tables.insert(name, table);
    }
    return !tables.isEmpty();
}

QByteArray csvOf(const Line &line)
{
    QByteArray csv;
    for (size_t i = 0; i < line.size(); ++i) {
        QByteArray cell = QByteArray::fromStdString(line[i]);
        if (cell.contains(',') || cell.contains('"') || cell.contains('\n'))
            cell = '"' + cell.replace("\"", "\"\"") + '"';
        csv += (i > 0 ? "," : "") + cell;
    }
    return csv + "\r\n";
}

bool writeTables(const QString &folder, const SampleSet::Tables &tables)
{
    for (auto table = tables.begin(); table != tables.end(); ++table) {
        const QString path = folder + '/' + table.key() + ".csv";
        QFile file(path);
        if (!QDir().mkpath(path.section('/', 0, -2)) || !file.open(QIODevice::WriteOnly))
            return false;
        QByteArray csv = csvOf(table->names);
        for (const Line &line : table->lines)
            csv += csvOf(line);
        if (file.write(csv) != csv.size())
            return false;
    }
    return true;
}

void removeFirst(SampleSet::Tables &tables)
{
    for (auto table = tables.begin(); table != tables.end();) {
        if (table->names.size() < 2) {
            table = tables.erase(table);
            continue;
        }
        table->names.erase(table->names.begin());
        for (Line &line : table->lines)
            line.erase(line.begin());
        ++table;
    }
}

} // namespace

bool SampleSet::read(const QString &oldFolder, const QString &newFolder, const QString &truthFile)
{
    TruthFile file;
    if (!file.read(truthFile))
        return false;
    truth = file.entries();
    return readTables(oldFolder, olds) && readTables(newFolder, news);
}

void SampleSet::removeFirstColumns()
{
    removeFirst(olds);
    removeFirst(news);
}

bool SampleSet::write(const QString &oldFolder, const QString &newFolder) const
{
    return writeTables(oldFolder, olds) && writeTables(newFolder, news);
}

std::map<std::string, std::string> SampleSet::valuesAt(const TruthFile::Place &place,
                                                       const std::vector<std::string> &names) const
{
    std::map<std::string, std::string> values;
    const auto table = news.find(place.first);
    if (table == news.end() || place.second < 1 || size_t(place.second) > table->lines.size())
        return values;
    for (const std::string &column : names) {
        const auto found = std::find(table->names.begin(), table->names.end(), column);
        if (found == table->names.end())
            continue;
        const std::string &text =
            table->lines[size_t(place.second) - 1][size_t(found - table->names.begin())];
        bool isNumber = false;
        const double number = QByteArray::fromStdString(text).trimmed().toDouble(&isNumber);
        values[column] = isNumber ? QByteArray::number(number, 'g', 10).toStdString() : text;
    }
    return values;
}

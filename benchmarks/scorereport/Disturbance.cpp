#include "Disturbance.h"

#include <QByteArray>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <numeric>
#include <optional>

namespace {

using Random = std::mt19937;
using Line = std::vector<std::string>;

/// Below \a count, by the generator alone: distributions differ between libraries.
size_t pick(Random &random, size_t count)
{
    return random() % count;
}

bool isNumber(const std::string &text)
{
    bool ok = false;
    QByteArray::fromStdString(text).trimmed().toDouble(&ok);
    return ok;
}

std::string numberText(double number)
{
    return QByteArray::number(number, 'g', 7).toStdString();
}

/// Places of the columns whose cells are mostly numbers, or mostly texts.
std::vector<size_t> columnsOf(const SampleTable &table, bool numbers)
{
    std::vector<size_t> columns;
    for (size_t column = 0; column < table.names.size(); ++column) {
        size_t count = 0;
        size_t filled = 0;
        for (const Line &line : table.lines) {
            filled += line[column].empty() ? 0 : 1;
            count += isNumber(line[column]) ? 1 : 0;
        }
        if (filled > 0 && (2 * count > filled) == numbers)
            columns.push_back(column);
    }
    return columns;
}

std::optional<size_t> anyColumn(const SampleTable &table, bool numbers, Random &random)
{
    const std::vector<size_t> columns = columnsOf(table, numbers);
    if (columns.empty())
        return std::nullopt;
    return columns[pick(random, columns.size())];
}

template<class Change>
void changeColumn(SampleSet &set, Random &random, bool numbers, Change change)
{
    for (SampleTable &table : set.news) {
        const auto column = anyColumn(table, numbers, random);
        if (!column)
            continue;
        for (Line &line : table.lines) {
            if (!line[*column].empty())
                line[*column] = change(line[*column]);
        }
    }
}

/// The column of numbers, or of texts, that most tables have, in all of them.
template<class Change>
void changeCommonColumn(SampleSet &set, Random &random, bool numbers, Change change)
{
    std::map<std::string, int> tables;
    int most = 0;
    for (const SampleTable &table : std::as_const(set.news)) {
        for (const size_t column : columnsOf(table, numbers))
            most = std::max(most, ++tables[table.names[column]]);
    }
    std::erase_if(tables, [most](const auto &entry) { return entry.second < most; });
    if (tables.empty())
        return;
    const std::string name = std::next(tables.begin(), long(pick(random, tables.size())))->first;
    for (SampleTable &table : set.news) {
        for (const size_t column : columnsOf(table, numbers)) {
            for (Line &line : table.lines) {
                if (table.names[column] == name && !line[column].empty())
                    line[column] = change(line[column]);
            }
        }
    }
}

/// "M8" becomes "MX8": the letters before a number are others in the whole family.
std::string withOtherToken(std::string text)
{
    const size_t digit = text.find_first_of("0123456789");
    text.insert(digit == std::string::npos ? text.size() : digit, "X");
    return text;
}

std::string reworded(const std::string &text)
{
    unsigned hash = 17;
    for (const char c : text)
        hash = hash * 31 + static_cast<unsigned char>(c);
    return "wording " + std::to_string(hash % 9973);
}

void replaceToken(SampleSet &set, Random &random)
{
    changeColumn(set, random, false, withOtherToken);
}

void replaceTokenInAll(SampleSet &set, Random &random)
{
    changeCommonColumn(set, random, false, withOtherToken);
}

void reword(SampleSet &set, Random &random)
{
    changeColumn(set, random, false, reworded);
}

void rewordInAll(SampleSet &set, Random &random)
{
    changeCommonColumn(set, random, false, reworded);
}

/// The first number in a text twice as large.
std::string scaled(const std::string &text)
{
    const size_t begin = text.find_first_of("0123456789");
    if (begin == std::string::npos)
        return text;
    const size_t end = text.find_first_not_of("0123456789.", begin);
    const std::string number = text.substr(begin, end - begin);
    return text.substr(0, begin) + numberText(2 * std::atof(number.c_str())) +
           (end == std::string::npos ? std::string() : text.substr(end));
}

std::string inOtherUnit(const std::string &text)
{
    return isNumber(text) ? numberText(std::atof(text.c_str()) / 25.4) : text;
}

void scaleInTexts(SampleSet &set, Random &random)
{
    changeColumn(set, random, false, scaled);
}

void scaleInTextsOfAll(SampleSet &set, Random &random)
{
    changeCommonColumn(set, random, false, scaled);
}

void changeUnit(SampleSet &set, Random &random)
{
    changeColumn(set, random, true, inOtherUnit);
}

void changeUnitInAll(SampleSet &set, Random &random)
{
    changeCommonColumn(set, random, true, inOtherUnit);
}

void emptyValues(SampleSet &set, Random &random)
{
    for (SampleTable &table : set.news) {
        for (Line &line : table.lines) {
            for (size_t column = 1; column < line.size(); ++column) {
                if (pick(random, 10) == 0)
                    line[column].clear();
            }
        }
    }
}

void renameColumn(SampleSet &set, Random &random)
{
    for (SampleTable &table : set.news)
        table.names[pick(random, table.names.size())] += "_new";
}

/// Lines of the new tables at new places; \a placeOf gives the place of each old one, none if it
/// is gone.
using PlaceOf = std::map<std::pair<QString, int>, std::optional<TruthFile::Place>>;

void moveTruth(SampleSet &set, const PlaceOf &placeOf)
{
    for (TruthFile::Entry &entry : set.truth) {
        QList<TruthFile::Place> places;
        for (const TruthFile::Place &place : std::as_const(entry.places)) {
            const auto moved = placeOf.find({place.first, place.second});
            if (moved == placeOf.end())
                places.append(place);
            else if (moved->second)
                places.append(*moved->second);
        }
        entry.places = places;
    }
}

/// Takes the lines of each table in the order that \a order gives for their number.
template<class Order>
void reorder(SampleSet &set, Order order)
{
    PlaceOf moved;
    for (auto table = set.news.begin(); table != set.news.end(); ++table) {
        const std::vector<size_t> rows = order(table->lines.size());
        std::vector<Line> lines;
        for (size_t i = 0; i < table->lines.size(); ++i)
            moved[{table.key(), int(i) + 1}] = std::nullopt;
        for (const size_t row : rows) {
            lines.push_back(table->lines[row]);
            moved[{table.key(), int(row) + 1}] = TruthFile::Place(table.key(), int(lines.size()));
        }
        table->lines = lines;
    }
    moveTruth(set, moved);
}

void removeLines(SampleSet &set, Random &random)
{
    reorder(set, [&random](size_t count) {
        std::vector<size_t> rows;
        for (size_t row = 0; row < count; ++row) {
            if (pick(random, 5) != 0)
                rows.push_back(row);
        }
        return rows;
    });
}

void sortAnew(SampleSet &set, Random &random)
{
    reorder(set, [&random](size_t count) {
        std::vector<size_t> rows(count);
        std::iota(rows.begin(), rows.end(), 0);
        for (size_t i = count; i > 1; --i)
            std::swap(rows[i - 1], rows[pick(random, i)]);
        return rows;
    });
}

/// A fifth more lines, each like another one with other numbers.
void addLines(SampleSet &set, Random &random)
{
    PlaceOf moved;
    for (auto table = set.news.begin(); table != set.news.end(); ++table) {
        std::vector<Line> lines;
        for (size_t row = 0; row < table->lines.size(); ++row) {
            lines.push_back(table->lines[row]);
            moved[{table.key(), int(row) + 1}] = TruthFile::Place(table.key(), int(lines.size()));
            if (pick(random, 5) != 0)
                continue;
            Line other = table->lines[row];
            for (std::string &cell : other) {
                cell = isNumber(cell) ? numberText(std::atof(cell.c_str()) * 1.07)
                                      : (cell.empty() ? cell : cell + "N");
            }
            lines.push_back(other);
        }
        table->lines = lines;
    }
    moveTruth(set, moved);
}

void splitTables(SampleSet &set, Random & /*random*/)
{
    PlaceOf moved;
    SampleSet::Tables tables;
    for (auto table = set.news.begin(); table != set.news.end(); ++table) {
        SampleTable halves[2] = {{table->names, {}}, {table->names, {}}};
        const size_t middle = (table->lines.size() + 1) / 2;
        for (size_t row = 0; row < table->lines.size(); ++row) {
            const int half = row < middle ? 0 : 1;
            const QString name = table.key() + (half == 0 ? "-a" : "-b");
            halves[half].lines.push_back(table->lines[row]);
            moved[{table.key(), int(row) + 1}] =
                TruthFile::Place(name, int(halves[half].lines.size()));
        }
        for (const int half : {0, 1}) {
            if (!halves[half].lines.empty())
                tables.insert(table.key() + (half == 0 ? "-a" : "-b"), halves[half]);
        }
    }
    set.news = tables;
    moveTruth(set, moved);
}

/// Tables of the same columns that follow each other become one.
void mergeTables(SampleSet &set, Random & /*random*/)
{
    PlaceOf moved;
    SampleSet::Tables tables;
    QString last;
    for (auto table = set.news.begin(); table != set.news.end(); ++table) {
        if (last.isEmpty() || tables[last].names != table->names) {
            last = table.key();
            tables.insert(last, {table->names, {}});
        }
        for (size_t row = 0; row < table->lines.size(); ++row) {
            tables[last].lines.push_back(table->lines[row]);
            moved[{table.key(), int(row) + 1}] =
                TruthFile::Place(last, int(tables[last].lines.size()));
        }
    }
    set.news = tables;
    moveTruth(set, moved);
}

} // namespace

std::vector<Disturbance> Disturbance::all()
{
    return {
        {"as it is",
         [](SampleSet &, Random &) {
         }},
        {"token replaced", replaceToken},
        {"column reworded", reword},
        {"token replaced, in all tables", replaceTokenInAll},
        {"column reworded, in all tables", rewordInAll},
        {"numbers in texts scaled", scaleInTexts},
        {"unit changed", changeUnit},
        {"numbers in texts scaled, in all tables", scaleInTextsOfAll},
        {"unit changed, in all tables", changeUnitInAll},
        {"values emptied", emptyValues},
        {"column renamed", renameColumn},
        {"fifth removed", removeLines},
        {"fifth added", addLines},
        {"sorted anew", sortAnew},
        {"tables split", splitTables},
        {"tables merged", mergeTables},
        {"token and column in all tables, removed",
         [](SampleSet &set, Random &random) {
             replaceTokenInAll(set, random);
             rewordInAll(set, random);
             removeLines(set, random);
         }},
        {"token, unit, removed",
         [](SampleSet &set, Random &random) {
             replaceToken(set, random);
             changeUnit(set, random);
             removeLines(set, random);
         }},
        {"token and unit in all tables, removed",
         [](SampleSet &set, Random &random) {
             replaceTokenInAll(set, random);
             changeUnitInAll(set, random);
             removeLines(set, random);
         }},
    };
}

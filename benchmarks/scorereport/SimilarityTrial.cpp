#include "SimilarityTrial.h"

#include <geomcore/mapper/CellSimilarity.h>
#include <geomcore/table/TableData.h>
#include <geomcore/value/CanonicalNumber.h>
#include <tests/road/TruthFile.h>

#include <QHash>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>

namespace {

using TablePtr = std::shared_ptr<const VKTab::TableData>;

std::string cellText(const VKTab::TableData &table, int row, int column)
{
    std::string scratch;
    const std::string_view cell = table.cell(row, column, scratch);
    return table.isMissing(cell) ? std::string() : std::string(cell);
}

/// The text of a number five percent larger; nothing for other texts.
std::optional<std::string> larger(const std::string &text)
{
    const auto number = VKTab::CanonicalNumber::parse(text);
    if (!number || number->isZero())
        return std::nullopt;
    return QByteArray::number(number->toDouble() * 1.05, 'g', 8).toStdString();
}

} // namespace

/// Tables of a folder, read at the first need.
class SimilarityTrial::Tables
{
public:
    explicit Tables(const QString &folder)
        : m_folder(folder)
    {
    }
    TablePtr table(const QString &name)
    {
        auto found = m_tables.find(name);
        if (found == m_tables.end()) {
            VKTab::TableDescriptor descriptor;
            descriptor.missingValues = QStringList{QString(), "None"};
            const QString file = m_folder + '/' + name + ".csv";
            found = m_tables.insert(name, VKTab::TableData::read(descriptor, file).data);
        }
        return *found;
    }

private:
    QString m_folder;
    QHash<QString, TablePtr> m_tables;
};

/// A line beside the table that it went to.
class SimilarityTrial::Pair
{
public:
    Pair(const VKTab::TableData &source, int row, const VKTab::TableData &target, int skipped)
        : m_target(target)
    {
        for (int column = skipped; column < source.columnCount(); ++column) {
            const std::string text = cellText(source, row, column);
            m_valueCount += !text.empty();
            const int other = target.columnOf(source.descriptor().fields[column].name);
            if (other < skipped)
                continue;
            m_columns.push_back(other);
            m_texts.push_back(text);
            m_commonValues += !text.empty();
        }
    }

    /// Two values and half of all are in variables that the target has too.
    [[nodiscard]] bool isComparable() const
    {
        return m_commonValues >= 2 && 2 * m_commonValues >= m_valueCount;
    }

    /// Makes the first number from a place on that depends on \a seed five percent larger.
    void change(int seed)
    {
        for (size_t i = 0; i < m_texts.size(); ++i) {
            std::string &text = m_texts[(size_t(seed) + i) % m_texts.size()];
            if (const auto changed = larger(text)) {
                text = *changed;
                return;
            }
        }
    }

    /// \a rightRow -1: none of the lines is right. \a leftOut is not compared.
    [[nodiscard]] Outcome compare(int rightRow, int leftOut) const
    {
        Outcome outcome;
        for (int row = 0; row < m_target.rowCount(); ++row) {
            if (row == leftOut)
                continue;
            const double score = similarity(row);
            if (score > outcome.best) {
                outcome.second = outcome.best;
                outcome.best = score;
                outcome.right = row == rightRow;
            } else {
                outcome.second = std::max(outcome.second, score);
            }
        }
        return outcome;
    }

private:
    [[nodiscard]] double similarity(int row) const
    {
        double sum = 0;
        int count = 0;
        for (size_t i = 0; i < m_columns.size(); ++i) {
            const std::string other = cellText(m_target, row, m_columns[i]);
            count += !m_texts[i].empty() || !other.empty();
            if (!m_texts[i].empty() && !other.empty())
                sum += Mapper::ComparableCell(m_texts[i]).similarity(other, '.');
        }
        return count > 0 ? sum / count : 0;
    }

    const VKTab::TableData &m_target;
    std::vector<int> m_columns; ///< Of the target.
    std::vector<std::string> m_texts;
    int m_valueCount = 0;
    int m_commonValues = 0;
};

SimilarityTrial::SimilarityTrial(const QString &oldTables, const QString &newTables,
                                 const TruthFile &truth, int skippedColumns)
{
    Tables olds(oldTables);
    Tables news(newTables);
    const auto &entries = truth.entries();
    for (auto it = entries.cbegin(); it != entries.cend(); ++it) {
        if (it->unknown || it->places.isEmpty())
            continue;
        const TablePtr source = olds.table(it.key().first);
        const TablePtr target = news.table(it->places.first().first);
        if (!source || !target)
            continue;
        const int right = it->places.first().second - 1;
        Pair pair(*source, it.key().second - 1, *target, skippedColumns);
        if (!pair.isComparable())
            continue;
        m_asIs.push_back(pair.compare(right, -1));
        m_takenOut.push_back(pair.compare(-1, right));
        pair.change(it.key().second);
        m_changed.push_back(pair.compare(right, -1));
    }
}

const std::vector<SimilarityTrial::Outcome> &SimilarityTrial::outcomes(Case which) const
{
    switch (which) {
    case Case::Changed:
        return m_changed;
    case Case::TakenOut:
        return m_takenOut;
    case Case::AsIs:
        break;
    }
    return m_asIs;
}

SimilarityTrial::Counts SimilarityTrial::proposals(Case which, double threshold,
                                                   double margin) const
{
    Counts counts;
    for (const Outcome &outcome : outcomes(which)) {
        if (outcome.best >= threshold && outcome.best - outcome.second >= margin)
            ++(outcome.right ? counts.right : counts.wrong);
    }
    return counts;
}

#include "PatternModel.h"

#include "PatternText.h"

#include <core/text/countText.h>
#include <release/pattern/DifferencePatterns.h>

#include <algorithm>

PatternModel::PatternModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

void PatternModel::setPatterns(const VelkRelease::DifferencePatterns *patterns)
{
    beginResetModel();
    m_patterns = patterns;
    m_rows.clear();
    m_order = patterns ? rankedPatterns() : std::vector<int>();
    for (const int pattern : m_order)
        m_rows.push_back(rowFor(pattern));
    endResetModel();
}

void PatternModel::update()
{
    if (!m_patterns)
        return;
    for (int i = int(m_rows.size()) - 1; i >= 0; --i) {
        const Row row = rowFor(m_rows[size_t(i)].pattern);
        if (row.lines == 0) {
            beginRemoveRows({}, i, i);
            m_rows.erase(m_rows.begin() + i);
            endRemoveRows();
        } else if (row != m_rows[size_t(i)]) {
            m_rows[size_t(i)] = row;
            Q_EMIT dataChanged(index(i, Lines), index(i, Exceptions),
                               {Qt::DisplayRole, ValueRole, Qt::ToolTipRole});
        }
    }
    std::vector<int> known;
    known.reserve(m_rows.size());
    for (const Row &row : m_rows)
        known.push_back(row.pattern);
    std::sort(known.begin(), known.end());
    // From the last one on, so that the one behind has its place.
    const std::vector<int> ranked = rankedPatterns();
    for (std::size_t i = ranked.size(); i-- > 0;) {
        if (!std::binary_search(known.begin(), known.end(), ranked[i]))
            insertRow(ranked[i], i + 1 < ranked.size() ? ranked[i + 1] : -1);
    }
}

/// What undo brought back stands where it stood; what another proposal made, before the one that
/// comes behind it by its lines.
void PatternModel::insertRow(int pattern, int behind)
{
    auto place = std::find(m_order.begin(), m_order.end(), pattern);
    if (place == m_order.end())
        place = m_order.insert(std::find(m_order.begin(), m_order.end(), behind), pattern);
    std::size_t at = 0;
    for (auto before = m_order.begin(); before != place && at < m_rows.size(); ++before)
        at += m_rows[at].pattern == *before ? 1 : 0;
    beginInsertRows({}, int(at), int(at));
    m_rows.insert(m_rows.begin() + std::ptrdiff_t(at), rowFor(pattern));
    endInsertRows();
}

/// Those without a successor come last.
std::vector<int> PatternModel::rankedPatterns() const
{
    std::vector<int> ranked = m_patterns->ranked();
    const std::vector<int> gone = m_patterns->rankedGone();
    ranked.insert(ranked.end(), gone.begin(), gone.end());
    return ranked;
}

PatternModel::Row PatternModel::rowFor(int pattern) const
{
    const VelkRelease::DifferencePatterns::Numbers numbers = m_patterns->numbers(pattern);
    return {pattern, numbers.lines, numbers.projects, numbers.probability, numbers.exceptions};
}

int PatternModel::patternAt(int row) const
{
    return row >= 0 && size_t(row) < m_rows.size() ? m_rows[size_t(row)].pattern : -1;
}

int PatternModel::rowOf(int pattern) const
{
    const auto found = std::find_if(m_rows.begin(), m_rows.end(),
                                    [pattern](const Row &row) { return row.pattern == pattern; });
    return found == m_rows.end() ? -1 : int(found - m_rows.begin());
}

int PatternModel::lineCount() const
{
    int sum = 0;
    for (const Row &row : m_rows)
        sum += row.lines;
    return sum;
}

int PatternModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int PatternModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant PatternModel::value(const Row &row, int column)
{
    switch (column) {
    case Lines:
        return row.lines;
    case Projects:
        return row.projects;
    case Probability:
        return row.probability;
    case Exceptions:
        return row.exceptions;
    default:
        return {};
    }
}

QString PatternModel::text(const Row &row, int column) const
{
    if (column == Changes)
        return PatternText::of(*m_patterns, row.pattern);
    return column == Probability ? percentText(row.probability)
                                 : countText(value(row, column).toInt());
}

QString PatternModel::toolTip(const Row &row) const
{
    QString text = PatternText::of(*m_patterns, row.pattern) + u'\n' +
                   tr("%Ln Zeile(n)", nullptr, row.lines) + QStringLiteral(", ") +
                   tr("%Ln Projekt(e)", nullptr, row.projects);
    if (row.exceptions > 0)
        text += u'\n' + tr("%Ln weitere Zeile(n) haben diese und andere Unterschiede", nullptr,
                           row.exceptions);
    return text;
}

QVariant PatternModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || size_t(index.row()) >= m_rows.size())
        return {};
    const Row &row = m_rows[size_t(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return text(row, index.column());
    case ValueRole:
        return value(row, index.column());
    case Qt::ToolTipRole:
        return toolTip(row);
    case Qt::TextAlignmentRole:
        return index.column() == Changes ? QVariant()
                                         : QVariant(int(Qt::AlignRight | Qt::AlignVCenter));
    default:
        return {};
    }
}

QVariant PatternModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case Changes:
        return tr("Unterschied");
    case Lines:
        return tr("Zeilen");
    case Projects:
        return tr("Projekte");
    case Probability:
        return tr("Sicherheit");
    case Exceptions:
        return tr("Ausnahmen");
    default:
        return {};
    }
}

void PatternModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!m_rows.empty())
        Q_EMIT dataChanged(index(0, 0), index(int(m_rows.size()) - 1, ColumnCount - 1),
                           {Qt::DisplayRole, Qt::ToolTipRole});
}

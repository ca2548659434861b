#include "PairModel.h"

#include "PatternText.h"

PairModel::PairModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

void PairModel::setPairs(const LinePairs &pairs)
{
    beginResetModel();
    m_pairs = pairs;
    endResetModel();
}

int PairModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_pairs.rows.size());
}

int PairModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString PairModel::text(int row, int column) const
{
    const LinePairs::Row &pair = m_pairs.rows[size_t(row)];
    if (column == OldLine)
        return QString::number(pair.line) + QStringLiteral("  ") + pair.designation;
    if (pair.targetLine == -1)
        return column == NewLine ? tr("ohne Ziel") : QString();
    if (column == NewLine)
        return pair.targetPath.section(u'/', -1) + u':' + QString::number(pair.targetLine);
    QList<VelkRelease::ValueChange> others = pair.changes;
    others.removeIf([this](const auto &change) { return m_pairs.common.contains(change); });
    return PatternText::of(others);
}

QVariant PairModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || size_t(index.row()) >= m_pairs.rows.size())
        return {};
    if (role == Qt::DisplayRole)
        return text(index.row(), index.column());
    if (role == Qt::ToolTipRole)
        return PatternText::of(m_pairs.rows[size_t(index.row())].changes);
    return {};
}

QVariant PairModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case OldLine:
        return tr("Alte Zeile");
    case NewLine:
        return tr("Neue Zeile");
    case Differences:
        return tr("Weitere Unterschiede");
    default:
        return {};
    }
}

void PairModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1), {Qt::DisplayRole});
}

#include "ConflictSidesModel.h"

#include "DifferenceModel.h"

#include <release/pattern/CellParts.h>

namespace {

QList<QPair<int, int>> sideMarks(const ConflictSides::Row &row, int side)
{
    QList<QPair<int, int>> marks;
    if (!row.differs() || (side != ConflictSides::Ours && side != ConflictSides::Theirs))
        return marks;
    const auto parts = VelkRelease::differingParts(row.texts[ConflictSides::Ours],
                                                   row.texts[ConflictSides::Theirs]);
    for (const VelkRelease::CellPart &part : parts) {
        const bool ours = side == ConflictSides::Ours;
        if (const QString &text = ours ? part.before : part.after; !text.isEmpty())
            marks.append({int(ours ? part.beforeAt : part.afterAt), int(text.size())});
    }
    return marks;
}

} // namespace

ConflictSidesModel::ConflictSidesModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

void ConflictSidesModel::setRows(const QList<ConflictSides::Row> &rows)
{
    beginResetModel();
    m_rows = rows;
    endResetModel();
}

int ConflictSidesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int ConflictSidesModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ConflictSidesModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size())
        return {};
    const ConflictSides::Row &row = m_rows[index.row()];
    const int side = index.column() - FirstSide;
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return index.column() == Name ? row.name : row.texts[size_t(side)];
    case DifferenceModel::OutcomeRole:
        return int(row.differs() ? ComparedVariableC::Different : ComparedVariableC::Equal);
    case DifferenceModel::MarksRole:
        return index.column() == Name ? QVariant() : QVariant::fromValue(sideMarks(row, side));
    default:
        return {};
    }
}

QVariant ConflictSidesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section - FirstSide) {
    case ConflictSides::Source:
        return tr("Alte Zeile");
    case ConflictSides::Base:
        return tr("Vorher");
    case ConflictSides::Ours:
        return tr("Eigene Entscheidung");
    case ConflictSides::Theirs:
        return tr("Andere Entscheidung");
    default:
        return section == Name ? tr("Angabe") : QVariant();
    }
}

void ConflictSidesModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

#include "CandidateModel.h"

#include "PatternText.h"

#include <core/text/countText.h>

#include <QFont>

CandidateModel::CandidateModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

void CandidateModel::setCandidates(const LineCandidatesC &candidates, int target, int targetLine)
{
    beginResetModel();
    m_candidates = candidates;
    m_target = target;
    m_targetLine = targetLine;
    m_isEmpty = false;
    endResetModel();
}

void CandidateModel::clear()
{
    beginResetModel();
    m_candidates = LineCandidatesC();
    m_isEmpty = true;
    endResetModel();
}

int CandidateModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() || m_isEmpty ? 0 : int(m_candidates.candidates.size()) + 1;
}

int CandidateModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString CandidateModel::text(int row, int column) const
{
    if (row == m_candidates.candidates.size()) {
        switch (column) {
        case Probability:
            return percentText(m_candidates.noSuccessor);
        case Line:
            return tr("kein Nachfolger");
        default:
            return {};
        }
    }
    const LineCandidateC &candidate = m_candidates.candidates[row];
    switch (column) {
    case Key:
        return QString::number(row + 1);
    case Probability:
        return percentText(candidate.probability);
    case Line:
        return candidate.targetPath.section(u'/', -1) + u':' +
               QString::number(candidate.lineId.value(0));
    default:
        return candidate.explanation;
    }
}

QVariant CandidateModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    if (role == Qt::DisplayRole)
        return text(index.row(), index.column());
    const bool isLine = index.row() < m_candidates.candidates.size();
    if (role == Qt::ToolTipRole)
        return isLine ? m_candidates.candidates[index.row()].targetPath + u'\n' +
                            m_candidates.candidates[index.row()].explanation
                      : m_candidates.explanation;
    if (role == Qt::TextAlignmentRole && index.column() == Probability)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::FontRole || !isLine)
        return {};
    const LineCandidateC &candidate = m_candidates.candidates[index.row()];
    if (candidate.targetIndex != m_target || candidate.lineId.value(0) != m_targetLine)
        return {};
    QFont font;
    font.setBold(true);
    return font;
}

QVariant CandidateModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case Key:
        return tr("Taste");
    case Probability:
        return tr("Sicherheit");
    case Line:
        return tr("Neue Zeile");
    case Reason:
        return tr("Grund");
    default:
        return {};
    }
}

void CandidateModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1), {Qt::DisplayRole});
}

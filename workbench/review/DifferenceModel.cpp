#include "DifferenceModel.h"

#include <release/pattern/CellParts.h>

#include <algorithm>

namespace {

bool isEqual(const ComparedVariableC &variable)
{
    return variable.outcome == ComparedVariableC::Equal;
}

QList<QPair<int, int>> marksOf(const ComparedVariableC &variable, bool old)
{
    QList<QPair<int, int>> marks;
    if (isEqual(variable))
        return marks;
    for (const VelkRelease::CellPart &part :
         VelkRelease::differingParts(variable.oldValue, variable.newValue)) {
        const QString &text = old ? part.before : part.after;
        if (!text.isEmpty())
            marks.append({int(old ? part.beforeAt : part.afterAt), int(text.size())});
    }
    return marks;
}

} // namespace

DifferenceModel::DifferenceModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

void DifferenceModel::setVariables(const QList<ComparedVariableC> &variables)
{
    beginResetModel();
    m_variables.clear();
    for (const ComparedVariableC &variable : variables) {
        if (!variable.oldValue.isEmpty() || !variable.newValue.isEmpty())
            m_variables.append(variable);
    }
    const auto equal =
        std::stable_partition(m_variables.begin(), m_variables.end(),
                              [](const auto &variable) { return !isEqual(variable); });
    m_different = int(equal - m_variables.begin());
    endResetModel();
}

int DifferenceModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_variables.size());
}

int DifferenceModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString DifferenceModel::toolTip(const ComparedVariableC &variable)
{
    switch (variable.outcome) {
    case ComparedVariableC::Equal:
        return tr("gleich");
    case ComparedVariableC::Replaced:
        return tr("ersetzt wie in %Ln weiteren Zeile(n)", nullptr, variable.supports);
    case ComparedVariableC::Near:
        return tr("ähnlich");
    case ComparedVariableC::Different:
        return tr("verschieden");
    case ComparedVariableC::Missing:
        break;
    }
    return variable.oldValue.isEmpty() ? tr("nur in der neuen Zeile")
                                       : tr("nur in der alten Zeile");
}

QVariant DifferenceModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_variables.size())
        return {};
    const ComparedVariableC &variable = m_variables[index.row()];
    switch (role) {
    case Qt::DisplayRole:
        return index.column() == Variable   ? variable.name
               : index.column() == OldValue ? variable.oldValue
                                            : variable.newValue;
    case Qt::ToolTipRole:
        return toolTip(variable);
    case OutcomeRole:
        return int(variable.outcome);
    case MarksRole:
        return index.column() == Variable
                   ? QVariant()
                   : QVariant::fromValue(marksOf(variable, index.column() == OldValue));
    default:
        return {};
    }
}

QVariant DifferenceModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case Variable:
        return tr("Variable");
    case OldValue:
        return tr("Alt");
    case NewValue:
        return tr("Neu");
    default:
        return {};
    }
}

void DifferenceModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

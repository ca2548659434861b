#include "ConflictModel.h"

#include <workbench/session/tasks/ConflictSides.h>

#include <QFont>

ConflictModel::ConflictModel(ConflictList *list, QObject *parent)
    : QAbstractTableModel(parent)
    , m_list(list)
    , m_count(list->count())
{
    connect(list, &ConflictList::aboutToReset, this, [this] {
        beginResetModel();
        m_count = 0;
    });
    connect(list, &ConflictList::reset, this, [this] {
        m_count = m_list->count();
        endResetModel();
    });
    connect(list, &ConflictList::entriesChanged, this, [this](int first, int last) {
        Q_EMIT dataChanged(index(first, 0), index(last, ColumnCount - 1));
    });
}

int ConflictModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_count;
}

int ConflictModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString ConflictModel::text(const ConflictEntry &entry, int column) const
{
    switch (column) {
    case Project:
        return entry.line.project.path;
    case SourceLine:
        return QString::number(entry.line.line);
    case Ours:
        return entry.isKnown ? ConflictSides::text(entry.clash.ours) : QString();
    case Theirs:
        return ConflictSides::text(entry.clash.theirs);
    default:
        break;
    }
    switch (entry.outcome) {
    case ConflictEntry::Open:
        return tr("offen");
    case ConflictEntry::Ours:
        return tr("eigene");
    case ConflictEntry::Theirs:
        return tr("andere");
    case ConflictEntry::Anew:
        break;
    }
    return tr("neu");
}

QVariant ConflictModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_count)
        return {};
    const ConflictEntry &entry = m_list->at(index.row());
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return text(entry, index.column());
    if (role == Qt::TextAlignmentRole && index.column() == SourceLine)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    if (role == Qt::FontRole && entry.outcome == ConflictEntry::Open) {
        QFont font;
        font.setBold(true);
        return font;
    }
    return {};
}

QVariant ConflictModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case Project:
        return tr("Projekt");
    case SourceLine:
        return tr("Zeile");
    case Ours:
        return tr("Eigene Entscheidung");
    case Theirs:
        return tr("Andere Entscheidung");
    case Outcome:
        return tr("Gilt");
    default:
        return {};
    }
}

void ConflictModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (m_count > 0)
        Q_EMIT dataChanged(index(0, 0), index(m_count - 1, ColumnCount - 1));
}

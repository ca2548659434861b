#include "HistoryModel.h"

#include <QFileInfo>
#include <QLocale>

namespace {

QString sideText(const QList<VelkRelease::DecisionHistory::Entry> &entries)
{
    QStringList texts;
    for (const VelkRelease::DecisionHistory::Entry &entry : entries)
        texts.append(entry.line < 0 ? HistoryModel::tr("kein Nachfolger")
                                    : VelkRelease::DecisionHistory::text({entry}));
    return texts.join(QStringLiteral("; "));
}

/// What the journal says was written in the language of whoever did it.
QString actionText(const VelkRelease::DecisionHistory::Decision &decision)
{
    if (decision.carriedFrom.isEmpty() || decision.origin != u"edit")
        return decision.action;
    return HistoryModel::tr("Übernommen aus %1").arg(QFileInfo(decision.carriedFrom).fileName());
}

} // namespace

HistoryModel::HistoryModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

void HistoryModel::setDecisions(const QList<Decision> &decisions)
{
    beginResetModel();
    m_decisions = QList<Decision>(decisions.crbegin(), decisions.crend());
    endResetModel();
}

const HistoryModel::Decision &HistoryModel::at(int row) const
{
    return m_decisions.at(row);
}

int HistoryModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_decisions.size());
}

int HistoryModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString HistoryModel::text(const Decision &decision, int column)
{
    switch (column) {
    case Time:
        return QLocale().toString(decision.time.toLocalTime(), QLocale::ShortFormat);
    case Author:
        return decision.author;
    case Project:
        return decision.path;
    case Line:
        return QString::number(decision.line);
    case Former:
        return sideText(decision.former);
    case Next:
        return sideText(decision.next);
    case Action:
        return decision.isSaved ? actionText(decision)
                                : tr("%1 (nicht gespeichert)").arg(actionText(decision));
    default:
        return decision.reason;
    }
}

QVariant HistoryModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_decisions.size())
        return {};
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return text(m_decisions.at(index.row()), index.column());
    if (role == Qt::TextAlignmentRole && index.column() == Line)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QVariant HistoryModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Time:
        return tr("Zeit");
    case Author:
        return tr("Wer");
    case Project:
        return tr("Projekt");
    case Line:
        return tr("Zeile");
    case Former:
        return tr("Bisher");
    case Next:
        return tr("Neu");
    case Action:
        return tr("Was");
    default:
        return tr("Grund");
    }
}

#include "NeighbourModel.h"

#include <core/text/countText.h>

#include <algorithm>

using VelkRelease::NeighbourFinding;

namespace {

constexpr int ShownRepairs = 3;

} // namespace

NeighbourModel::NeighbourModel(const NeighbourWork *work, QObject *parent)
    : QAbstractTableModel(parent)
    , m_work(work)
{
}

void NeighbourModel::update()
{
    const std::vector<NeighbourWork::Place> places = m_work->places();
    for (int row = int(m_places.size()) - 1; row >= 0; --row) {
        if (std::find(places.begin(), places.end(), m_places[std::size_t(row)]) != places.end())
            continue;
        beginRemoveRows({}, row, row);
        m_places.erase(m_places.begin() + row);
        m_paths.removeAt(row);
        endRemoveRows();
    }
    for (int row = 0; row < int(places.size()); ++row) {
        const NeighbourWork::Place &place = places[std::size_t(row)];
        if (row < int(m_places.size()) && m_places[std::size_t(row)] == place)
            continue;
        beginInsertRows({}, row, row);
        m_places.insert(m_places.begin() + row, place);
        m_paths.insert(row, m_work->projectAt(place.project).path);
        endInsertRows();
    }
}

const NeighbourWork::Place *NeighbourModel::placeAt(int row) const
{
    return row >= 0 && row < int(m_places.size()) ? &m_places[std::size_t(row)] : nullptr;
}

QString NeighbourModel::text(const NeighbourFinding &finding)
{
    const QString first = QString::number(finding.firstLine);
    const QString last = QString::number(finding.lastLine);
    const QString steps = countText(std::abs(finding.steps));
    switch (finding.kind) {
    case NeighbourFinding::Shifted:
        return tr("Zeilen %1 bis %2 sind um %3 verschoben").arg(first, last, steps);
    case NeighbourFinding::Swapped:
        return tr("Zeilen %1 und %2 sind vertauscht").arg(first, last);
    case NeighbourFinding::Misplaced:
        return tr("Zeile %1 liegt um %2 daneben").arg(first, steps);
    case NeighbourFinding::TakenTwice:
        return tr("Zeile %1 hat die Zielzeile einer anderen").arg(first);
    case NeighbourFinding::Skipped:
        break;
    }
    return tr("Zeile %1 ist übersprungen").arg(first);
}

QString NeighbourModel::mendedText(const NeighbourFinding &finding, int most)
{
    QStringList texts;
    for (const NeighbourFinding::Repair &repair : finding.repairs) {
        if (most >= 0 && texts.size() == most) {
            texts += QStringLiteral("…");
            break;
        }
        texts += QString::number(repair.line) + QStringLiteral(" → ") +
                 (repair.targetLine == -1 ? tr("offen") : QString::number(repair.targetLine));
    }
    return texts.join(QStringLiteral(", "));
}

int NeighbourModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_places.size());
}

int NeighbourModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant NeighbourModel::data(const QModelIndex &index, int role) const
{
    const NeighbourWork::Place *const place = index.isValid() ? placeAt(index.row()) : nullptr;
    if (!place)
        return {};
    const QString &project = m_paths[index.row()];
    if (role == Qt::ToolTipRole)
        return project + u'\n' + text(place->finding) + u'\n' +
               tr("Behoben: %1").arg(mendedText(place->finding, -1));
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case What:
        return text(place->finding);
    case Mended:
        return mendedText(place->finding, ShownRepairs);
    default:
        return project;
    }
}

QVariant NeighbourModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case What:
        return tr("Fund");
    case Mended:
        return tr("Behoben");
    case Project:
        return tr("Projekt");
    default:
        return {};
    }
}

void NeighbourModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!m_places.empty())
        Q_EMIT dataChanged(index(0, 0), index(int(m_places.size()) - 1, ColumnCount - 1),
                           {Qt::DisplayRole, Qt::ToolTipRole});
}

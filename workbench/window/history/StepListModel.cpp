#include "StepListModel.h"

#include <core/text/countText.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/session/history/UndoHistory.h>

#include <QFont>
#include <QLocale>

#include <set>

namespace {

constexpr int MaxParts = 12;

/// "3, 5, 8–12"
QString rangesText(const std::set<int> &lines)
{
    QStringList parts;
    for (auto line = lines.begin(); line != lines.end() && parts.size() <= MaxParts;) {
        const int first = *line;
        int last = first;
        while (++line != lines.end() && *line == last + 1)
            ++last;
        parts += first == last
                     ? QString::number(first)
                     : QStringLiteral("%1–%2").arg(QString::number(first), QString::number(last));
    }
    if (parts.size() > MaxParts)
        parts.last() = QStringLiteral("…");
    return parts.join(QStringLiteral(", "));
}

} // namespace

StepListModel::StepListModel(MappingDocument *document, QObject *parent)
    : QAbstractTableModel(parent)
    , m_document(document)
    , m_count(document->steps().count())
{
}

void StepListModel::refresh()
{
    beginResetModel();
    m_count = m_document->steps().count();
    m_lines.clear();
    endResetModel();
}

int StepListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_count;
}

int StepListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString StepListModel::linesText(const MappingDocument &document, int step)
{
    const StepChanges changes = document.steps().at(step).allChanges();
    QHash<QString, std::set<int>> projects;
    for (const MappingDifference &change : changes.mappings) {
        for (const MappingDifference::TargetPair &target : change.targets) {
            for (const LineDifference &line : target.lines)
                projects[change.project.path].insert(line.line);
        }
    }
    if (projects.size() == 1)
        return rangesText(*projects.cbegin());
    qsizetype count = 0;
    for (const std::set<int> &lines : std::as_const(projects))
        count += qsizetype(lines.size());
    return count == 0
               ? QString()
               : tr("%1 in %Ln Projekt(en)", nullptr, int(projects.size())).arg(countText(count));
}

QString StepListModel::text(int step, int column) const
{
    const UndoStep &entry = m_document->steps().at(step);
    switch (column) {
    case State:
        return entry.state == UndoStep::State::Applied  ? tr("gilt")
               : entry.state == UndoStep::State::Undone ? tr("zurückgenommen")
                                                        : tr("überholt");
    case Time:
        return QLocale().toString(entry.time.toLocalTime(), QLocale::ShortFormat);
    case Author:
        return entry.author;
    case What:
        return entry.text;
    default:
        break;
    }
    const auto known = m_lines.constFind(step);
    return known != m_lines.cend() ? *known : *m_lines.insert(step, linesText(*m_document, step));
}

QVariant StepListModel::data(const QModelIndex &index, int role) const
{
    const int step = stepAt(index.row());
    if (!index.isValid() || step < 0 || step >= m_document->steps().count())
        return {};
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return text(step, index.column());
    if (role == Qt::FontRole && m_document->steps().at(step).state != UndoStep::State::Applied) {
        QFont font;
        font.setItalic(true);
        return font;
    }
    return {};
}

QVariant StepListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case State:
        return tr("Stand");
    case Time:
        return tr("Zeit");
    case Author:
        return tr("Wer");
    case What:
        return tr("Was");
    default:
        return tr("Zeilen");
    }
}

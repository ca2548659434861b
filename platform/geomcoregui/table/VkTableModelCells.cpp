#include "TableCellText.h"
#include "VkTableModelPrivate.h"

#include <core/text/countText.h>
#include <core/text/PString.h>
#include <geomcore/table/LineView.h>
#include <geomcore/table/TableData.h>
#include <geomcore/value/RangeText.h>
#include <geomcore/value/StatusValue.h>

#include <QFileInfo>
#include <QTextDocumentFragment>

namespace {

PString translated(const char *text)
{
    return PString::translate(text, "VelkGeomCoreGui");
}

/// A range is a list that is read from its begin, which has to stay in sight.
bool alignsRight(const VKTab::Var &var)
{
    return !var.isFW() && (var.isNumeric() || var.getVida().isRightAligned());
}

QString plain(const QString &text)
{
    return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

} // namespace

QVariant VkTableModel::data(const QModelIndex &index, int role) const
{
    if (index.model() != this || index.row() >= d->rows.count())
        return {};
    switch (role) { // asked for each cell of a picture
    case Qt::FontRole:
    case Qt::ForegroundRole:
    case Qt::BackgroundRole:
    case Qt::CheckStateRole:
        return {};
    default:
        break;
    }
    const ViewLanguage language;
    const TableColumn &column = d->columns.at(index.column());
    if (role == LineIdRole)
        return QVariant::fromValue(lineId(index.row()));
    return column.isStatus() ? d->statusData(index.row(), column, index.column(), role)
                             : d->valueData(index.row(), column.var, role);
}

QVariant VkTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const ViewLanguage language;
    if (orientation == Qt::Horizontal) {
        const TableColumn *const column = d->column(section);
        return column ? d->columnHeader(*column, role) : QVariant();
    }
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    if (role == Qt::ToolTipRole)
        return section < d->rows.count() ? d->remark(section) : QString();
    if (role != Qt::DisplayRole)
        return {};
    const VKTab::LineId id = lineId(section);
    if (!id.isValid())
        return {};
    if (!d->remark(section).isEmpty())
        return QString(QString::number(id.value(0)) + u'*');
    return id.value(0);
}

const VKTab::Line &VkTableModelPrivate::lineAt(int row) const
{
    const VKTab::LineId id = rows.lineId(row);
    if (id != lineId || !line.isValid()) {
        line = table.getLine(id, false);
        lineId = id;
    }
    return line;
}

QVariant VkTableModelPrivate::statusData(int row, const TableColumn &column, int index,
                                         int role) const
{
    if (role == VkTableModel::StatusKeyRole)
        return column.status.getName();
    if (role == VkTableModel::VarIdRole)
        return -1;
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignCenter);
    if (role == Qt::ToolTipRole)
        return toolTip(row, column, index, nullptr);
    const VKTab::StatusValue *const shown = state(row, column);
    if (!shown)
        return {};
    if (role == Qt::AccessibleTextRole) {
        // A handler may be costly and is asked when its tool tip is shown.
        return shown->getToolTipText().isEmpty() ? shown->getText()
                                                 : plain(shown->getToolTipText());
    }
    const QIcon image = icon(shown->getImageFile());
    if (role == Qt::DecorationRole && !image.isNull())
        return image;
    if (role == Qt::DisplayRole && image.isNull())
        return shown->getText();
    return {};
}

QVariant VkTableModelPrivate::valueData(int row, const VKTab::Var &var, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        if (const auto text = longText(row, var))
            return *text;
        return cutText(shownText(lineAt(row), var));
    case VkTableModel::WholeTextRole:
        return shownText(lineAt(row), var);
    case Qt::ToolTipRole:
        return valueToolTip(row, var);
    case Qt::TextAlignmentRole:
        return int((alignsRight(var) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case VkTableModel::VarIdRole:
        return var.getVarId().value();
    case VkTableModel::StatusKeyRole:
        return QString();
    case VkTableModel::RangeRole:
        return rangeText(row, var);
    default:
        return {};
    }
}

std::optional<QString> VkTableModelPrivate::longText(int row, const VKTab::Var &var) const
{
    const int column = VKTab::LineView::columnOf(var.getVarId());
    const VKTab::LineView view(table, rows.lineId(row));
    if (column < 0 || column >= view.columnCount() || !view.isPlain())
        return std::nullopt;
    std::string scratch;
    return cutText(view.cell(column, scratch));
}

QString VkTableModelPrivate::rangeText(int row, const VKTab::Var &var) const
{
    if (!var.isFW())
        return {};
    if (const auto text = longText(row, var))
        return *text;
    return table.getRangeText(var.getVarId(), rows.lineId(row));
}

QString VkTableModelPrivate::valueToolTip(int row, const VKTab::Var &var) const
{
    constexpr qint64 most = 50;
    if (!var.isFW() || longText(row, var))
        return {};
    const QString text = rangeText(row, var);
    const auto range = VKTab::RangeText::parse(text, table.getDecimalChar(var.getVarId()));
    if (!range || range->isEmpty())
        return {};
    QStringList values;
    for (qint64 i = 0; i < std::min(range->count(), most); ++i)
        values.append(range->value(i));
    if (range->count() > most)
        values.append(QStringLiteral("…"));
    return translated("Wertebereich (Werte: %1): %2")
        .arg(countText(range->count()), values.join(QStringLiteral("; ")));
}

const VKTab::StatusValue *VkTableModelPrivate::state(int row, const TableColumn &column) const
{
    const QString text = lineAt(row).getLineKeyValue(column.status.getName()).toString();
    return text.isEmpty() ? nullptr : column.status.findValue(text);
}

QString VkTableModelPrivate::toolTip(int row, const TableColumn &column, int index,
                                     QWidget *widget) const
{
    QString more = remark(row).toHtmlEscaped();
    const VKTab::StatusValue *const shown = state(row, column);
    if (!shown)
        return more;
    const auto withMore = [&more](const QString &text) {
        return text.isEmpty() || more.isEmpty() ? text + more
                                                : text + QStringLiteral("<br />") + more;
    };
    if (const auto &handler = shown->getToolTipHandler2()) {
        // The handler may have the model draw other lines.
        const VKTab::Line asked = table.getLine(rows.lineId(row), false);
        const VKTab::StatusValue::ToolTipHandler held = handler;
        return withMore(held(asked, rows.placeAt(row) + 1, index, widget));
    }
    return withMore(shown->getToolTipText());
}

QString VkTableModelPrivate::remark(int row) const
{
    return remarks ? remarks(rows.lineId(row)) : QString();
}

QIcon VkTableModelPrivate::icon(const QString &file) const
{
    if (file.isEmpty())
        return {};
    const auto known = icons.constFind(file);
    if (known != icons.constEnd())
        return *known;
    QIcon made = QFileInfo::exists(file) ? QIcon(file) : QIcon();
    icons.insert(file, made);
    return made;
}

QVariant VkTableModelPrivate::columnHeader(const TableColumn &column, int role) const
{
    if (role == VkTableModel::StatusKeyRole)
        return column.status.getName();
    if (column.isStatus()) {
        return role == Qt::ToolTipRole || role == Qt::AccessibleTextRole
                   ? QVariant(QString(translated("Status")))
                   : QVariant();
    }
    const VKTab::Var &var = column.var;
    const QString unit =
        var.getUnit().isEmpty() ? QString() : QStringLiteral(" [%1]").arg(var.getUnit());
    switch (role) {
    case Qt::DisplayRole:
        return QString(var.getName() + unit);
    case Qt::ToolTipRole:
        return table.translateText(var.getDescription(), var.getVarId());
    case Qt::TextAlignmentRole:
        return int((alignsRight(var) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case VkTableModel::VarIdRole:
        return var.getVarId().value();
    default:
        return {};
    }
}

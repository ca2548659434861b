#include "VkTableViewPrivate.h"

#include "EmptyTableLabel.h"
#include "TableBar.h"
#include "TableCellText.h"
#include "TableClipboard.h"
#include "TableColumnNames.h"
#include "TableColumnOrder.h"
#include "TableColumnWidths.h"
#include "TableFilterBar.h"
#include "TableFindBar.h"
#include "TableGrid.h"
#include "TableSelectionLink.h"
#include "VkTableModel.h"

#include <core/text/countText.h>
#include <geomcore/table/TableData.h>
#include <gui/application/PApplication.h>
#include <gui/application/PCommandKeys.h>
#include <gui/views/ElidedLabel.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double zoomStep = 1.1;
const QString filterSection = QStringLiteral("TableFilters");
constexpr int iconSize = 16; // at zoom factor 1

QList<QKeySequence> keysOf(const QStringList &texts)
{
    return QKeySequence::listFromString(texts.join(QLatin1String("; ")));
}

using Place = PCommandKeys::Place;

// On some keyboards plus needs the shift key, on others it stands on the key of the equals sign.
const DeclaredCommands tableCommands(
    {{"tableFind", Place::Table, keysOf({"Ctrl+F"})},
     {"tableFindNext", Place::Table, keysOf({"F3"})},
     {"tableFindPrevious", Place::Table, keysOf({"Shift+F3"})},
     {"tableFilter", Place::Table, keysOf({"Ctrl+Shift+F"})},
     {"tableCopy", Place::Table, keysOf({"Ctrl+C"})},
     {"tableLarger", Place::Table, keysOf({"Ctrl++", "Ctrl+=", "Ctrl+Shift++", "Ctrl+Shift+="})},
     {"tableSmaller", Place::Table, keysOf({"Ctrl+-", "Ctrl+Shift+-"})},
     {"tableNormalSize", Place::Table, keysOf({"Ctrl+0", "Ctrl+Shift+0"})}});

} // namespace

VkTableViewPrivate::VkTableViewPrivate(VkTableView *view)
    : q(view)
    , title(new QLabel(view))
    , grid(new TableGrid(view))
    , model(new VkTableModel(this))
    , filterBar(new TableFilterBar(grid, model, view))
    , findBar(new TableFindBar(grid, model, view))
    , empty(new EmptyTableLabel(grid, model))
    , hits(new ElidedLabel(Qt::ElideRight, view))
{
    title->setObjectName(QStringLiteral("tableTitle"));
    title->setTextFormat(Qt::PlainText);
    title->setTextInteractionFlags(Qt::TextSelectableByMouse);
    grid->setModel(model);
    selection = new TableSelectionLink(grid, model);
    widths = new TableColumnWidths(grid, model);
    columnOrder = new TableColumnOrder(grid, model);
    widths->setOrder(columnOrder);
    hits->setObjectName(QStringLiteral("filterHits"));
    hits->hide();
    grid->installEventFilter(this);
    q->setFocusProxy(grid);
    layOut();
    connectGrid();
    applyZoom();
    showTitle();
}

VkTableViewPrivate::~VkTableViewPrivate()
{
    keepFilters();
}

void VkTableViewPrivate::layOut()
{
    auto *const layout = new QVBoxLayout(q);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(title);
    layout->addWidget(filterBar);
    layout->addWidget(grid, 1);
    layout->addWidget(hits);
    layout->addWidget(findBar);
}

void VkTableViewPrivate::connectGrid()
{
    QHeaderView *const header = grid->horizontalHeader();
    header->setSortIndicatorShown(true);
    header->setSortIndicatorClearable(true);
    header->setSortIndicator(-1, Qt::AscendingOrder);
    connect(header, &QHeaderView::sortIndicatorChanged, model, &VkTableModel::sort);
    connect(header, &QWidget::customContextMenuRequested, this,
            [this, header](const QPoint &position) {
                showMenu(VkTableViewBase::PopupHeader, -1, header->logicalIndexAt(position),
                         header->viewport()->mapToGlobal(position));
            });
    connect(model, &QAbstractItemModel::modelReset, this, &VkTableViewPrivate::onModelReset);
    connect(model, &VkTableModel::statusColumnCameIntoUse, this, [this] {
        widths->showUsedColumns();
        columnOrder->applyFrozen();
    });
    connect(columnOrder, &TableColumnOrder::hiddenChanged, this, [this] {
        widths->showUsedColumns();
        columnOrder->applyFrozen();
        filterBar->retranslate();
    });
    connect(grid, &TableGrid::cellClicked, this, &VkTableViewPrivate::onCellClicked);
    connect(grid, &TableGrid::lineEntered, this,
            [this](const QModelIndex &index) { onCellClicked(index, Qt::NoButton); });
    connect(grid, &TableGrid::iconActivated, this, &VkTableViewPrivate::onIconActivated);
    connect(grid, &TableGrid::menuRequested, this, [this](int row, const QPoint &position) {
        showMenu(VkTableViewBase::PopupCells, row, grid->currentIndex().column(), position);
    });
    // The numbers of lines got longer, or shorter; when the header itself has heard of it.
    connect(
        model, &VkTableModel::headerDataChanged, grid, [this] { grid->doItemsLayout(); },
        Qt::QueuedConnection);
    connect(grid, &TableGrid::zoomRequested, this,
            [this](int steps) { setZoomFactor(zoom * std::pow(zoomStep, steps)); });
}

void VkTableViewPrivate::setTable(const VKTab::ContentRef &table)
{
    // What was selected and in view belongs to the former table.
    selection->clear();
    grid->horizontalScrollBar()->setValue(0);
    grid->verticalScrollBar()->setValue(0);
    keepFilters();
    {
        const QScopedValueRollback guard(takesTable, true);
        model->setTable(table);
    }
    selection->connectTable();
    widths->load();
    columnOrder->load();
    columnOrder->apply();
    widths->apply();
    columnOrder->applyFrozen();
    takeFilters();
    showTitle();
}

/// The filters and the order of the rows, by table: for the next time that it is shown.
void VkTableViewPrivate::keepFilters()
{
    const QString key = TableColumnNames::ofTable(*model);
    if (!filtersKept || key.isEmpty())
        return;
    QStringList entries;
    for (int column = 0; column < model->columnCount(); ++column) {
        const QString name = TableColumnNames::encoded(TableColumnNames::ofColumn(*model, column));
        const VKTab::Var variable = model->variable(column);
        const QString text =
            variable.isValid() ? model->quickFilter(variable.getVarId()) : QString();
        if (!text.isEmpty())
            entries += name + u':' + TableColumnNames::encoded(text);
        if (column == model->sortColumn())
            entries += (model->sortOrder() == Qt::AscendingOrder ? u'<' : u'>') + name;
    }
    const QString kept = entries.join(u';');
    const PRefPtr<PConfig> config = PApplication::getAppConfig();
    if (config->getItemValue(key, filterSection, QString()).GetString() != kept)
        config->SetValue(key, filterSection, kept);
}

void VkTableViewPrivate::takeFilters()
{
    const QString key = TableColumnNames::ofTable(*model);
    if (!filtersKept || key.isEmpty())
        return;
    const QString kept =
        PApplication::getAppConfig()->getItemValue(key, filterSection, QString()).GetString();
    const QStringList entries = kept.split(u';', Qt::SkipEmptyParts);
    const auto columnOf = [this](const QString &name) {
        const QString decoded = TableColumnNames::decoded(name);
        for (int column = 0; column < model->columnCount(); ++column) {
            if (TableColumnNames::ofColumn(*model, column) == decoded)
                return column;
        }
        return -1;
    };
    for (const QString &entry : entries) {
        const qsizetype colon = entry.indexOf(u':');
        const int column = columnOf(colon > 0 ? entry.left(colon) : entry.mid(1));
        if (column < 0)
            continue;
        if (colon > 0)
            model->setQuickFilter(model->variable(column).getVarId(),
                                  TableColumnNames::decoded(entry.mid(colon + 1)));
        else
            sort(column, entry.startsWith(u'<') ? Qt::AscendingOrder : Qt::DescendingOrder);
    }
    // A filter must be seen.
    if (model->hasQuickFilter())
        filterBar->setShown(true);
    filterBar->takeColumns();
    showHits();
}

void VkTableViewPrivate::showHits()
{
    const ViewLanguage language;
    hits->setVisible(model->hasQuickFilter());
    if (!model->hasQuickFilter())
        return;
    const int all = model->getTable().getLineMapping().count();
    hits->setText(model->rowCount() == 0
                      ? tableText("Keine Zeile passt zu den Spaltenfiltern")
                      : tableText("%1 von %Ln Zeile(n)", all).arg(countText(model->rowCount())));
    hits->setToolTip(hits->text());
}

void VkTableViewPrivate::setActive(bool following)
{
    model->setFollowing(following);
    selection->setFollowing(following);
}

void VkTableViewPrivate::onModelReset()
{
    QHeaderView *const header = grid->horizontalHeader();
    {
        const QSignalBlocker blocker(header);
        header->setSortIndicator(model->sortColumn(), model->sortOrder());
    }
    if (!takesTable)
        widths->apply();
    showHits();
    grid->doItemsLayout(); // the scroll bars get their ranges
    selection->restore();
}

void VkTableViewPrivate::setZoomFactor(double factor)
{
    const double wanted =
        std::clamp(factor, VkTableView::MinZoomFactor, VkTableView::MaxZoomFactor);
    if (wanted == zoom)
        return;
    zoom = std::abs(wanted - 1) < 0.01 ? 1 : wanted;
    applyZoom();
}

void VkTableViewPrivate::applyZoom()
{
    QFont font = q->font();
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * zoom);
    else
        font.setPixelSize(std::max(1, qRound(font.pixelSize() * zoom)));
    grid->setFont(font);
    grid->horizontalHeader()->setFont(font);
    grid->verticalHeader()->setFont(font);
    const int icon = qRound(iconSize * zoom);
    grid->setIconSize(QSize(icon, icon));
    const int height = std::max(QFontMetrics(font).height(), icon) + 4;
    grid->verticalHeader()->setMinimumSectionSize(height);
    grid->verticalHeader()->setDefaultSectionSize(height);
    grid->verticalScrollBar()->setSingleStep(height);
    widths->setZoomFactor(zoom);
}

void VkTableViewPrivate::showTitle()
{
    const ViewLanguage language;
    const VKTab::ContentRef table = model->getTable();
    QStringList parts;
    if (table.isValid()) {
        parts.append(table.getKeyValue(VKTab::KeyNormNumber).toString());
        if (const auto data = table.getTableData())
            parts.append(table.translateText(data->descriptor().designation, VKTab::VarId()));
    }
    parts.removeAll(QString());
    title->setText(parts.join(QStringLiteral(" – ")));
    title->setVisible(headerVisible && !parts.isEmpty());
    grid->setAccessibleName(tableText("Tabelle %1").arg(parts.join(u' ')).trimmed());
}

void VkTableViewPrivate::retranslate()
{
    findBar->retranslate();
    filterBar->retranslate();
    showHits();
    showTitle();
}

void VkTableViewPrivate::copy() const
{
    const QList<int> rows = selection->selectedRows();
    if (!rows.isEmpty())
        QGuiApplication::clipboard()->setMimeData(tableMimeData(*grid, rows));
}

void VkTableViewPrivate::setFilterBarShown(bool shown)
{
    filterBar->setShown(shown);
    if (!shown)
        grid->setFocus(Qt::OtherFocusReason);
}

void VkTableViewPrivate::sort(int column, Qt::SortOrder order)
{
    grid->horizontalHeader()->setSortIndicator(column, order);
}

bool VkTableViewPrivate::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride)
        return QObject::eventFilter(object, event);
    const Command command = commandOf(*static_cast<QKeyEvent *>(event));
    if (command == Command::None)
        return QObject::eventFilter(object, event);
    event->accept();
    if (event->type() == QEvent::KeyPress)
        run(command);
    return true;
}

VkTableViewPrivate::Command VkTableViewPrivate::commandOf(const QKeyEvent &event) const
{
    static const std::array<std::pair<QLatin1String, Command>, 8> commands{{
        {QLatin1String("tableFind"), Command::Find},
        {QLatin1String("tableFindNext"), Command::FindNext},
        {QLatin1String("tableFindPrevious"), Command::FindPrevious},
        {QLatin1String("tableFilter"), Command::Filter},
        {QLatin1String("tableCopy"), Command::Copy},
        {QLatin1String("tableLarger"), Command::Larger},
        {QLatin1String("tableSmaller"), Command::Smaller},
        {QLatin1String("tableNormalSize"), Command::Normal},
    }};
    if (event.key() == Qt::Key_Escape && !event.modifiers() && findBar->isVisible())
        return Command::Close;
    const PCommandKeys &keys = PCommandKeys::instance();
    const auto pressed = std::find_if(commands.begin(), commands.end(), [&](const auto &each) {
        return keys.isPressed(each.first, event);
    });
    return pressed == commands.end() ? Command::None : pressed->second;
}

void VkTableViewPrivate::run(Command command)
{
    switch (command) {
    case Command::Find:
        findBar->open();
        break;
    case Command::FindNext:
        findBar->findAgain(false);
        break;
    case Command::FindPrevious:
        findBar->findAgain(true);
        break;
    case Command::Filter:
        q->showFilterBar(!filterBar->isVisible());
        break;
    case Command::Copy:
        copy();
        break;
    case Command::Larger:
        setZoomFactor(zoom * zoomStep);
        break;
    case Command::Smaller:
        setZoomFactor(zoom / zoomStep);
        break;
    case Command::Normal:
        setZoomFactor(1);
        break;
    case Command::Close:
        findBar->close();
        break;
    case Command::None:
        break;
    }
}

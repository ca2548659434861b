#include "FrozenHeader.h"

#include "TableGrid.h"

#include <QScopedValueRollback>

FrozenHeader::FrozenHeader(TableGrid *grid)
    : QHeaderView(Qt::Horizontal, grid)
    , m_grid(grid)
{
    setObjectName(QStringLiteral("frozenHeader"));
    setFocusPolicy(Qt::NoFocus);
    setSectionsClickable(true);
    setHighlightSections(false);
    setContextMenuPolicy(Qt::CustomContextMenu);
    hide();
    connect(this, &QHeaderView::sectionResized, this, [this](int column, int, int width) {
        if (!m_isPlacing && width > 0)
            m_grid->setColumnWidth(column, width);
    });
    connect(this, &QHeaderView::sectionClicked, this, &FrozenHeader::sortBy);
    // Who makes the menu asks its own header for the column at a position.
    connect(this, &QWidget::customContextMenuRequested, this, [this](const QPoint &position) {
        QHeaderView *const header = m_grid->horizontalHeader();
        const int column = logicalIndexAt(position);
        Q_EMIT header->customContextMenuRequested(
            {header->sectionViewportPosition(column) + 1, position.y()});
    });
}

FrozenHeader::~FrozenHeader() = default;

void FrozenHeader::place(const QList<int> &columns)
{
    if (columns.isEmpty() || m_isPlacing) {
        hide();
        return;
    }
    const QScopedValueRollback guard(m_isPlacing, true);
    const QHeaderView *const header = m_grid->horizontalHeader();
    if (model() != m_grid->model())
        setModel(m_grid->model());
    setFont(header->font());
    setMinimumSectionSize(header->minimumSectionSize());
    setSortIndicatorShown(header->isSortIndicatorShown());
    setSortIndicator(header->sortIndicatorSection(), header->sortIndicatorOrder());
    for (int column = 0; column < count(); ++column)
        setSectionHidden(column, !columns.contains(column) || header->isSectionHidden(column));
    for (int visual = 0; visual < columns.size(); ++visual) {
        const int column = columns[visual];
        if (visualIndex(column) != visual)
            moveSection(visualIndex(column), visual);
        if (!header->isSectionHidden(column))
            resizeSection(column, header->sectionSize(column));
    }
    setGeometry(header->x(), header->y(), m_grid->frozenWidth(), header->height());
    show();
    raise();
}

/// Ascending, descending, not at all: as the grid's own header.
void FrozenHeader::sortBy(int column)
{
    QHeaderView *const header = m_grid->horizontalHeader();
    if (header->sortIndicatorSection() != column)
        header->setSortIndicator(column, Qt::AscendingOrder);
    else if (header->sortIndicatorOrder() == Qt::AscendingOrder)
        header->setSortIndicator(column, Qt::DescendingOrder);
    else
        header->setSortIndicator(-1, Qt::AscendingOrder);
}

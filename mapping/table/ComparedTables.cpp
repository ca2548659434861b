#include "ComparedTables.h"

#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/table/Line.h>
#include <geomcoregui/table/VkTableModel.h>
#include <geomcoregui/table/VkTableView.h>

#include <QEvent>
#include <QScopeGuard>
#include <QScrollBar>
#include <QTableView>
#include <QTimer>

namespace {

constexpr int WidthsTake = 100; // milliseconds

QModelIndex cellOf(const VkTableView &view, const VKTab::LineId &line, const QString &variable)
{
    const VKTab::Var var = view.getTable().getVar(variable);
    const int row = view.model()->rowOf(line);
    const int column = var.isValid() ? view.model()->columnOf(var.getVarId()) : -1;
    return row < 0 || column < 0 ? QModelIndex() : view.model()->index(row, column);
}

bool isFrozen(const VkTableView &view, const QString &variable)
{
    const VKTab::Var var = view.getTable().getVar(variable);
    return var.isValid() && view.isFrozen(view.model()->columnOf(var.getVarId()));
}

/// The first column of a variable that begins in sight, among those that scroll in both.
QString firstVariable(const VkTableView &view, const VkTableView &other)
{
    const VkTableModel &model = *view.model();
    for (int column = model.statusColumnCount(); column < model.columnCount(); ++column) {
        const QRect area = view.grid()->visualRect(model.index(0, column));
        QString name = model.variable(column).getName();
        if (area.isValid() && area.left() >= view.frozenWidth() && !isFrozen(view, name) &&
            !isFrozen(other, name))
            return name;
    }
    return {};
}

} // namespace

ComparedTables::ComparedTables(VkTableView *source, VkTableView *target, QObject *parent)
    : QObject(parent)
    , m_source(source)
    , m_target(target)
{
    const auto follow = [this](VkTableView *moved, VkTableView *other, int &height) {
        connect(moved->grid()->horizontalScrollBar(), &QScrollBar::valueChanged, this,
                [this, moved, other] { followSideways(moved, other); });
        connect(moved->grid()->verticalScrollBar(), &QScrollBar::valueChanged, this,
                [this, other, &height](int value) {
                    followDown(other, value - std::exchange(height, value));
                });
    };
    follow(source, target, m_sourceHeight);
    follow(target, source, m_targetHeight);
    source->grid()->installEventFilter(this);
    target->grid()->installEventFilter(this);
}

bool ComparedTables::eventFilter(QObject *watched, QEvent *event)
{
    if (m_isOn && event->type() == QEvent::FontChange) {
        if (watched == m_source->grid())
            m_target->setZoomFactor(m_source->getZoomFactor());
        else
            m_source->setZoomFactor(m_target->getZoomFactor());
    }
    return QObject::eventFilter(watched, event);
}

void ComparedTables::setOn(bool on)
{
    m_isOn = on;
    // What tells a line from others stays in sight.
    m_source->setFreezesFirst(on);
    m_target->setFreezesFirst(on);
    if (!on)
        clear();
}

void ComparedTables::clear()
{
    m_targetLine = VKTab::LineId();
    m_table = VKTab::ContentRef();
    m_differing.clear();
    m_source->setMarkedCells({}, {});
    m_target->setMarkedCells({}, {});
}

void ComparedTables::show(const VKTab::LineId &source, const VKTab::LineId &target,
                          const QHash<QString, MapVarValueC> &values)
{
    if (!m_isOn)
        return;
    m_sourceLine = source;
    m_targetLine = target;
    m_differing = differingVariables(values);
    m_source->setMarkedCells(source, m_differing);
    m_target->setMarkedCells(target, m_differing);
    // The views bring the selected lines into sight first.
    QTimer::singleShot(0, this, &ComparedTables::align);
    // The columns of a table that is new get their widths a little later.
    if (!(m_table == m_target->getTable()))
        QTimer::singleShot(WidthsTake, this, &ComparedTables::align);
    m_table = m_target->getTable();
}

QStringList ComparedTables::differingVariables(const QHash<QString, MapVarValueC> &values) const
{
    QStringList differing;
    const VKTab::ContentRef table = m_target->getTable();
    const VKTab::Line line = table.getLine(m_targetLine, false);
    // Values as both tables store them: what is shown is written as the user's language has it.
    const QHash<QString, MapVarValueC> stored = createVarsetFromVKTable(line, {});
    const VkTableModel &model = *m_target->model();
    for (int column = model.statusColumnCount(); column < model.columnCount(); ++column) {
        QString name = model.variable(column).getName();
        const auto value = values.constFind(name);
        const auto own = stored.constFind(name);
        if (value == values.cend() || own == stored.cend())
            continue;
        const bool bothMissing =
            own->getValue().toString().isEmpty() && value->getValue().toString().isEmpty();
        if (!bothMissing && !(*own == *value))
            differing += name;
    }
    return differing;
}

void ComparedTables::align()
{
    if (!m_targetLine.isValid())
        return;
    const auto done = qScopeGuard([this] { m_follows = false; });
    m_follows = true;
    // To show its line the target has moved, and the source with it.
    bringIntoSight(*m_source, m_sourceLine);
    showFirst(*m_source, m_sourceLine);
    showFirst(*m_target, m_targetLine);
    const QAbstractItemView &left = *m_source->grid();
    const QAbstractItemView &right = *m_target->grid();
    const auto heightOf = [](const VkTableView &view, const VKTab::LineId &line) {
        const auto *const grid = qobject_cast<QTableView *>(view.grid());
        const int top = grid->rowViewportPosition(view.model()->rowOf(line));
        return grid->viewport()->mapToGlobal(QPoint(0, top)).y();
    };
    if (m_source->model()->rowOf(m_sourceLine) < 0 || m_target->model()->rowOf(m_targetLine) < 0)
        return;
    QScrollBar &bar = *right.verticalScrollBar();
    bar.setValue(bar.value() + heightOf(*m_target, m_targetLine) -
                 heightOf(*m_source, m_sourceLine));
    // Near the ends of its table the target cannot follow: then the source does.
    QScrollBar &other = *left.verticalScrollBar();
    other.setValue(other.value() + heightOf(*m_source, m_sourceLine) -
                   heightOf(*m_target, m_targetLine));
    // In low tables that can lead out of sight, which matters more.
    bringIntoSight(*m_source, m_sourceLine);
    bringIntoSight(*m_target, m_targetLine);
}

void ComparedTables::bringIntoSight(const VkTableView &view, const VKTab::LineId &line)
{
    auto *const grid = qobject_cast<QTableView *>(view.grid());
    const int row = view.model()->rowOf(line);
    const int top = row < 0 ? 0 : grid->rowViewportPosition(row);
    if (row < 0 || (top >= 0 && top + grid->rowHeight(row) <= grid->viewport()->height()))
        return;
    const int sideways = grid->horizontalScrollBar()->value();
    grid->scrollTo(view.model()->index(row, 0), QAbstractItemView::PositionAtCenter);
    grid->horizontalScrollBar()->setValue(sideways);
}

void ComparedTables::showFirst(const VkTableView &view, const VKTab::LineId &line)
{
    for (const QString &variable : m_differing) {
        const QModelIndex cell = cellOf(view, line, variable);
        if (cell.isValid())
            return view.grid()->scrollTo(cell);
    }
}

void ComparedTables::followSideways(VkTableView *moved, VkTableView *other)
{
    if (!m_isOn || m_follows || !m_targetLine.isValid())
        return;
    const QString name = firstVariable(*moved, *other);
    const QModelIndex from = cellOf(*moved, moved == m_source ? m_sourceLine : m_targetLine, name);
    const QModelIndex to = cellOf(*other, other == m_source ? m_sourceLine : m_targetLine, name);
    if (!from.isValid() || !to.isValid())
        return;
    const auto done = qScopeGuard([this] { m_follows = false; });
    m_follows = true;
    QScrollBar &bar = *other->grid()->horizontalScrollBar();
    bar.setValue(bar.value() + other->grid()->visualRect(to).left() -
                 moved->grid()->visualRect(from).left());
}

void ComparedTables::followDown(VkTableView *other, int by)
{
    if (!m_isOn || m_follows || !m_targetLine.isValid())
        return;
    const auto done = qScopeGuard([this] { m_follows = false; });
    m_follows = true;
    QScrollBar &bar = *other->grid()->verticalScrollBar();
    bar.setValue(bar.value() + by);
}

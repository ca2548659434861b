#include "TableFilterBar.h"

#include "TableBar.h"
#include "TableGrid.h"
#include "TableValueList.h"
#include "VkTableModel.h"

#include <geomcore/table/LineView.h>
#include <geomcore/table/TableData.h>

#include <gui/application/PCommandKeys.h>

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QThreadPool>
#include <QToolButton>

#include <set>

namespace {

constexpr char variableProperty[] = "variable";

int variableOf(const QLineEdit *edit)
{
    return edit->property(variableProperty).toInt();
}

/// Commands of the table that mean the same in a field.
bool isOfTable(const QKeyEvent &key)
{
    const PCommandKeys &keys = PCommandKeys::instance();
    const auto isPressed = [&](const char *command) {
        return keys.isPressed(QLatin1String(command), key);
    };
    return isPressed("tableFind") || isPressed("tableFindNext") || isPressed("tableFindPrevious") ||
           isPressed("tableFilter");
}

} // namespace

TableFilterBar::TableFilterBar(TableGrid *grid, VkTableModel *model, QWidget *parent)
    : QWidget(parent)
    , m_grid(grid)
    , m_model(model)
    , m_clear(makeBarButton(QStringLiteral("filterClear"), QStringLiteral("✕"), {}, this))
{
    setObjectName(QStringLiteral("filterBar"));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    const QHeaderView *const header = grid->horizontalHeader();
    connect(header, &QHeaderView::sectionResized, this, &TableFilterBar::place);
    connect(header, &QHeaderView::sectionMoved, this, &TableFilterBar::place);
    connect(header, &QHeaderView::geometriesChanged, this, &TableFilterBar::place);
    connect(grid->horizontalScrollBar(), &QAbstractSlider::valueChanged, this,
            &TableFilterBar::place);
    connect(model, &QAbstractItemModel::modelReset, this, &TableFilterBar::takeColumns);
    connect(m_clear, &QToolButton::clicked, m_model, &VkTableModel::clearQuickFilters);
    connect(m_clear, &QToolButton::clicked, this, &TableFilterBar::takeColumns);
    retranslate();
    hide();
}

TableFilterBar::~TableFilterBar() = default;

void TableFilterBar::setShown(bool shown)
{
    setVisible(shown);
    if (!shown)
        m_model->clearQuickFilters();
}

QLineEdit *TableFilterBar::editOf(int column) const
{
    const auto found = m_edits.find(m_model->variable(column).getVarId().value());
    return found == m_edits.end() ? nullptr : found->second;
}

void TableFilterBar::retranslate()
{
    m_clear->setToolTip(tableText("Alle Spaltenfilter aufheben"));
    m_clear->setAccessibleName(m_clear->toolTip());
    for (const auto &[variable, edit] : m_edits) {
        const QString name = m_model->variable(m_model->columnOf(VKTab::VarId(variable))).getName();
        edit->setAccessibleName(tableText("Spaltenfilter %1").arg(name));
        edit->setToolTip(
            tableText("Zeigt Zeilen, deren Wert den Text enthält. Mit =, <, <=, > oder "
                      ">= davor wird verglichen; ! davor kehrt um, = allein findet leere "
                      "Werte. & verlangt beides, | eines von beiden. Alt+Pfeil nach unten zeigt "
                      "die Werte."));
        edit->setPlaceholderText(tableText("Filter"));
    }
}

TableValueList *TableFilterBar::showValues(int column)
{
    if (!isVisible())
        setShown(true);
    QLineEdit *const edit = column < 0 ? nullptr : editOf(column);
    if (!edit)
        return nullptr;
    auto *const list = new TableValueList(m_model, m_model->variable(column).getVarId(), this);
    connect(list, &TableValueList::filterChosen, edit, &QLineEdit::setText);
    list->move(edit->mapToGlobal(QPoint(0, edit->height())));
    list->show();
    list->setFocus(Qt::PopupFocusReason);
    return list;
}

QSize TableFilterBar::sizeHint() const
{
    return {0, QLineEdit().sizeHint().height()};
}

QLineEdit *TableFilterBar::makeEdit(int variable, const QString &name)
{
    auto *const edit = new QLineEdit(this);
    edit->setObjectName(QStringLiteral("filter_") + name);
    edit->setProperty(variableProperty, variable);
    edit->setClearButtonEnabled(true);
    edit->installEventFilter(this);
    connect(edit, &QLineEdit::textChanged, this, [this, variable](const QString &text) {
        m_model->setQuickFilter(VKTab::VarId(variable), text);
    });
    return edit;
}

void TableFilterBar::takeColumns()
{
    if (!isVisible())
        return;
    std::set<int> shown;
    for (int column = m_model->statusColumnCount(); column < m_model->columnCount(); ++column) {
        const VKTab::Var var = m_model->variable(column);
        const int id = var.getVarId().value();
        shown.insert(id);
        QLineEdit *&edit = m_edits[id];
        if (edit && edit->objectName() != QStringLiteral("filter_") + var.getName())
            delete std::exchange(edit, nullptr); // another table's
        if (!edit)
            edit = makeEdit(id, var.getName());
        const QSignalBlocker blocker(edit);
        if (edit->text() != m_model->quickFilter(var.getVarId()))
            edit->setText(m_model->quickFilter(var.getVarId()));
        edit->setVisible(true);
    }
    std::erase_if(m_edits, [&](const auto &entry) {
        if (shown.contains(entry.first))
            return false;
        entry.second->deleteLater();
        entry.second->hide();
        return true;
    });
    retranslate();
    place();
}

void TableFilterBar::place()
{
    if (!isVisible())
        return;
    const QHeaderView *const header = m_grid->horizontalHeader();
    const int begin = m_grid->viewport()->mapTo(m_grid, QPoint()).x();
    m_clear->setGeometry(0, 0, std::max(begin, m_clear->minimumSizeHint().width()), height());
    m_clear->raise();
    for (int column = m_model->statusColumnCount(); column < m_model->columnCount(); ++column) {
        if (QLineEdit *const edit = editOf(column)) {
            edit->setGeometry(begin + m_grid->columnPlace(column), 0, header->sectionSize(column),
                              height());
        }
    }
    // Those of columns that stay lie over the others.
    for (const int column : m_grid->frozenColumns()) {
        QLineEdit *const edit = column < m_model->statusColumnCount() ? nullptr : editOf(column);
        if (edit)
            edit->raise();
    }
    m_clear->raise();
}

void TableFilterBar::warm(const QLineEdit *edit) const
{
    const int column = VKTab::LineView::columnOf(VKTab::VarId(variableOf(edit)));
    const auto lines = m_model->getTable().getTableData();
    if (lines && column >= 0 && column < lines->columnCount())
        QThreadPool::globalInstance()->start([lines, column] { (void)lines->interned(column); });
}

bool TableFilterBar::eventFilter(QObject *object, QEvent *event)
{
    auto *const edit = qobject_cast<QLineEdit *>(object);
    if (edit && event->type() == QEvent::FocusIn) {
        warm(edit);
        const int column = m_model->columnOf(VKTab::VarId(variableOf(edit)));
        if (m_model->rowCount() > 0)
            m_grid->scrollTo(m_model->index(std::max(0, m_grid->rowAt(0)), column));
    }
    if (!edit || (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride))
        return QWidget::eventFilter(object, event);
    const auto *const key = static_cast<QKeyEvent *>(event);
    if (isOfTable(*key)) {
        QCoreApplication::sendEvent(m_grid, event);
        return true;
    }
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(object, event);
    if (key->key() == Qt::Key_Escape && !edit->text().isEmpty()) {
        edit->clear();
        return true;
    }
    if (key->key() == Qt::Key_Down && key->modifiers().testFlag(Qt::AltModifier)) {
        showValues(m_model->columnOf(VKTab::VarId(variableOf(edit))));
        return true;
    }
    if (key->key() == Qt::Key_Escape || key->key() == Qt::Key_Down) {
        m_grid->setFocus(Qt::OtherFocusReason);
        return true;
    }
    return QWidget::eventFilter(object, event);
}

void TableFilterBar::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    place();
}

void TableFilterBar::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    takeColumns();
}

#include "VariableListDelegate.h"

#include "editFormula.h"
#include "ignoreMarker.h"
#include "OpenDialogs.h"
#include "TargetItemRole.h"

#include <core/text/PString.h>
#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/expression/Tokenizer.h>
#include <geomcoregui/text/VkTableHighlighter.h>

#include <QAbstractItemView>
#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QComboBox>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QStandardItemModel>
#include <QTextDocument>
#include <QToolTip>

namespace {

/// The document owns its highlighter.
VkTableHighlighter *setHighlighted(QTextDocument &document, const QString &text)
{
    auto *const highlighter = new VkTableHighlighter(VKTab::Tokenizer(), &document);
    document.setPlainText(text);
    return highlighter;
}

void paintBackground(QPainter *painter, const QStyleOptionViewItem &option)
{
    QStyleOptionViewItem empty(option);
    empty.text.clear();
    const QStyle *const style = option.widget ? option.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &empty, painter, option.widget);
}

/// A release of the right button alone is left to the context menu, as far as it says so: the
/// button that was released is none of those that are held.
bool opensFormula(const QEvent &event)
{
    if (event.type() == QEvent::MouseButtonRelease)
        return static_cast<const QMouseEvent &>(event).buttons() != Qt::RightButton;
    if (event.type() != QEvent::KeyPress)
        return false;
    const auto &press = static_cast<const QKeyEvent &>(event);
    const bool key = press.key() == Qt::Key_F2 || press.key() == Qt::Key_Space;
    return key && press.modifiers() == Qt::NoModifier && !press.isAutoRepeat();
}

} // namespace

VariableListDelegate::VariableListDelegate(const VKTab::ContentRef &table, bool showFormula,
                                           QObject *parent)
    : QStyledItemDelegate(parent)
    , content(table)
    , showFormulaItem(showFormula)
    , dialogs(std::make_shared<OpenDialogs>())
{
}

VariableListDelegate::~VariableListDelegate() = default;

void VariableListDelegate::setVariables(const QHash<QString, MapVarValueC> &source,
                                        const QHash<QString, MapVarValueC> &target)
{
    sourceVariables = source;
    targetVariables = target;
}

QWidget *VariableListDelegate::createEditor(QWidget *parent,
                                            const QStyleOptionViewItem & /*option*/,
                                            const QModelIndex &index) const
{
    if (formulaOnly)
        return nullptr;
    auto *const box = new QComboBox(parent);
    if (!content.isValid())
        return box;
    const auto addSpecial = [&](const QIcon &icon, const QString &text) {
        box->addItem(icon, text);
        box->setItemData(box->count() - 1, index.row(), RowRole);
        box->setItemData(box->count() - 1, QString(), VariableNameRole);
    };
    if (showFormulaItem)
        addSpecial(QIcon(QStringLiteral(":/toolicons/actionFormatAlgorithm_16.png")),
                   PString::translate("Formel...", "VelkLinkDbGui"));
    if (showIgnoreItem)
        addSpecial(QIcon(), ignoreMarker());
    if (box->count() > 0) {
        connect(box, SIGNAL(activated(int)), this, SLOT(onItemActivated(int)),
                Qt::QueuedConnection);
        box->insertSeparator(box->count());
    }
    for (const VKTab::Var &var : content.getVarList()) {
        if (!entersVarset(var))
            continue;
        box->addItem(var.getName());
        box->setItemData(box->count() - 1, var.getName(), VariableNameRole);
    }
    if (onBoxOpened)
        onBoxOpened(box, index);
    return box;
}

void VariableListDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    if (auto *const box = qobject_cast<QComboBox *>(editor))
        box->setCurrentIndex(box->findData(index.data().toString(), VariableNameRole));
}

void VariableListDelegate::setModelData(QWidget *editor, QAbstractItemModel *itemModel,
                                        const QModelIndex &index) const
{
    const auto *const box = qobject_cast<QComboBox *>(editor);
    if (!box)
        return;
    const int specials = (showFormulaItem ? 1 : 0) + (showIgnoreItem ? 1 : 0);
    if (box->currentIndex() >= specials) {
        itemModel->setData(index, box->currentData(VariableNameRole));
        itemModel->setData(index, false, FormulaRole);
    }
    callChanged();
}

void VariableListDelegate::callChanged() const
{
    const auto changed = onChanged; // whatever happens to this delegate
    if (changed)
        changed();
}

std::function<void(DlgFormulaEditor *)> VariableListDelegate::openedFor(int row) const
{
    if (!onFormulaOpened)
        return {};
    return [opened = onFormulaOpened, row](DlgFormulaEditor *dialog) {
        opened(dialog, row);
    };
}

void VariableListDelegate::onItemActivated(int index)
{
    const auto *const box = qobject_cast<const QComboBox *>(sender());
    if (!box)
        return;
    const int row = box->itemData(index, RowRole).toInt();
    if (index == 0 && showFormulaItem)
        writeFormula(row);
    else if (index == 1 && showIgnoreItem)
        ignoreVariable(row);
}

void VariableListDelegate::writeFormula(int row)
{
    FormulaSubject subject{sourceVariables, targetVariables, QString()};
    QString text;
    QPersistentModelIndex value;
    if (model && targetColumn >= 0) {
        subject.variableName = model->index(row, targetColumn).data().toString();
        value = model->index(row, valueColumn);
        if (!value.data(IgnoredRole).toBool())
            text = value.data().toString();
    }
    // The editor takes the focus, and the box is gone.
    const QPointer<VariableListDelegate> alive(this);
    const auto store = [&](const QString &formula) {
        if (!alive || !model || valueColumn == -1 || !value.isValid())
            return;
        model->setData(value, formula);
        model->setData(value, true, FormulaRole);
        model->setData(value, false, IgnoredRole);
        callChanged();
    };
    editFormula(subject, text, qobject_cast<QWidget *>(parent()), *std::shared_ptr(dialogs),
                {store, openedFor(row)});
}

/// Not told: the box tells it when it is left.
void VariableListDelegate::ignoreVariable(int row)
{
    if (!model || valueColumn == -1)
        return;
    const QModelIndex value = model->index(row, valueColumn);
    model->setData(value, ignoreMarker());
    model->setData(value, true, IgnoredRole);
    model->setData(value, false, FormulaRole);
}

bool VariableListDelegate::editorEvent(QEvent *event, QAbstractItemModel *itemModel,
                                       const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (!formulaOnly || !opensFormula(*event))
        return QStyledItemDelegate::editorEvent(event, itemModel, option, index);
    const QPersistentModelIndex cell(index);
    const QPointer<VariableListDelegate> alive(this);
    const auto store = [&](const QString &formula) {
        if (!alive || !cell.isValid())
            return;
        itemModel->setData(cell, formula);
        callChanged();
    };
    editFormula({sourceVariables, targetVariables, QString()}, index.data().toString(),
                qobject_cast<QWidget *>(parent()), *std::shared_ptr(dialogs),
                {store, openedFor(index.row())});
    return true;
}

void VariableListDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const
{
    if (!index.data(FormulaRole).toBool() && !index.data(IgnoredRole).toBool()) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem cell(option);
    initStyleOption(&cell, index);
    paintBackground(painter, cell);
    QTextDocument document;
    document.setDefaultFont(cell.font);
    document.setDocumentMargin(0);
    document.setTextWidth(option.rect.width());
    setHighlighted(document, index.data().toString());
    painter->save();
    painter->setClipRect(option.rect, Qt::IntersectClip);
    painter->translate(option.rect.topLeft());
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = cell.palette;
    if (cell.state & QStyle::State_Selected)
        context.palette.setColor(QPalette::Text, cell.palette.color(QPalette::HighlightedText));
    context.clip = QRectF(QPointF(0, 0), QSizeF(option.rect.size()));
    document.documentLayout()->draw(painter, context);
    painter->restore();
}

bool VariableListDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                                     const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip || !index.data(FormulaRole).toBool())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const QPointer<QAbstractItemView> shown(view);
    const QPoint position = event->globalPos();
    const QRect area = option.rect;
    const QPersistentModelIndex cell(index);
    QTextDocument document;
    const auto *const highlighter = setHighlighted(document, index.data().toString());
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    if (!shown || !cell.isValid())
        return true;
    QToolTip::showText(position, highlighter->toHtml(), shown->viewport(), area);
    // Without a text of its own the base would take this one away again.
    if (!cell.data(Qt::ToolTipRole).toString().isEmpty())
        QStyledItemDelegate::helpEvent(event, view, option, cell);
    return true;
}

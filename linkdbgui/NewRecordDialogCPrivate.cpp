#include "NewRecordDialogCPrivate.h"

#include "NewRecordDialogC.h"

#include <QComboBox>
#include <QCompleter>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

#include <limits>

namespace {

/// Qt's own limit cuts long texts off.
void takeAnyLength(QLineEdit *edit)
{
    edit->setMaxLength(std::numeric_limits<int>::max());
}

} // namespace

void NewRecordDialogCPrivate::makeScrollable(QWidget &form)
{
    auto *const layout = qobject_cast<QBoxLayout *>(form.layout());
    const int index = layout && grid ? layout->indexOf(grid) : -1;
    if (index < 0)
        return;
    auto *const area = new QScrollArea(&form);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    auto *const fields = new QWidget;
    auto *const fieldsLayout = new QVBoxLayout(fields);
    fieldsLayout->setContentsMargins(0, 0, 0, 0);
    layout->removeItem(grid);
    grid->setParent(nullptr);
    fieldsLayout->addLayout(grid);
    if (QLayoutItem *const below = layout->itemAt(index); below && below->spacerItem()) {
        layout->removeItem(below);
        fieldsLayout->addItem(below);
    }
    area->setWidget(fields);
    layout->insertWidget(index, area);
}

void NewRecordDialogCPrivate::addRow(const QString &name, QWidget *field)
{
    // An empty grid has a row already.
    const int row = grid->count() == 0 ? 0 : grid->rowCount();
    auto *const label = new QLabel(grid->parentWidget());
    label->setTextFormat(Qt::PlainText);
    label->setText(name);
    field->setAccessibleName(name);
    grid->addWidget(label, row, 0);
    grid->addWidget(field, row, 1);
}

QLineEdit *NewRecordDialogCPrivate::addLineEdit(const QString &name)
{
    auto *const edit = new QLineEdit(grid->parentWidget());
    takeAnyLength(edit);
    edit->setProperty("field", name.toUpper());
    addRow(name, edit);
    return edit;
}

QComboBox *NewRecordDialogCPrivate::addSystemBox(const QString &name, const PStringList &systems)
{
    auto *const box = new QComboBox(grid->parentWidget());
    box->addItems(systems);
    box->setEditable(true);
    takeAnyLength(box->lineEdit());
    // Suggestions must not change what was typed.
    box->completer()->setCompletionMode(QCompleter::PopupCompletion);
    box->completer()->setCaseSensitivity(Qt::CaseSensitive);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    addRow(name, box);
    return box;
}

QString NewRecordDialogCPrivate::nameOf(int row) const
{
    const QLayoutItem *const item = grid->itemAtPosition(row, 0);
    const auto *const label = item ? qobject_cast<QLabel *>(item->widget()) : nullptr;
    return label ? label->text() : QString();
}

QWidget *NewRecordDialogCPrivate::fieldOf(int row) const
{
    const QLayoutItem *const item = grid->itemAtPosition(row, 1);
    return item ? item->widget() : nullptr;
}

void NewRecordDialogCPrivate::growToFields()
{
    const auto *const area = q->findChild<QScrollArea *>();
    if (!area || !area->widget())
        return;
    // What the contents need beyond what the area asks for by itself.
    const QSize missing = (area->widget()->sizeHint() - area->sizeHint()).expandedTo(QSize(0, 0));
    const QSize room = q->screen()->availableSize() * 0.9;
    q->resize(q->size().expandedTo((q->sizeHint() + missing).boundedTo(room)));
}

#include "TableFindBar.h"

#include "TableBar.h"
#include "TableGrid.h"
#include "VkTableModel.h"

#include <gui/application/PCommandKeys.h>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

TableFindBar::TableFindBar(TableGrid *grid, VkTableModel *model, QWidget *parent)
    : QWidget(parent)
    , m_grid(grid)
    , m_model(model)
    , m_edit(new QLineEdit(this))
    , m_previous(makeBarButton(QStringLiteral("findPrevious"), QStringLiteral("▲"), {}, this))
    , m_next(makeBarButton(QStringLiteral("findNext"), QStringLiteral("▼"), {}, this))
    , m_close(makeBarButton(QStringLiteral("findClose"), QStringLiteral("✕"), {}, this))
    , m_result(new QLabel(this))
{
    setObjectName(QStringLiteral("findBar"));
    m_edit->setObjectName(QStringLiteral("findEdit"));
    m_edit->setClearButtonEnabled(true);
    m_edit->installEventFilter(this);
    m_result->setObjectName(QStringLiteral("findResult"));
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->addWidget(m_edit, 1);
    layout->addWidget(m_previous);
    layout->addWidget(m_next);
    layout->addWidget(m_result);
    layout->addWidget(m_close);
    connect(m_edit, &QLineEdit::textEdited, this, &TableFindBar::onTextEdited);
    connect(m_edit, &QLineEdit::textChanged, grid, &TableGrid::setMarkedText);
    connect(m_previous, &QToolButton::clicked, this, [this] { findAgain(true); });
    connect(m_next, &QToolButton::clicked, this, [this] { findAgain(false); });
    connect(m_close, &QToolButton::clicked, this, &TableFindBar::close);
    retranslate();
    hide();
}

TableFindBar::~TableFindBar() = default;

void TableFindBar::retranslate()
{
    const auto name = [](QToolButton *button, const QString &text) {
        button->setToolTip(text);
        button->setAccessibleName(text);
    };
    name(m_previous, tableText("Vorherige Fundstelle (Umschalt+F3)"));
    name(m_next, tableText("Nächste Fundstelle (F3)"));
    name(m_close, tableText("Suche schließen (Esc)"));
    m_edit->setPlaceholderText(tableText("In der Tabelle suchen"));
    m_edit->setAccessibleName(tableText("In der Tabelle suchen"));
}

void TableFindBar::open()
{
    setVisible(true);
    m_edit->selectAll();
    m_edit->setFocus(Qt::ShortcutFocusReason);
    m_grid->setMarkedText(m_edit->text());
}

void TableFindBar::close()
{
    hide();
    m_grid->setMarkedText({});
    m_grid->setFocus(Qt::OtherFocusReason);
}

void TableFindBar::findAgain(bool backwards)
{
    if (m_edit->text().isEmpty())
        open();
    else
        go(m_grid->currentIndex(), backwards);
}

void TableFindBar::onTextEdited(const QString &text)
{
    m_result->clear();
    if (text.isEmpty())
        return;
    // The cell found with fewer letters may hold more of them.
    const QModelIndex current = m_grid->currentIndex();
    if (current.isValid() && current.data().toString().contains(text, Qt::CaseInsensitive))
        return;
    go(current, false);
}

void TableFindBar::go(const QModelIndex &from, bool backwards)
{
    show(m_model->find(m_edit->text(), from, backwards), from, backwards);
}

void TableFindBar::show(const QModelIndex &found, const QModelIndex &from, bool backwards)
{
    if (!found.isValid()) {
        m_result->setText(tableText("Nicht gefunden"));
        return;
    }
    const bool isBehind =
        std::pair(found.row(), found.column()) > std::pair(from.row(), from.column());
    const bool isRound = from.isValid() && (found == from || isBehind == backwards);
    m_result->setText(!isRound    ? QString()
                      : backwards ? tableText("Am Ende der Tabelle fortgesetzt")
                                  : tableText("Am Anfang der Tabelle fortgesetzt"));
    m_grid->setCurrentIndex(found);
    m_grid->scrollTo(found);
}

bool TableFindBar::eventFilter(QObject *object, QEvent *event)
{
    if (object != m_edit ||
        (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride))
        return QWidget::eventFilter(object, event);
    const auto *const key = static_cast<QKeyEvent *>(event);
    const PCommandKeys &keys = PCommandKeys::instance();
    const bool isEnter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    const bool isBack = keys.isPressed(QStringLiteral("tableFindPrevious"), *key) ||
                        (isEnter && key->modifiers().testFlag(Qt::ShiftModifier));
    const bool isFind = isEnter || isBack || keys.isPressed(QStringLiteral("tableFindNext"), *key);
    if (!isFind && key->key() != Qt::Key_Escape)
        return QWidget::eventFilter(object, event);
    event->accept();
    if (event->type() == QEvent::KeyPress) {
        if (isFind)
            findAgain(isBack);
        else
            close();
    }
    return true;
}

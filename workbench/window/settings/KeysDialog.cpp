#include "KeysDialog.h"

#include <geomcore/search/SearchText.h>
#include <gui/application/PApplication.h>
#include <workbench/window/look/KeyEditAccess.h>
#include <workbench/window/message/Question.h>

#include <QDialogButtonBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

enum Column { NameColumn, PlaceColumn, KeyColumn, ColumnCount };

constexpr int idRole = Qt::UserRole;

bool isModifier(int key)
{
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt ||
           key == Qt::Key_AltGr || key == Qt::Key_Meta;
}

} // namespace

KeysDialog::KeysDialog(const PCommandKeys::Choice &choice, const Names &nameOf, QWidget *parent)
    : QDialog(parent)
    , m_nameOf(nameOf)
    , m_choice(choice)
    , m_filter(new QLineEdit(this))
    , m_list(new QTreeWidget(this))
    , m_title(new QLabel(this))
    , m_key(new QKeySequenceEdit(this))
    , m_standard(new QPushButton(tr("&Standard"), this))
    , m_none(new QPushButton(tr("&Keine Taste"), this))
    , m_problem(new QLabel(this))
{
    KeyEditAccess::install();
    setObjectName("KeysDialog");
    setWindowTitle(tr("Tasten"));
    m_filter->setObjectName("keysFilter");
    m_filter->setPlaceholderText(tr("Befehl oder Taste"));
    m_filter->setAccessibleName(tr("Befehl oder Taste"));
    m_filter->setClearButtonEnabled(true);
    m_list->setObjectName("keysList");
    m_list->setAccessibleName(tr("Befehle"));
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->setHeaderLabels({tr("Befehl"), tr("Wo"), tr("Taste")});
    m_title->setObjectName("keysTitle");
    m_title->setTextFormat(Qt::PlainText);
    m_title->setBuddy(m_key);
    m_key->setObjectName("key");
    m_key->installEventFilter(this);
    if (const auto *const field = m_key->findChild<QLineEdit *>()) {
        constexpr int FrameAndCursor = 16;
        m_key->setMinimumWidth(field->fontMetrics().horizontalAdvance(field->placeholderText()) +
                               FrameAndCursor);
    }
    m_standard->setObjectName("standardKey");
    m_none->setObjectName("noKey");
    m_problem->setObjectName("keysProblem");
    m_problem->setTextFormat(Qt::PlainText);
    m_problem->setWordWrap(true);
    auto *const row = new QHBoxLayout;
    row->addWidget(m_title, 1);
    row->addWidget(m_key);
    row->addWidget(m_standard);
    row->addWidget(m_none);
    auto *const buttons = new QDialogButtonBox(this);
    m_ok = buttons->addButton(Question::okText(), QDialogButtonBox::AcceptRole);
    m_ok->setObjectName("ok");
    m_ok->setDefault(true);
    buttons->addButton(Question::cancelText(), QDialogButtonBox::RejectRole);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_filter);
    layout->addWidget(m_list, 1);
    layout->addLayout(row);
    layout->addWidget(m_problem);
    layout->addWidget(buttons);
    fill();
    connect(m_filter, &QLineEdit::textChanged, this, &KeysDialog::filter);
    connect(m_list, &QTreeWidget::currentItemChanged, this, &KeysDialog::showCommand);
    connect(m_key, &QKeySequenceEdit::keySequenceChanged, this, &KeysDialog::onKeyEntered);
    connect(m_standard, &QPushButton::clicked, this, &KeysDialog::reset);
    connect(m_none, &QPushButton::clicked, this, [this] { choose(QKeySequence()); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    m_list->setCurrentItem(m_list->topLevelItem(0));
    check();
    resize(640, 520);
    PApplication::setupWindow(this);
}

KeysDialog::~KeysDialog()
{
    PApplication::saveWindow(this);
}

void KeysDialog::fill()
{
    const QList<PCommandKeys::Command> &commands = PCommandKeys::instance().commands();
    for (const PCommandKeys::Command &command : commands) {
        auto *const item = new QTreeWidgetItem(m_list);
        item->setText(NameColumn, m_nameOf(command.id));
        item->setText(PlaceColumn,
                      command.place == PCommandKeys::Place::Table ? tr("Tabelle") : tr("Fenster"));
        item->setData(NameColumn, idRole, command.id);
    }
    m_list->sortItems(NameColumn, Qt::AscendingOrder);
    m_list->header()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    m_list->header()->setSectionResizeMode(PlaceColumn, QHeaderView::ResizeToContents);
    m_list->header()->setSectionResizeMode(KeyColumn, QHeaderView::ResizeToContents);
    m_list->header()->setStretchLastSection(false);
}

void KeysDialog::setWords(const QString &words)
{
    m_filter->setText(words);
}

void KeysDialog::filter()
{
    const QString words = SearchText::folded(m_filter->text()).simplified();
    QTreeWidgetItem *first = nullptr;
    for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
        QTreeWidgetItem *const item = m_list->topLevelItem(i);
        const QString text =
            SearchText::folded(item->text(NameColumn) + u' ' + item->text(KeyColumn));
        const QStringList parts = words.split(u' ', Qt::SkipEmptyParts);
        item->setHidden(!std::all_of(parts.begin(), parts.end(),
                                     [&](const QString &part) { return text.contains(part); }));
        if (!first && !item->isHidden())
            first = item;
    }
    // No key is given to a command that nobody sees.
    if (!m_list->currentItem() || m_list->currentItem()->isHidden())
        m_list->setCurrentItem(first);
}

QString KeysDialog::currentId() const
{
    const QTreeWidgetItem *const item = m_list->currentItem();
    return item ? item->data(NameColumn, idRole).toString() : QString();
}

QString KeysDialog::quoted(const QString &id) const
{
    return QStringLiteral("„%1“").arg(m_nameOf(id));
}

void KeysDialog::showCommand()
{
    const QString id = currentId();
    const QSignalBlocker quiet(m_key);
    m_key->setKeySequence(PCommandKeys::instance().keysWith(m_choice).value(id).value(0));
    m_title->setText(id.isEmpty() ? tr("Nichts gefunden") : m_nameOf(id));
    m_key->setAccessibleName(id.isEmpty() ? tr("Taste") : tr("Taste für %1").arg(m_nameOf(id)));
    for (QWidget *const part : {static_cast<QWidget *>(m_key), static_cast<QWidget *>(m_standard),
                                static_cast<QWidget *>(m_none)})
        part->setEnabled(!id.isEmpty());
    check();
}

/// The field waits for more strokes before it tells the first one, and forgets its key as soon as
/// Shift goes down, with which one leaves it backwards. Escape is no key for commands.
bool KeysDialog::eventFilter(QObject *object, QEvent *event)
{
    if (object == m_key && event->type() == QEvent::KeyPress &&
        static_cast<const QKeyEvent *>(event)->matches(QKeySequence::Cancel)) {
        reject();
        return true;
    }
    if (object == m_key && event->type() == QEvent::KeyPress &&
        isModifier(static_cast<const QKeyEvent *>(event)->key()))
        return true;
    if (object == m_key && event->type() == QEvent::KeyRelease)
        QMetaObject::invokeMethod(this, &KeysDialog::onKeyEntered, Qt::QueuedConnection);
    return QDialog::eventFilter(object, event);
}

void KeysDialog::onKeyEntered()
{
    // One stroke, for tables know no more.
    const QKeySequence entered = m_key->keySequence();
    choose(entered.isEmpty() ? entered : QKeySequence(entered[0]));
}

void KeysDialog::choose(const QKeySequence &key)
{
    const QString id = currentId();
    m_choice.remove(id);
    if (PCommandKeys::instance().keysWith(m_choice).value(id).value(0) != key)
        m_choice.insert(id, key);
    if (m_key->keySequence() != key) {
        const QSignalBlocker quiet(m_key);
        m_key->setKeySequence(key);
    }
    check();
}

void KeysDialog::reset()
{
    m_choice.remove(currentId());
    showCommand();
}

bool KeysDialog::isReserved(const QKeySequence &key)
{
    if (key.isEmpty())
        return false;
    const Qt::KeyboardModifiers modifiers = key[0].keyboardModifiers();
    if (modifiers & ~(Qt::ShiftModifier | Qt::KeypadModifier))
        return false;
    switch (key[0].key()) {
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_Backspace:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true;
    default:
        return false;
    }
}

QString KeysDialog::problem() const
{
    for (auto each = m_choice.cbegin(); each != m_choice.cend(); ++each) {
        if (isReserved(*each))
            return tr("Die Taste %1 brauchen Felder und Listen selbst.")
                .arg(each->toString(QKeySequence::NativeText));
    }
    const QList<PCommandKeys::Clash> clashes = PCommandKeys::instance().clashesOf(m_choice);
    for (const PCommandKeys::Clash &clash : clashes) {
        if (!clash.givesWay)
            return tr("Die Taste %1 hätten %2 und %3.")
                .arg(clash.key.toString(QKeySequence::NativeText), quoted(clash.id),
                     quoted(clash.other));
    }
    return {};
}

void KeysDialog::check()
{
    const PCommandKeys &all = PCommandKeys::instance();
    const QHash<QString, QList<QKeySequence>> keys = all.keysWith(m_choice);
    for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
        QTreeWidgetItem *const item = m_list->topLevelItem(i);
        const QString id = item->data(NameColumn, idRole).toString();
        item->setText(KeyColumn, keys.value(id).value(0).toString(QKeySequence::NativeText));
        QFont font = m_list->font();
        font.setBold(m_choice.contains(id));
        item->setFont(KeyColumn, font);
        item->setToolTip(KeyColumn, m_choice.contains(id) ? tr("Selbst gewählt") : QString());
    }
    QString text = problem();
    m_ok->setEnabled(text.isEmpty());
    const QString current = currentId();
    const QList<PCommandKeys::Clash> clashes = all.clashesOf(m_choice);
    for (const PCommandKeys::Clash &clash : clashes) {
        if (text.isEmpty() && clash.givesWay && clash.id == current)
            text = tr("%1 hat die Taste %2 dann nicht mehr.")
                       .arg(quoted(clash.other), clash.key.toString(QKeySequence::NativeText));
        else if (text.isEmpty() && clash.givesWay && clash.other == current)
            text = tr("Die Taste %1 hat jetzt %2.")
                       .arg(clash.key.toString(QKeySequence::NativeText), quoted(clash.id));
    }
    m_problem->setText(text);
    filter();
}

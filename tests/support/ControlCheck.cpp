#include "ControlCheck.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTabBar>
#include <QTextEdit>
#include <QToolBar>
#include <QToolButton>

namespace {

/// The marked letter of a text; null without one.
QChar markedLetter(const QString &text)
{
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != u'&')
            continue;
        if (text[i + 1] != u'&')
            return text[i + 1].toLower();
        ++i;
    }
    return {};
}

QString nameOf(const QWidget &widget)
{
    return QStringLiteral("%1 \"%2\"")
        .arg(QLatin1String(widget.metaObject()->className()), widget.objectName());
}

/// Letters of one window or menu with the texts that bear them.
class Letters
{
public:
    void add(const QString &text)
    {
        const QChar letter = markedLetter(text);
        if (!letter.isNull())
            m_texts[letter] += text;
    }
    [[nodiscard]] QStringList doubled(const QString &where) const
    {
        QStringList faults;
        for (auto it = m_texts.cbegin(); it != m_texts.cend(); ++it) {
            if (it->size() > 1)
                faults += QStringLiteral("%1: Alt+%2 leads to %3")
                              .arg(where, it.key(), it->join(QStringLiteral(", ")));
        }
        return faults;
    }

private:
    QMap<QChar, QStringList> m_texts;
};

bool takesKeys(const QWidget *widget)
{
    while (widget && widget->focusProxy())
        widget = widget->focusProxy();
    return widget && widget->focusPolicy() != Qt::NoFocus;
}

/// Of one window, as its user may see it.
QList<QWidget *> shownWidgets(const QWidget &window)
{
    QList<QWidget *> shown;
    for (QWidget *const widget : window.findChildren<QWidget *>()) {
        if (widget->window() != window.window())
            continue;
        bool hidden = false;
        for (const QWidget *at = widget; at && at != &window; at = at->parentWidget())
            hidden =
                hidden || (at->isHidden() && at->testAttribute(Qt::WA_WState_ExplicitShowHide) &&
                           !at->parentWidget()->inherits("QStackedWidget"));
        if (!hidden)
            shown += widget;
    }
    return shown;
}

void addLetters(const QWidget &widget, Letters *letters, QStringList *faults)
{
    if (const auto *const button = qobject_cast<const QAbstractButton *>(&widget)) {
        letters->add(button->text());
    } else if (const auto *const group = qobject_cast<const QGroupBox *>(&widget)) {
        letters->add(group->title());
    } else if (const auto *const tabs = qobject_cast<const QTabBar *>(&widget)) {
        for (int tab = 0; tab < tabs->count(); ++tab)
            letters->add(tabs->tabText(tab));
    } else if (const auto *const label = qobject_cast<const QLabel *>(&widget)) {
        if (label->buddy())
            letters->add(label->text());
        if (label->buddy() && !takesKeys(label->buddy()))
            *faults += QStringLiteral("\"%1\" leads to what takes no keys").arg(label->text());
    }
}

/// A part of another control, which bears the name.
bool isInnerPart(const QWidget &widget)
{
    const QWidget *const parent = widget.parentWidget();
    return qobject_cast<const QScrollBar *>(&widget) ||
           qobject_cast<const QHeaderView *>(&widget) ||
           qobject_cast<const QAbstractSpinBox *>(parent) ||
           qobject_cast<const QComboBox *>(parent) || qobject_cast<const QLineEdit *>(parent) ||
           qobject_cast<const QTabBar *>(parent) ||
           qobject_cast<const QAbstractScrollArea *>(parent) ||
           qobject_cast<const QMenuBar *>(&widget) || qobject_cast<const QMenuBar *>(parent) ||
           qobject_cast<const QHeaderView *>(parent);
}

bool isControl(const QWidget &widget)
{
    return qobject_cast<const QAbstractButton *>(&widget) ||
           qobject_cast<const QAbstractItemView *>(&widget) ||
           qobject_cast<const QAbstractSlider *>(&widget) ||
           qobject_cast<const QAbstractSpinBox *>(&widget) ||
           qobject_cast<const QComboBox *>(&widget) || qobject_cast<const QLineEdit *>(&widget) ||
           qobject_cast<const QPlainTextEdit *>(&widget) ||
           qobject_cast<const QTextEdit *>(&widget) || qobject_cast<const QTabBar *>(&widget);
}

/// A tool button of a tool bar or a dock's title has its command in a menu too, and so has a
/// button with the name of a command.
bool hasCommandElsewhere(const QWidget &widget)
{
    return qobject_cast<const QToolBar *>(widget.parentWidget()) ||
           widget.objectName().startsWith(QLatin1String("qt_dockwidget_")) ||
           (!widget.objectName().isEmpty() &&
            widget.window()->findChild<QAction *>(widget.objectName()));
}

} // namespace

QStringList ControlCheck::mnemonics(const QWidget &window)
{
    QStringList faults;
    Letters letters;
    for (const QWidget *const widget : shownWidgets(window)) {
        addLetters(*widget, &letters, &faults);
        if (const auto *const bar = qobject_cast<const QMenuBar *>(widget)) {
            for (const QAction *const action : bar->actions())
                letters.add(action->text());
        }
    }
    faults += letters.doubled(nameOf(window));
    for (const QMenu *const menu : window.findChildren<QMenu *>()) {
        Letters rows;
        for (const QAction *const action : menu->actions()) {
            if (action->isVisible())
                rows.add(action->text());
        }
        faults += rows.doubled(nameOf(*menu));
    }
    return faults;
}

QStringList ControlCheck::keys(const QWidget &window)
{
    QMap<QString, QStringList> owners;
    for (const QAction *const action : window.findChildren<QAction *>()) {
        if (action->shortcutContext() != Qt::WindowShortcut)
            continue;
        for (const QKeySequence &key : action->shortcuts())
            owners[key.toString(QKeySequence::PortableText)] += action->objectName();
    }
    for (const QAbstractButton *const button : window.findChildren<QAbstractButton *>()) {
        const QString key = button->shortcut().toString(QKeySequence::PortableText);
        if (!key.isEmpty() && !key.startsWith(QLatin1String("Alt+")))
            owners[key] += button->objectName();
    }
    QStringList faults;
    for (auto it = owners.cbegin(); it != owners.cend(); ++it) {
        if (!it.key().isEmpty() && it->size() > 1)
            faults +=
                QStringLiteral("%1 leads to %2").arg(it.key(), it->join(QStringLiteral(", ")));
    }
    return faults;
}

QStringList ControlCheck::access(const QWidget &window)
{
    QStringList faults;
    for (QWidget *const widget : shownWidgets(window)) {
        const bool focusable = widget->focusPolicy() != Qt::NoFocus && !widget->focusProxy();
        // The text of a label is read without the keys.
        if (qobject_cast<const QLabel *>(widget) && !(widget->focusPolicy() & Qt::TabFocus))
            continue;
        if (isInnerPart(*widget) || !(isControl(*widget) || focusable) || widget->focusProxy())
            continue;
        const QAccessibleInterface *const access = QAccessible::queryAccessibleInterface(widget);
        const QString name =
            nameOf(*widget) + QStringLiteral(" in ") + nameOf(*widget->parentWidget());
        if (!access) {
            faults += name + QStringLiteral(" is not known to screen readers");
            continue;
        }
        const bool isTabs = qobject_cast<const QTabBar *>(widget) != nullptr; // each tab has one
        if (access->text(QAccessible::Name).trimmed().isEmpty() && !isTabs)
            faults += name + QStringLiteral(" has no name");
        if (access->role() == QAccessible::NoRole || access->role() == QAccessible::Client)
            faults += name + QStringLiteral(" has no role");
        const bool reached = widget->focusPolicy() & Qt::TabFocus;
        if (!reached && !hasCommandElsewhere(*widget))
            faults += name + QStringLiteral(" is not reached by Tab");
        else if (reached && widget->isEnabled() && widget->isVisible() &&
                 !access->state().focusable)
            faults += name + QStringLiteral(" does not say that it takes the keys");
    }
    return faults;
}

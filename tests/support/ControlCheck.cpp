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
#include <QPixmap>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTabBar>
#include <QTextEdit>
#include <QToolBar>
#include <QToolButton>

#include <cmath>

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

namespace {

double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

using RolePair = std::pair<QPalette::ColorRole, QPalette::ColorRole>;

/// What a control of this kind writes in, and on what.
QList<RolePair> rolesOf(const QWidget &widget)
{
    if (qobject_cast<const QAbstractItemView *>(&widget))
        return {{QPalette::Text, QPalette::Base},
                {QPalette::Text, QPalette::AlternateBase},
                {QPalette::HighlightedText, QPalette::Highlight},
                {QPalette::Link, QPalette::Base}};
    if (qobject_cast<const QLineEdit *>(&widget) || qobject_cast<const QPlainTextEdit *>(&widget) ||
        qobject_cast<const QTextEdit *>(&widget))
        return {{QPalette::Text, QPalette::Base},
                {QPalette::PlaceholderText, QPalette::Base},
                {QPalette::HighlightedText, QPalette::Highlight}};
    if (qobject_cast<const QLabel *>(&widget))
        return {{QPalette::WindowText, QPalette::Window}, {QPalette::Link, QPalette::Window}};
    if (qobject_cast<const QAbstractButton *>(&widget) || qobject_cast<const QComboBox *>(&widget))
        return {{QPalette::ButtonText, QPalette::Button}, {QPalette::WindowText, QPalette::Window}};
    return {};
}

} // namespace

double ControlCheck::contrast(const QColor &a, const QColor &b)
{
    const double first = luminance(a);
    const double second = luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

QStringList ControlCheck::contrasts(const QWidget &window)
{
    QStringList faults;
    for (const QWidget *const widget : shownWidgets(window)) {
        if (!widget->isEnabled())
            continue;
        for (const auto group : {QPalette::Active, QPalette::Inactive}) {
            for (const auto &[ink, ground] : rolesOf(*widget)) {
                const QPalette &palette = widget->palette();
                const double found =
                    contrast(palette.color(group, ink), palette.color(group, ground));
                if (found < 4.5)
                    faults += QStringLiteral("%1: %2 on %3 has %4")
                                  .arg(nameOf(*widget), palette.color(group, ink).name(),
                                       palette.color(group, ground).name())
                                  .arg(found);
            }
        }
    }
    faults.removeDuplicates();
    return faults;
}

void ControlCheck::picture(QWidget *window, const QString &name)
{
    const QString folder = qEnvironmentVariable("VELK_PICTURES");
    if (!folder.isEmpty())
        window->grab().save(folder + u'/' + QString(name).replace(u' ', u'-') +
                            QStringLiteral(".png"));
}

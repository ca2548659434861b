#include "ControlCheck.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHash>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTextEdit>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>
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
        // A label asks its buddy alone, not whom that hands the keys on to.
        if (label->buddy() && label->buddy()->focusPolicy() == Qt::NoFocus)
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

QStringList ControlCheck::title(const QWidget &window, const QString &language)
{
    const QString title = window.windowTitle().remove(QStringLiteral("[*]"));
    if (title.trimmed().isEmpty())
        return {nameOf(window) + QStringLiteral(" has no title")};
    // A plain word may be both: "Question".
    static const QRegularExpression word(QStringLiteral("^[A-Z][a-z]+$"));
    const bool isName =
        title == window.objectName() || title == QLatin1String(window.metaObject()->className());
    if (isName && !word.match(title).hasMatch())
        return {title + QStringLiteral(" is the name of the window, no title")};
    static const QHash<QString, QList<QChar::Script>> scripts = {
        {QStringLiteral("ru"), {QChar::Script_Cyrillic}},
        {QStringLiteral("ko"), {QChar::Script_Hangul}},
        {QStringLiteral("ja"), {QChar::Script_Hiragana, QChar::Script_Katakana, QChar::Script_Han}},
        {QStringLiteral("zh"), {QChar::Script_Han}},
        {QStringLiteral("zh_CHT"), {QChar::Script_Han}}};
    const QList<QChar::Script> wanted = scripts.value(language);
    const bool isTranslated = wanted.isEmpty() || std::ranges::any_of(title, [&](QChar c) {
                                  return wanted.contains(c.script());
                              });
    return isTranslated ? QStringList()
                        : QStringList{title + QStringLiteral(" is not in the language")};
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
        if (const auto *const view = qobject_cast<const QAbstractItemView *>(widget);
            view && view->tabKeyNavigation())
            faults += name + QStringLiteral(" does not let Tab go on");
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

QSize textSize(const QWidget &widget, const QString &text)
{
    return widget.fontMetrics().size(Qt::TextShowMnemonic, text);
}

/// Without the frame and, with Fusion and its kin, an indicator or an arrow.
int roomOf(const QAbstractButton &button)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    const auto element = qobject_cast<const QCheckBox *>(&button) ? QStyle::SE_CheckBoxContents
                         : qobject_cast<const QRadioButton *>(&button)
                             ? QStyle::SE_RadioButtonContents
                             : QStyle::SE_PushButtonContents;
    const int icon = button.icon().isNull() ? 0 : button.iconSize().width() + 4;
    return button.style()->subElementRect(element, &option, &button).width() - icon;
}

bool isCut(const QLabel &label)
{
    if (label.text().isEmpty())
        return false;
    if (label.wordWrap())
        return label.heightForWidth(label.width()) > label.height() + 1;
    return label.sizeHint().width() > label.width() || label.sizeHint().height() > label.height();
}

bool isCut(const QComboBox &box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    option.editable = box.isEditable();
    const QRect field = box.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                    QStyle::SC_ComboBoxEditField, &box);
    return !box.isEditable() && textSize(box, box.currentText()).width() > field.width();
}

/// What the widget says and has no room for; empty if there is none.
QString cutText(const QWidget &widget)
{
    if (widget.inherits("ElidedCheckBox")) // shortens itself and has a tool tip
        return {};
    if (const auto *const label = qobject_cast<const QLabel *>(&widget))
        return isCut(*label) ? label->text() : QString();
    if (const auto *const tool = qobject_cast<const QToolButton *>(&widget))
        return tool->sizeHint().width() > tool->width() ? tool->text() + u'.' : QString();
    if (const auto *const button = qobject_cast<const QAbstractButton *>(&widget))
        return textSize(widget, button->text()).width() > roomOf(*button) ? button->text()
                                                                          : QString();
    if (const auto *const group = qobject_cast<const QGroupBox *>(&widget))
        return textSize(widget, group->title()).width() + 24 > group->width() ? group->title()
                                                                              : QString();
    if (const auto *const tabs = qobject_cast<const QTabBar *>(&widget);
        tabs && !qobject_cast<const QMainWindow *>(widget.parentWidget())) // those of docks scroll
        return tabs->sizeHint().width() > tabs->width() ? tabs->tabText(0) : QString();
    if (const auto *const box = qobject_cast<const QComboBox *>(&widget))
        return isCut(*box) ? box->currentText() : QString();
    if (const auto *const edit = qobject_cast<const QLineEdit *>(&widget))
        return textSize(widget, edit->placeholderText()).width() > edit->width() - 10
                   ? edit->placeholderText()
                   : QString();
    return {};
}

/// Not all of it can be seen, and nothing scrolls to it.
bool isBeyond(const QWidget &widget)
{
    const QWidget *const parent = widget.parentWidget();
    // Of its docks, a main window keeps bars that it does not use.
    return !isInnerPart(widget) && !widget.isWindow() &&
           !qobject_cast<const QMainWindow *>(parent) &&
           (isControl(widget) || qobject_cast<const QLabel *>(&widget)) &&
           !qobject_cast<const QAbstractScrollArea *>(parent->parentWidget()) &&
           !parent->rect().contains(widget.geometry());
}

void addCuts(const QWidget &window, QStringList *faults)
{
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest); // of what these changed
    for (const QWidget *const widget : shownWidgets(window)) {
        if (!widget->isVisible())
            continue;
        if (const QString text = cutText(*widget); !text.isEmpty())
            *faults += QStringLiteral("%1: \"%2\" has %3 x %4 of %5 x %6")
                           .arg(nameOf(*widget), text)
                           .arg(widget->width())
                           .arg(widget->height())
                           .arg(widget->sizeHint().width())
                           .arg(widget->sizeHint().height());
        if (isBeyond(*widget))
            *faults += nameOf(*widget) + QStringLiteral(" reaches beyond ") +
                       nameOf(*widget->parentWidget());
    }
}

} // namespace

QStringList ControlCheck::cuts(QWidget *window, const QSize &room)
{
    QStringList faults;
    QApplication::processEvents();
    const QSize least = window->minimumSizeHint().expandedTo(window->minimumSize());
    if (least.width() > room.width() || least.height() > room.height())
        faults += QStringLiteral("%1 needs %2 x %3")
                      .arg(nameOf(*window))
                      .arg(least.width())
                      .arg(least.height());
    window->resize(window->size().boundedTo(room));
    addCuts(*window, &faults);
    for (QTabWidget *const tabs : window->findChildren<QTabWidget *>()) {
        const int current = tabs->currentIndex();
        for (int page = 0; page < tabs->count(); ++page) {
            tabs->setCurrentIndex(page);
            addCuts(*window, &faults);
        }
        tabs->setCurrentIndex(current);
    }
    faults.removeDuplicates();
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

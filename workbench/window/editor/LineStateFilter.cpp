#include "LineStateFilter.h"

#include <core/text/countText.h>
#include <workbench/window/message/StatusArea.h>
#include <workbench/window/settings/KeyedActions.h>

#include <QAction>
#include <QCoreApplication>
#include <QIcon>
#include <QSignalBlocker>
#include <QToolBar>

#include <array>

namespace {

struct StateRow
{
    OpenLines::Kind kind;
    const char *name;
    const char *text;
    const char *tip;
    const char *icon;
};

constexpr std::array stateRows{
    StateRow{OpenLines::Conflict, "stateConflict", QT_TRANSLATE_NOOP("LineStateFilter", "Konflikt"),
             QT_TRANSLATE_NOOP("LineStateFilter", "Nur Zeilen im Konflikt mit der Änderung eines "
                                                  "anderen zeigen, und ihre Projekte"),
             ":/bitmaps/state_conflict.png"},
    StateRow{OpenLines::ToCheck, "stateToCheck", QT_TRANSLATE_NOOP("LineStateFilter", "Zu prüfen"),
             QT_TRANSLATE_NOOP("LineStateFilter",
                               "Nur Zeilen mit einem Vorschlag zeigen, der bestätigt "
                               "oder korrigiert werden muss, und ihre Projekte"),
             ":/bitmaps/state_check.png"},
    StateRow{OpenLines::NotFound, "stateNotFound",
             QT_TRANSLATE_NOOP("LineStateFilter", "Ohne Ziel"),
             QT_TRANSLATE_NOOP("LineStateFilter",
                               "Nur Zeilen zeigen, für die nichts gefunden ist, und ihre Projekte"),
             ":/bitmaps/state_deleted.png"},
    StateRow{
        OpenLines::Proposed, "stateProposed", QT_TRANSLATE_NOOP("LineStateFilter", "Automatisch"),
        QT_TRANSLATE_NOOP("LineStateFilter", "Nur Zeilen zeigen, die eindeutig gleich sind und vom "
                                             "Programm zugeordnet wurden, und ihre Projekte"),
        ":/bitmaps/line.png"},
    StateRow{OpenLines::Confirmed, "stateConfirmed",
             QT_TRANSLATE_NOOP("LineStateFilter", "Bestätigt"),
             QT_TRANSLATE_NOOP("LineStateFilter",
                               "Nur Zeilen mit bestätigter Zuordnung zeigen, und ihre Projekte"),
             ":/bitmaps/state_confirmed.png"},
    StateRow{OpenLines::Expired, "stateExpired",
             QT_TRANSLATE_NOOP("LineStateFilter", "Ausgelaufen"),
             QT_TRANSLATE_NOOP("LineStateFilter",
                               "Nur Zeilen zeigen, die als ausgelaufen bestätigt sind, und ihre "
                               "Projekte"),
             ":/bitmaps/state_deleted_confirmed.png"},
};

} // namespace

LineStateFilter::LineStateFilter(QObject *parent)
    : QObject(parent)
    , m_counts(qsizetype(stateRows.size()), 0)
{
    for (const StateRow &row : stateRows) {
        auto *const action = new QAction(QIcon(row.icon), QString(), this);
        action->setObjectName(row.name);
        action->setCheckable(true);
        connect(action, &QAction::toggled, this, [this] { Q_EMIT kindsChanged(kinds()); });
        m_actions.append(action);
    }
    setDocumentOpen(false);
}

void LineStateFilter::fill(QToolBar *bar) const
{
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->setIconSize({16, 16});
    bar->addActions(m_actions);
}

OpenLines::Kinds LineStateFilter::kinds() const
{
    OpenLines::Kinds kinds;
    for (qsizetype i = 0; i < m_actions.size(); ++i)
        kinds.setFlag(stateRows[size_t(i)].kind, m_actions[i]->isChecked());
    return kinds;
}

void LineStateFilter::setKinds(OpenLines::Kinds kinds)
{
    const QSignalBlocker silent(this);
    for (qsizetype i = 0; i < m_actions.size(); ++i)
        m_actions[i]->setChecked(kinds.testFlag(stateRows[size_t(i)].kind));
}

void LineStateFilter::clear()
{
    const OpenLines::Kinds before = kinds();
    for (QAction *const action : std::as_const(m_actions)) {
        const QSignalBlocker atOnce(this);
        action->setChecked(false);
    }
    if (before)
        Q_EMIT kindsChanged({});
}

void LineStateFilter::setCounts(const std::function<int(OpenLines::Kind)> &countOf)
{
    for (qsizetype i = 0; i < m_counts.size(); ++i)
        m_counts[i] = countOf(stateRows[size_t(i)].kind);
    writeTexts();
}

void LineStateFilter::setDocumentOpen(bool open)
{
    m_isOpen = open;
    for (QAction *const action : std::as_const(m_actions))
        action->setEnabled(open);
    if (!open)
        clear();
    writeTexts();
}

void LineStateFilter::retranslate()
{
    writeTexts();
}

void LineStateFilter::writeTexts()
{
    for (qsizetype i = 0; i < m_actions.size(); ++i) {
        const QString name = tr(stateRows[size_t(i)].text);
        m_actions[i]->setText(m_isOpen ? QStringLiteral("%1: %2").arg(name, countText(m_counts[i]))
                                       : name);
        // Among other commands a state alone says nothing.
        KeyedActions::setName(m_actions[i], QCoreApplication::translate("FilterDock", "Zustand") +
                                                QStringLiteral(": ") + name);
        m_actions[i]->setToolTip(tr(stateRows[size_t(i)].tip));
        m_actions[i]->setStatusTip(m_actions[i]->toolTip());
    }
}

QString LineStateFilter::names(OpenLines::Kinds kinds)
{
    QStringList names;
    for (const StateRow &row : stateRows) {
        if (kinds.testFlag(row.kind))
            names += tr(row.text);
    }
    return names.join(QStringLiteral(", "));
}

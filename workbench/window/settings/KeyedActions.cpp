#include "KeyedActions.h"

#include <gui/application/PCommandKeys.h>

#include <QAction>
#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace {

struct NameRow
{
    const char *id;
    const char *name;
};

constexpr const char *nameProperty = "commandName";

constexpr std::array tableCommandNames{
    NameRow{"lineConfirm",
            QT_TRANSLATE_NOOP("KeyedActions", "Zeile bestätigen oder gewählte Zeile zuordnen")},
    NameRow{"lineRemove", QT_TRANSLATE_NOOP("KeyedActions", "Zuordnung der Zeile aufheben")},
    NameRow{"lineRemoveConfirm",
            QT_TRANSLATE_NOOP("KeyedActions", "Zuordnung aufheben und als ausgelaufen bestätigen")},
    NameRow{"lineValueRanges",
            QT_TRANSLATE_NOOP("KeyedActions", "Wertebereichszuordnung bearbeiten")},
    NameRow{"lineCondition", QT_TRANSLATE_NOOP("KeyedActions", "Bedingung aus der Zeile kopieren")},
    NameRow{"linesConfirmAll", QT_TRANSLATE_NOOP("KeyedActions", "Ganzes Projekt bestätigen")},
    NameRow{"tableFind", QT_TRANSLATE_NOOP("KeyedActions", "In der Tabelle suchen")},
    NameRow{"tableFindNext", QT_TRANSLATE_NOOP("KeyedActions", "Weitersuchen")},
    NameRow{"tableFindPrevious", QT_TRANSLATE_NOOP("KeyedActions", "Rückwärts weitersuchen")},
    NameRow{"tableFilter", QT_TRANSLATE_NOOP("KeyedActions", "Spaltenfilter")},
    NameRow{"tableCopy", QT_TRANSLATE_NOOP("KeyedActions", "Zeilen kopieren")},
    NameRow{"tableLarger", QT_TRANSLATE_NOOP("KeyedActions", "Tabelle größer")},
    NameRow{"tableSmaller", QT_TRANSLATE_NOOP("KeyedActions", "Tabelle kleiner")},
    NameRow{"tableNormalSize", QT_TRANSLATE_NOOP("KeyedActions", "Tabelle in normaler Größe")},
};

} // namespace

KeyedActions::KeyedActions(QObject *parent)
    : QObject(parent)
{
    connect(&PCommandKeys::instance(), &PCommandKeys::changed, this, &KeyedActions::update);
}

KeyedActions::~KeyedActions()
{
    // The actions may be gone by now.
    PCommandKeys::instance().disconnect(this);
    PCommandKeys::instance().withdraw(m_ids);
}

void KeyedActions::add(const QList<QAction *> &actions)
{
    QList<PCommandKeys::Command> commands;
    commands.reserve(actions.size());
    for (const QAction *const action : actions) {
        commands << PCommandKeys::Command{action->objectName(), PCommandKeys::Place::Window,
                                          action->shortcuts()};
        m_ids << action->objectName();
    }
    m_actions += actions;
    PCommandKeys::instance().declare(commands);
    update();
}

QAction *KeyedActions::action(const QString &id) const
{
    const qsizetype at = m_ids.indexOf(id);
    return at < 0 ? nullptr : m_actions.at(at);
}

void KeyedActions::update()
{
    for (QAction *const action : std::as_const(m_actions))
        action->setShortcuts(PCommandKeys::instance().keys(action->objectName()));
    Q_EMIT changed();
}

QString KeyedActions::nameOf(const QString &id) const
{
    if (const QAction *const found = action(id))
        return nameOf(*found);
    const auto *const row =
        std::find_if(tableCommandNames.begin(), tableCommandNames.end(),
                     [&](const NameRow &each) { return id == QLatin1String(each.id); });
    return row == tableCommandNames.end() ? id
                                          : QCoreApplication::translate("KeyedActions", row->name);
}

QString KeyedActions::nameOf(const QAction &action)
{
    const QString name = action.property(nameProperty).toString();
    return name.isEmpty() ? plain(action.text()) : name;
}

void KeyedActions::setName(QAction *action, const QString &name)
{
    action->setProperty(nameProperty, name);
}

QString KeyedActions::plain(const QString &text)
{
    QString plain;
    plain.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        // A doubled one stands for itself.
        if (text.at(i) == u'&' && ++i == text.size())
            break;
        plain += text.at(i);
    }
    while (plain.endsWith(u'.') || plain.endsWith(u'…') || plain.endsWith(u' '))
        plain.chop(1);
    return plain;
}

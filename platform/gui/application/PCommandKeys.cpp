#include "PCommandKeys.h"

#include <QKeyEvent>

#include <algorithm>

namespace {

bool meet(PCommandKeys::Place one, PCommandKeys::Place other)
{
    return one == other || one == PCommandKeys::Place::Window ||
           other == PCommandKeys::Place::Window;
}

} // namespace

PCommandKeys::PCommandKeys() = default;
PCommandKeys::~PCommandKeys() = default;

PCommandKeys &PCommandKeys::instance()
{
    static PCommandKeys keys;
    return keys;
}

void PCommandKeys::declare(const QList<Command> &commands)
{
    for (const Command &command : commands) {
        const auto same = std::find_if(m_commands.begin(), m_commands.end(),
                                       [&](const Command &each) { return each.id == command.id; });
        if (same == m_commands.end())
            m_commands << command;
        else
            *same = command;
    }
    apply();
}

void PCommandKeys::withdraw(const QStringList &ids)
{
    m_commands.removeIf([&](const Command &each) { return ids.contains(each.id); });
    apply();
}

bool PCommandKeys::isDeclared(const QString &id) const
{
    return std::any_of(m_commands.begin(), m_commands.end(),
                       [&](const Command &each) { return each.id == id; });
}

bool PCommandKeys::isStandard(const QString &id) const
{
    return std::none_of(m_commands.begin(), m_commands.end(), [&](const Command &each) {
        return each.id == id && each.standard != keys(id);
    });
}

QString PCommandKeys::keyText(const QString &id) const
{
    return key(id).toString(QKeySequence::NativeText);
}

bool PCommandKeys::isPressed(const QString &id, const QKeyEvent &event) const
{
    const QKeyCombination pressed(event.modifiers() & ~Qt::KeypadModifier, Qt::Key(event.key()));
    return keys(id).contains(QKeySequence(pressed));
}

void PCommandKeys::setChoice(const Choice &choice)
{
    if (choice == m_choice)
        return;
    m_choice = choice;
    apply();
}

QHash<QString, QList<QKeySequence>> PCommandKeys::keysWith(const Choice &choice) const
{
    QList<Command> takers; // with what was chosen as the standard
    for (const Command &command : m_commands) {
        if (const QKeySequence chosen = choice.value(command.id); !chosen.isEmpty())
            takers << Command{command.id, command.place, {chosen}};
    }
    QHash<QString, QList<QKeySequence>> all;
    for (const Command &command : m_commands) {
        QList<QKeySequence> &keys = all[command.id];
        if (choice.contains(command.id)) {
            keys << choice.value(command.id);
        } else {
            keys = command.standard;
            for (const Command &taker : std::as_const(takers)) {
                if (meet(taker.place, command.place))
                    keys.removeAll(taker.standard.first());
            }
        }
        keys.removeAll(QKeySequence());
    }
    return all;
}

QList<PCommandKeys::Clash> PCommandKeys::clashesOf(const Choice &choice) const
{
    QList<Clash> clashes;
    for (const Command &command : m_commands) {
        const QKeySequence chosen = choice.value(command.id);
        if (chosen.isEmpty())
            continue;
        for (const Command &other : m_commands) {
            if (other.id == command.id || !meet(other.place, command.place))
                continue;
            const bool isChosen = choice.contains(other.id);
            if (isChosen && choice.value(other.id) == chosen)
                clashes << Clash{command.id, other.id, chosen, false};
            else if (!isChosen && other.standard.contains(chosen))
                clashes << Clash{command.id, other.id, chosen, true};
        }
    }
    return clashes;
}

void PCommandKeys::apply()
{
    const QHash<QString, QList<QKeySequence>> keys = keysWith(m_choice);
    if (keys == m_keys)
        return;
    m_keys = keys;
    Q_EMIT changed();
}

DeclaredCommands::DeclaredCommands(const QList<PCommandKeys::Command> &commands)
{
    PCommandKeys::instance().declare(commands);
    for (const PCommandKeys::Command &command : commands)
        m_ids << command.id;
}

DeclaredCommands::~DeclaredCommands()
{
    PCommandKeys::instance().withdraw(m_ids);
}

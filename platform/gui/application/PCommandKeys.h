#pragma once

#include <gui/VelkGuiGlobal.h>

#include <QHash>
#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QStringList>

QT_BEGIN_NAMESPACE
class QKeyEvent;
QT_END_NAMESPACE

/// The commands of the program that can have keys, by their identifiers, and the keys that hold for
/// them: the standard ones, or what the user chose. Whoever reacts to a key asks here for it, and
/// again after changed(). GUI thread.
class VELKGUI_EXPORT PCommandKeys : public QObject
{
    Q_OBJECT

public:
    /// Where the keys of a command work.
    enum class Place {
        Window, ///< everywhere in the main window
        Table,  ///< in a table; there before one of the window
    };
    struct Command
    {
        QString id;
        Place place = Place::Window;
        QList<QKeySequence> standard; ///< the first one is what users are told
    };
    /// An empty sequence: the user wants no key.
    using Choice = QHash<QString, QKeySequence>;
    /// Two commands of one place, or one of them of the window, that have the same key.
    struct Clash
    {
        QString id;
        QString other;
        QKeySequence key;
        /// The key is the standard one of `other`, which has no key for it now.
        bool givesWay = false;

        friend bool operator==(const Clash &, const Clash &) = default;
    };

    PCommandKeys();
    ~PCommandKeys() override;

    /// That of the process.
    [[nodiscard]] static PCommandKeys &instance();

    /// Those of the same identifier are replaced.
    void declare(const QList<Command> &commands);
    void withdraw(const QStringList &ids);
    /// In the order in which they were declared.
    [[nodiscard]] const QList<Command> &commands() const { return m_commands; }
    [[nodiscard]] bool isDeclared(const QString &id) const;

    /// What holds now; empty for a command without key, and for an unknown one.
    [[nodiscard]] QList<QKeySequence> keys(const QString &id) const { return m_keys.value(id); }
    [[nodiscard]] QKeySequence key(const QString &id) const { return keys(id).value(0); }
    /// For users, in the desktop's words.
    [[nodiscard]] QString keyText(const QString &id) const;
    /// Whether a key event means the command. A key of the number pad is as good as another.
    [[nodiscard]] bool isPressed(const QString &id, const QKeyEvent &event) const;
    /// Whether the standard keys hold, all of them. True for an unknown command.
    [[nodiscard]] bool isStandard(const QString &id) const;

    /// Identifiers that nobody has declared yet are kept.
    void setChoice(const Choice &choice);
    [[nodiscard]] const Choice &choice() const { return m_choice; }
    /// The keys that would hold with another choice. What the user chose goes before a standard
    /// key, which its command has not any more then, or it would do neither.
    [[nodiscard]] QHash<QString, QList<QKeySequence>> keysWith(const Choice &choice) const;
    [[nodiscard]] QList<Clash> clashesOf(const Choice &choice) const;

Q_SIGNALS:
    void changed();

private:
    void apply();

    QList<Command> m_commands;
    Choice m_choice;
    QHash<QString, QList<QKeySequence>> m_keys;
};

/// Declares commands of a library for as long as it is loaded; one static object for each.
class VELKGUI_EXPORT DeclaredCommands
{
public:
    explicit DeclaredCommands(const QList<PCommandKeys::Command> &commands);
    ~DeclaredCommands();
    Q_DISABLE_COPY_MOVE(DeclaredCommands)

private:
    QStringList m_ids;
};

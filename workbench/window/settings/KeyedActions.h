#pragma once

#include <QList>
#include <QObject>
#include <QStringList>

QT_BEGIN_NAMESPACE
class QAction;
QT_END_NAMESPACE

/// The window's actions as commands, by their object names: gives them the keys that hold, and
/// knows what they are called, with all other commands that have keys.
class KeyedActions : public QObject
{
    Q_OBJECT

public:
    explicit KeyedActions(QObject *parent);
    ~KeyedActions() override;

    /// The keys that they have are their standard ones. Not owned.
    void add(const QList<QAction *> &actions);
    [[nodiscard]] const QList<QAction *> &actions() const { return m_actions; }
    /// Null for an unknown one.
    [[nodiscard]] QAction *action(const QString &id) const;

    /// The name of a command, in the language of the moment: of an action, or of one that has keys
    /// in the tables.
    [[nodiscard]] QString nameOf(const QString &id) const;
    /// Of an action, without the numbers that its text may tell.
    [[nodiscard]] static QString nameOf(const QAction &action);
    /// For an action whose text tells more than its name.
    static void setName(QAction *action, const QString &name);
    /// A text without the mark of its mnemonic and without dots behind it.
    [[nodiscard]] static QString plain(const QString &text);

Q_SIGNALS:
    /// The actions have other keys.
    void changed();

private:
    void update();

    QList<QAction *> m_actions;
    QStringList m_ids; ///< theirs
};

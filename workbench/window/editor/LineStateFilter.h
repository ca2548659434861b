#pragma once

#include <workbench/session/tasks/OpenLines.h>

#include <QObject>

#include <functional>

QT_BEGIN_NAMESPACE
class QAction;
class QToolBar;
QT_END_NAMESPACE

/// The choice of lines by what became of them: a switch for each state that also says how many
/// lines of the release are in it. Several may be on; none on stands for all lines.
class LineStateFilter : public QObject
{
    Q_OBJECT

public:
    explicit LineStateFilter(QObject *parent);

    /// In the order in which they are shown. Their object names are "state" and the state's name:
    /// "stateConflict".
    [[nodiscard]] const QList<QAction *> &actions() const { return m_actions; }
    /// Puts them into a tool bar, with their texts.
    void fill(QToolBar *bar) const;

    [[nodiscard]] OpenLines::Kinds kinds() const;
    /// Sets the switches; nothing is told.
    void setKinds(OpenLines::Kinds kinds);
    /// All switches off.
    void clear();
    /// \a countOf gives the lines of a state.
    void setCounts(const std::function<int(OpenLines::Kind)> &countOf);
    /// Without an open document there is nothing to choose, and nothing is chosen.
    void setDocumentOpen(bool open);
    void retranslate();

    /// Names of the states, such as "Zu prüfen, Ohne Ziel".
    [[nodiscard]] static QString names(OpenLines::Kinds kinds);

Q_SIGNALS:
    void kindsChanged(OpenLines::Kinds kinds);

private:
    void writeTexts();

    QList<QAction *> m_actions;
    QList<int> m_counts;
    bool m_isOpen = false;
};

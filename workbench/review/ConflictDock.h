#pragma once

#include <workbench/session/tasks/ConflictSides.h>

#include <QDockWidget>

class ConflictModel;
class ConflictSidesModel;

QT_BEGIN_NAMESPACE
class QLabel;
class QPushButton;
class QTableView;
class QTreeView;
QT_END_NAMESPACE

/// The list of lines in conflict, and beside it what the sides say of the current one. Enter or a
/// double click wants its line to be shown.
class ConflictDock : public QDockWidget
{
    Q_OBJECT

public:
    /// \a list must live as long.
    ConflictDock(ConflictList *list, QWidget *parent);
    ~ConflictDock() override;

    /// Where the tables of the sides lie; what was read is forgotten.
    void setRoots(const CatalogRoots &roots);
    /// -1: none.
    [[nodiscard]] int current() const;
    /// A place of the list; out of range: none.
    void setCurrent(int place);
    void focusList();
    /// The document cannot be changed: no decisions.
    void setReadOnly(bool readOnly);
    void retranslate();

Q_SIGNALS:
    void lineWanted(int place);
    /// The current conflict is to be decided so.
    void decided(MergeState::Side side);

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showSides();
    void writeCounter();
    void addButton(const char *name, MergeState::Side side);

    ConflictList *const m_list;
    ConflictModel *const m_model;
    ConflictSidesModel *const m_sidesModel;
    ConflictSides m_sides;
    CatalogRoots m_roots;
    bool m_readOnly = false;
    QLabel *m_counter = nullptr;
    QTreeView *m_view = nullptr;
    QTableView *m_values = nullptr;
    QList<QPushButton *> m_buttons; ///< in the order of MergeState::Side
};

#pragma once

#include <workbench/session/document/MappingDocument.h>

#include <QDialog>

QT_BEGIN_NAMESPACE
class QLabel;
class QLineEdit;
class QPushButton;
class QSortFilterProxyModel;
class QTimer;
class QTreeView;
QT_END_NAMESPACE

class StepListModel;

/// All steps of the open mapping file, those of former sessions included: any of them can be taken
/// back or again. Says beforehand which others go with it. Modeless.
class StepListDialog : public QDialog
{
    Q_OBJECT

public:
    /// \a document must live as long.
    StepListDialog(MappingDocument *document, QWidget *parent);
    ~StepListDialog() override;

Q_SIGNALS:
    void lineWanted(const QString &path, int line);

private:
    void refresh();
    /// -1: none is selected.
    [[nodiscard]] int selected() const;
    void select(int step);
    void look();
    [[nodiscard]] QString hint(int step) const;
    [[nodiscard]] QString namesOf(const QList<int> &steps) const;
    void move(const StepPlan &plan);
    void goToLine();

    MappingDocument *const m_document;
    StepListModel *const m_model;
    QSortFilterProxyModel *const m_shown;
    QLineEdit *const m_search;
    QTreeView *const m_view;
    QLabel *const m_hint;
    QPushButton *m_move = nullptr;
    QPushButton *m_undoTo = nullptr;
    QPushButton *m_goTo = nullptr;
    QTimer *const m_refresh; ///< one for many steps that are moved together
    StepPlan m_plan;         ///< of the selected step
    StepPlan m_planTo;       ///< with all later ones
};

#pragma once

#include "CatalogFilterWalk.h"

#include <QSortFilterProxyModel>
#include <QTimer>

#include <functional>
#include <memory>

class PrjMappingC;

/// Leaves only projects that are incomplete, and the directories above them. After a change of the
/// settings call invalidate(). A large tree is walked in turns of the event loop: until it is
/// through, the model shows what it showed before.
class CatalogFilterModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit CatalogFilterModel(QObject *parent = nullptr);
    ~CatalogFilterModel() override;

    bool filterToCheck = false;  ///< whether anything is filtered at all
    bool filterTarget = false;   ///< only projects whose open lines all have a target
    bool filterNoTarget = false; ///< only projects with a line without target; beats filterTarget
    /// A host's filter besides: only projects that it accepts, and the directories above them.
    /// Empty: none.
    std::function<bool(const PrjMappingC &mapping)> hostFilter;
    /// Called whenever what the settings say is shown.
    std::function<void()> onApplied;

    /// Applies the settings as they are now. The source is a CatalogStructureModel.
    void invalidate();
    /// Does at once what is left of that.
    void finish();

    /// As the source says, whose rows are left alone until they are wanted.
    [[nodiscard]] bool hasChildren(const QModelIndex &parent = QModelIndex()) const override;
    /// Those of every row, and that nothing is below a project: a view asks for them of each row
    /// that it has, be it in sight or not, and for nothing else then.
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

protected:
    [[nodiscard]] bool filterAcceptsRow(int sourceRow,
                                        const QModelIndex &sourceParent) const override;

private:
    /// Null: all are.
    using Accepts = CatalogFilterWalk::Accepts;

    [[nodiscard]] Accepts settings() const;
    void goOn();
    void apply();
    [[nodiscard]] bool decide(const CatalogStructureNodeI &node) const;
    void noteSiblings(const QModelIndex &index) const;

    QTimer m_turn;
    std::unique_ptr<CatalogFilterWalk> m_walk; ///< as long as it is not through
    Accepts m_wanted;                          ///< what it is for
    Accepts m_accepts;                         ///< what is shown
    mutable CatalogFilterWalk::Decided m_decided;
    /// The rows of the directory whose flags were asked for last, which share what an index of
    /// this model points at.
    mutable struct
    {
        const void *pointer = nullptr;
        int projectsFrom = 0;
    } m_siblings;
};

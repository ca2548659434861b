#pragma once

#include <QSortFilterProxyModel>

#include <functional>

class PrjMappingC;

/// Leaves only projects that are incomplete, and the directories above them. After a change of the
/// settings call invalidate().
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

    /// Without a filter what the source says, whose rows are left alone until they are wanted.
    [[nodiscard]] bool hasChildren(const QModelIndex &parent = QModelIndex()) const override;

protected:
    [[nodiscard]] bool filterAcceptsRow(int sourceRow,
                                        const QModelIndex &sourceParent) const override;

private:
    [[nodiscard]] bool isFiltering() const { return filterToCheck || hostFilter; }
    [[nodiscard]] bool passesHostFilter(const QModelIndex &source) const;
    [[nodiscard]] bool acceptsState(int state) const;
};

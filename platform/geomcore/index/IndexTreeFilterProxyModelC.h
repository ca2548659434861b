#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QSortFilterProxyModel>

/// Filters and sorts an IndexTreeModelC without opening what nobody opened. A row that the filter
/// does not accept stays if something may be below it. Rows that may have children come before
/// those that never have any, each sorted regardless of case; without sorting the source's order
/// holds. Any source model will do whose leaves say Qt::ItemNeverHasChildren.
///
/// Not supported: Qt's own recursive filtering, which would read the whole tree.
class VELKGEOMCORE_EXPORT IndexTreeFilterProxyModelC : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit IndexTreeFilterProxyModelC(QObject *parent = nullptr);
    ~IndexTreeFilterProxyModelC() override;

    /// Whether a row has children is what the source says of it; the filter is not asked for each
    /// of them. Off at first: then the filter is asked for rows that were read.
    void setFastChildDetection(bool enabled);
    [[nodiscard]] bool fastChildDetection() const { return m_fastChildDetection; }
    /// With fast detection: a row that was opened and of whose children the filter accepts none
    /// counts as one without children. Off at first.
    void setEmptyChildDetection(bool enabled);
    [[nodiscard]] bool emptyChildDetection() const { return m_emptyChildDetection; }

    [[nodiscard]] bool hasChildren(const QModelIndex &parent = QModelIndex()) const override;

protected:
    [[nodiscard]] bool filterAcceptsRow(int sourceRow,
                                        const QModelIndex &sourceParent) const override;
    [[nodiscard]] bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    [[nodiscard]] bool acceptsAny(const QModelIndex &sourceParent) const;

    bool m_fastChildDetection = false;
    bool m_emptyChildDetection = false;
};

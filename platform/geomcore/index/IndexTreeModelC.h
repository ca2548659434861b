#pragma once

#include "IndexTreeDisplayItemI.h"
#include "IndexTreeModelColumnC.h"

#include <QAbstractItemModel>

#include <memory>

/// The items below a root item as an item model; the root itself has no index. The first level is
/// read at construction, each further one when a view opens it (fetchMore()), and again by
/// readAgain() only. Without a column the model is empty. GUI thread only.
class VELKGEOMCORE_EXPORT IndexTreeModelC : public QAbstractItemModel
{
    Q_OBJECT

public:
    /// \a root may be null: then there is nothing to show.
    explicit IndexTreeModelC(const PRefPtr<IndexTreeDisplayItemI> &root, QObject *parent = nullptr);
    ~IndexTreeModelC() override;

    /// Adds a column at the end; the model resets.
    void addColumn(const PRefPtr<IndexTreeModelColumnC> &column);
    /// The ERP marks of all projects of a directory are asked for at once when it is read, not one
    /// by one when they are shown.
    void setErpPrefetchingEnabled(bool enabled);

    /// Index of a tree path, "cat/catalog/folder/name.prj"; reads the directories on the way to it.
    /// Not valid if there is no such item or column.
    [[nodiscard]] QModelIndex index(const PString &treePath, int column) const;
    /// Null for an index that is not valid.
    [[nodiscard]] PRefPtr<IndexTreeDisplayItemI> getDisplayItem(const QModelIndex &index) const;
    /// Announces that everything from \a first to \a last, two rows of one parent, and below them
    /// is to be asked for anew. What was not read yet stays so. Does nothing if one of both is not
    /// valid.
    void updateData(const QModelIndex &first, const QModelIndex &last);

    /// A directory that could not be read is read once more when a view opens it.
    void tryAgain(const QModelIndex &directory);

    /// Brings the rows of a directory up to date with what is there now: rows come and go, the
    /// others stay with all that was read below them. Does nothing if it was not read yet.
    void readAgain(const QModelIndex &directory);

    [[nodiscard]] QModelIndex index(int row, int column,
                                    const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex &index) const override;
    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    /// Of a directory that was not read, whether anything is in it.
    [[nodiscard]] bool hasChildren(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;
    /// What the column's role says.
    [[nodiscard]] QVariant data(const QModelIndex &index,
                                int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;
    /// Items that can be selected never have children.
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

Q_SIGNALS:
    /// A directory that was to be opened could not be read.
    void readingFailed(const QString &problem);

private:
    struct Row;

    [[nodiscard]] Row *rowOf(const QModelIndex &index) const;
    [[nodiscard]] QModelIndex indexOf(const Row &row, int column) const;
    [[nodiscard]] std::vector<std::unique_ptr<Row>> readChildren(Row &parent) const;
    [[nodiscard]] static QString problemOf(const Row &row);
    void prefetchErpMarks(const std::vector<std::unique_ptr<Row>> &rows) const;
    void announceBelow(const Row &row);
    static void renumber(Row &parent);

    std::unique_ptr<Row> m_root;
    QList<PRefPtr<IndexTreeModelColumnC>> m_columns;
    bool m_prefetchesErp = false;
};

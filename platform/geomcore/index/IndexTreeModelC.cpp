#include "IndexTreeModelC.h"

#include "IndexTreeC.h"
#include "IndexTreeDisplayItemC.h"
#include "IndexTreeErpSourceI.h"

#include <QHash>

#include <algorithm>
#include <optional>

namespace {

/// By which a row is known again: a project may follow a directory of its name.
QString keyOf(const IndexTreeDisplayItemI &item)
{
    return (item.canSelect() ? u'p' : u'd') + item.data(DisplayIndexC::FileName).toString();
}

} // namespace

struct IndexTreeModelC::Row
{
    PRefPtr<IndexTreeDisplayItemI> item;
    Row *parent = nullptr; // null for the root
    int place = 0;
    bool isRead = false;
    bool isReading = false; // what waits for a server may have other events delivered
    bool hasFailed = false;
    std::optional<bool> hasChildren; // known while nothing was read
    std::vector<std::unique_ptr<Row>> children;
};

IndexTreeModelC::IndexTreeModelC(const PRefPtr<IndexTreeDisplayItemI> &root, QObject *parent)
    : QAbstractItemModel(parent)
    , m_root(std::make_unique<Row>())
{
    m_root->item = root;
    m_root->isRead = true;
    if (root)
        m_root->children = readChildren(*m_root);
}

IndexTreeModelC::~IndexTreeModelC() = default;

void IndexTreeModelC::addColumn(const PRefPtr<IndexTreeModelColumnC> &column)
{
    if (!column)
        return;
    beginResetModel();
    m_columns.append(column);
    endResetModel();
}

void IndexTreeModelC::setErpPrefetchingEnabled(bool enabled)
{
    if (enabled && !m_prefetchesErp)
        prefetchErpMarks(m_root->children);
    m_prefetchesErp = enabled;
}

std::vector<std::unique_ptr<IndexTreeModelC::Row>> IndexTreeModelC::readChildren(Row &parent) const
{
    std::vector<std::unique_ptr<Row>> rows;
    const QList<PRefPtr<IndexTreeDisplayItemI>> items = parent.item->children();
    rows.reserve(size_t(items.size()));
    for (const PRefPtr<IndexTreeDisplayItemI> &item : items) {
        auto row = std::make_unique<Row>();
        row->item = item;
        row->parent = &parent;
        row->place = int(rows.size());
        row->isRead = item->canSelect();
        rows.push_back(std::move(row));
    }
    if (m_prefetchesErp)
        prefetchErpMarks(rows);
    return rows;
}

void IndexTreeModelC::prefetchErpMarks(const std::vector<std::unique_ptr<Row>> &rows) const
{
    const auto source = IndexTreeC::instance()->erpSource();
    QList<IndexTreeDisplayItemC *> items;
    QStringList paths;
    for (const std::unique_ptr<Row> &row : rows) {
        auto *const item = dynamic_cast<IndexTreeDisplayItemC *>(row->item.get());
        if (item && item->canSelect()) {
            items.append(item);
            paths.append(item->node()->catalogPath());
        }
    }
    if (!source || paths.isEmpty())
        return;
    const QSet<QString> marked = source->markedProjects(paths);
    for (IndexTreeDisplayItemC *item : std::as_const(items))
        item->setErpMark(marked.contains(item->node()->catalogPath()));
}

IndexTreeModelC::Row *IndexTreeModelC::rowOf(const QModelIndex &index) const
{
    return index.isValid() ? static_cast<Row *>(index.internalPointer()) : m_root.get();
}

QModelIndex IndexTreeModelC::indexOf(const Row &row, int column) const
{
    return row.parent ? createIndex(row.place, column, &row) : QModelIndex();
}

QModelIndex IndexTreeModelC::index(const PString &treePath, int column) const
{
    QStringList names = treePath.split(u'/', Qt::SkipEmptyParts);
    if (names.isEmpty() || names.takeFirst() != u"cat" || column < 0 || column >= m_columns.size())
        return {};
    Row *row = m_root.get();
    for (const QString &name : std::as_const(names)) {
        const_cast<IndexTreeModelC *>(this)->fetchMore(indexOf(*row, 0));
        const auto found =
            std::find_if(row->children.cbegin(), row->children.cend(), [&name](const auto &child) {
                return child->item->data(DisplayIndexC::FileName).toString() == name;
            });
        if (found == row->children.cend())
            return {};
        row = found->get();
    }
    return indexOf(*row, column);
}

PRefPtr<IndexTreeDisplayItemI> IndexTreeModelC::getDisplayItem(const QModelIndex &index) const
{
    return index.isValid() ? rowOf(index)->item : nullptr;
}

void IndexTreeModelC::updateData(const QModelIndex &first, const QModelIndex &last)
{
    if (!first.isValid() || !last.isValid() || first.parent() != last.parent())
        return;
    const int lastColumn = int(m_columns.size()) - 1;
    Q_EMIT dataChanged(first.siblingAtColumn(0), last.siblingAtColumn(lastColumn));
    const Row &parent = *rowOf(first.parent());
    for (int place = first.row(); place <= last.row(); ++place)
        announceBelow(*parent.children[size_t(place)]);
}

void IndexTreeModelC::renumber(Row &parent)
{
    for (size_t place = 0; place < parent.children.size(); ++place) {
        parent.children[place]->place = int(place);
        parent.children[place]->parent = &parent;
    }
}

void IndexTreeModelC::readAgain(const QModelIndex &directory)
{
    Row &parent = *rowOf(directory);
    if (!parent.isRead || !parent.item || parent.item->canSelect())
        return;
    std::vector<std::unique_ptr<Row>> fresh = readChildren(parent);
    if (const QString problem = problemOf(parent); !problem.isEmpty()) {
        Q_EMIT readingFailed(problem);
        return;
    }
    QHash<QString, Row *> byKey;
    for (const std::unique_ptr<Row> &row : fresh)
        byKey.insert(keyOf(*row->item), row.get());
    const QModelIndex index = indexOf(parent, 0);
    for (size_t place = parent.children.size(); place-- > 0;) {
        if (byKey.contains(keyOf(*parent.children[place]->item)))
            continue;
        beginRemoveRows(index, int(place), int(place));
        parent.children.erase(parent.children.begin() + qsizetype(place));
        renumber(parent);
        endRemoveRows();
    }
    // Both are in one order, so what is not there at its place is new.
    for (size_t place = 0; place < fresh.size(); ++place) {
        if (place < parent.children.size() &&
            keyOf(*parent.children[place]->item) == keyOf(*fresh[place]->item)) {
            parent.children[place]->item = fresh[place]->item;
            parent.children[place]->hasChildren.reset();
            continue;
        }
        beginInsertRows(index, int(place), int(place));
        parent.children.insert(parent.children.begin() + qsizetype(place), std::move(fresh[place]));
        renumber(parent);
        endInsertRows();
    }
    if (!parent.children.empty() && !m_columns.isEmpty())
        Q_EMIT dataChanged(indexOf(*parent.children.front(), 0),
                           indexOf(*parent.children.back(), int(m_columns.size()) - 1));
}

void IndexTreeModelC::announceBelow(const Row &row)
{
    if (row.children.empty())
        return;
    const int lastColumn = int(m_columns.size()) - 1;
    Q_EMIT dataChanged(indexOf(*row.children.front(), 0),
                       indexOf(*row.children.back(), lastColumn));
    for (const std::unique_ptr<Row> &child : row.children)
        announceBelow(*child);
}

QModelIndex IndexTreeModelC::index(int row, int column, const QModelIndex &parent) const
{
    return hasIndex(row, column, parent)
               ? createIndex(row, column, rowOf(parent)->children[size_t(row)].get())
               : QModelIndex();
}

QModelIndex IndexTreeModelC::parent(const QModelIndex &index) const
{
    return index.isValid() ? indexOf(*rowOf(index)->parent, 0) : QModelIndex();
}

int IndexTreeModelC::rowCount(const QModelIndex &parent) const
{
    if (parent.column() > 0 || m_columns.isEmpty())
        return 0;
    return int(rowOf(parent)->children.size());
}

int IndexTreeModelC::columnCount(const QModelIndex & /*parent*/) const
{
    return int(m_columns.size());
}

bool IndexTreeModelC::hasChildren(const QModelIndex &parent) const
{
    if (parent.column() > 0 || m_columns.isEmpty())
        return false;
    Row &row = *rowOf(parent);
    if (row.isRead)
        return !row.children.empty();
    if (!row.hasChildren)
        row.hasChildren = row.item->hasChildren();
    return *row.hasChildren;
}

bool IndexTreeModelC::canFetchMore(const QModelIndex &parent) const
{
    const Row &row = *rowOf(parent);
    return parent.column() <= 0 && !m_columns.isEmpty() && !row.isRead && !row.isReading &&
           !row.hasFailed;
}

QString IndexTreeModelC::problemOf(const Row &row)
{
    const auto *const item = dynamic_cast<const IndexTreeDisplayItemC *>(row.item.get());
    return item ? item->node()->problem() : QString();
}

void IndexTreeModelC::tryAgain(const QModelIndex &directory)
{
    rowOf(directory)->hasFailed = false;
}

void IndexTreeModelC::fetchMore(const QModelIndex &parent)
{
    if (!canFetchMore(parent))
        return;
    Row &row = *rowOf(parent);
    row.isReading = true;
    std::vector<std::unique_ptr<Row>> children = readChildren(row);
    row.isReading = false;
    const QString problem = problemOf(row);
    row.hasFailed = !problem.isEmpty();
    if (row.hasFailed) {
        Q_EMIT readingFailed(problem);
        return;
    }
    row.isRead = true;
    if (children.empty()) {
        row.hasChildren = false;
        return;
    }
    beginInsertRows(parent, 0, int(children.size()) - 1);
    row.children = std::move(children);
    endInsertRows();
}

QVariant IndexTreeModelC::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const DisplayIndexC *wanted = m_columns.at(index.column())->findRole(role);
    return wanted ? rowOf(index)->item->data(*wanted) : QVariant();
}

QVariant IndexTreeModelC::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 ||
        section >= m_columns.size())
        return {};
    return QString(m_columns.at(section)->getTitle());
}

Qt::ItemFlags IndexTreeModelC::flags(const QModelIndex &index) const
{
    Qt::ItemFlags result = QAbstractItemModel::flags(index);
    if (index.isValid() && rowOf(index)->item->canSelect())
        result |= Qt::ItemNeverHasChildren;
    return result;
}

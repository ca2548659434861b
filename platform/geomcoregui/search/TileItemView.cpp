#include "TileItemView.h"

#include "SearchHitModel.h"
#include "searchText.h"
#include "SearchTileDelegate.h"

#include <core/text/PString.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/index/IndexTreeDisplayItemC.h>
#include <geomcore/repository/CatalogRepository.h>

#include <QPainter>

#include <algorithm>

namespace {

/// Of a repository no server is asked whether the project is there.
PRefPtr<IndexTreeNodeC> projectNode(const QString &path)
{
    const auto repository = IndexTreeC::instance()->repository();
    if (!repository)
        return IndexTreeC::instance()->findNodeByTreePath(PString(QStringLiteral("cat/") + path),
                                                          PString());
    const QString folder = path.section(u'/', 0, 0);
    return new IndexTreeNodeC(repository,
                              CatalogRepository::catalogOf(folder) + path.mid(folder.size()),
                              IndexTreeNodeC::Project);
}

} // namespace

TileItemView::TileItemView(QWidget *parent)
    : ItemViewBase(parent)
    , m_hits(new SearchHitModel(this))
{
    setObjectName(QStringLiteral("searchResults"));
    setAccessibleName(searchText("Gefundene Projekte"));
    setModel(m_hits);
    setItemDelegate(new SearchTileDelegate(this));
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setResizeMode(Adjust);
    setAlternatingRowColors(true);
}

TileItemView::~TileItemView() = default;

void TileItemView::showResults(const std::shared_ptr<const CatalogSearchResult> &results)
{
    const CatalogSearchHit *const former =
        m_hits->hit(selectionModel()->selectedIndexes().value(0));
    const QString selected = former ? former->path : QString();
    if (!results || !m_hits->shows(*results)) {
        selectionModel()->clear(); // a reset would not announce it
        m_hits->setResults(results);
    }
    const QModelIndex index = former ? m_hits->indexOf(selected) : QModelIndex();
    if (index.isValid())
        setCurrentIndex(index);
    viewport()->update();
}

QList<PRefPtr<IndexTreeDisplayItemI>> TileItemView::getSelectedItems() const
{
    QModelIndexList selected = selectionModel()->selectedIndexes();
    std::sort(selected.begin(), selected.end());
    QList<PRefPtr<IndexTreeDisplayItemI>> items;
    for (const QModelIndex &index : std::as_const(selected)) {
        if (const auto node = projectNode(m_hits->hit(index)->path))
            items.append(IndexTreeDisplayItemC::createFromNode(node));
    }
    return items;
}

void TileItemView::setEmptyText(const QString &text)
{
    m_emptyText = text;
    viewport()->update();
}

void TileItemView::paintEvent(QPaintEvent *event)
{
    ItemViewBase::paintEvent(event);
    if (m_hits->rowCount() > 0 || m_emptyText.isEmpty())
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const int margin = fontMetrics().height();
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignCenter | Qt::TextWordWrap, m_emptyText);
}

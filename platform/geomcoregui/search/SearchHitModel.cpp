#include "SearchHitModel.h"

#include "searchText.h"

#include <geomcore/index/IndexTreeC.h>

#include <QIcon>

namespace {

constexpr qsizetype mostTextCharacters = 300; // of what a file says of itself

/// One line of text: what comes from files may hold line feeds, control characters and much more.
QString plain(const QString &text)
{
    QString result = text.left(mostTextCharacters).simplified();
    for (QChar &c : result) {
        if (!c.isPrint())
            c = QChar::ReplacementCharacter;
    }
    return result;
}

QString titleOf(const CatalogSearchHit &hit)
{
    const QString title = plain(hit.title.isEmpty() ? hit.path.section(u'/', -1) : hit.title);
    const QString norm = plain(hit.normNumber);
    return norm.isEmpty() || title.contains(norm) ? title : norm + QStringLiteral(" – ") + title;
}

QString sizeOf(const CatalogSearchHit &hit)
{
    return hit.lineCount < 0 ? QString() : searchText("%Ln Zeile(n)", hit.lineCount);
}

QStringList linesOf(const CatalogSearchHit &hit)
{
    QStringList texts;
    for (const CatalogSearchLine &line : hit.lines)
        texts.append(QStringLiteral("%1: ").arg(line.lineNumber) + plain(line.text));
    const qsizetype more = hit.matchingLines - hit.lines.size();
    if (!texts.isEmpty() && more > 0)
        texts.append(searchText("und %Ln weitere", more));
    return texts;
}

QIcon projectIcon()
{
    const IndexTreeIconTableItemC *const item =
        IndexTreeC::instance()->getIconTable().findItem("VIEW3D/");
    return item ? item->getIcon() : QIcon();
}

} // namespace

SearchHitModel::SearchHitModel(QObject *parent)
    : QAbstractListModel(parent)
{
}

SearchHitModel::~SearchHitModel() = default;

void SearchHitModel::setResults(const std::shared_ptr<const CatalogSearchResult> &results)
{
    beginResetModel();
    m_results = results;
    endResetModel();
}

bool SearchHitModel::shows(const CatalogSearchResult &results) const
{
    return m_results && m_results->hits == results.hits;
}

QModelIndex SearchHitModel::indexOf(const QString &path) const
{
    for (int row = 0; row < rowCount(); ++row) {
        if (m_results->hits.at(row).path == path)
            return index(row);
    }
    return {};
}

const CatalogSearchHit *SearchHitModel::hit(const QModelIndex &index) const
{
    if (!index.isValid() || !checkIndex(index))
        return nullptr;
    return &m_results->hits.at(index.row());
}

int SearchHitModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() || !m_results ? 0 : int(m_results->hits.size());
}

QVariant SearchHitModel::data(const QModelIndex &index, int role) const
{
    const CatalogSearchHit *const found = hit(index);
    if (!found)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return titleOf(*found);
    case Qt::DecorationRole:
        return projectIcon();
    case Qt::AccessibleTextRole:
        return QStringList{titleOf(*found), plain(found->path), sizeOf(*found),
                           linesOf(*found).join(QStringLiteral("; "))}
            .join(QStringLiteral(", "));
    case PathRole:
        return plain(found->path);
    case SizeRole:
        return sizeOf(*found);
    case LinesRole:
        return linesOf(*found);
    default:
        return {};
    }
}

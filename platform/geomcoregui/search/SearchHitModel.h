#pragma once

#include <geomcore/search/CatalogSearchResult.h>

#include <QAbstractListModel>

#include <memory>

/// The hits of a search, one a row. What a tile shows is text as it stands, never rich text.
class SearchHitModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        PathRole = Qt::UserRole, ///< "catalog/folder/name.prj"
        SizeRole,                ///< "190 Zeilen"; empty without a table.
        LinesRole,               ///< Lines that match, as a list of texts.
    };

    explicit SearchHitModel(QObject *parent = nullptr);
    ~SearchHitModel() override;

    /// Null empties the model.
    void setResults(const std::shared_ptr<const CatalogSearchResult> &results);
    [[nodiscard]] bool shows(const CatalogSearchResult &results) const;
    /// Not valid if there is no hit of that path.
    [[nodiscard]] QModelIndex indexOf(const QString &path) const;
    /// Null for an index that is not valid.
    [[nodiscard]] const CatalogSearchHit *hit(const QModelIndex &index) const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;

private:
    std::shared_ptr<const CatalogSearchResult> m_results;
};

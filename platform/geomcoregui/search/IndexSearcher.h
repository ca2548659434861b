#pragma once

#include "CatalogSearcherI.h"

#include <memory>

class CatalogIndex;
class CatalogRepository;

/// Searches in the persistent index of the catalogs of the process's tree; of catalogs in
/// repositories, in that of their copies, which each update brings up to date first.
class IndexSearcher : public CatalogSearcherI
{
    Q_OBJECT

public:
    explicit IndexSearcher(QObject *parent = nullptr);
    ~IndexSearcher() override;

    int search(const CatalogSearchQuery &query) override;
    void cancelSearch() override;
    void update() override;
    [[nodiscard]] bool isUpdating() const override;

private:
    const std::shared_ptr<CatalogRepository> m_repository;
    const std::unique_ptr<CatalogIndex> m_index;
};

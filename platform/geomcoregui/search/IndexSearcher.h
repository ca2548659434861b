#pragma once

#include "CatalogSearcherI.h"

#include <memory>

class CatalogIndex;

/// Searches in the persistent index of the catalogs of the process's tree.
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
    [[nodiscard]] static QString root();

    const std::unique_ptr<CatalogIndex> m_index;
};

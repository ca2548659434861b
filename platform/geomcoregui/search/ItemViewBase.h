#pragma once

#include <geomcoregui/VelkGeomCoreGuiGlobal.h>

#include <core/text/PRefPtr.h>
#include <geomcore/index/IndexTreeDisplayItemI.h>
#include <geomcore/search/CatalogSearchResult.h>

#include <QListView>

#include <memory>

/// Base of views of what a search found.
class VELKGEOMCOREGUI_EXPORT ItemViewBase : public QListView
{
    Q_OBJECT

public:
    explicit ItemViewBase(QWidget *parent = nullptr);
    ~ItemViewBase() override;

    /// Shows these results in the place of the former ones; null shows none. What was selected
    /// stays so if it is among them, else nothing is selected.
    virtual void showResults(const std::shared_ptr<const CatalogSearchResult> &results) = 0;
    /// In the order in which they are shown; without those that are not there any more.
    [[nodiscard]] virtual QList<PRefPtr<IndexTreeDisplayItemI>> getSelectedItems() const = 0;
};

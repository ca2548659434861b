#pragma once

#include "ItemViewBase.h"

class SearchHitModel;

/// What a search found as tiles: icon, title, path, size of the table, lines that match. Where
/// there are none a text can say why.
class VELKGEOMCOREGUI_EXPORT TileItemView : public ItemViewBase
{
    Q_OBJECT

public:
    explicit TileItemView(QWidget *parent = nullptr);
    ~TileItemView() override;

    void showResults(const std::shared_ptr<const CatalogSearchResult> &results) override;
    [[nodiscard]] QList<PRefPtr<IndexTreeDisplayItemI>> getSelectedItems() const override;
    /// Plain text, shown as long as there are no tiles.
    void setEmptyText(const QString &text);
    [[nodiscard]] const QString &emptyText() const { return m_emptyText; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    SearchHitModel *const m_hits;
    QString m_emptyText;
};

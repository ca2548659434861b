#pragma once

#include <geomcoregui/VelkGeomCoreGuiGlobal.h>

#include <QStringList>
#include <QWidget>

#include <memory>

class FileTreeGroup;
class SearchWidgetPrivate;
class TileItemView;
class TopSearchWidget;

/// Searches in the catalogs while the user types, in the background: what is wanted above, what was
/// found below it as tiles, and a line that says how the search stands. What comes too
/// late for the words that are there now is dropped. Down goes to the tiles, Up from the first one
/// back. GUI thread.
class VELKGEOMCOREGUI_EXPORT SearchWidget : public QWidget
{
    Q_OBJECT

public:
    /// Names of the searches to offer, see TopSearchWidget. The group may be null or deleted
    /// earlier; then nothing is found.
    SearchWidget(const QStringList &searchNames, FileTreeGroup *group, QWidget *parent = nullptr);
    ~SearchWidget() override;

    [[nodiscard]] TileItemView *getItemView() const;
    [[nodiscard]] TopSearchWidget *getTopSearchWidget() const;

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    const std::unique_ptr<SearchWidgetPrivate> d;
};

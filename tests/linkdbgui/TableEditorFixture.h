#pragma once

#include "../geomcore/TestCatalog.h"

#include <mapping/table/TableMappingWidget.h>

#include <geomcore/records/PrjMappingC.h>
#include <geomcoregui/table/VkTableView.h>

#include <QCheckBox>
#include <QList>
#include <QPushButton>
#include <QTemporaryDir>

#include <memory>

QT_BEGIN_NAMESPACE
class QLabel;
class QMenu;
QT_END_NAMESPACE

/// A TableMappingWidget over the project "old/a.prj" of a catalog root of its own, on screen. The
/// widget's announcements are noted in the order in which they come.
struct TableEditorFixture
{
    TableEditorFixture();
    ~TableEditorFixture();

    /// Reads "old/a.prj" and shows it with the mapping.
    void load();
    void load(const VKTab::ContentRef &table);
    /// A table of the catalog, read anew.
    [[nodiscard]] VKTab::ContentRef read(const QString &project) const;
    [[nodiscard]] VKTab::ContentRef sourceTable() const { return source->getTable(); }
    [[nodiscard]] VKTab::ContentRef targetTable() const { return target->getTable(); }
    /// The mapping as the widget announced it last, else as it was loaded.
    [[nodiscard]] PrjMappingC current() const;

    /// Real events on the line of that number.
    void click(VkTableView *view, int line, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void clickIcon(VkTableView *view, int line, const QString &key) const;
    void select(int sourceLine) const { click(source, sourceLine); }
    /// Key to the widget's window, with the focus in the source view.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    /// Opens the context menu of a line, or below the lines for one that is not shown; null if none
    /// came. The caller closes it.
    [[nodiscard]] QMenu *openMenu(VkTableView *view, int line) const;
    [[nodiscard]] static QAction *rowOf(QMenu *menu, const QString &text);

    [[nodiscard]] QPushButton *button(const char *name) const;
    [[nodiscard]] QCheckBox *box(const char *name) const;
    [[nodiscard]] QLabel *label(const char *name) const;
    /// Status key value of a line.
    [[nodiscard]] static QString status(const VKTab::Content &table, int line, const char *key);
    /// "CatalogMapper" values of all source lines, by blanks, "-" for none.
    [[nodiscard]] QString states() const;
    /// Line numbers that the view's table shows, by blanks.
    [[nodiscard]] static QString visibleLines(const VKTab::Content &table);
    /// What the tool tip of a status icon tells.
    [[nodiscard]] static QString iconToolTip(VkTableView *view, int line, const QString &key);

    TestCatalog catalog;
    QTemporaryDir data;
    PrjMappingC mapping; ///< of "old/a.prj", to be filled before load()
    bool withRelease = true;
    std::unique_ptr<TableMappingWidget> widget;
    VkTableView *source;
    VkTableView *target;
    QList<PrjMappingC> published;
    QList<int> accepted;
    QStringList order; ///< "published" and "accepted N"
};

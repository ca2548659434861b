#pragma once

#include "../support/TestCatalog.h"

#include <mapping/table/TableMappingWidget.h>

#include <geomcore/project/PrjClass.h>
#include <geomcore/records/PrjMappingC.h>
#include <geomcore/table/Line.h>
#include <geomcore/table/Reader.h>
#include <geomcore/table/TabOptions.h>
#include <geomcoregui/table/VkTableModel.h>
#include <geomcoregui/table/VkTableView.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QContextMenuEvent>
#include <QFile>
#include <QLabel>
#include <QList>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

/// A TableMappingWidget over the project "old/a.prj" of a catalog root of its own, on screen. The
/// widget's announcements are noted in the order in which they come.
struct TableEditorFixture
{
    TableEditorFixture();
    ~TableEditorFixture();

    /// The projects of three lines each that many tests use, two lines assigned. \a edit is for the
    /// old one.
    void writeThreeLines(const TestCatalog::Edit &edit = {});
    /// A project of five bolts with two targets and one line without any.
    void writeBolts();
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
    /// Chooses a row of the context menu.
    void menuRow(VkTableView *view, int line, const QString &text) const;
    /// Clicks at the box of a check box.
    void tick(const char *name) const;

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

/// Cell of a line: its first variable, or the icon of a status key.
inline QModelIndex tableCell(VkTableView *view, int line, const QString &key = {})
{
    const VkTableModel *const model = view->model();
    int column = model->statusColumnCount();
    for (int i = 0; !key.isEmpty() && i < model->statusColumnCount(); ++i) {
        if (model->headerData(i, Qt::Horizontal, VkTableModel::StatusKeyRole).toString() == key ||
            model->index(0, i).data(VkTableModel::StatusKeyRole).toString() == key)
            column = i;
    }
    const QModelIndex index = model->index(model->rowOf(VKTab::LineId(line)), column);
    if (index.isValid())
        view->grid()->scrollTo(index);
    return index;
}

inline TableEditorFixture::TableEditorFixture()
    : mapping(mappingOf("old/a.prj", {"new/a.prj"}))
    , widget(std::make_unique<TableMappingWidget>(nullptr))
    , source(widget->findChild<VkTableView *>("sourceView"))
    , target(widget->findChild<VkTableView *>("targetView"))
{
    qputenv("TORMEVA_DATA", QFile::encodeName(data.path()));
    QFile::link(catalog.root(), data.filePath("23d-libs"));
    QObject::connect(widget.get(), &TableMappingWidget::projectMappingUpdated, widget.get(),
                     [this](const PrjMappingC &changed) {
                         published.append(changed);
                         order.append("published");
                     });
    QObject::connect(widget.get(), &TableMappingWidget::targetLineConflictAccepted, widget.get(),
                     [this](int line) {
                         accepted.append(line);
                         order.append(QStringLiteral("accepted %1").arg(line));
                     });
    widget->resize(1000, 600);
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget.get()));
    widget->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(widget.get()));
}

inline TableEditorFixture::~TableEditorFixture() = default;

inline VKTab::ContentRef TableEditorFixture::read(const QString &project) const
{
    return catalog.read(project);
}

inline void TableEditorFixture::writeThreeLines(const TestCatalog::Edit &edit)
{
    catalog.write("old/a.prj", "D,k:n\nM8,5\nM9,6\nM10,7\n", edit);
    catalog.write("new/a.prj", "D,k:n\nM10,7\nM9,66\nM8,5\n");
    enter(mapping, 0, 1, 3, PRJMAPPING::Mapped);
    enter(mapping, 0, 2, 2, PRJMAPPING::ToCheck);
}

inline void TableEditorFixture::writeBolts()
{
    const auto norm = [](const QString &number) {
        return [number](VKTab::TableDescriptor &table) {
            table.normNumber = number;
            table.lineNormNumber = number + "-{D}";
            table.lineDesignation = "Bolt {D}";
        };
    };
    catalog.write("old/a.prj", "D,k:n\nM8,5\nM9,6\nM10,7\nM11,8\nM12,9\n", norm("DIN 1"));
    catalog.write("new/a.prj", "D,k:n\nM10,7\nM9,66\nM8,5\nM20,1\n", norm("ISO 1"));
    catalog.write("new/b.prj", "D,k:n\nM11,8\nM30,1\n", norm("ISO 2"));
    mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj", ""});
    enter(mapping, 0, 1, 3, PRJMAPPING::Mapped);
    enter(mapping, 0, 2, 2, PRJMAPPING::ToCheck);
    enter(mapping, 0, 3, 1, PRJMAPPING::Verified);
    enter(mapping, 1, 4, 1, PRJMAPPING::Mapped);
    enter(mapping, 2, 5, -1, PRJMAPPING::Mapped);
}

inline void TableEditorFixture::load()
{
    load(read("old/a.prj"));
}

inline void TableEditorFixture::load(const VKTab::ContentRef &table)
{
    ReleaseMappingC release;
    release.setSourceDate("2026-01-01");
    release.setTargetDate("2026-06-01");
    release.addMapping(mapping);
    CatalogMappingC mappings;
    if (withRelease)
        mappings.addRelease(release);
    widget->loadSourceTable(table, mapping, mappings);
    QCoreApplication::processEvents();
}

inline PrjMappingC TableEditorFixture::current() const
{
    return published.isEmpty() ? mapping : published.last();
}

inline void TableEditorFixture::click(VkTableView *view, int line,
                                      Qt::KeyboardModifiers modifiers) const
{
    const QModelIndex index = tableCell(view, line);
    QVERIFY(index.isValid());
    QTest::mouseClick(view->grid()->viewport(), Qt::LeftButton, modifiers,
                      view->grid()->visualRect(index).center());
}

inline void TableEditorFixture::clickIcon(VkTableView *view, int line, const QString &key) const
{
    const QModelIndex index = tableCell(view, line, key);
    QVERIFY(index.isValid());
    // A column that is not shown, or not there, has no place to click at.
    QCOMPARE(index.data(VkTableModel::StatusKeyRole).toString(), key);
    QVERIFY(!view->grid()->visualRect(index).isEmpty());
    QTest::mouseClick(view->grid()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      view->grid()->visualRect(index).center());
}

inline void TableEditorFixture::press(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    QTest::keyClick(widget->window()->windowHandle(), key, modifiers);
}

inline QMenu *TableEditorFixture::openMenu(VkTableView *view, int line) const
{
    const QModelIndex index = tableCell(view, line);
    QWidget *const viewport = view->grid()->viewport();
    const QPoint place = index.isValid() ? view->grid()->visualRect(index).center()
                                         : viewport->rect().bottomLeft() + QPoint(5, -5);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, viewport->mapToGlobal(place));
    QCoreApplication::sendEvent(viewport, &event);
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

inline QAction *TableEditorFixture::rowOf(QMenu *menu, const QString &text)
{
    for (QAction *const row : menu->actions()) {
        if (row->text() == text)
            return row;
    }
    return nullptr;
}

inline void TableEditorFixture::menuRow(VkTableView *view, int line, const QString &text) const
{
    QMenu *const menu = openMenu(view, line);
    QVERIFY(menu);
    QAction *const row = rowOf(menu, text);
    QVERIFY(row);
    row->trigger();
    menu->close();
}

inline void TableEditorFixture::tick(const char *name) const
{
    QTest::mouseClick(box(name), Qt::LeftButton, Qt::NoModifier,
                      QPoint(8, box(name)->height() / 2));
}

inline QPushButton *TableEditorFixture::button(const char *name) const
{
    return widget->findChild<QPushButton *>(QLatin1String(name));
}

inline QCheckBox *TableEditorFixture::box(const char *name) const
{
    return widget->findChild<QCheckBox *>(QLatin1String(name));
}

inline QLabel *TableEditorFixture::label(const char *name) const
{
    return widget->findChild<QLabel *>(QLatin1String(name));
}

inline QString TableEditorFixture::status(const VKTab::Content &table, int line, const char *key)
{
    return table.getLine(VKTab::LineId(line), false).getLineKeyValue(QLatin1String(key)).toString();
}

inline QString TableEditorFixture::states() const
{
    QStringList all;
    for (const VKTab::LineId &id : sourceTable().getLineIdList()) {
        const QString state = status(sourceTable(), id.value(0), "CatalogMapper");
        all.append(state.isEmpty() ? QStringLiteral("-") : state);
    }
    return all.join(u' ');
}

inline QString TableEditorFixture::visibleLines(const VKTab::Content &table)
{
    QStringList all;
    for (const VKTab::LineId &id : table.getLineMapping().getOrdered())
        all.append(QString::number(id.value(0)));
    return all.join(u' ');
}

inline QString TableEditorFixture::iconToolTip(VkTableView *view, int line, const QString &key)
{
    return view->model()->statusToolTip(tableCell(view, line, key), view);
}

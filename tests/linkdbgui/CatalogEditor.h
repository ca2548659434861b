#pragma once

#include "EditorFixture.h"

#include <mapping/project/MappingConflictWidget.h>
#include <mapping/project/ProjectMappingWidget.h>
#include <mapping/table/TableMappingWidget.h>
#include <mapping/view/CatalogMappingWidget.h>

#include <QApplication>
#include <QCheckBox>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTimer>
#include <QTreeView>

inline const QByteArray lines = "D,k:n\nM8,5\nM9,6\nM10,7\n";

/// One line in each state and one without target line: lines 4, mapped 1, not found 1, to check 1,
/// verified 1.
inline PrjMappingC mixedMapping(const QString &source)
{
    PrjMappingC mapping = mappingOf(source, {"new/a.prj", ""});
    enter(mapping, 0, 1, 1, PRJMAPPING::ToCheck);
    enter(mapping, 0, 2, 2, PRJMAPPING::Mapped);
    enter(mapping, 0, 3, 3, PRJMAPPING::Verified);
    enter(mapping, 1, 4, -1, PRJMAPPING::ToCheck);
    mapping.updateMappingState();
    return mapping;
}

inline PrjMappingC verifiedMapping(const QString &source)
{
    PrjMappingC mapping = mappingOf(source, {"new/a.prj"});
    enter(mapping, 0, 1, 1, PRJMAPPING::Verified);
    return mapping;
}

/// Projects "old/dir/a.prj" and "old/dir/b.prj" with tables, "old/dir/gone.prj" without a file and
/// "old/done/c.prj", all of whose lines are confirmed.
inline ReleaseMappingC sampleRelease()
{
    ReleaseMappingC release;
    release.setSourceDate("2024");
    release.setTargetDate("2025");
    release.addMapping(mixedMapping("old/dir/a.prj"));
    release.addMapping(mixedMapping("old/dir/b.prj"));
    release.addMapping(mixedMapping("old/dir/gone.prj"));
    release.addMapping(verifiedMapping("old/done/c.prj"));
    return release;
}

/// Counts paint events of a widget.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *watched) { watched->installEventFilter(this); }
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int count = 0;
};

/// The editor in its window, on sampleRelease unless another one is given.
struct Editor
{
    explicit Editor(const ReleaseMappingC &release = sampleRelease())
    {
        for (const char *const file : {"old/dir/a.prj", "old/dir/b.prj", "old/done/c.prj"})
            catalog.write(file, lines);
        catalog.write("new/a.prj", lines);
        handler = new NotingHandler(release, &calls);
        application = new NotingApplication(&calls);
        widget =
            std::make_unique<CatalogMappingWidget>(catalog.root(), handler, application, nullptr);
        tree = widget->findChild<QTreeView *>("treeView");
        table = widget->findChild<TableMappingWidget *>("tableWidget");
        project = widget->findChild<ProjectMappingWidget *>("projectWidget");
        conflicts = widget->findChild<MappingConflictWidget *>("conflictWidget");
        owner = widget->findChild<QObject *>("CatalogMappingWidgetPrivate");
        statistics = widget->findChild<QLabel *>("statisticsLabel");
    }
    void show() const
    {
        widget->resize(1400, 900);
        widget->show();
        QVERIFY(QTest::qWaitForWindowExposed(widget.get()));
        tree->expandAll();
    }
    [[nodiscard]] QModelIndex row(const QString &path) const
    {
        QModelIndex index;
        for (const QString &name : path.split('/')) {
            QModelIndex found;
            for (int child = 0; child < tree->model()->rowCount(index); ++child)
                if (tree->model()->index(child, 0, index).data() == name)
                    found = tree->model()->index(child, 0, index);
            if (!found.isValid())
                return {};
            index = found;
        }
        return index;
    }
    void click(const QString &path) const
    {
        tree->scrollTo(row(path));
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier,
                          tree->visualRect(row(path)).center());
    }
    /// "CTP": which of conflicts, table and project widget are enabled.
    [[nodiscard]] QString enabled() const
    {
        return QStringLiteral("%1%2%3").arg(conflicts->isEnabled() ? "C" : "",
                                            table->isEnabled() ? "T" : "",
                                            project->isEnabled() ? "P" : "");
    }
    [[nodiscard]] QCheckBox *box(const char *name) const
    {
        return widget->findChild<QCheckBox *>(QLatin1String(name));
    }
    /// Clicks a box at its beginning.
    void check(const char *name) const
    {
        QTest::mouseClick(box(name), Qt::LeftButton, Qt::NoModifier,
                          QPoint(6, box(name)->height() / 2));
    }
    /// The projects that the tree shows.
    [[nodiscard]] QString shownProjects() const
    {
        QStringList names;
        collect({}, names);
        return names.join(' ');
    }
    void collect(const QModelIndex &parent, QStringList &names) const
    {
        for (int child = 0; child < tree->model()->rowCount(parent); ++child) {
            const QModelIndex index = tree->model()->index(child, 0, parent);
            if (index.data().toString().endsWith(".prj"))
                names.append(index.data().toString());
            collect(index, names);
        }
    }
    /// Asks for the context menu of a row and answers it: true chooses its action, false closes it.
    /// Gives the texts of the menu, joined; empty if none came.
    [[nodiscard]] QString contextMenu(const QPoint &place, bool choose) const
    {
        QString texts;
        QTimer::singleShot(0, widget.get(), [&] {
            auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            if (!menu)
                return;
            menuPlace = menu->pos();
            for (const QAction *const action : menu->actions())
                texts += action->text();
            QTest::keyClick(menu, choose ? Qt::Key_Down : Qt::Key_Escape);
            if (choose)
                QTest::keyClick(menu, Qt::Key_Return);
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                                tree->viewport()->mapToGlobal(place));
        QApplication::sendEvent(tree->viewport(), &event);
        QCoreApplication::processEvents();
        return texts;
    }
    [[nodiscard]] QString contextMenu(const QString &path, bool choose) const
    {
        tree->scrollTo(row(path));
        return contextMenu(begin(path), choose);
    }
    /// A place at the begin of a row, where a menu has room on small screens too.
    [[nodiscard]] QPoint begin(const QString &path) const
    {
        const QRect rect = tree->visualRect(row(path));
        return {rect.left() + 2, rect.center().y()};
    }
    [[nodiscard]] PrjMappingC stored(const QString &path) const
    {
        return handler->ReleaseMappingHandler::getCatalogMapping().lastRelease().findMapping(
            path, "v1", QString());
    }

    TestCatalog catalog;
    LocalCatalogs local{catalog.root()};
    MessageCapture messages;
    QStringList calls;
    NotingHandler *handler = nullptr;
    NotingApplication *application = nullptr;
    std::unique_ptr<CatalogMappingWidget> widget;
    QTreeView *tree = nullptr;
    TableMappingWidget *table = nullptr;
    ProjectMappingWidget *project = nullptr;
    MappingConflictWidget *conflicts = nullptr;
    QObject *owner = nullptr;
    QLabel *statistics = nullptr;
    mutable QPoint menuPlace;
};

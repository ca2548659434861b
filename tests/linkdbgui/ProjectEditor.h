#pragma once

#include "EditorFixture.h"
#include "SelectionFixture.h"

#include <mapping/project/ProjectMappingWidget.h>
#include <selection/dlgSearchSelect.h>

#include <QApplication>
#include <QPointer>
#include <QPushButton>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTableView>
#include <QTabWidget>
#include <QTimer>

inline const QByteArray lines = "D,k:n\nM8,5\nM9,6\nM10,7\n";

/// Three target projects; the second holds the lines of the first too.
struct Catalog
{
    Catalog()
    {
        catalog.write("old/a.prj", lines);
        catalog.write("new/a.prj", "D,k:n\nM8,5\nM9,6\n");
        catalog.write("new/b.prj", lines);
        catalog.write("new/c.prj", "D,k:n\nM12,9\n");
    }

    TestCatalog catalog;
    LocalCatalogs local{catalog.root()};
    MessageCapture messages;
};

/// The widget with a project in it, and the announcements that it makes.
struct Editor : Catalog
{
    void load(const PrjMappingC &mapping) { load(mapping, catalogOf(mapping)); }
    void load(const PrjMappingC &mapping, const CatalogMappingC &catalogMapping)
    {
        widget.setApplicationHandler(&application);
        widget.loadSourceProject(mapping, catalog.read("old/a.prj"), catalogMapping);
        widget.resize(900, 700);
        widget.show();
        QVERIFY(QTest::qWaitForWindowExposed(&widget));
    }
    [[nodiscard]] TargetMappingWidget *panel(int place) const
    {
        return targetPanels(&widget).value(place);
    }
    [[nodiscard]] QPushButton *button(int place, const char *name) const
    {
        return panel(place)->findChild<QPushButton *>(QLatin1String(name));
    }
    void click(int place, const char *name) const
    {
        QTest::mouseClick(button(place, name), Qt::LeftButton);
    }
    /// The last announced mapping.
    [[nodiscard]] PrjMappingC announced() const
    {
        return updates.isEmpty() ? PrjMappingC() : updates.last().first().value<PrjMappingC>();
    }
    /// "index" of the panels as they stand, with "^" and "v" for enabled move buttons.
    [[nodiscard]] QString places() const
    {
        QStringList texts;
        const QList<TargetMappingWidget *> panels = targetPanels(&widget);
        for (const TargetMappingWidget *const target : panels)
            texts.append(QString::number(target->index) +
                         (target->upButton->isEnabled() ? QStringLiteral("^") : QString()) +
                         (target->downButton->isEnabled() ? QStringLiteral("v") : QString()));
        return texts.join(u' ');
    }
    /// Chooses a project in the tree of the project dialog of the next event loop, or closes the
    /// dialog. \a preselected gets what the tree has selected by itself.
    static void answerProjectDialog(const QString &path, QString *preselected = nullptr)
    {
        QTimer::singleShot(0, [path, preselected] {
            auto *const dialog = qobject_cast<dlgSearchSelect *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            const auto close = qScopeGuard([dialog = QPointer<QDialog>(dialog)] {
                if (dialog && dialog->isVisible())
                    dialog->reject();
            });
            if (path.isEmpty())
                return;
            dialog->findChild<QTabWidget *>()->setCurrentIndex(1);
            QTreeView *const tree = treeOf(*dialog);
            const QModelIndexList selected = tree->selectionModel()->selectedIndexes();
            if (preselected && !selected.isEmpty())
                *preselected = selected.first().data().toString();
            const QModelIndex row = rowAt(tree, path);
            QVERIFY(row.isValid());
            tree->selectionModel()->select(row, QItemSelectionModel::ClearAndSelect);
            QTest::mouseClick(dialog->findChild<QPushButton *>("selectButton"), Qt::LeftButton);
        });
    }

    QStringList calls;
    NotingApplication application{&calls};
    ProjectMappingWidget widget{nullptr};
    QSignalSpy updates{&widget, SIGNAL(projectMappingUpdated(PrjMappingC))};
    QSignalSpy accepted{&widget, SIGNAL(targetLineConflictAccepted(int))};
};

/// Clicks the delete button of a row.
inline void clickDelete(QTableView *view, int row)
{
    const QRect cell = view->visualRect(view->model()->index(row, 0));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier,
                      cell.topLeft() + QPoint(12, cell.height() / 2));
}

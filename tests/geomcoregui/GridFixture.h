#pragma once

#include "ViewTables.h"

#include <geomcoregui/table/TableGrid.h>
#include <geomcoregui/table/VkTableModel.h>

#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

/// A grid over the screws, without the view around it. Columns: the status columns "State" and
/// "Range", which are not in use, then Dia, L, Note and Volume.
struct GridFixture
{
    GridFixture()
        : grid(new TableGrid(&window))
    {
        table.setOptions(ViewTables::options(QString()));
        model.setTable(table);
        grid->setModel(&model);
        layout.addWidget(grid);
    }
    void show()
    {
        window.resize(600, 300);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
    }

    VKTab::ContentRef table = TestTables::screws();
    VkTableModel model;
    QWidget window;
    QVBoxLayout layout{&window};
    TableGrid *grid;
};

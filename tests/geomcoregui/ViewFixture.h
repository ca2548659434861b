#pragma once

#include "ScrewsFixture.h"

#include <geomcoregui/table/VkTableModel.h>
#include <geomcoregui/table/VkTableView.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QTableView>
#include <QTest>

#include <memory>

/// A view over the screws, and how a user meets it: mouse, keys, menus.
class ViewFixture : protected ScrewsFixture
{
protected:
    void makeView()
    {
        m_table = TestTables::screws();
        m_table.setOptions(ViewTables::options(m_image));
        m_view = std::make_unique<VkTableView>();
        m_view->resize(700, 300);
        m_view->setTable(m_table);
        m_view->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    }

    void clear()
    {
        m_view.reset();
        m_table = VKTab::ContentRef();
    }

    [[nodiscard]] QTableView *grid() const { return qobject_cast<QTableView *>(m_view->grid()); }
    [[nodiscard]] QPoint cellAt(int row, int column) const
    {
        return grid()->visualRect(m_view->model()->index(row, column)).center();
    }
    void click(int row, int column, Qt::KeyboardModifiers modifiers = {},
               Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(grid()->viewport(), button, modifiers, cellAt(row, column));
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(grid(), key, modifiers);
    }
    void contextMenu(const QPoint &position)
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, position,
                                grid()->viewport()->mapToGlobal(position));
        QApplication::sendEvent(grid()->viewport(), &event);
    }
    [[nodiscard]] QList<int> selected() const
    {
        QList<int> result;
        for (const VKTab::LineId &id : m_view->getSelectedLines())
            result.append(id.value(0));
        return result;
    }
    template<class Widget>
    [[nodiscard]] Widget *part(const char *name) const
    {
        return m_view->findChild<Widget *>(QString::fromLatin1(name));
    }

    std::unique_ptr<VkTableView> m_view;
};

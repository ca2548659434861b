#include <gui/views/ButtonBarDelegate.h>
#include <gui/views/PButtonHeaderView.h>

#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>
#include <QToolTip>
#include <QTreeView>

namespace {

QIcon someIcon()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    return pixmap;
}

} // namespace

class tst_ButtonViews : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void headerButtonIsClicked()
    {
        QTreeView view;
        QStandardItemModel model(1, 3);
        model.setHorizontalHeaderLabels({"", "b", "c"});
        auto *const header = new PButtonHeaderView(QSize(24, 24), Qt::Horizontal, &view);
        view.setHeader(header);
        view.setModel(&model);
        header->setButtonForSection(0, QString(), someIcon(), "Hinzufügen");
        view.resize(400, 200);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        QVERIFY(header->viewport()->hasMouseTracking());
        QCOMPARE(header->sectionResizeMode(0), QHeaderView::ResizeToContents);
        QVERIFY(header->stretchLastSection());

        QSignalSpy spy(header, SIGNAL(buttonClicked(int)));
        const QRect button = header->buttonRect(0);
        QVERIFY(button.width() >= 24);
        QVERIFY(header->sectionSize(0) >= 24);
        QVERIFY(header->buttonRect(1).isEmpty());
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, button.center());
        QCOMPARE(spy.size(), 1);
        QCOMPARE(spy.first().first().toInt(), 0);
        // Pressed on the button, released beside it.
        QTest::mousePress(header->viewport(), Qt::LeftButton, {}, button.center());
        QTest::mouseRelease(header->viewport(), Qt::LeftButton, {}, QPoint(300, 5));
        QCOMPARE(spy.size(), 1);
        QTest::mouseClick(header->viewport(), Qt::RightButton, {}, button.center());
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(300, 5));
        QCOMPARE(spy.size(), 1);
    }

    void headerButtonTellsItsToolTip()
    {
        QTableView view;
        QStandardItemModel model(1, 2);
        auto *const header = new PButtonHeaderView(QSize(24, 24), Qt::Horizontal, &view);
        view.setHorizontalHeader(header);
        view.setModel(&model);
        header->setButtonForSection(0, QString(), someIcon(), "Ein Tipp");
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const QPoint at = header->buttonRect(0).center();
        QHelpEvent help(QEvent::ToolTip, at, header->viewport()->mapToGlobal(at));
        QCoreApplication::sendEvent(header->viewport(), &help);
        QCOMPARE(QToolTip::text(), QString("Ein Tipp"));
    }

    void barButtonsAreClicked()
    {
        QTableView view;
        QStandardItemModel model(2, 2);
        auto *const delegate = new ButtonBarDelegate(&view);
        QCOMPARE(delegate->addButton("remove", "Entfernen", someIcon()), 0);
        QCOMPARE(delegate->addButton("edit", "Bearbeiten", someIcon()), 1);
        QCOMPARE(delegate->countButtons(), 2);
        QCOMPARE(delegate->buttonName(1), QString("edit"));
        view.setItemDelegateForColumn(0, delegate);
        view.setModel(&model);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));

        QSignalSpy clicked(delegate, SIGNAL(buttonClicked(QModelIndex, int)));
        QSignalSpy update(delegate, SIGNAL(indexNeedsUpdate(QModelIndex)));
        const QModelIndex index = model.index(1, 0);
        const QRect cell = view.visualRect(index);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                          delegate->buttonRect(cell, 1).center());
        QCOMPARE(clicked.size(), 1);
        QCOMPARE(clicked.first().at(0).value<QModelIndex>(), index);
        QCOMPARE(clicked.first().at(1).toInt(), 1);
        QVERIFY(!update.isEmpty());
        // Pressed on one, released on the other.
        QTest::mousePress(view.viewport(), Qt::LeftButton, {},
                          delegate->buttonRect(cell, 0).center());
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, {},
                            delegate->buttonRect(cell, 1).center());
        QCOMPARE(clicked.size(), 1);
        // Beside the buttons.
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, cell.topRight() + QPoint(-2, 5));
        QCOMPARE(clicked.size(), 1);
    }
};

QTEST_MAIN(tst_ButtonViews)
#include "tst_ButtonViews.moc"

#include <gui/views/ButtonBarDelegate.h>
#include <gui/views/PButtonHeaderView.h>

#include <QSignalSpy>
#include <QStandardItemModel>
#include <QStyleOptionHeaderV2>
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

    void headerTextsThatDoNotFit()
    {
        struct Header : PButtonHeaderView
        {
            using PButtonHeaderView::PButtonHeaderView;
            QString shown(int section) const
            {
                QStyleOptionHeaderV2 option;
                initStyleOption(&option);
                initStyleOptionForIndex(&option, section);
                return option.text;
            }
        };
        QTableView view;
        QStandardItemModel model(1, 3);
        const QString label = "Variablenzuordnung";
        model.setHorizontalHeaderLabels({"", label, label});
        auto *const header = new Header(QSize(24, 24), Qt::Horizontal, &view);
        view.setHorizontalHeader(header);
        view.setModel(&model);
        const int wanted = header->fontMetrics().horizontalAdvance(label);
        header->resizeSection(1, wanted + 20);
        QCOMPARE(header->shown(1), label);
        header->resizeSection(1, wanted / 2);
        QVERIFY2(header->shown(1).endsWith(u'…'), qPrintable(header->shown(1)));
        QVERIFY(header->fontMetrics().horizontalAdvance(header->shown(1)) <= wanted / 2);
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

    // Pressed and released it looks otherwise, and the cell where another one was pressed too.
    void barButtonsAreDrawnAnew()
    {
        QTableView view;
        QStandardItemModel model(2, 1);
        auto *const delegate = new ButtonBarDelegate(&view);
        delegate->addButton("remove", "Entfernen", someIcon());
        view.setItemDelegateForColumn(0, delegate);
        view.setModel(&model);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        QList<int> rows;
        connect(delegate, &ButtonBarDelegate::indexNeedsUpdate, &view,
                [&rows](const QModelIndex &index) { rows.append(index.row()); });
        const auto button = [&](int row) {
            return delegate->buttonRect(view.visualRect(model.index(row, 0)), 0).center();
        };
        QTest::mousePress(view.viewport(), Qt::LeftButton, {}, button(0));
        QCOMPARE(std::exchange(rows, {}), QList<int>{0});
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, button(0));
        QCOMPARE(std::exchange(rows, {}), QList<int>{0});
        QTest::mousePress(view.viewport(), Qt::LeftButton, {}, button(0));
        QTest::mousePress(view.viewport(), Qt::LeftButton, {}, button(1));
        QCOMPARE(rows, QList<int>({0, 0, 1}));
    }

    void barButtonsFromRightToLeft()
    {
        QTableView view;
        view.setLayoutDirection(Qt::RightToLeft);
        QStandardItemModel model(1, 1);
        auto *const delegate = new ButtonBarDelegate(&view);
        delegate->addButton("remove", "Entfernen", someIcon());
        delegate->addButton("edit", "Bearbeiten", someIcon());
        view.setItemDelegateForColumn(0, delegate);
        view.setModel(&model);
        view.setColumnWidth(0, 200);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const QRect cell = view.visualRect(model.index(0, 0));
        const QRect first = delegate->buttonRect(cell, 0, Qt::RightToLeft);
        QCOMPARE(first.right(), cell.right());
        const QSignalSpy clicked(delegate, &ButtonBarDelegate::buttonClicked);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, first.center());
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                          delegate->buttonRect(cell, 0, Qt::LeftToRight).center());
        QCOMPARE(clicked.size(), 1);
        QCOMPARE(clicked.at(0).at(1).toInt(), 0);
        // They are drawn where they are clicked.
        const QImage shown = view.viewport()->grab().toImage();
        QCOMPARE(shown.pixelColor(first.center()), QColor(Qt::red));
        QVERIFY(shown.pixelColor(cell.left() + 10, first.center().y()) != QColor(Qt::red));
    }

    void barButtonsAreForTheLeftMouseButton()
    {
        QTableView view;
        QStandardItemModel model(1, 1);
        auto *const delegate = new ButtonBarDelegate(&view);
        delegate->addButton("remove", "Entfernen", someIcon());
        view.setItemDelegateForColumn(0, delegate);
        view.setModel(&model);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const QPoint at = delegate->buttonRect(view.visualRect(model.index(0, 0)), 0).center();
        const QSignalSpy clicked(delegate, &ButtonBarDelegate::buttonClicked);
        QTest::mouseClick(view.viewport(), Qt::RightButton, {}, at);
        QTest::mouseClick(view.viewport(), Qt::MiddleButton, {}, at);
        QCOMPARE(clicked.size(), 0);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, at);
        QCOMPARE(clicked.size(), 1);
    }

    void barButtonsByKeyboard()
    {
        QTableView view;
        QStandardItemModel model(2, 2);
        auto *const delegate = new ButtonBarDelegate(&view);
        delegate->addButton("remove", "Entfernen", someIcon());
        delegate->addButton("edit", "Bearbeiten", someIcon());
        view.setItemDelegateForColumn(0, delegate);
        view.setEditTriggers(QAbstractItemView::NoEditTriggers);
        view.setModel(&model);
        view.show();
        QVERIFY(QTest::qWaitForWindowActive(&view));
        view.setFocus();
        QStringList clicked;
        connect(delegate, &ButtonBarDelegate::buttonClicked, &view,
                [&clicked](const QModelIndex &index, int button) {
                    clicked.append(QStringLiteral("%1:%2").arg(index.row()).arg(button));
                });
        view.setCurrentIndex(model.index(1, 0));
        QTest::keyClick(&view, Qt::Key_Space);
        QTest::keyClick(&view, Qt::Key_2);
        QTest::keyClick(&view, Qt::Key_3);
        QTest::keyClick(&view, Qt::Key_1, Qt::ControlModifier);
        QTest::keyClick(&view, Qt::Key_1);
        view.setCurrentIndex(model.index(1, 1));
        QTest::keyClick(&view, Qt::Key_Space);
        QCOMPARE(clicked, QStringList({"1:0", "1:1", "1:0"}));
    }

    // It goes when the mouse leaves the button.
    void barToolTipBelongsToItsButton()
    {
        QTableView view;
        QStandardItemModel model(1, 1);
        auto *const delegate = new ButtonBarDelegate(&view);
        delegate->addButton("remove", "Entfernen", someIcon());
        delegate->addButton("edit", "Bearbeiten", someIcon());
        view.setItemDelegateForColumn(0, delegate);
        view.setModel(&model);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const QRect cell = view.visualRect(model.index(0, 0));
        const QPoint at = delegate->buttonRect(cell, 0).center();
        const QPoint global = view.viewport()->mapToGlobal(at);
        QHelpEvent other(QEvent::WhatsThis, at, global);
        QCoreApplication::sendEvent(view.viewport(), &other);
        QVERIFY(!QToolTip::isVisible());
        QHelpEvent help(QEvent::ToolTip, at, global);
        QCoreApplication::sendEvent(view.viewport(), &help);
        QCOMPARE(QToolTip::text(), QString("Entfernen"));
        QTest::mouseMove(view.viewport(), at + QPoint(1, 1));
        QVERIFY(QToolTip::isVisible());
        QTest::mouseMove(view.viewport(), delegate->buttonRect(cell, 1).center());
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void headerFitsColumnsThatComeLater()
    {
        QTreeView view;
        QStandardItemModel model;
        auto *const header = new PButtonHeaderView(QSize(24, 24), Qt::Horizontal, &view);
        view.setHeader(header);
        view.setModel(&model);
        model.setColumnCount(2);
        QCOMPARE(header->sectionResizeMode(0), QHeaderView::ResizeToContents);
        QCOMPARE(header->sectionResizeMode(1), QHeaderView::Interactive);
    }

    void headerButtonsByKeyboard()
    {
        QWidget window;
        QTreeView view(&window);
        QStandardItemModel model(1, 4);
        auto *const header = new PButtonHeaderView(QSize(24, 24), Qt::Horizontal, &view);
        view.setHeader(header);
        view.setModel(&model);
        QCOMPARE(header->focusPolicy(), Qt::NoFocus);
        for (int section : {0, 1, 3})
            header->setButtonForSection(section, QString(), someIcon(), "Tipp");
        header->hideSection(1);
        window.resize(600, 300);
        view.resize(600, 300);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QList<int> clicked;
        connect(header, &PButtonHeaderView::buttonClicked, &view,
                [&clicked](int section) { clicked.append(section); });
        view.setFocus();
        QTest::keyClick(&view, Qt::Key_Space);
        QVERIFY(clicked.isEmpty());
        const QImage plain = header->viewport()->grab(header->buttonRect(0)).toImage();
        QTest::keyClick(&view, Qt::Key_Tab);
        QVERIFY(header->hasFocus());
        QVERIFY(header->viewport()->grab(header->buttonRect(0)).toImage() != plain);
        QTest::keyClick(header, Qt::Key_Space);
        QTest::keyClick(header, Qt::Key_Left);
        QTest::keyClick(header, Qt::Key_Return);
        QTest::keyClick(header, Qt::Key_Right);
        QTest::keyClick(header, Qt::Key_Space);
        QTest::keyClick(header, Qt::Key_Right);
        QTest::keyClick(header, Qt::Key_Enter);
        QCOMPARE(std::exchange(clicked, {}), QList<int>({0, 0, 3, 3}));
        view.setFocus();
        header->setLayoutDirection(Qt::RightToLeft);
        header->setFocus();
        QTest::keyClick(header, Qt::Key_Space);
        QTest::keyClick(header, Qt::Key_Right);
        QTest::keyClick(header, Qt::Key_Space);
        QCOMPARE(clicked, QList<int>({3, 0}));
    }

    void headerButtonsOfSeveralSections()
    {
        QTableView view;
        view.setLayoutDirection(Qt::RightToLeft);
        QStandardItemModel model(1, 3);
        auto *const header = new PButtonHeaderView(QSize(24, 24), Qt::Horizontal, &view);
        view.setHorizontalHeader(header);
        view.setModel(&model);
        header->setButtonForSection(0, "A", someIcon(), "Tipp A");
        header->setButtonForSection(2, QString(), someIcon(), "Tipp C");
        view.resize(600, 200);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const QSignalSpy clicked(header, &PButtonHeaderView::buttonClicked);
        const QRect first = header->buttonRect(0);
        QCOMPARE(first.right(), header->sectionViewportPosition(0) + header->sectionSize(0) - 1);
        QVERIFY(first.width() > header->buttonRect(2).width());
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, header->buttonRect(2).center());
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, first.center());
        QCOMPARE(clicked.size(), 2);
        QCOMPARE(clicked.at(0).at(0).toInt(), 2);
        QCOMPARE(clicked.at(1).at(0).toInt(), 0);
        // Pressed on one, released on the other.
        QTest::mousePress(header->viewport(), Qt::LeftButton, {}, first.center());
        QTest::mouseRelease(header->viewport(), Qt::LeftButton, {}, header->buttonRect(2).center());
        QCOMPARE(clicked.size(), 2);
    }

    void headerButtonShowsThatTheMouseIsOnIt()
    {
        QTableView view;
        QStandardItemModel model(1, 2);
        auto *const header = new PButtonHeaderView(QSize(24, 24), Qt::Horizontal, &view);
        view.setHorizontalHeader(header);
        view.setModel(&model);
        header->setButtonForSection(0, QString(), someIcon(), "Tipp");
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const QRect button = header->buttonRect(0);
        const auto shown = [&] {
            return header->viewport()->grab(button.adjusted(0, 0, 1, 1)).toImage();
        };
        const QImage plain = shown();
        QTest::mouseMove(header->viewport(), button.center());
        QTRY_VERIFY(shown() != plain);
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(header->viewport(), &leave);
        QCOMPARE(shown(), plain);
    }

    void pressedRowIsRemoved()
    {
        QTableView view;
        QStandardItemModel model(2, 1);
        auto *const delegate = new ButtonBarDelegate(&view);
        delegate->addButton("remove", "Entfernen", someIcon());
        view.setItemDelegateForColumn(0, delegate);
        view.setModel(&model);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const QSignalSpy clicked(delegate, &ButtonBarDelegate::buttonClicked);
        const QPoint at = delegate->buttonRect(view.visualRect(model.index(0, 0)), 0).center();
        QTest::mousePress(view.viewport(), Qt::LeftButton, {}, at);
        model.removeRow(0);
        // What comes to stand there was not pressed.
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, at);
        QCOMPARE(clicked.size(), 0);
    }
};

QTEST_MAIN(tst_ButtonViews)
#include "tst_ButtonViews.moc"

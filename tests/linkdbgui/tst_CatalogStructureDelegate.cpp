#include "CatalogNodes.h"

#include <mapping/view/CatalogStructureDelegate.h>
#include <mapping/view/CatalogStructureModel.h>

#include <QApplication>
#include <QFile>
#include <QHelpEvent>
#include <QPainter>
#include <QProxyStyle>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>
#include <QToolTip>
#include <QTreeView>

namespace {

/// Notes the items that are drawn.
class NotingStyle : public QProxyStyle
{
public:
    NotingStyle()
        : QProxyStyle("fusion")
    {
    }
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        if (element == CE_ItemViewItem) {
            items += *qstyleoption_cast<const QStyleOptionViewItem *>(option);
            widgets += widget;
        }
        QProxyStyle::drawControl(element, option, painter, widget);
    }
    void forget() const
    {
        items.clear();
        widgets.clear();
    }

    mutable QList<QStyleOptionViewItem> items;
    mutable QList<const QWidget *> widgets;
};

/// What is drawn of a row: square by square, in device pixels.
struct Picture
{
    explicit Picture(const QSize &size, qreal ratio = 1)
        : image(size * ratio, QImage::Format_ARGB32_Premultiplied)
    {
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::transparent);
    }
    Picture &draw(int x, const QIcon &icon, int side = 16, QIcon::State state = QIcon::Off)
    {
        QPainter painter(&image);
        painter.drawPixmap(
            x, 0, icon.pixmap(QSize(side, side), image.devicePixelRatio(), QIcon::Normal, state));
        return *this;
    }
    QImage image;
};

QIcon stateIcon(const QString &name)
{
    return QIcon(":/bitmaps/" + name + ".png");
}

QImage imageOf(const QStyleOptionViewItem &item, qreal ratio = 1)
{
    return item.icon.pixmap(item.decorationSize, ratio)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// Pixels that differ on white ground by a third of a colour or so.
int clearlyDifferentPixels(QImage first, QImage second)
{
    for (QImage *image : {&first, &second}) {
        QPainter painter(image);
        painter.setCompositionMode(QPainter::CompositionMode_DestinationOver);
        painter.fillRect(image->rect(), Qt::white);
    }
    int count = 0;
    for (int y = 0; y < first.height(); ++y)
        for (int x = 0; x < first.width(); ++x) {
            const QColor a = first.pixelColor(x, y);
            const QColor b = second.pixelColor(x, y);
            count += std::abs(a.red() - b.red()) > 80 || std::abs(a.green() - b.green()) > 80 ||
                     std::abs(a.blue() - b.blue()) > 80;
        }
    return count;
}

QIcon iconOf(const QModelIndex &index)
{
    return index.data(Qt::DecorationRole).value<QIcon>();
}

} // namespace

// The macros are not for namespaces.
static void releaseBitmaps()
{
    Q_CLEANUP_RESOURCE(VelkLinkDbGui);
}

static void registerBitmaps()
{
    Q_INIT_RESOURCE(VelkLinkDbGui);
}

class tst_CatalogStructureDelegate : public QObject
{
    Q_OBJECT

    const NotingStyle *m_style = nullptr;

    /// Draws a row and gives the item that the style was asked to draw.
    QStyleOptionViewItem painted(const QModelIndex &index, const QStyleOptionViewItem &option,
                                 qreal ratio = 1) const
    {
        const CatalogStructureDelegate delegate(nullptr);
        QImage image(QSize(200, 40) * ratio, QImage::Format_ARGB32);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::white);
        QPainter painter(&image);
        m_style->forget();
        delegate.paint(&painter, option, index);
        return m_style->items.size() == 1 ? m_style->items.first() : QStyleOptionViewItem();
    }
    static QStyleOptionViewItem rowOption()
    {
        QStyleOptionViewItem option;
        option.rect = QRect(0, 0, 200, 20);
        option.decorationSize = QSize(16, 16);
        option.state = QStyle::State_Enabled;
        return option;
    }

private Q_SLOTS:
    void initTestCase()
    {
        auto *style = new NotingStyle;
        m_style = style;
        QApplication::setStyle(style);
    }

    void init() { m_style->forget(); }

    void bitmapsAreThere_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name :
             {"state_check", "state_confirmed", "state_deleted", "error", "state_conflict"})
            QTest::newRow(name) << QString(name);
    }
    void bitmapsAreThere()
    {
        QFETCH(QString, name);
        const QIcon icon = stateIcon(name);
        QCOMPARE(icon.actualSize(QSize(16, 16)), QSize(16, 16));
        const QImage image = Picture(QSize(16, 16)).draw(0, icon).image;
        QVERIFY(image != Picture(QSize(16, 16)).image);
        // What lies below must be seen beside it.
        QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    }

    void nothingForAnInvalidIndex()
    {
        const CatalogStructureDelegate delegate(nullptr);
        QImage image(100, 20, QImage::Format_ARGB32);
        image.fill(Qt::white);
        const QImage before = image.copy();
        QPainter painter(&image);
        delegate.paint(&painter, rowOption(), QModelIndex());
        painter.end();
        QVERIFY(m_style->items.isEmpty());
        QCOMPARE(image, before);
    }

    void statesInOneSquare_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<bool>("conflicts");
        QTest::addColumn<QStringList>("icons");
        const auto row = [](const char *name, int state, bool conflicts, const QStringList &icons) {
            QTest::newRow(name) << state << conflicts << icons;
        };
        row("nothing", 0, false, {});
        row("bits that draw nothing", 0x403, false, {});
        row("error", 0x800, false, {"error"});
        row("unmapped", 0x100, false, {"state_deleted"});
        row("unconfirmed", 0x080, false, {"state_check"});
        row("confirmed", 0x200, false, {"state_confirmed"});
        row("unconfirmed hides confirmed", 0x280, false, {"state_check"});
        row("unmapped below confirmed", 0x300, false, {"state_deleted", "state_confirmed"});
        row("unmapped below unconfirmed", 0x180, false, {"state_deleted", "state_check"});
        row("error below unmapped", 0x900, false, {"error", "state_deleted"});
        row("conflict", 0, true, {"state_conflict"});
        row("all with unconfirmed", 0xF83, true,
            {"error", "state_deleted", "state_check", "state_conflict"});
        row("all with confirmed", 0xF03, true,
            {"error", "state_deleted", "state_confirmed", "state_conflict"});
    }
    void statesInOneSquare()
    {
        QFETCH(int, state);
        QFETCH(bool, conflicts);
        QFETCH(QStringList, icons);
        const TestNode::Ptr node = TestNode::project("a.prj", state);
        node->conflicts = conflicts;
        const CatalogStructureModel model(TestNode::root({node}));
        const QModelIndex index = model.index(0, 0);
        const QStyleOptionViewItem item = painted(index, rowOption());
        QCOMPARE(item.decorationSize, QSize(32, 16));
        Picture expected(QSize(32, 16));
        for (const QString &icon : std::as_const(icons))
            expected.draw(0, stateIcon(icon));
        expected.draw(16, iconOf(index));
        QCOMPARE(imageOf(item), expected.image);
    }

    void everyCombinationLooksDifferent()
    {
        QList<QImage> pictures;
        for (int i = 0; i < 12; ++i) {
            Picture picture(QSize(16, 16));
            if (i % 2 == 1)
                picture.draw(0, stateIcon("error"));
            if (i / 2 % 2 == 1)
                picture.draw(0, stateIcon("state_deleted"));
            if (i / 4 > 0)
                picture.draw(0, stateIcon(i / 4 == 1 ? "state_check" : "state_confirmed"));
            for (int other = 0; other < i; ++other)
                QVERIFY2(clearlyDifferentPixels(pictures[other], picture.image) >= 4,
                         qPrintable(QStringLiteral("%1 and %2").arg(other).arg(i)));
            pictures += picture.image;
        }
    }

    void onTwoDevicePixelsToOne()
    {
        const CatalogStructureModel model(TestNode::root({TestNode::project("a.prj", 0x180)}));
        const QStyleOptionViewItem item = painted(model.index(0, 0), rowOption(), 2);
        QCOMPARE(item.decorationSize, QSize(32, 16));
        Picture expected(QSize(32, 16), 2);
        expected.draw(0, stateIcon("state_deleted")).draw(0, stateIcon("state_check"));
        expected.draw(16, iconOf(model.index(0, 0)));
        const QImage image = imageOf(item, 2);
        QCOMPARE(image.size(), QSize(64, 32));
        QCOMPARE(image.devicePixelRatio(), 2.0);
        QCOMPARE(image, expected.image);
        // The row's own icon is drawn for these pixels.
        QVERIFY(image.copy(32, 0, 32, 32) !=
                Picture(QSize(16, 16)).draw(0, iconOf(model.index(0, 0))).image.scaled(32, 32));
    }

    void openRowsShowTheOpenIcon()
    {
        const CatalogStructureModel model(TestNode::root({TestNode::directory("a")}));
        const QIcon icon = iconOf(model.index(0, 0));
        QStyleOptionViewItem option = rowOption();
        const QImage closed = imageOf(painted(model.index(0, 0), option));
        option.state |= QStyle::State_Open;
        const QImage open = imageOf(painted(model.index(0, 0), option));
        QCOMPARE(closed, Picture(QSize(32, 16)).draw(16, icon, 16, QIcon::Off).image);
        QCOMPARE(open, Picture(QSize(32, 16)).draw(16, icon, 16, QIcon::On).image);
        QVERIFY(open != closed);
    }

    void otherDecorationSizes_data()
    {
        QTest::addColumn<int>("side");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("ownIconAt");
        QTest::newRow("small") << 12 << QSize(24, 12) << 12;
        // The blank one is never enlarged.
        QTest::newRow("large") << 24 << QSize(40, 24) << 16;
    }
    void otherDecorationSizes()
    {
        QFETCH(int, side);
        QFETCH(QSize, size);
        QFETCH(int, ownIconAt);
        const CatalogStructureModel model(TestNode::root({TestNode::project("a.prj", 0x100)}));
        QStyleOptionViewItem option = rowOption();
        option.decorationSize = QSize(side, side);
        const QStyleOptionViewItem item = painted(model.index(0, 0), option);
        QCOMPARE(item.decorationSize, size);
        QCOMPARE(imageOf(item), Picture(size)
                                    .draw(0, stateIcon("state_deleted"), side)
                                    .draw(ownIconAt, iconOf(model.index(0, 0)), side)
                                    .image);
    }

    void rowsWithoutDecorationShowTheirStateOnly()
    {
        QStandardItemModel model;
        auto *row = new QStandardItem("text");
        row->setData(0x100, CatalogStructureModel::MappingStateRole);
        model.appendRow(row);
        const QStyleOptionViewItem item = painted(model.index(0, 0), rowOption());
        QCOMPARE(item.decorationSize, QSize(16, 16));
        QCOMPARE(imageOf(item), Picture(QSize(16, 16)).draw(0, stateIcon("state_deleted")).image);
    }

    void aNullIconHidesTheStates()
    {
        QStandardItemModel model;
        auto *row = new QStandardItem("text");
        row->setData(QIcon(), Qt::DecorationRole);
        row->setData(0x100, CatalogStructureModel::MappingStateRole);
        model.appendRow(row);
        QTest::failOnWarning(QRegularExpression(".*"));
        const QStyleOptionViewItem item = painted(model.index(0, 0), rowOption());
        QVERIFY(item.decorationSize.isEmpty());
    }

    /// The same delegate, a row whose icon and state change: nothing is kept from one to the next.
    void nothingIsKeptBetweenPaints()
    {
        QStandardItemModel model;
        auto *row = new QStandardItem("text");
        row->setData(0x100, CatalogStructureModel::MappingStateRole);
        model.appendRow(row);
        const CatalogStructureDelegate delegate(nullptr);
        const auto drawn = [&] {
            QImage image(200, 40, QImage::Format_ARGB32);
            QPainter painter(&image);
            m_style->forget();
            delegate.paint(&painter, rowOption(), model.index(0, 0));
            return imageOf(m_style->items.value(0));
        };
        QCOMPARE(drawn(), Picture(QSize(16, 16)).draw(0, stateIcon("state_deleted")).image);
        row->setData(0x200, CatalogStructureModel::MappingStateRole);
        QCOMPARE(drawn(), Picture(QSize(16, 16)).draw(0, stateIcon("state_confirmed")).image);
        row->setData(stateIcon("error"), Qt::DecorationRole);
        QCOMPARE(drawn(), Picture(QSize(32, 16))
                              .draw(0, stateIcon("state_confirmed"))
                              .draw(16, stateIcon("error"))
                              .image);
        row->setData(stateIcon("state_check"), Qt::DecorationRole);
        QCOMPARE(drawn(), Picture(QSize(32, 16))
                              .draw(0, stateIcon("state_confirmed"))
                              .draw(16, stateIcon("state_check"))
                              .image);
    }

    /// A plug-in without its pictures: the row is drawn with an empty place for its state.
    void missingBitmapsLeaveTheirPlaceEmpty()
    {
        QStandardItemModel model;
        auto *row = new QStandardItem("text");
        row->setData(0x100, CatalogStructureModel::MappingStateRole);
        model.appendRow(row);
        int registrations = 0;
        for (; QFile::exists(":/bitmaps/state_deleted.png") && registrations < 5; ++registrations)
            releaseBitmaps();
        const auto restored = qScopeGuard([&] {
            for (; registrations > 0; --registrations)
                registerBitmaps();
        });
        QVERIFY(!QFile::exists(":/bitmaps/state_deleted.png"));
        QTest::failOnWarning(QRegularExpression(".*"));
        const QStyleOptionViewItem item = painted(model.index(0, 0), rowOption());
        QCOMPARE(item.decorationSize, QSize(16, 16));
        QCOMPARE(imageOf(item), Picture(QSize(16, 16)).image);
    }

    void theRestOfTheOptionIsKept()
    {
        const CatalogStructureModel model(TestNode::root({TestNode::project("a.prj", 0x100)}));
        QStyleOptionViewItem option = rowOption();
        option.state |= QStyle::State_Selected;
        option.font.setItalic(true);
        const QStyleOptionViewItem item = painted(model.index(0, 0), option);
        QCOMPARE(item.text, QString("a.prj"));
        QCOMPARE(item.rect, option.rect);
        QVERIFY(item.state.testFlag(QStyle::State_Selected));
        QVERIFY(item.font.italic());
        QVERIFY(item.features.testFlag(QStyleOptionViewItem::HasDecoration));
        QVERIFY(item.index == model.index(0, 0));
    }

    void selectedRowsKeepTheirColours()
    {
        const CatalogStructureModel model(TestNode::root({TestNode::project("a.prj", 0x100)}));
        QStyleOptionViewItem option = rowOption();
        option.state |= QStyle::State_Selected;
        const QStyleOptionViewItem item = painted(model.index(0, 0), option);
        QCOMPARE(item.icon.pixmap(item.decorationSize, 1, QIcon::Selected).toImage(),
                 item.icon.pixmap(item.decorationSize, 1, QIcon::Normal).toImage());
    }

    void theStyleOfTheWidgetDraws()
    {
        NotingStyle own;
        QTreeView view;
        view.setStyle(&own);
        const CatalogStructureModel model(TestNode::root({TestNode::project("a.prj")}));
        QStyleOptionViewItem option = rowOption();
        painted(model.index(0, 0), option);
        QCOMPARE(m_style->widgets, QList<const QWidget *>{nullptr});
        QVERIFY(own.items.isEmpty());
        option.widget = &view;
        painted(model.index(0, 0), option);
        QVERIFY(m_style->items.isEmpty());
        QCOMPARE(own.widgets, QList<const QWidget *>{&view});
        view.setStyle(nullptr);
    }

    void rowsKeepTheirSize()
    {
        const CatalogStructureModel model(TestNode::root({TestNode::project("a.prj", 0xF83)}));
        const CatalogStructureDelegate delegate(nullptr);
        const QStyledItemDelegate plain;
        QCOMPARE(delegate.sizeHint(rowOption(), model.index(0, 0)),
                 plain.sizeHint(rowOption(), model.index(0, 0)));
    }

    void textsStandInOneColumn()
    {
        const TestNode::Ptr conflict = TestNode::project("b.prj", 0xF83);
        conflict->conflicts = true;
        const CatalogStructureModel model(
            TestNode::root({TestNode::project("a.prj"), conflict, TestNode::directory("c")}));
        QList<int> starts;
        for (int row = 0; row < 3; ++row) {
            const QStyleOptionViewItem item = painted(model.index(row, 0), rowOption());
            starts += m_style->subElementRect(QStyle::SE_ItemViewItemText, &item, nullptr).left();
        }
        QCOMPARE(starts, (QList<int>{starts[0], starts[0], starts[0]}));
        QStyleOptionViewItem plain = rowOption();
        plain.features = QStyleOptionViewItem::HasDecoration | QStyleOptionViewItem::HasDisplay;
        QCOMPARE(starts[0],
                 m_style->subElementRect(QStyle::SE_ItemViewItemText, &plain, nullptr).left() + 16);
    }

    void aViewDrawsItsRows()
    {
        CatalogStructureModel model(
            TestNode::root({TestNode::directory("a", {TestNode::project("b.prj", 0x100)}),
                            TestNode::project("c.prj", 0x200)}));
        QTreeView view;
        view.setItemDelegate(new CatalogStructureDelegate(&view));
        view.setModel(&model);
        view.setHeaderHidden(true);
        view.expandAll();
        view.resize(200, 100);
        QTest::failOnWarning(QRegularExpression(".*"));
        const QImage image = view.grab().toImage();
        QCOMPARE(m_style->items.size(), 3);
        // The picture holds the state just where the item's decoration is.
        const QStyleOptionViewItem &item = m_style->items.at(1);
        const QRect place =
            m_style->subElementRect(QStyle::SE_ItemViewItemDecoration, &item, nullptr);
        const QPoint corner = view.viewport()->mapTo(&view, place.topLeft());
        Picture expected(place.size());
        expected.image.fill(view.palette().color(QPalette::Base));
        expected.draw(0, stateIcon("state_deleted"))
            .draw(16, iconOf(model.index(0, 0, model.index(0, 0))));
        QCOMPARE(image.copy(QRect(corner, place.size())).convertToFormat(QImage::Format_RGB32),
                 expected.image.convertToFormat(QImage::Format_RGB32));
    }

    void aClickOnTheStateSelectsTheRow()
    {
        CatalogStructureModel model(
            TestNode::root({TestNode::project("a.prj", 0x100), TestNode::project("b.prj", 0x100)}));
        QTreeView view;
        view.setItemDelegate(new CatalogStructureDelegate(&view));
        view.setModel(&model);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        QSignalSpy selection(view.selectionModel(), &QItemSelectionModel::selectionChanged);
        const QRect row = view.visualRect(model.index(1, 0));
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                          QPoint(row.left() + 8, row.center().y()));
        QCOMPARE(selection.size(), 1);
        QCOMPARE(view.currentIndex(), model.index(1, 0));
        QTest::keyClick(&view, Qt::Key_Up);
        QCOMPARE(view.currentIndex(), model.index(0, 0));
    }

    void theToolTipOfARowIsShown()
    {
        CatalogStructureModel model(TestNode::root({TestNode::project("a.prj", 0x180)}));
        QTreeView view;
        view.setItemDelegate(new CatalogStructureDelegate(&view));
        view.setModel(&model);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const QPoint place = view.visualRect(model.index(0, 0)).center();
        QHelpEvent event(QEvent::ToolTip, place, view.viewport()->mapToGlobal(place));
        QApplication::sendEvent(view.viewport(), &event);
        QCOMPARE(QToolTip::text(),
                 QString("<nobr>Es existiert mindestens eine unbestätigte Änderung.</nobr><br />"
                         "<nobr>Es existiert mindestens eine nicht zugeordnete Zeile.</nobr>"));
        QToolTip::hideText();
    }
};

QTEST_MAIN(tst_CatalogStructureDelegate)
#include "tst_CatalogStructureDelegate.moc"

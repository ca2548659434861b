#include <gui/views/WrappingDelegate.h>

#include <QHeaderView>
#include <QStandardItemModel>
#include <QTest>
#include <QTreeView>

namespace {

const QString Text = QStringLiteral("Werkstoff: FP → FKM; Bezeichnung: anderer Wortlaut; "
                                    "normteile/sechskantschraubengewindebiskopf/din933def.prj");

/// A tree of two rows whose first column is wrapped.
class WrappedTree : public QTreeView
{
public:
    explicit WrappedTree(int width)
        : items(2, 2)
    {
        items.setItem(0, 0, new QStandardItem(Text));
        items.setItem(1, 0, new QStandardItem("kurz"));
        setModel(&items);
        setRootIsDecorated(false);
        header()->setStretchLastSection(false);
        new WrappingDelegate(this, 0);
        setColumnWidth(0, width);
        resize(700, 500);
        show();
        if (!QTest::qWaitForWindowExposed(this))
            QTest::qFail("is not shown", __FILE__, __LINE__);
    }
    [[nodiscard]] int height(int row) const { return visualRect(items.index(row, 0)).height(); }
    [[nodiscard]] QImage picture()
    {
        return viewport()->grab(visualRect(items.index(0, 0))).toImage();
    }

    QStandardItemModel items;
};

} // namespace

/// Texts of a column that are read as a whole, whatever its width.
class tst_WrappingDelegate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyWordIsSeen_data();
    void everyWordIsSeen();
    void rowsFollowTheWidth();
    void inkIsThatOfThePalette_data();
    void inkIsThatOfThePalette();
};

void tst_WrappingDelegate::everyWordIsSeen_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("narrow") << 90;
    QTest::newRow("small") << 200;
    QTest::newRow("wide") << 600;
}

/// A letter that changes, be it of a word longer than the column, changes the picture.
void tst_WrappingDelegate::everyWordIsSeen()
{
    QFETCH(int, width);
    WrappedTree tree(width);
    const QImage whole = tree.picture();
    for (int at = 0; at < Text.size(); ++at) {
        if (!Text.at(at).isLetter())
            continue;
        QString other = Text;
        other[at] = u'#';
        tree.items.item(0)->setText(other);
        QVERIFY2(tree.picture() != whole, qPrintable(other));
    }
}

void tst_WrappingDelegate::rowsFollowTheWidth()
{
    WrappedTree tree(690);
    const int line = tree.height(1);
    QVERIFY(tree.fontMetrics().horizontalAdvance(Text) > 300);
    tree.setColumnWidth(0, tree.fontMetrics().horizontalAdvance(Text) + 40);
    QTRY_COMPARE(tree.height(0), line);
    tree.setColumnWidth(0, 200);
    QTRY_VERIFY(tree.height(0) >= 2 * tree.fontMetrics().height());
    QCOMPARE(tree.height(1), line);
    tree.setColumnWidth(0, tree.fontMetrics().horizontalAdvance(Text) + 40);
    QTRY_COMPARE(tree.height(0), line);
}

void tst_WrappingDelegate::inkIsThatOfThePalette_data()
{
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<QColor>("text");
    QTest::addColumn<bool>("selected");
    QTest::newRow("light") << QColor("#ffffff") << QColor("#101010") << false;
    QTest::newRow("dark") << QColor("#202020") << QColor("#f0f0f0") << false;
    QTest::newRow("contrast, chosen") << QColor("#000000") << QColor("#ffff00") << true;
}

void tst_WrappingDelegate::inkIsThatOfThePalette()
{
    QFETCH(QColor, ground);
    QFETCH(QColor, text);
    QFETCH(bool, selected);
    WrappedTree tree(200);
    QPalette palette = tree.palette();
    palette.setColor(QPalette::Base, ground);
    palette.setColor(QPalette::Highlight, ground);
    palette.setColor(QPalette::Text, selected ? ground : text);
    palette.setColor(QPalette::HighlightedText, selected ? text : ground);
    tree.setPalette(palette);
    tree.setCurrentIndex(selected ? tree.items.index(0, 0) : tree.items.index(1, 0));
    const QImage picture = tree.picture();
    int inked = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            inked += picture.pixelColor(x, y) == text ? 1 : 0;
    }
    QVERIFY2(inked > 50, qPrintable(QString::number(inked)));
}

QTEST_MAIN(tst_WrappingDelegate)
#include "tst_WrappingDelegate.moc"

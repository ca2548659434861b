#include <QApplication>
#include <QIcon>
#include <QTest>

/// On a screen with two device pixels for each of a bitmap's.
class tst_ScaledBitmaps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void icon_data();
    void icon();
};

void tst_ScaledBitmaps::icon_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("size");
    QTest::newRow("state") << ":/bitmaps/state_check.png" << 16;
    QTest::newRow("arrow") << ":/bitmaps/assistant/arrow_up.png" << 16;
    QTest::newRow("action") << ":/bitmaps/linkdb/actionLinkDbLogin_24.png" << 24;
    QTest::newRow("tool") << ":/toolicons/actionFormatRanges_16.png" << 16;
}

void tst_ScaledBitmaps::icon()
{
    QFETCH(QString, path);
    QFETCH(int, size);
    QCOMPARE(qApp->devicePixelRatio(), 2.0);
    const QPixmap pixmap = QIcon(path).pixmap(QSize(size, size), 2);
    QCOMPARE(pixmap.size(), QSize(2 * size, 2 * size));
    QCOMPARE(pixmap.deviceIndependentSize(), QSizeF(size, size));
    // Drawn for this size, not enlarged.
    const QImage enlarged = QImage(path).scaled(pixmap.size());
    QVERIFY(pixmap.toImage() != enlarged.convertToFormat(pixmap.toImage().format()));
}

int main(int argc, char **argv)
{
    qputenv("QT_SCALE_FACTOR", "2");
    const QApplication application(argc, argv);
    tst_ScaledBitmaps test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_ScaledBitmaps.moc"

#include <geomcore/index/IndexTreeC.h>

#include <QImage>
#include <QPixmap>
#include <QTest>

#include <cmath>

namespace {

QIcon iconOf(const char *type)
{
    const IndexTreeIconTableItemC *item =
        IndexTreeC::instance()->getIconTable().findItem(PString(type));
    return item ? item->getIcon() : QIcon();
}

QImage drawn(const QIcon &icon, int side, QIcon::Mode mode = QIcon::Normal,
             QIcon::State state = QIcon::Off)
{
    return icon.pixmap(QSize(side, side), 1, mode, state)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// Relative luminance after the sRGB curve.
double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

/// How many pixels are told apart from the ground.
int clearPixels(const QImage &image, const QColor &ground)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            count += pixel.alpha() > 200 && contrast(pixel, ground) >= 3;
        }
    return count;
}

} // namespace

class tst_IndexTreeIconTableC : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knownKinds_data()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::newRow("directory") << QByteArray("DIRECTORY/");
        QTest::newRow("project") << QByteArray("VIEW3D/");
    }
    void knownKinds()
    {
        QFETCH(QByteArray, type);
        const IndexTreeIconTableC &table = IndexTreeC::instance()->getIconTable();
        const IndexTreeIconTableItemC *item = table.findItem(PString(type.constData()));
        QVERIFY(item);
        QCOMPARE(item->getType(), PString(type.constData()));
        QVERIFY(!item->getIcon().isNull());
        QCOMPARE(table.findItem(PString(type.constData())), item);
    }

    void unknownKinds_data()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("without the end") << QByteArray("DIRECTORY");
        QTest::newRow("other case") << QByteArray("directory/");
        QTest::newRow("unknown") << QByteArray("DRAWING/");
    }
    void unknownKinds()
    {
        QFETCH(QByteArray, type);
        QVERIFY(!IndexTreeC::instance()->getIconTable().findItem(PString(type.constData())));
    }

    void aTableWithoutTree()
    {
        const IndexTreeIconTableC table;
        QVERIFY(table.findItem("VIEW3D/"));
    }

    void drawnAtEverySize_data()
    {
        QTest::addColumn<int>("side");
        for (const int side : {1, 12, 16, 24, 32, 64, 256})
            QTest::addRow("%d", side) << side;
    }
    void drawnAtEverySize()
    {
        QFETCH(int, side);
        for (const char *type : {"DIRECTORY/", "VIEW3D/"}) {
            const QIcon icon = iconOf(type);
            QCOMPARE(icon.actualSize(QSize(side, side)), QSize(side, side));
            QCOMPARE(drawn(icon, side).size(), QSize(side, side));
        }
    }

    void drawnForTheDevicesPixels()
    {
        for (const char *type : {"DIRECTORY/", "VIEW3D/"}) {
            const QPixmap pixmap = iconOf(type).pixmap(QSize(16, 16), 2);
            QCOMPARE(pixmap.size(), QSize(32, 32));
            QCOMPARE(pixmap.devicePixelRatio(), 2.0);
            QCOMPARE(pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied), [type] {
                QImage image = drawn(iconOf(type), 32);
                image.setDevicePixelRatio(2);
                return image;
            }());
        }
    }

    void clearOnLightAndDarkGround_data()
    {
        QTest::addColumn<QColor>("ground");
        QTest::newRow("white") << QColor(Qt::white);
        QTest::newRow("dark grey") << QColor(0x2b, 0x2b, 0x2b);
    }
    void clearOnLightAndDarkGround()
    {
        QFETCH(QColor, ground);
        for (const char *type : {"DIRECTORY/", "VIEW3D/"})
            QVERIFY(clearPixels(drawn(iconOf(type), 32), ground) > 120);
    }

    void noBorderIsCutOff()
    {
        for (const char *type : {"DIRECTORY/", "VIEW3D/"}) {
            const QImage image = drawn(iconOf(type), 64);
            for (const QPoint corner : {QPoint(0, 0), QPoint(63, 0), QPoint(0, 63), QPoint(63, 63)})
                QCOMPARE(image.pixelColor(corner).alpha(), 0);
        }
    }

    void anOpenDirectoryLooksOpen()
    {
        const QIcon directory = iconOf("DIRECTORY/");
        QVERIFY(drawn(directory, 16, QIcon::Normal, QIcon::On) != drawn(directory, 16));
        const QIcon project = iconOf("VIEW3D/");
        QCOMPARE(drawn(project, 16, QIcon::Normal, QIcon::On), drawn(project, 16));
        QVERIFY(drawn(project, 16) != drawn(directory, 16));
    }

    void disabledIsPaler()
    {
        for (const char *type : {"DIRECTORY/", "VIEW3D/"}) {
            const QImage normal = drawn(iconOf(type), 32);
            const QImage disabled = drawn(iconOf(type), 32, QIcon::Disabled);
            QVERIFY(disabled.pixelColor(16, 20).alpha() < normal.pixelColor(16, 20).alpha());
            QVERIFY(disabled.pixelColor(16, 20).alpha() > 0);
        }
    }

    void copiesDrawTheSame()
    {
        QIcon copy = iconOf("VIEW3D/");
        copy.detach();
        QCOMPARE(drawn(copy, 16), drawn(iconOf("VIEW3D/"), 16));
    }
};

QTEST_MAIN(tst_IndexTreeIconTableC)
#include "tst_IndexTreeIconTableC.moc"

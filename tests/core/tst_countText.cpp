#include <core/text/countText.h>

#include <QTest>

class tst_countText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shares()
    {
        const QLocale german(QLocale::German);
        QCOMPARE(percentText(1, german), "100 %");
        QCOMPARE(percentText(0.9999, german), "99 %");
        QCOMPARE(percentText(0.07, QLocale::c()), "7 %");
        QCOMPARE(boundText(0.0495, german), "5,0");
        QCOMPARE(boundText(0.04901, QLocale::c()), "5.0");
        QCOMPARE(boundText(0.049, QLocale::c()), "4.9");
    }

    void groupsDigits_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<qint64>("count");
        QTest::addColumn<QString>("text");
        QTest::newRow("German") << QLocale(QLocale::German) << qint64(1234567) << "1.234.567";
        QTest::newRow("English") << QLocale(QLocale::English) << qint64(1234567) << "1,234,567";
        QTest::newRow("French") << QLocale(QLocale::French) << qint64(12345)
                                << QStringLiteral("12\u202f345");
        QTest::newRow("below a thousand") << QLocale(QLocale::German) << qint64(999) << "999";
        QTest::newRow("for programs") << QLocale::c() << qint64(1234567) << "1234567";
    }
    void groupsDigits()
    {
        QFETCH(QLocale, locale);
        QFETCH(qint64, count);
        QTEST(countText(count, locale), "text");
        const QLocale before;
        QLocale::setDefault(locale);
        const QString usual = countText(count);
        QLocale::setDefault(before);
        QCOMPARE(usual, countText(count, locale));
    }
    void groupsDigitsInATextWithoutACatalog()
    {
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::German));
        const QString text = translateCount("%Ln Zeile(n) von %1", "VelkLinkDbGui", 1234567);
        QLocale::setDefault(QLocale::c());
        const QString plain = translateCount("%Ln Zeile(n) von %1", "VelkLinkDbGui", 1234567);
        QLocale::setDefault(before);
        QCOMPARE(text, QString("1.234.567 Zeile(n) von %1"));
        QCOMPARE(plain, QString("1234567 Zeile(n) von %1"));
    }
};

QTEST_GUILESS_MAIN(tst_countText)
#include "tst_countText.moc"

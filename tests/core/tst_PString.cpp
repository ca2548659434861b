#include <core/text/PString.h>

#include <QTest>

class tst_PString : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void resolveEnvirons_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        QTest::newRow("none") << "a/b"
                              << "a/b";
        QTest::newRow("plain") << "$VELK_TEST_A/b"
                               << "alpha/b";
        QTest::newRow("braced") << "x${VELK_TEST_A}b"
                                << "xalphab";
        QTest::newRow("unknown stays") << "$VELK_TEST_UNKNOWN/b"
                                       << "$VELK_TEST_UNKNOWN/b";
        QTest::newRow("brace not closed") << "${VELK_TEST_A"
                                          << "${VELK_TEST_A";
        QTest::newRow("lone sign") << "5 $ each"
                                   << "5 $ each";
    }
    void resolveEnvirons()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        qputenv("VELK_TEST_A", "alpha");
        QCOMPARE(QString(PString::ResolveEnvirons(text)), expected);
    }
    void translateGivesSourceTextIfNothingIsKnown()
    {
        QCOMPARE(QString(PString::translate("Größe", "VelkLinkDbGui")), QString("Größe"));
    }
};

QTEST_MAIN(tst_PString)
#include "tst_PString.moc"

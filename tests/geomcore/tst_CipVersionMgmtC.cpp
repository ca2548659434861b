#include <geomcore/project/CipVersionMgmtC.h>

#include <QTest>

#include <ctime>

class tst_CipVersionMgmtC : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void versions_data();
    void versions();
};

void tst_CipVersionMgmtC::versions_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QString>("version");
    QTest::newRow("utc") << "2026-06-30T12:34:56Z"
                         << ""
                         << "v260630123456";
    QTest::newRow("without offset") << "2026-06-30T12:34:56"
                                    << ""
                                    << "v260630123456";
    QTest::newRow("with offset") << "2026-06-30T01:00:00+02:00"
                                 << ""
                                 << "v260629230000";
    QTest::newRow("day") << "2026-06-30"
                         << ""
                         << "v260630000000";
    QTest::newRow("blanks around") << " 2026-06-30 "
                                   << ""
                                   << "v260630000000";
    QTest::newRow("in an hour that a clock change leaves out") << "2026-03-29T02:30:00"
                                                               << ""
                                                               << "v260329023000";
    QTest::newRow("prefix") << "2026-06-30"
                            << "p"
                            << "p260630000000";
    QTest::newRow("empty") << ""
                           << ""
                           << "";
    QTest::newRow("no date") << "soon"
                             << "p"
                             << "";
}

void tst_CipVersionMgmtC::versions()
{
    QFETCH(QString, date);
    QFETCH(QString, prefix);
    const QByteArray zone = qgetenv("TZ");
    for (const char *desk : {"UTC", "Europe/Berlin", "America/New_York"}) {
        qputenv("TZ", desk);
        tzset();
        QTEST(CipVersionMgmtC::MakeVersionFromDate(date, prefix), "version");
    }
    qputenv("TZ", zone);
    tzset();
}

QTEST_GUILESS_MAIN(tst_CipVersionMgmtC)
#include "tst_CipVersionMgmtC.moc"

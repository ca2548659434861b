#include <release/assign/ReleaseDate.h>

#include <QTest>

#include <ctime>

class tst_ReleaseDate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void inUtc_data();
    void inUtc();
};

void tst_ReleaseDate::inUtc_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("date");
    QTest::newRow("utc") << "2026-06-30T12:00:00Z"
                         << "2026-06-30T12:00:00Z";
    QTest::newRow("without offset") << "2026-06-30T12:00:00"
                                    << "2026-06-30T12:00:00Z";
    QTest::newRow("with offset") << "2026-06-30T01:30:00+02:00"
                                 << "2026-06-29T23:30:00Z";
    QTest::newRow("day") << "2026-06-30"
                         << "2026-06-30T00:00:00Z";
    QTest::newRow("no seconds") << "2026-06-30T12:34"
                                << "2026-06-30T12:34:00Z";
    QTest::newRow("in an hour that a clock change leaves out") << "2026-03-29T02:30:00"
                                                               << "2026-03-29T02:30:00Z";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("no date") << "soon"
                             << "";
    QTest::newRow("no such day") << "2026-02-30"
                                 << "";
}

void tst_ReleaseDate::inUtc()
{
    QFETCH(QString, text);
    const QByteArray zone = qgetenv("TZ");
    for (const char *desk : {"UTC", "Europe/Berlin", "America/New_York"}) {
        qputenv("TZ", desk);
        tzset();
        QTEST(VelkRelease::dateInUtc(text), "date");
    }
    qputenv("TZ", zone);
    tzset();
}

QTEST_GUILESS_MAIN(tst_ReleaseDate)
#include "tst_ReleaseDate.moc"

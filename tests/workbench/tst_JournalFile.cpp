#include "../support/SizeLimit.h"
#include "SessionFixture.h"

#include <release/history/JournalRow.h>
#include <workbench/session/change/MappingDifference.h>
#include <workbench/session/journal/JournalFile.h>
#include <workbench/session/journal/JournalReader.h>

#include <core/json/PJsonValue.h>

#include <QFile>
#include <QSignalSpy>
#include <QTest>

#include <sys/stat.h>

namespace {

PJsonValue record(const char *kind, const QString &text = QString())
{
    PJsonValue json(PJsonValue::Object);
    json[QStringLiteral("kind")] = PJsonValue(QString::fromLatin1(kind));
    json[QStringLiteral("text")] = PJsonValue(text);
    return json;
}

} // namespace

class tst_JournalFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void appendsToWhatIsThere();
    void recordsReachTheSystemAtFlush();
    void longRunsAreHandedOnMeanwhile();
    void aFullDiskLeavesWholeRows();
    void sessions();
    void damage_data();
    void damage();
    void halfARowIsEndedFirst();
    void unknownSessions_data();
    void unknownSessions();
    void aFolderIsNoJournal();
    void otherThingsAreNoJournal_data();
    void otherThingsAreNoJournal();
    void knowsWhetherItIsInPlace();
};

void tst_JournalFile::appendsToWhatIsThere()
{
    const SessionFixture files;
    const QString path = files.path(QStringLiteral("j"));
    for (const char *text : {"one", "two"}) {
        JournalFile journal;
        QVERIFY(journal.open(path));
        QCOMPARE(journal.path(), path);
        journal.append(record("opened", QString::fromLatin1(text)));
    }
    const QList<QByteArray> rows = SessionFixture::content(path).split('\n');
    QCOMPARE(rows.size(), 3);
    QVERIFY(rows[2].isEmpty());
    QCOMPARE(VelkRelease::JournalRow::unframe(rows[0]).value().toByteArray(),
             QByteArray("{\"kind\":\"opened\",\"text\":\"one\"}"));
    QCOMPARE(VelkRelease::JournalRow::unframe(rows[1]).value().toByteArray(),
             QByteArray("{\"kind\":\"opened\",\"text\":\"two\"}"));
}

void tst_JournalFile::recordsReachTheSystemAtFlush()
{
    const SessionFixture files;
    const QString path = files.path(QStringLiteral("j"));
    JournalFile journal;
    QVERIFY(journal.open(path));
    journal.append(record("step"));
    QVERIFY(journal.flush());
    QVERIFY(SessionFixture::content(path).endsWith('\n'));
    journal.append(record("step", QStringLiteral("later")));
    QVERIFY(!SessionFixture::content(path).contains("later"));
    QTRY_VERIFY_WITH_TIMEOUT(SessionFixture::content(path).contains("later"), 20000);
}

void tst_JournalFile::longRunsAreHandedOnMeanwhile()
{
    const SessionFixture files;
    const QString path = files.path(QStringLiteral("j"));
    JournalFile journal;
    QVERIFY(journal.open(path));
    const QString text(1000, u'x');
    for (int i = 0; i < 200; ++i)
        journal.append(record("step", text));
    QVERIFY(QFile(path).size() > 100000);
}

void tst_JournalFile::aFullDiskLeavesWholeRows()
{
    const SessionFixture files;
    const QString path = files.path(QStringLiteral("j"));
    JournalFile journal;
    QVERIFY(journal.open(path));
    QSignalSpy failed(&journal, &JournalFile::failed);
    journal.append(record("opened"));
    QVERIFY(journal.flush());
    const QByteArray before = SessionFixture::content(path);
    const QString text(300, u'x');
    {
        const SizeLimit limit(before.size() + 100);
        journal.append(record("step", text));
        QVERIFY(!journal.flush());
        QCOMPARE(SessionFixture::content(path), before);
        QVERIFY(!journal.errorText().isEmpty());
        journal.append(record("step", text));
        QVERIFY(!journal.flush());
        QCOMPARE(failed.size(), 1);
        QCOMPARE(failed.first().first().toString(), journal.errorText());
    }
    // There is room again: nothing is lost.
    journal.append(record("step", QStringLiteral("last")));
    QVERIFY(journal.flush());
    JournalReader reader;
    QVERIFY(reader.read(path));
    QCOMPARE(reader.sessions().first().records.size(), 3);
    QVERIFY(reader.sessions().first().gaps.isEmpty());
}

void tst_JournalFile::sessions()
{
    const SessionFixture files;
    const QString path = files.path(QStringLiteral("j"));
    JournalReader reader;
    QVERIFY(reader.read(path));
    QVERIFY(reader.sessions().isEmpty());
    {
        JournalFile journal;
        QVERIFY(journal.open(path));
        journal.append(record("opened"));
        journal.append(record("step", QStringLiteral("a")));
        journal.append(record("closed"));
        journal.append(record("opened"));
        journal.append(record("step", QStringLiteral("b")));
        journal.append(record("saved"));
    }
    QVERIFY(reader.read(path));
    QCOMPARE(reader.sessions().size(), 2);
    QVERIFY(reader.sessions()[0].closed);
    QCOMPARE(reader.sessions()[0].records.size(), 1);
    QVERIFY(!reader.sessions()[1].closed);
    QCOMPARE(reader.sessions()[1].records.size(), 2);
    const QList<JournalReader::Step> steps = JournalReader::steps(reader.sessions()[1]);
    QCOMPARE(steps.size(), 1);
    QCOMPARE(steps.first().text, QStringLiteral("b"));
    QVERIFY(JournalReader::steps(reader.sessions()[1], 1).isEmpty());
}

void tst_JournalFile::damage_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("records");
    QTest::addColumn<QList<int>>("gaps");
    const auto row = [](const char *json) {
        return VelkRelease::JournalRow::frame(json);
    };
    const QByteArray opened = row(R"({"kind":"opened","sourceDate":"1"})");
    const QByteArray step = row(R"({"kind":"step"})");
    QTest::newRow("cut tail") << opened + step + step.chopped(4) << 1 << QList<int>{1};
    QTest::newRow("last line feed missing")
        << opened + step + step.chopped(1) << 1 << QList<int>{1};
    QTest::newRow("garbage in the middle")
        << opened + step + QByteArray("\0\xff garbage\n", 11) + step + step << 3 << QList<int>{1};
    QTest::newRow("garbage twice")
        << opened + "x\n" + step + "y\n" + step << 2 << QList<int>({0, 1});
    QTest::newRow("zeros at the end")
        << opened + step + QByteArray(5000, '\0') << 1 << QList<int>{1};
    QTest::newRow("garbage before") << "garbage\n" + opened + step << 1 << QList<int>{};
    QTest::newRow("no opening") << step + step << 2 << QList<int>{};
    QTest::newRow("only garbage") << QByteArray(100000, 'x') << 0 << QList<int>{0};
}

void tst_JournalFile::damage()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, records);
    QFETCH(QList<int>, gaps);
    const SessionFixture files;
    const QString path = files.path(QStringLiteral("j"));
    SessionFixture::setContent(path, bytes);
    JournalReader reader;
    QVERIFY(reader.read(path));
    QCOMPARE(reader.sessions().last().records.size(), records);
    QCOMPARE(reader.sessions().last().gaps, gaps);
}

/// What a killed program left of a row spoils nothing that comes later.
void tst_JournalFile::halfARowIsEndedFirst()
{
    const SessionFixture files;
    const QString path = files.path(QStringLiteral("j"));
    const QByteArray opened =
        VelkRelease::JournalRow::frame(R"({"kind":"opened","sourceDate":"1"})");
    SessionFixture::setContent(path, opened + opened.chopped(5));
    {
        JournalFile journal;
        QVERIFY(journal.open(path));
        journal.append(record("opened"));
        journal.append(record("step"));
        QVERIFY(journal.flush());
    }
    JournalReader reader;
    QVERIFY(reader.read(path));
    QCOMPARE(reader.sessions().size(), 2);
    QCOMPARE(reader.sessions()[0].gaps, QList<int>{0});
    QVERIFY(reader.sessions()[1].isKnown);
    QVERIFY(reader.sessions()[1].gaps.isEmpty());
    QCOMPARE(reader.sessions()[1].records.size(), 1);
    // A whole last row is left as it is.
    const QByteArray before = SessionFixture::content(path);
    JournalFile journal;
    QVERIFY(journal.open(path));
    journal.append(record("step"));
    QVERIFY(journal.flush());
    QVERIFY(!SessionFixture::content(path).contains("\n\n"));
    QVERIFY(SessionFixture::content(path).startsWith(before));
}

void tst_JournalFile::unknownSessions_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QList<int>>("records"); ///< of each session
    QTest::addColumn<QList<bool>>("known");
    const QByteArray opened =
        VelkRelease::JournalRow::frame(R"({"kind":"opened","sourceDate":"1"})");
    const QByteArray step = VelkRelease::JournalRow::frame(R"({"kind":"step"})");
    const QByteArray closed = VelkRelease::JournalRow::frame(R"({"kind":"closed"})");
    QTest::newRow("behind a closed one")
        << opened + step + closed + step + step << QList<int>{1, 2} << QList<bool>{true, false};
    QTest::newRow("damage behind a closed one")
        << opened + closed + "x\n" + step << QList<int>{0, 1} << QList<bool>{true, false};
    QTest::newRow("damage in an open one")
        << opened + step + "x\n" + step << QList<int>{2} << QList<bool>{true};
    QTest::newRow("closed itself") << opened + closed + "x\n" + step + closed + opened
                                   << QList<int>{0, 1, 0} << QList<bool>{true, false, true};
    QTest::newRow("nothing known") << step << QList<int>{1} << QList<bool>{false};
}

void tst_JournalFile::unknownSessions()
{
    QFETCH(QByteArray, bytes);
    const SessionFixture files;
    SessionFixture::setContent(files.path(QStringLiteral("j")), bytes);
    JournalReader reader;
    QVERIFY(reader.read(files.path(QStringLiteral("j"))));
    QList<int> records;
    QList<bool> known;
    for (const JournalReader::Session &session : reader.sessions()) {
        records += int(session.records.size());
        known += session.isKnown;
    }
    QTEST(records, "records");
    QTEST(known, "known");
}

void tst_JournalFile::otherThingsAreNoJournal_data()
{
    QTest::addColumn<QString>("thing");
    for (const char *thing : {"link", "dangling link", "pipe"})
        QTest::newRow(thing) << QString::fromLatin1(thing);
}

void tst_JournalFile::otherThingsAreNoJournal()
{
    QFETCH(QString, thing);
    const SessionFixture files;
    const QString path = files.path(QStringLiteral("j"));
    const QString victim = files.path(QStringLiteral("victim"));
    if (thing == u"link")
        SessionFixture::setContent(victim, "precious");
    if (thing == u"pipe")
        QCOMPARE(::mkfifo(qPrintable(path), 0600), 0);
    else
        QVERIFY(QFile::link(victim, path));
    JournalFile journal;
    QVERIFY(!journal.open(path));
    QVERIFY2(journal.errorText().contains(QStringLiteral("gewöhnliche Datei")),
             qPrintable(journal.errorText()));
    JournalReader reader;
    QString error;
    QVERIFY(!reader.read(path, &error));
    QVERIFY(!error.isEmpty());
    QCOMPARE(SessionFixture::content(victim),
             thing == u"link" ? QByteArray("precious") : QByteArray());
    QCOMPARE(QFile::exists(victim), thing == u"link");
}

void tst_JournalFile::knowsWhetherItIsInPlace()
{
    const SessionFixture files;
    const QString path = files.path(QStringLiteral("j"));
    JournalFile journal;
    QVERIFY(!journal.isInPlace());
    QVERIFY(journal.open(path));
    QVERIFY(journal.isInPlace());
    QVERIFY(QFile::remove(path));
    QVERIFY(!journal.isInPlace());
    SessionFixture::setContent(path, {});
    QVERIFY(!journal.isInPlace());
}

void tst_JournalFile::aFolderIsNoJournal()
{
    const SessionFixture files;
    JournalReader reader;
    QString error;
    QVERIFY(!reader.read(files.path(QString()), &error));
    QVERIFY(!error.isEmpty());
    JournalFile journal;
    QVERIFY(!journal.open(files.path(QString())));
    QVERIFY(!journal.errorText().isEmpty());
    QVERIFY(!journal.flush());
}

QTEST_GUILESS_MAIN(tst_JournalFile)

#include "tst_JournalFile.moc"

#include "RecoveryFixture.h"
#include "RecoveryVictim.h"

#include <workbench/session/document/MappingDocument.h>
#include <workbench/session/journal/SessionRecovery.h>

#include <QDir>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

const QString Date = QStringLiteral("2022-01-01");

} // namespace

class tst_RecoveryAfterDamage : public QObject, private RecoveryFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }
    void cleanup() { end(); }

    void damagedJournals_data();
    void damagedJournals();
    void damageAnywhere_data();
    void damageAnywhere();
    void autosaveBehindTheDamage();
    void autosaveWithoutJournal();
    void aDamagedOpeningHidesNothing_data();
    void aDamagedOpeningHidesNothing();
    void damageBehindTheLastSession();
    void laterChangesAreOfferedApart();
    void laterChangesThatDoNotFitAreCounted();
    void onlyLaterChangesAreOfferedToo();
    void anUnreadableJournalIsTold();
};

void tst_RecoveryAfterDamage::damagedJournals_data()
{
    QTest::addColumn<QByteArray>("pattern"); ///< of the rows from which on damage is done
    QTest::addColumn<bool>("cut");
    QTest::addColumn<int>("verified");
    QTest::addColumn<QString>("damage");
    QTest::newRow("last row cut") << QByteArray("\"step\":2,\"origin\"") << true << 4
                                  << QStringLiteral("Die letzte Änderung kann fehlen.");
    QTest::newRow("second change cut") << QByteArray("\"change\",\"step\":2") << true << 3
                                       << QStringLiteral("Die letzte Änderung kann fehlen.");
    QTest::newRow("second change wrong") << QByteArray("\"change\",\"step\":2") << false << 3
                                         << QStringLiteral("Die letzte Änderung kann fehlen.");
    QTest::newRow("first change wrong") << QByteArray("\"change\",\"step\":1") << false << 1
                                        << QStringLiteral("passt noch 1 Änderung,");
}

void tst_RecoveryAfterDamage::damagedJournals()
{
    QFETCH(QByteArray, pattern);
    QFETCH(bool, cut);
    QFETCH(int, verified);
    QFETCH(QString, damage);
    kill({QStringLiteral("confirm"), QStringLiteral("more")});
    const QString journal = m_file + QStringLiteral(".journal");
    QByteArray bytes = SessionFixture::content(journal);
    const qsizetype at = bytes.indexOf(pattern);
    QVERIFY(at > 0);
    if (cut)
        bytes.truncate(at + 5);
    else
        bytes[at + 1] = char(bytes[at + 1] ^ 1);
    SessionFixture::setContent(journal, bytes);
    QCOMPARE(open(), MappingDocument::OpenResult::RecoveryPending);
    QCOMPARE(m_document->recoveryOffer().recovered.counts.verified(), verified);
    QVERIFY2(m_document->recoveryOffer().damage.contains(damage),
             qPrintable(m_document->recoveryOffer().damage));
    QCOMPARE(open(MappingDocument::Recovery::UseRecovered), MappingDocument::OpenResult::Opened);
    QCOMPARE(m_document->counts().verified(), verified);
    QCOMPARE(names(QStringLiteral("release.json.journal.alt-*")).size(), 1);
}

void tst_RecoveryAfterDamage::damageAnywhere_data()
{
    QTest::addColumn<bool>("cut");
    QTest::newRow("cut off") << true;
    QTest::newRow("one bit") << false;
}

/// Wherever a journal is damaged, what is recovered is a state that once was: the last one before
/// the damage.
void tst_RecoveryAfterDamage::damageAnywhere()
{
    QFETCH(bool, cut);
    QCOMPARE(open(), MappingDocument::OpenResult::Opened);
    const QString journal = m_document->journalFile();
    QList<QByteArray> states{SessionFixture::bytes(m_document->release())};
    QList<qsizetype> ends{SessionFixture::content(journal).size()};
    for (int line = 1; line <= 6; ++line) {
        PrjMappingC mapping = SessionFixture::withState(
            m_document->mapping(projectId(line % 2 == 0 ? "cat/a.prj" : "cat/screws/b.prj")),
            {line}, 2);
        if (line == 4)
            mapping.addTarget(QStringLiteral("new/u.prj"), QString());
        m_document->updateMapping(mapping);
        m_document->finishStep();
        states += SessionFixture::bytes(m_document->release());
        ends += SessionFixture::content(journal).size();
    }
    const QByteArray whole = SessionFixture::content(journal);
    const SessionFixture elsewhere;
    const QString file = elsewhere.write();
    for (qsizetype at = ends.first(); at < whole.size(); at += 7) {
        QByteArray damaged = cut ? whole.left(at) : whole;
        if (!cut)
            damaged[at] = char(damaged[at] ^ 4);
        SessionFixture::setContent(file + QStringLiteral(".journal"), damaged);
        const SessionRecovery recovery(file);
        // The change stands before the row that ends its step, so it may be one further.
        const auto step = std::upper_bound(ends.begin(), ends.end(), at) - ends.begin() - 1;
        const QByteArray found = recovery.offer().isValid()
                                     ? SessionFixture::bytes(recovery.recoveredRelease())
                                     : states.first();
        // With nothing before it, what is behind it and fits.
        const bool later = recovery.offer().laterChanges > 0 && !recovery.offer().further.available;
        QVERIFY2(found == states[step] || found == states[step + 1] ||
                     (later && step == 0 && recovery.offer().recovered.counts.verified() > 0),
                 qPrintable(QStringLiteral("damaged at %1").arg(at)));
        if (recovery.offer().isValid() && !cut)
            QVERIFY(!recovery.offer().damage.isEmpty());
    }
}

void tst_RecoveryAfterDamage::autosaveBehindTheDamage()
{
    kill({QStringLiteral("confirm"), QStringLiteral("autosave"), QStringLiteral("more")});
    const QString journal = m_file + QStringLiteral(".journal");
    QByteArray bytes = SessionFixture::content(journal);
    bytes.replace("\"change\",\"step\":1", "\"chance\",\"step\":1");
    SessionFixture::setContent(journal, bytes);
    QCOMPARE(open(), MappingDocument::OpenResult::RecoveryPending);
    QCOMPARE(m_document->recoveryOffer().recovered.counts.verified(), 4);
    QCOMPARE(m_document->recoveryOffer().damage, QString());
}

void tst_RecoveryAfterDamage::autosaveWithoutJournal()
{
    kill({QStringLiteral("confirm"), QStringLiteral("autosave"), QStringLiteral("more")});
    SessionFixture::setContent(m_file + QStringLiteral(".journal"), QByteArray(3000, '\xf0'));
    QCOMPARE(open(), MappingDocument::OpenResult::RecoveryPending);
    QCOMPARE(m_document->recoveryOffer().recovered.counts.verified(), 3);
    QVERIFY(m_document->recoveryOffer().recovered.time.isValid());
    QCOMPARE(open(MappingDocument::Recovery::UseRecovered), MappingDocument::OpenResult::Opened);
    QCOMPARE(m_document->counts().verified(), 3);
}

void tst_RecoveryAfterDamage::aDamagedOpeningHidesNothing_data()
{
    QTest::addColumn<QString>("how");
    for (const char *how : {"one bit", "cut", "merged", "gone", "zeros"})
        QTest::newRow(how) << QString::fromLatin1(how);
}

/// The row that opens the last session cannot be read; the one before was closed.
void tst_RecoveryAfterDamage::aDamagedOpeningHidesNothing()
{
    QFETCH(QString, how);
    m_files->addRelease(m_file, SessionFixture::sampleRelease(QStringLiteral("2020-01-01")));
    QCOMPARE(m_document->open({m_file, Date, {}, {}, {}}), MappingDocument::OpenResult::Opened);
    m_document->close();
    const QString journal = m_file + QStringLiteral(".journal");
    const QByteArray before = SessionFixture::content(journal);
    QCOMPARE(m_document->open({m_file, Date, {}, {}, {}}), MappingDocument::OpenResult::Opened);
    m_document->updateMapping(
        SessionFixture::withState(m_document->mapping(projectId("cat/a.prj")), {1, 2}, 2));
    m_document->finishStep();
    QByteArray now = SessionFixture::content(journal);
    m_document->close();
    const qsizetype end = now.indexOf('\n', before.size()) + 1;
    if (how == u"one bit")
        now[before.size() + 30] = char(now[before.size() + 30] ^ 1);
    else if (how == u"cut")
        now.remove(before.size() + 20, 40);
    else if (how == u"merged")
        now.insert(before.size(), now.mid(before.size(), 20));
    else if (how == u"gone")
        now.remove(before.size(), end - before.size());
    else
        now.replace(before.size(), 16, QByteArray(16, '\0'));
    SessionFixture::setContent(journal, now);

    QCOMPARE(open(), MappingDocument::OpenResult::RecoveryPending);
    const RecoveryOffer &offer = m_document->recoveryOffer();
    QCOMPARE(offer.sourceDate, Date);
    QCOMPARE(offer.recovered.counts.verified(), 2);
    QCOMPARE(offer.damage.isEmpty(), how == u"gone");
    QCOMPARE(open(MappingDocument::Recovery::UseRecovered), MappingDocument::OpenResult::Opened);
    QCOMPARE(m_document->counts().verified(), 2);
    QCOMPARE(m_document->release().getSourceDate(), Date);
}

void tst_RecoveryAfterDamage::damageBehindTheLastSession()
{
    QCOMPARE(open(), MappingDocument::OpenResult::Opened);
    const QString journal = m_document->journalFile();
    m_document->close();
    SessionFixture::setContent(journal, SessionFixture::content(journal) + "half a row");
    QSignalSpy problems(m_document.get(), &MappingDocument::problemOccurred);
    QCOMPARE(open(), MappingDocument::OpenResult::Opened);
    QCOMPARE(problems.size(), 1);
    QVERIFY2(problems.first().first().toString().contains(
                 QStringLiteral("Hinter der letzten abgeschlossenen Sitzung")),
             qPrintable(problems.first().first().toString()));
    QCOMPARE(names(QStringLiteral("release.json.journal.alt-*")).size(), 1);
}

void tst_RecoveryAfterDamage::laterChangesAreOfferedApart()
{
    QCOMPARE(open(), MappingDocument::OpenResult::Opened);
    for (int line = 1; line <= 10; ++line) {
        for (const char *path : {"cat/a.prj", "cat/screws/b.prj"}) {
            m_document->updateMapping(
                SessionFixture::withState(m_document->mapping(projectId(path)), {line}, 2));
            m_document->finishStep();
        }
    }
    const QString journal = m_document->journalFile();
    QByteArray bytes = SessionFixture::content(journal);
    m_document->close();
    const qsizetype second = bytes.indexOf("\"change\",\"step\":2");
    bytes[second + 2] = char(bytes[second + 2] ^ 1);
    SessionFixture::setContent(journal, bytes);

    QCOMPARE(open(), MappingDocument::OpenResult::RecoveryPending);
    const RecoveryOffer &offer = m_document->recoveryOffer();
    QCOMPARE(offer.recovered.counts.verified(), 1);
    QVERIFY(offer.further.available);
    QCOMPARE(offer.further.counts.verified(), 19);
    QCOMPARE(offer.laterChanges, 18);
    QCOMPARE(offer.lostChanges, 0);
    QVERIFY2(offer.damage.contains(QStringLiteral("passen noch 18 Änderungen")),
             qPrintable(offer.damage));
    QCOMPARE(open(MappingDocument::Recovery::UseFurther), MappingDocument::OpenResult::Opened);
    QCOMPARE(m_document->counts().verified(), 19);
    m_document->undo();
    QCOMPARE(m_document->counts().verified(), 0);
}

/// Two changes of one line, of which the first cannot be read: the second has nothing to go on.
void tst_RecoveryAfterDamage::laterChangesThatDoNotFitAreCounted()
{
    QCOMPARE(open(), MappingDocument::OpenResult::Opened);
    const auto confirm = [this](const char *path, int line, int state) {
        m_document->updateMapping(
            SessionFixture::withState(m_document->mapping(projectId(path)), {line}, state));
        m_document->finishStep();
    };
    confirm("cat/a.prj", 1, 2);
    confirm("cat/a.prj", 2, 1);
    confirm("cat/a.prj", 2, 2);
    confirm("cat/screws/b.prj", 3, 2);
    const QString journal = m_document->journalFile();
    QByteArray bytes = SessionFixture::content(journal);
    m_document->close();
    const qsizetype second = bytes.indexOf("\"change\",\"step\":2");
    bytes[second + 2] = char(bytes[second + 2] ^ 1);
    SessionFixture::setContent(journal, bytes);

    QCOMPARE(open(), MappingDocument::OpenResult::RecoveryPending);
    const RecoveryOffer &offer = m_document->recoveryOffer();
    QCOMPARE(offer.laterChanges, 1);
    QCOMPARE(offer.lostChanges, 1);
    QCOMPARE(offer.further.counts.verified(), 2);
}

/// What could be read takes itself back, so it is what was saved; what is behind the damage is not.
void tst_RecoveryAfterDamage::onlyLaterChangesAreOfferedToo()
{
    QCOMPARE(open(), MappingDocument::OpenResult::Opened);
    const auto confirm = [this](const char *path, int line, int state) {
        m_document->updateMapping(
            SessionFixture::withState(m_document->mapping(projectId(path)), {line}, state));
        m_document->finishStep();
    };
    confirm("cat/a.prj", 1, 2);
    confirm("cat/a.prj", 1, 0);
    confirm("cat/a.prj", 5, 2);
    confirm("cat/screws/b.prj", 3, 2);
    const QString journal = m_document->journalFile();
    QByteArray bytes = SessionFixture::content(journal);
    m_document->close();
    const qsizetype third = bytes.indexOf("\"change\",\"step\":3");
    bytes[third + 2] = char(bytes[third + 2] ^ 1);
    SessionFixture::setContent(journal, bytes);

    QCOMPARE(open(), MappingDocument::OpenResult::RecoveryPending);
    const RecoveryOffer &offer = m_document->recoveryOffer();
    QCOMPARE(offer.recovered.counts.verified(), 0);
    QVERIFY(offer.further.available);
    QCOMPARE(offer.further.counts.verified(), 1);
    QCOMPARE(open(MappingDocument::Recovery::UseFurther), MappingDocument::OpenResult::Opened);
    QCOMPARE(m_document->counts().verified(), 1);
}

void tst_RecoveryAfterDamage::anUnreadableJournalIsTold()
{
    QVERIFY(QDir().mkpath(m_file + QStringLiteral(".journal")));
    QSignalSpy problems(m_document.get(), &MappingDocument::problemOccurred);
    QCOMPARE(open(), MappingDocument::OpenResult::Opened);
    QVERIFY(problems.size() >= 1);
    QStringList texts;
    for (const QList<QVariant> &problem : problems)
        texts += problem.first().toString();
    QVERIFY2(texts.join(u' ').contains(QStringLiteral("gewöhnliche Datei")),
             qPrintable(texts.join(u' ')));
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--victim"))
        return runVictim(arguments);
    tst_RecoveryAfterDamage test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_RecoveryAfterDamage.moc"

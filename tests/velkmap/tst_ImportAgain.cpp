#include "../support/EnglishTexts.h"
#include "ImportFixture.h"

#include <geomcore/project/PrjFile.h>

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QRandomGenerator>

using namespace VKTab;

/// Tables that were imported before: what is kept of them.
class tst_ImportAgain : public QObject, protected ImportFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { setUp(); }
    void cleanup() { m_dir.reset(); }
    void keepsIdsByKey();
    void keepsIdsWithoutKey();
    void neverGivesAnIdAgain();
    void keepsIdsOfRepeatedKeys();
    void keepsCorrectedDescriptor();
    void keepsCorrectedProject();
    void ownIdColumnOfTheInput();
    void nameOfIdColumnTaken();
    void unchangedTablesStay();
    void dates_data();
    void dates();
    void brokenFormerTable();
    void leftOvers();
    void randomReimports();
};

void tst_ImportAgain::keepsIdsByKey()
{
    writeFile(from("t.csv"), "k,v\nM8,1\nM10,2\nM12,3\n");
    QCOMPARE(import(), ExitStatus::Done);
    writeFile(from("t.csv"), "k,v\nM9,7\nM12,3\n M8 ,1\n");
    QCOMPARE(import(), ExitStatus::Done);
    QVERIFY(m_out.contains("changed"));
    QCOMPARE(readFile(into("t.csv")), QByteArray("k,v,LineId\nM9,7,4\nM12,3,3\n M8 ,1,1\n"));
    writeFile(from("n.csv"), "k,v\n9.0,1\n10,2\n");
    QCOMPARE(import(), ExitStatus::Done);
    writeFile(from("n.csv"), "k,v\n10.00,2\n9,1\n");
    QCOMPARE(import(), ExitStatus::Done);
    QCOMPARE(readFile(into("n.csv")), QByteArray("k,v,LineId\n10.00,2,2\n9,1,1\n"));
}

void tst_ImportAgain::keepsIdsWithoutKey()
{
    // The key column goes: lines are known again by all that is left.
    writeFile(from("t.csv"), "k,v,w\nM8,1,1.5\nM10,1,2.5\nM12,1,3.5\n");
    QCOMPARE(import(), ExitStatus::Done);
    writeFile(from("t.csv"), "v,w\n1,3.5\n1,9.5\n1,1.5\n");
    QCOMPARE(import(), ExitStatus::Done);
    QVERIFY(m_out.contains("  note: the column \"k\" is gone\n"));
    QCOMPARE(readFile(into("t.csv")), QByteArray("v,w,LineId\n1,3.5,3\n1,9.5,4\n1,1.5,1\n"));
    QCOMPARE(table("t")->descriptor().primaryKey, QStringList());
    // A table that never had one counts its rows.
    writeFile(from("u.csv"), "v,w\n1,1.5\n1,2.5\n");
    QCOMPARE(import(), ExitStatus::Done);
    writeFile(from("u.csv"), "v,w\n1,9.5\n1,1.5\n1,2.5\n");
    QCOMPARE(import(), ExitStatus::Done);
    QCOMPARE(readFile(into("u.csv")), readFile(from("u.csv")));
}

void tst_ImportAgain::neverGivesAnIdAgain()
{
    writeFile(from("t.csv"), "k\nM8\nM10\nM12\n");
    QCOMPARE(import(), ExitStatus::Done);
    writeFile(from("t.csv"), "k\nM8\n");
    QCOMPARE(import(), ExitStatus::Done);
    QCOMPARE(table("t")->descriptor().nextLineId, 4);
    writeFile(from("t.csv"), "k\nM8\nM20\nM12\n");
    QCOMPARE(import(), ExitStatus::Done);
    QCOMPARE(readFile(into("t.csv")), QByteArray("k,LineId\nM8,1\nM20,4\nM12,5\n"));
    QCOMPARE(table("t")->descriptor().nextLineId, 6);
}

void tst_ImportAgain::keepsIdsOfRepeatedKeys()
{
    QByteArray csv("k,v\n");
    for (int i = 1; i <= 20; ++i)
        csv += QByteArray::number(i) + ",x\n";
    writeFile(from("t.csv"), csv + "6,first\n6,second\n");
    QCOMPARE(import(), ExitStatus::Done);
    writeFile(from("t.csv"), csv + "99,new\n6,first\n6,second\n6,third\n");
    QCOMPARE(import(), ExitStatus::Done);
    const auto read = table("t");
    QCOMPARE(read->lineNumber(5), 6);
    QCOMPARE(read->lineNumber(20), 23);
    QCOMPARE(read->lineNumber(21), 21);
    QCOMPARE(read->lineNumber(22), 22);
    QCOMPARE(read->lineNumber(23), 24);
}

void tst_ImportAgain::keepsCorrectedDescriptor()
{
    writeFile(from("t.csv"), "Dia,L,b\nM8,10;20,1\nM10,20,2\n");
    QCOMPARE(import(), ExitStatus::Done);
    TableErrorList errors;
    auto corrected = TableDescriptor::read(into("t.json"), errors);
    QVERIFY(corrected);
    corrected->title = QStringLiteral("Schraube");
    corrected->lineDesignation = QStringLiteral("DIN 931 - {Dia} x {L}");
    corrected->primaryKey = QStringList{"Dia", "b"};
    corrected->fields[1].kind = FieldKind::Plain;
    corrected->fields[1].type = FieldType::String;
    corrected->fields[2].title = QStringLiteral("Breite");
    corrected->fields.append(
        TableField{.name = "V", .kind = FieldKind::Computed, .formula = "V = b * 2"});
    corrected->unknown.append({QStringLiteral("licence"), QByteArray("\"free\"")});
    writeFile(into("t.json"), corrected->toJson());
    writeFile(from("t.csv"), "Dia,b,L,new\nM12,3,30;40,x\nM8,1,10;20,y\n");
    QCOMPARE(import(), ExitStatus::Done);
    QVERIFY(m_out.contains("  note: new column \"new\"\n"));
    QVERIFY2(
        m_out.contains("  note: the column \"L\" is string by the descriptor, but its cells look "
                       "like range of integers\n"),
        qPrintable(m_out));
    const auto read = TableDescriptor::read(into("t.json"), errors);
    QCOMPARE(read->title, QStringLiteral("Schraube"));
    QCOMPARE(read->lineDesignation, QStringLiteral("DIN 931 - {Dia} x {L}"));
    QCOMPARE(read->primaryKey, (QStringList{"Dia", "b"}));
    QCOMPARE(read->fields.at(read->indexOf(u"L")).kind, FieldKind::Plain);
    QCOMPARE(read->fields.at(read->indexOf(u"b")).title, QStringLiteral("Breite"));
    QCOMPARE(read->fields.at(read->indexOf(u"V")).formula, QStringLiteral("V = b * 2"));
    QCOMPARE(read->fields.at(read->indexOf(u"new")).type, FieldType::String);
    QCOMPARE(read->unknown, corrected->unknown);
    QCOMPARE(readFile(into("t.csv")),
             QByteArray("Dia,b,L,new,LineId\nM12,3,30;40,x,3\nM8,1,10;20,y,1\n"));
}

void tst_ImportAgain::keepsCorrectedProject()
{
    writeFile(from("t.csv"), "a\n1\n");
    QCOMPARE(import(), ExitStatus::Done);
    writeFile(into("t.prj"), "; mine\n[PROJECT]\nNAME = My name\nSACHM = t.json\nVERSIONPRJ=v9\n");
    QCOMPARE(import({"--date", "2027-01-01"}), ExitStatus::Done);
    PrjFile project;
    QCOMPARE(project.Load(into("t.prj"), false), 1);
    QCOMPARE(project.GetLexemValue("NAME"), QStringLiteral("My name"));
    QCOMPARE(project.GetLexemValue("VERSIONPRJ"), QStringLiteral("v9"));
    QCOMPARE(project.GetLexemValue("DATE"), QStringLiteral("2027-01-01T00:00:00Z"));
    QVERIFY(readFile(into("t.prj")).startsWith("; mine\n"));
}

void tst_ImportAgain::ownIdColumnOfTheInput()
{
    writeFile(from("t.csv"), "a,nr\nx,70\ny,80\n");
    QCOMPARE(import(), ExitStatus::Done);
    TableErrorList errors;
    auto corrected = TableDescriptor::read(into("t.json"), errors);
    corrected->lineIdField = QStringLiteral("nr");
    corrected->fields.removeLast();
    writeFile(into("t.json"), corrected->toJson());
    writeFile(into("t.csv"), readFile(from("t.csv")));
    QCOMPARE(import(), ExitStatus::Done);
    QCOMPARE(readFile(into("t.csv")), readFile(from("t.csv")));
    QCOMPARE(table("t")->lineNumber(1), 80);
    writeFile(from("t.csv"), "a,nr\nx,70\ny,70\n");
    QCOMPARE(import(), ExitStatus::InputUnreadable);
    QCOMPARE(m_err, from("t.csv") + ": row 3, column 2: the line id 70 is that of row 2 already\n");
    QCOMPARE(table("t")->lineNumber(1), 80);
}

void tst_ImportAgain::nameOfIdColumnTaken()
{
    writeFile(from("t.csv"), "LineId,a\nx,1\ny,2\n");
    QCOMPARE(import(), ExitStatus::Done);
    QCOMPARE(table("t")->descriptor().lineIdField, QStringLiteral("LineId_2"));
    QCOMPARE(readFile(into("t.csv")), QByteArray("LineId,a,LineId_2\nx,1,1\ny,2,2\n"));
}

void tst_ImportAgain::unchangedTablesStay()
{
    writeFile(from("t.csv"), "a\n1\n");
    QCOMPARE(import(), ExitStatus::Done);
    const QByteArray descriptor = readFile(into("t.json"));
    const QDateTime time = QFileInfo(into("t.csv")).lastModified();
    QCOMPARE(import({}), ExitStatus::Done);
    QVERIFY(m_out.contains("t: 1 line, key a, unchanged\n"));
    QCOMPARE(readFile(into("t.json")), descriptor);
    QCOMPARE(QFileInfo(into("t.csv")).lastModified(), time);
    QCOMPARE(import({"--date", "2030-01-01"}), ExitStatus::Done);
    QVERIFY(readFile(into("t.json")) != descriptor);
}

void tst_ImportAgain::dates_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("stored");

    QTest::newRow("UTC") << "2026-01-31T12:00:00Z"
                         << "2026-01-31T12:00:00Z";
    QTest::newRow("day alone") << "2026-01-31"
                               << "2026-01-31T00:00:00Z";
    QTest::newRow("no offset is UTC") << "2026-01-31T12:00:00"
                                      << "2026-01-31T12:00:00Z";
    QTest::newRow("offset") << "2026-01-31T12:00:00+02:00"
                            << "2026-01-31T10:00:00Z";
}

void tst_ImportAgain::dates()
{
    QFETCH(QString, date);
    QFETCH(QString, stored);
    writeFile(from("t.csv"), "a\n1\n");
    qputenv("TZ", "America/New_York");
    const ExitStatus status = import({"--date", date});
    qunsetenv("TZ");
    QCOMPARE(status, ExitStatus::Done);
    QCOMPARE(table("t")->descriptor().finalDate, stored);
}

void tst_ImportAgain::brokenFormerTable()
{
    writeFile(from("t.csv"), "a\n1\n");
    QCOMPARE(import(), ExitStatus::Done);
    writeFile(into("t.json"), "{ \"fields\": 7 }");
    QCOMPARE(import(), ExitStatus::InputUnreadable);
    QCOMPARE(m_err,
             into("t.json") + ": row 1, column 13: expected a list of fields\n" + into("t.json") +
                 ": the table as it was imported before cannot be read, so its line ids cannot "
                 "be kept; correct it, or remove it to begin again\n");
    QCOMPARE(readFile(into("t.json")), QByteArray("{ \"fields\": 7 }"));
    QVERIFY(QFile::remove(into("t.json")));
    QCOMPARE(import(), ExitStatus::Done);
}

void tst_ImportAgain::leftOvers()
{
    writeFile(from("x/t.csv"), "a\n1\n");
    writeFile(from("u.csv"), "a\n1\n");
    QCOMPARE(import(), ExitStatus::Done);
    QVERIFY(QFile::remove(from("x/t.csv")));
    QCOMPARE(import(), ExitStatus::Done);
    QVERIFY(m_out.contains("note: x/t.prj has no CSV file any more and stays as it is\n"));
    QVERIFY(table("x/t"));
}

void tst_ImportAgain::randomReimports()
{
    // Any sequence of insertions, removals and moves: a key keeps its id as long as it stays, and
    // no id is given twice.
    QRandomGenerator random(3);
    QStringList keys;
    QHash<QString, int> ids;
    QSet<int> everGiven;
    int serial = 0;
    for (int round = 0; round < 25; ++round) {
        for (int i = random.bounded(1, 5); i > 0; --i)
            keys.insert(random.bounded(int(keys.size()) + 1), QStringLiteral("K%1").arg(++serial));
        for (int i = random.bounded(3); i > 0 && keys.size() > 1; --i)
            keys.removeAt(random.bounded(int(keys.size())));
        keys.move(random.bounded(int(keys.size())), random.bounded(int(keys.size())));
        QByteArray csv("key,v\n");
        for (const QString &key : std::as_const(keys))
            csv += key.toUtf8() + ',' + QByteArray::number(random.bounded(3)) + '\n';
        writeFile(from("t.csv"), csv);
        QCOMPARE(import(), ExitStatus::Done);
        const auto read = table("t");
        QVERIFY(read);
        QCOMPARE(read->rowCount(), int(keys.size()));
        QHash<QString, int> now;
        for (int row = 0; row < read->rowCount(); ++row)
            now.insert(read->text(row, 0), read->lineNumber(row));
        for (const QString &key : std::as_const(keys)) {
            if (ids.contains(key))
                QCOMPARE(now.value(key), ids.value(key));
            else
                QVERIFY(!everGiven.contains(now.value(key)));
            everGiven.insert(now.value(key));
        }
        ids = now;
    }
}

QTEST_GUILESS_MAIN(tst_ImportAgain)
#include "tst_ImportAgain.moc"

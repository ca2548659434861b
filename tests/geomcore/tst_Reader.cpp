#include "../support/EnglishTexts.h"

#include <core/message/PMessage.h>
#include <geomcore/linkdb/PLinkDbC.h>
#include <geomcore/project/CipVersionMgmtC.h>
#include <geomcore/table/Content.h>
#include <geomcore/table/ContentRef.h>
#include <geomcore/table/FileLayer.h>
#include <geomcore/table/Reader.h>
#include <geomcore/table/TableData.h>
#include <geomcore/table/TabOptions.h>
#include <geomcore/table/TabReader.h>

#include <boost/make_shared.hpp>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <thread>

using namespace VKTab;

namespace {

/// Keeps what goes to the log window and what would be shown.
class RecordingSink : public PMessageSink
{
public:
    PMsgReply show(const QString &text, PMsgDlgModes) override
    {
        shown.append(text);
        return PMsgReply::Ok;
    }
    void logToWindow(const QString &text) override { logged.append(text); }

    QStringList shown;
    QStringList logged;
};

void writeFile(const QString &name, const QByteArray &bytes)
{
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

} // namespace

class tst_Reader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void readsProject();
    void formerTableGoes();
    void longForm();
    void marksBadRanges();
    void keepsAFew();
    void namesLinesOfTheProjectThatMakeNoSense();
    void fails_data();
    void fails();
    void silent();
    void onAnotherThread();
    void tabReaderEverything();
    void tabReaderHead();
    void tabReaderFails();
    void tabReaderKeeps();

private:
    QString path(const QString &name) const { return m_dir->filePath(name); }
    refHandle<PrjClass> project(const QString &name = "p.prj") const
    {
        const refHandle<PrjClass> read(new PrjClass(false, false, false));
        read->read(path(name), 7);
        return read;
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::shared_ptr<RecordingSink> m_sink;
    std::shared_ptr<PMessageSink> m_former;
};

void tst_Reader::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    writeFile(path("p.prj"), "[PROJECT]\nNAME=P\nSACHM=t.json\n");
    writeFile(path("t.json"), R"({"normNumber": "DIN 931", "finalDate": "2026-01-31T12:00:00Z",
        "lineIdField": "Id", "attributes": {"POOLID": "P7"},
        "filterConditions": [{"name": "BYPRJ", "condition": "Dia .GT. 3"}],
        "fields": [{"name": "L", "kind": "range"}, {"name": "Id", "kind": "internal"}]})");
    writeFile(path("t.csv"), "Dia,L,Id\n8,10;12,70\n10,,80\n");
    m_sink = std::make_shared<RecordingSink>();
    m_former = PMessage::setSink(m_sink);
}

void tst_Reader::cleanup()
{
    PMessage::setSink(m_former);
    m_dir.reset();
}

void tst_Reader::readsProject()
{
    ContentRef content{Content()};
    Reader reader;
    QCOMPARE(reader.readByProject(project(), content, true), 1);
    QVERIFY(content.isValid());
    QVERIFY(reader.errors().isEmpty());
    QCOMPARE(content.getLineIdList(), (QVector<LineId>{70, 80}));
    QCOMPARE(content.getKeyValue(KeyNormNumber).toString(), QStringLiteral("DIN 931"));
    QCOMPARE(content.getKeyValue(KeyProjectPath).toString(), path("p.prj"));
    QCOMPARE(content.getKeyValue(QStringLiteral("POOLID")).toString(), QStringLiteral("P7"));
    QVERIFY(content.getVar(u"L").isFW());
    QCOMPARE(content.getFileLayer()->getFinalDate(QString()),
             QStringLiteral("2026-01-31T12:00:00Z"));
    QCOMPARE(content.getFileLayer()->getFilterConditions().size(), 1);
    content.getFileLayer()->removeFilterCondition(QStringLiteral("BYPRJ"));
    QCOMPARE(content.getFileLayer()->getFilterConditions().size(), 0);
    QVERIFY(m_sink->logged.isEmpty());
}

void tst_Reader::formerTableGoes()
{
    ContentRef content{Content()};
    const ContentRef copy = content;
    Reader reader;
    QCOMPARE(reader.readByProject(project(), content, true), 1);
    QVERIFY(copy.isValid());
    QVERIFY(QFile::remove(path("t.csv")));
    QCOMPARE(reader.readByProject(project(), content, true), -1);
    QVERIFY(!content.isValid());
    QVERIFY(!copy.isValid());
    QVERIFY(content.getLineIdList().isEmpty());
    ContentRef nothing;
    QCOMPARE(reader.readByProject(project(), nothing, true), -1);
    QVERIFY(!nothing.isValid());
}

void tst_Reader::longForm()
{
    const auto options = boost::make_shared<TabOptions>();
    ContentRef content{Content()};
    Reader reader;
    const PRefPtr<PLinkDbC> none;
    QCOMPARE(reader.readByProject(project(), content, options, none, true), 1);
    QVERIFY(content.isValid());
    QCOMPARE(content.getOptions(), options);
    QCOMPARE(reader.readByProject(project(), content, nullptr, none, true), 1);
    QCOMPARE(content.getOptions(), options);
    QCOMPARE(reader.readByProject(project("none.prj"), content, options, none, true), -1);
    QCOMPARE(content.getOptions(), options);
}

void tst_Reader::marksBadRanges()
{
    writeFile(path("t.csv"), "Dia,L,Id\n8,10..20,70\n10,5,80\n");
    ContentRef content{Content()};
    Reader reader;
    QCOMPARE(reader.readByProject(project(), content, true), 1);
    QCOMPARE(content.getTableData()->markedRows(), (std::vector<int>{0}));
    QCOMPARE(reader.errors().size(), 1);
    QCOMPARE(reader.errors().first().toString(),
             path("t.csv") + ": row 2, column 2: \"10..20\" is no value range of L: \"10..20\" "
                             "has no step; write it as 10..50/5");
    QVERIFY(m_sink->logged.isEmpty());
    QCOMPARE(reader.readByProject(project(), content, false), 1);
    QVERIFY(reader.errors().isEmpty());
}

void tst_Reader::keepsAFew()
{
    QByteArray csv("Dia,L,Id\n");
    for (int i = 1; i <= 25; ++i)
        csv += "8,10..20," + QByteArray::number(i) + "\n";
    writeFile(path("t.csv"), csv);
    ContentRef content{Content()};
    Reader reader;
    QCOMPARE(reader.readByProject(project(), content, true), 1);
    QCOMPARE(reader.errors().size(), 21);
    QCOMPARE(reader.errors().last().toString(), path("t.csv") + ": 5 more errors");
    QVERIFY(m_sink->logged.isEmpty());
}

void tst_Reader::namesLinesOfTheProjectThatMakeNoSense()
{
    writeFile(path("p.prj"), "[PROJECT]\nwhat is this\nSACHM=t.json\n");
    ContentRef content{Content()};
    Reader reader;
    QCOMPARE(reader.readByProject(project(), content, true), 1);
    QCOMPARE(reader.errors().size(), 1);
    QCOMPARE(reader.errors().first().toString(),
             path("p.prj") + ": row 2: neither section, key nor comment");
    writeFile(path("p.prj"), "[PROJECT]\nSACHM: t.json\n");
    QCOMPARE(reader.readByProject(project(), content, true), -1);
    QCOMPARE(reader.errors().last().toString(),
             path("p.prj") + ": row 2: neither section, key nor comment");
    writeFile(path("p.prj"), QByteArray("\xff\xfe[\0P\0]\0", 8));
    QCOMPARE(reader.readByProject(project(), content, true), -1);
    QCOMPARE(reader.errors().at(1).toString(),
             path("p.prj") + ": row 1: the file is UTF-16; save it as UTF-8");
    QVERIFY(m_sink->logged.isEmpty());
}

void tst_Reader::fails_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("message");

    QTest::newRow("no such project") << "p.prj" << QByteArray() << "p.prj";
    QTest::newRow("no table") << "p.prj" << QByteArray("[PROJECT]\nNAME=P\n")
                              << "p.prj: the project has no table; its lexeme SACHM is to name one";
    QTest::newRow("project of nonsense")
        << "p.prj" << QByteArray("[PROJECT]\nSACHM: t.json\n")
        << "p.prj: the project has no table; its lexeme SACHM is to name one";
    QTest::newRow("table elsewhere")
        << "p.prj" << QByteArray("[PROJECT]\nSACHM=../t.json\n") << "lies outside of";
    QTest::newRow("absolute table")
        << "p.prj" << QByteArray("[PROJECT]\nSACHM=/abs/t.json\n") << "lies outside of";
    QTest::newRow("table by a variable")
        << "p.prj" << QByteArray("[PROJECT]\nSACHM=$HOME/t.json\n") << "lies outside of";
    QTest::newRow("table by address")
        << "p.prj" << QByteArray("[PROJECT]\nSACHM=svn://host/t.json\n") << "is an address";
    QTest::newRow("table with a NUL")
        << "p.prj" << QByteArray("[PROJECT]\nSACHM=\"t.json\\u0000x\"\n") << "has a NUL in it";
    QTest::newRow("missing descriptor") << "t.json" << QByteArray() << "t.json: cannot be opened: ";
    QTest::newRow("descriptor no JSON") << "t.json" << QByteArray("{\n\"name\"}")
                                        << "t.json: row 2, column 7: no valid JSON: A colon is "
                                           "missing behind the name of a member.";
    QTest::newRow("missing lines") << "t.csv" << QByteArray() << "t.csv: cannot be opened: ";
    QTest::newRow("quote left open") << "t.csv" << QByteArray("Dia,L,Id\n8,\"10,70\n")
                                     << "t.csv: row 2, column 2: a quote is left open";
    QTest::newRow("too few cells")
        << "t.csv" << QByteArray("Dia,L,Id\n8,70\n")
        << "t.csv: row 2, column 3: 2 cells instead of 3, as the header row has";
    QTest::newRow("too many cells")
        << "t.csv" << QByteArray("Dia,L,Id\n8,1,70,9\n")
        << "t.csv: row 2, column 4: 4 cells instead of 3, as the header row has";
    QTest::newRow("no UTF-8")
        << "t.csv" << QByteArray("Dia,L,Id\n8,\xE4,70\n")
        << "t.csv: row 2, column 2: the bytes are no UTF-8; save the file as UTF-8";
    QTest::newRow("duplicate line id")
        << "t.csv" << QByteArray("Dia,L,Id\n8,1,70\n9,1,70\n")
        << "t.csv: row 3, column 3: the line id 70 is that of row 2 already";
    QTest::newRow("column gone")
        << "t.csv" << QByteArray("Dia,Id\n8,70\n")
        << "t.csv: row 1: the column \"L\" is missing, which the descriptor has";
}

void tst_Reader::fails()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, content);
    QFETCH(QString, message);
    ContentRef table{Content()};
    Reader reader;
    QCOMPARE(reader.readByProject(project(), table, true), 1);
    if (content.isEmpty())
        QVERIFY(QFile::remove(path(file)));
    else
        writeFile(path(file), content);
    QCOMPARE(reader.readByProject(project(), table, true), -1);
    QVERIFY(!table.isValid());
    QVERIFY(!table.getFileLayer());
    QCOMPARE(reader.errors().size(),
             QTest::currentDataTag() == QByteArray("project of nonsense") ? 2 : 1);
    QVERIFY2(reader.errors().first().toString().contains(message),
             qPrintable(reader.errors().first().toString()));
    QVERIFY(reader.errors().first().toString().contains(m_dir->path()));
    QVERIFY(m_sink->logged.isEmpty());
    QVERIFY(m_sink->shown.isEmpty());
}

void tst_Reader::silent()
{
    ContentRef table{Content()};
    Reader reader;
    QCOMPARE(reader.readByProject(project("none.prj"), table, false), -1);
    QCOMPARE(reader.errors().size(), 1);
    QVERIFY(m_sink->logged.isEmpty());
    QCOMPARE(reader.readByProject({}, table, false), -1);
    QCOMPARE(reader.errors().first().text, QStringLiteral("the project was not read"));
}

void tst_Reader::onAnotherThread()
{
    ContentRef table{Content()};
    int result = 0;
    std::thread worker([&] {
        Reader reader;
        result = reader.readByProject(project(), table, true);
    });
    worker.join();
    QCOMPARE(result, 1);
    QVERIFY(table.isValid());
}

void tst_Reader::tabReaderEverything()
{
    TabReader reader;
    QVERIFY(!reader.getData()->isValid());
    reader.setReadMode(1);
    QCOMPARE(reader.readFile(path("t.json"), true), 1);
    QVERIFY(reader.getData()->isValid());
    QCOMPARE(reader.getData()->getLineInfoList().size(), 2);
    QCOMPARE(reader.getData()->getFinalDate(QString()), QStringLiteral("2026-01-31T12:00:00Z"));
    QVERIFY(m_sink->logged.isEmpty());
}

void tst_Reader::tabReaderHead()
{
    QVERIFY(QFile::remove(path("t.csv"))); // the head needs no lines
    TabReader reader;
    reader.setReadMode(2);
    QCOMPARE(reader.readFile(path("t.json"), true), 1);
    QVERIFY(!reader.getData()->data());
    QCOMPARE(
        CipVersionMgmtC::MakeVersionFromDate(reader.getData()->getFinalDate(QString()), QString()),
        QStringLiteral("v260131120000"));
}

void tst_Reader::tabReaderFails()
{
    TabReader reader;
    for (int mode : {1, 2}) {
        reader.setReadMode(mode);
        QCOMPARE(reader.readFile(path("none.json"), true), -1);
        QCOMPARE(reader.errors().size(), 1);
        QVERIFY(!reader.getData()->isValid());
        QCOMPARE(reader.getData()->getFinalDate(QString()), QString());
    }
    QVERIFY(m_sink->logged.isEmpty());
    QVERIFY(m_sink->shown.isEmpty());
}

void tst_Reader::tabReaderKeeps()
{
    TabReader reader;
    QCOMPARE(reader.readFile(path("t.json"), false), 1);
    QCOMPARE(reader.readFile(path("none.json"), true), -1);
    QVERIFY(reader.getData()->isValid());
    QCOMPARE(reader.readFile(path("none.json"), false), -1);
    QVERIFY(!reader.getData()->isValid());
}

QTEST_GUILESS_MAIN(tst_Reader)
#include "tst_Reader.moc"

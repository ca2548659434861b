#include "../support/SizeLimit.h"
#include "RecordSamples.h"

#include <core/json/PJsonValue.h>
#include <core/parallel/WorkerPool.h>
#include <geomcore/records/MappingFile.h>

#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

namespace {

/// A file of one release with one mapping; `%` stands for what a test puts in its place.
const QByteArray Sound = R"({
 "2022": {
  "sourceDate": "2022",
  "targetDate": "2026",
  "mappings": [
   {
    "sourcePath": "cat/a.prj",
    "sourceVersion": "v1",
    "tabVersion": "v2",
    "state": 2,
    "targets": [
     {
      "path": "cat/b.prj",
      "version": "v3",
      "tabVersion": "v4",
      "valid": true,
      "conditions": ["D .EQ. 4"],
      "modifiers": [
       {
        "kind": "var",
        "source": "A",
        "target": "B"
       }
      ],
      "lines": [
       [1,10,1],
       [2,-1,0,"text",true]
      ]
     }
    ]
   }
  ]
 }
}
)";

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

ReleaseMappingC sampleRelease(const QString &date, quint32 seed)
{
    QRandomGenerator random(seed);
    return RecordSamples::randomRelease(random, date);
}

} // namespace

class tst_MappingFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emptyFileObject()
    {
        const MappingFile file;
        QVERIFY(file.sourceDates().isEmpty());
        QVERIFY(!file.contains("2022"));
        QCOMPARE(file.release("2022").countMappings(), 0);
        QCOMPARE(file.toByteArray(), QByteArray("{}\n"));
    }

    // Large tables of lines are written in parts on several threads.
    void sameBytesForAnyNumberOfThreads()
    {
        PrjMappingC mapping;
        mapping.setSourcePath("cat/a.prj");
        PrjMappingTargetC target;
        target.setTargetPath("cat/b.prj");
        for (int line = 0; line < 70000; line += line % 1000 == 3 ? 500 : 1)
            target.addLineId(line, line % 7 == 0 ? -1 : 2 * line, PRJMAPPING::Mapped,
                             line % 900 == 0 ? QStringLiteral("{A=1} -> 2\n") : QString());
        target.setLineConflicted(17, true);
        target.setLineConflicted(65000, true);
        mapping.addTarget(target);
        ReleaseMappingC release;
        release.setSourceDate("2022");
        release.addMapping(mapping);
        MappingFile file;
        file.setRelease(release);
        const auto restore = qScopeGuard([] { WorkerPool::instance().setThreads(0); });
        WorkerPool::instance().setThreads(1);
        const QByteArray whole = file.toByteArray();
        for (const int threads : {2, 3, 8}) {
            WorkerPool::instance().setThreads(threads);
            QVERIFY(file.toByteArray() == whole);
        }
        MappingFile read;
        QVERIFY(read.parse(whole));
        QCOMPARE(read.release("2022").mappingAt(0).targetAt(0).countLines(), target.countLines());
    }

    void readsEverything()
    {
        MappingFile file;
        QString error;
        QVERIFY2(file.parse(Sound, QString(), &error), qPrintable(error));
        QCOMPARE(file.sourceDates(), QStringList{"2022"});
        QCOMPARE(file.toByteArray(), Sound);
        const PrjMappingC mapping = file.release("2022").findMapping("cat/a.prj", "v1", "v2");
        QVERIFY(mapping.isValid());
        QCOMPARE(mapping.getMappingState().toInt(), 2);
        const PrjMappingTargetC target = mapping.findTarget(0);
        QVERIFY(target.isValid());
        QCOMPARE(target.getTargetPath(), QString("cat/b.prj"));
        QCOMPARE(target.getTargetVersion(), QString("v3"));
        QCOMPARE(target.getTabVersion(), QString("v4"));
        QCOMPARE(target.getConditions().size(), 1);
        QCOMPARE(target.getVarsetModifier().size(), 1);
        QCOMPARE(target.countLines(), 2);
        QVERIFY(target.getMappedLine(1) == PrjMappingTargetLineC(10, PRJMAPPING::Mapped, ""));
        QCOMPARE(target.getMappedLine(2).getExtended(), QString("text"));
        QVERIFY(target.getLineConflicted(2));
        QVERIFY(!target.getLineConflicted(1));
    }

    void writeReadWriteGivesTheSameBytes()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("m.json");
        for (quint32 seed = 0; seed < 25; ++seed) {
            MappingFile file;
            for (const char *date : {"2022", "2020", "2021"})
                file.setRelease(sampleRelease(date, seed * 3 + quint32(date[3])));
            const QByteArray bytes = file.toByteArray();
            QString error;
            QVERIFY2(file.write(path, &error), qPrintable(error));
            QCOMPARE(readFile(path), bytes);
            MappingFile read;
            QVERIFY2(read.read(path, QString(), &error), qPrintable(error));
            QCOMPARE(read.sourceDates(), QStringList({"2022", "2020", "2021"}));
            QCOMPARE(read.releases().size(), 3);
            QCOMPARE(read.toByteArray(), bytes);
            // The general way through a document gives the same.
            PJsonValue document;
            for (const ReleaseMappingC &release : read.releases())
                release.toJson(document[release.getSourceDate()], false);
            QCOMPARE(document.toByteArray(false), bytes);
        }
    }

    void oneReleaseIsChosen()
    {
        MappingFile all;
        all.setRelease(sampleRelease("2020", 1));
        all.setRelease(sampleRelease("2022", 2));
        const QByteArray strange = "{\"other\" : [ 1.50,\t{} ],\r\n \"x\":null}";
        QByteArray bytes = all.toByteArray();
        bytes.insert(2, " \"1999\": " + strange + ",\n \"a\\\"b\": 7,\n");

        MappingFile file;
        QString error;
        QVERIFY2(file.parse(bytes, "2022", &error), qPrintable(error));
        QCOMPARE(file.sourceDates(), QStringList({"1999", "a\"b", "2020", "2022"}));
        QCOMPARE(file.releases().size(), 1);
        QCOMPARE(file.release("2020").countMappings(), 0);
        QVERIFY(file.contains("2020"));
        QCOMPARE(file.toByteArray(), bytes);

        ReleaseMappingC changed = file.release("2022");
        changed.setTargetDate("2030");
        file.setRelease(changed);
        all.setRelease(changed);
        QByteArray expected = all.toByteArray();
        expected.insert(2, " \"1999\": " + strange + ",\n \"a\\\"b\": 7,\n");
        QCOMPARE(file.toByteArray(), expected);

        QVERIFY(!file.parse(bytes, QString(), &error));
        QVERIFY(file.parse(bytes, "1234", &error));
        QVERIFY(!file.contains("1234"));
        QVERIFY(file.releases().isEmpty());
    }

    void setReleaseReplacesInItsPlace()
    {
        MappingFile file;
        for (const char *date : {"2020", "2021", "2022"})
            file.setRelease(sampleRelease(date, 1));
        const MappingFile copy = file;
        ReleaseMappingC release;
        release.setSourceDate("2021");
        release.setTargetDate("new");
        file.setRelease(release);
        QCOMPARE(file.sourceDates(), QStringList({"2020", "2021", "2022"}));
        QCOMPARE(file.release("2021").getTargetDate(), QString("new"));
        QVERIFY(copy.release("2021").getTargetDate() != QString("new"));
    }

    void toleratedText_data()
    {
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        QTest::newRow("unknown members") << QByteArray("\"state\": 2")
                                         << QByteArray("\"new\": [{\"path\": 1}, 2], \"state\": 2, "
                                                       "\"newer\": {\"lines\": {}}, \"n\": null");
        QTest::newRow("unknown member of a release")
            << QByteArray("\"targetDate\"") << QByteArray("\"kind\": true, \"targetDate\"");
        QTest::newRow("unknown member of a modifier")
            << QByteArray("\"kind\"") << QByteArray("\"formula\": \"\", \"x\": 1.5, \"kind\"");
        QTest::newRow("of members of one name the last counts")
            << QByteArray("\"lines\"") << QByteArray("\"lines\": [[1,2,0],[9,9,1]], \"lines\"");
        QTest::newRow("conditions twice") << QByteArray("\"conditions\"")
                                          << QByteArray("\"conditions\": [\"x\"], \"conditions\"");
        QTest::newRow("targets twice")
            << QByteArray("\"targets\"") << QByteArray("\"targets\": [], \"targets\"");
        QTest::newRow("rows in another order")
            << QByteArray("[1,10,1],") << QByteArray("[3,1,1],[1,10,1],");
        QTest::newRow("blanks in a row") << QByteArray("[1,10,1]") << QByteArray("[ 1 ,\n10,\t1 ]");
        QTest::newRow("byte order mark")
            << QByteArray("{\n \"2022\"") << QByteArray("\xEF\xBB\xBF{\n \"2022\"");
        QTest::newRow("release twice")
            << QByteArray("{\n \"2022\"")
            << QByteArray("{\"2022\": {\"sourceDate\": \"2022\", \"targetDate\": \"x\"}, \"2022\"");
    }
    void toleratedText()
    {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        QByteArray bytes = Sound;
        QVERIFY(bytes.contains(from));
        bytes.replace(bytes.indexOf(from), from.size(), to);
        MappingFile file;
        QString error;
        QVERIFY2(file.parse(bytes, QString(), &error), qPrintable(error));
        PrjMappingC mapping = file.release("2022").mappingAt(0);
        PrjMappingTargetC target = mapping.findTarget(0);
        target.removeLineId(3);
        mapping.updateTarget(0, target);
        mapping.setMappingState(PRJMAPPING::StateIncomplete);
        ReleaseMappingC release = file.release("2022");
        release.addMapping(mapping);
        file.setRelease(release);
        QCOMPARE(file.toByteArray(), Sound);
    }

    void agreedReplacementsStayInTheirRelease()
    {
        const QByteArray text = R"("targetDate": "2026",
  "replacements": [
   {
    "folder": "cat/screws",
    "variable": "Werkstoff",
    "before": "St37-2",
    "after": "S235JR"
   },
   {
    "folder": "",
    "variable": "L",
    "factor": "0.1",
    "offset": "-2"
   }
  ],)";
        QByteArray bytes = Sound;
        bytes.replace("\"targetDate\": \"2026\",", text);
        MappingFile file;
        QString error;
        QVERIFY2(file.parse(bytes, QString(), &error), qPrintable(error));
        ReleaseMappingC release = file.release("2022");
        const QList<AgreedReplacement> agreed = release.getReplacements();
        QCOMPARE(agreed.size(), 2);
        QCOMPARE(agreed[0],
                 (AgreedReplacement{"cat/screws", "Werkstoff", "St37-2", "S235JR", {}, {}}));
        QCOMPARE(agreed[1], (AgreedReplacement{{}, "L", {}, {}, "0.1", "-2"}));
        QVERIFY(agreed[1].isNumeric() && !agreed[0].isNumeric());
        QCOMPARE(release.head().getReplacements(), agreed);
        QCOMPARE(release.head().countMappings(), 0);
        file.setRelease(release);
        QCOMPARE(file.toByteArray(), bytes);
        release.setReplacements({});
        file.setRelease(release);
        QCOMPARE(file.toByteArray(), Sound);
    }
    void replacementHoldsInItsFolder_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<bool>("holds");
        QTest::newRow("whole release") << QString() << true;
        QTest::newRow("folder") << "cat/screws" << true;
        QTest::newRow("folder with its separator") << "cat/screws/" << true;
        QTest::newRow("project") << "cat/screws/a.prj" << true;
        QTest::newRow("beginning of a name") << "cat/scr" << false;
        QTest::newRow("other folder") << "cat/nuts" << false;
        QTest::newRow("longer path") << "cat/screws/a.prj/b" << false;
    }
    void replacementHoldsInItsFolder()
    {
        QFETCH(QString, folder);
        QFETCH(bool, holds);
        AgreedReplacement replacement;
        replacement.folder = folder;
        QCOMPARE(replacement.holdsIn("cat/screws/a.prj"), holds);
        QCOMPARE(replacement.holdsIn("cat\\screws\\a.prj"), holds);
    }
    void badReplacementIsNamed()
    {
        QByteArray bytes = Sound;
        bytes.replace("\"mappings\"",
                      R"("replacements":[{"folder":"","variable":"A"}],"mappings")");
        QString error;
        QVERIFY(!MappingFile().parse(bytes, QString(), &error));
        QVERIFY2(error.contains("replacements[0] must name a variable"), qPrintable(error));
    }

    void notFoundTargetIsMovedToTheEnd()
    {
        const QByteArray found = Sound.mid(Sound.indexOf("     {\n      \"path\""));
        const QByteArray target = found.left(found.indexOf("\n    ]\n   }"));
        QByteArray lost = target;
        lost.replace("cat/b.prj", "").replace("[1,10,1]", "[7,-1,0]");
        QByteArray second = lost;
        second.replace("[7,-1,0]", "[8,-1,1]").replace("\"text\"", "\"other\"");
        QByteArray bytes = Sound;
        bytes.replace(target, lost + ",\n" + target + ",\n" + second);
        MappingFile file;
        QString error;
        QVERIFY2(file.parse(bytes, QString(), &error), qPrintable(error));
        QCOMPARE(file.notes(),
                 QStringList{"\"2022\": mappings[0]: the target with an empty \"path\" "
                             "was moved to the end."});
        const PrjMappingC mapping = file.release("2022").mappingAt(0);
        QCOMPARE(mapping.countTargets(), 2);
        QCOMPARE(mapping.getNotFoundTarget(), 1);
        QCOMPARE(mapping.targetAt(0).countLines(), 2);
        const PrjMappingTargetC notFound = mapping.findTarget(1);
        QCOMPARE(notFound.countLines(), 3);
        QCOMPARE(notFound.getMappedLine(2).getExtended(), "text");
        QCOMPARE(notFound.getMappedLine(8).getState(), PRJMAPPING::Mapped);

        QVERIFY(file.parse(file.toByteArray()));
        QCOMPARE(file.notes(), QStringList());
    }
    void releaseThatStandsTwiceIsTold_data()
    {
        QTest::addColumn<QString>("wanted");
        QTest::newRow("as records") << QString();
        QTest::newRow("as text") << "2030";
    }
    void releaseThatStandsTwiceIsTold()
    {
        QFETCH(QString, wanted);
        QByteArray bytes = Sound;
        bytes.replace("{\n \"2022\"",
                      "{\"2022\": {\"sourceDate\": \"2022\", \"targetDate\": \"x\"}, "
                      "\"2022\"");
        MappingFile file;
        QVERIFY(file.parse(bytes, wanted));
        QCOMPARE(file.notes(),
                 QStringList{"\"2022\" stands there more than once; the last one counts."});
        QCOMPARE(file.sourceDates(), QStringList{"2022"});
    }

    void unreadableConditionsAreKept()
    {
        QByteArray bytes = Sound;
        bytes.replace("D .EQ. 4", "D .EQ.");
        bytes.replace("\"kind\": \"var\",\n        \"source\": \"A\",\n        \"target\": \"B\"",
                      "\"kind\": \"value\",\n        \"formula\": \"= (\"");
        MappingFile file;
        QVERIFY(file.parse(bytes));
        QCOMPARE(file.toByteArray(), bytes);
    }

    void badText_data()
    {
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        QTest::addColumn<QString>("error");
        QTest::newRow("no object")
            << Sound << QByteArray("[]") << "line 1, column 2: A mapping file must hold an object.";
        QTest::newRow("nothing at all") << Sound << QByteArray() << "line 1, column 1: ";
        QTest::newRow("a text") << Sound << QByteArray("\"x\"")
                                << ": A mapping file must hold an object.";
        QTest::newRow("release is no object")
            << Sound << QByteArray("{\"2022\": 5}")
            << "line 1, column 10: \"2022\": The release must be an object";
        QTest::newRow("other date inside")
            << QByteArray("\"sourceDate\": \"2022\"") << QByteArray("\"sourceDate\": \"2023\"")
            << "\"2022\": The release says \"2023\" as its sourceDate.";
        QTest::newRow("date is no text")
            << QByteArray("\"sourceDate\": \"2022\"") << QByteArray("\"sourceDate\": 2022")
            << "line 3, column 17: \"2022\": sourceDate must be a text";
        QTest::newRow("no target date")
            << QByteArray("  \"targetDate\": \"2026\",\n") << QByteArray()
            << "\"2022\": The release lacks the member \"targetDate\"";
        QTest::newRow("mappings are no array")
            << QByteArray("\"mappings\": [") << QByteArray("\"mappings\": {}, \"x\": [")
            << "\"2022\": mappings must be an array";
        QTest::newRow("mapping is no object")
            << QByteArray("\"mappings\": [") << QByteArray("\"mappings\": [5,")
            << "\"2022\": mappings must hold nothing but objects";
        QTest::newRow("no source path")
            << QByteArray("    \"sourcePath\": \"cat/a.prj\",\n") << QByteArray()
            << "\"2022\": mappings[0] lacks the member \"sourcePath\"";
        QTest::newRow("empty source path") << QByteArray("\"cat/a.prj\"") << QByteArray("\"\"")
                                           << "\"2022\": mappings[0] has an empty \"sourcePath\"";
        QTest::newRow("null as a text") << QByteArray("\"v1\"") << QByteArray("null")
                                        << "\"2022\": mappings[0].sourceVersion must be a text";
        QTest::newRow("state is a text")
            << QByteArray("\"state\": 2") << QByteArray("\"state\": \"2\"")
            << "\"2022\": mappings[0].state must be an integer from 0 to 2147483647";
        QTest::newRow("state is a fraction")
            << QByteArray("\"state\": 2") << QByteArray("\"state\": 2.5")
            << "mappings[0].state must be an integer";
        QTest::newRow("state is negative")
            << QByteArray("\"state\": 2") << QByteArray("\"state\": -2")
            << "mappings[0].state must be an integer";
        QTest::newRow("state is too large")
            << QByteArray("\"state\": 2") << QByteArray("\"state\": 99999999999999999999")
            << "mappings[0].state must be an integer";
        QTest::newRow("state is an array")
            << QByteArray("\"state\": 2") << QByteArray("\"state\": [2]")
            << "mappings[0].state must be an integer";
        QTest::newRow("second target is a text")
            << QByteArray("      ]\n     }\n    ]") << QByteArray("      ]\n     }, \"x\"\n    ]")
            << "mappings[0].targets must hold nothing but objects";
        QTest::newRow("valid is a number")
            << QByteArray("\"valid\": true") << QByteArray("\"valid\": 1")
            << "\"2022\": mappings[0].targets[0].valid must be true or false";
        QTest::newRow("lines are missing") << QByteArray("\"lines\"") << QByteArray("\"line\"")
                                           << "mappings[0].targets[0] lacks the member \"lines\"";
        QTest::newRow("condition is a number")
            << QByteArray("[\"D .EQ. 4\"]") << QByteArray("[\"D .EQ. 4\", 4]")
            << "mappings[0].targets[0].conditions[1] must be a text";
        QTest::newRow("modifier of unknown kind")
            << QByteArray("\"kind\": \"var\"") << QByteArray("\"kind\": \"sum\"")
            << "mappings[0].targets[0].modifiers[0] must be of kind";
        QTest::newRow("modifier without source")
            << QByteArray("\"source\": \"A\",") << QByteArray()
            << "mappings[0].targets[0].modifiers[0] must be of kind";
        QTest::newRow("modifier without kind")
            << QByteArray("\"kind\": \"var\",") << QByteArray()
            << "mappings[0].targets[0].modifiers[0] lacks the member \"kind\"";
        QTest::newRow("row is no array")
            << QByteArray("[1,10,1]") << QByteArray("1")
            << "line 26, column 8: \"2022\": mappings[0].targets[0].lines[0] must be an array";
        QTest::newRow("row of two") << QByteArray("[1,10,1]") << QByteArray("[1,10]")
                                    << "targets[0].lines[0] must be [source line, target line";
        QTest::newRow("row of six") << QByteArray("true]") << QByteArray("true,1]")
                                    << "line 27, column 28: \"2022\": "
                                       "mappings[0].targets[0].lines[1] must be [source";
        QTest::newRow("conflict is false")
            << QByteArray("true]") << QByteArray("false]") << "targets[0].lines[1] must be [";
        QTest::newRow("conflict without text")
            << QByteArray("\"text\",true") << QByteArray("true") << "targets[0].lines[1] must be [";
        QTest::newRow("extended text is a number")
            << QByteArray("\"text\"") << QByteArray("5") << "targets[0].lines[1] must be [";
        QTest::newRow("row in a row") << QByteArray("[1,10,1]") << QByteArray("[1,10,[1]]")
                                      << "targets[0].lines[0] must be [";
        QTest::newRow("object in a row")
            << QByteArray("[1,10,1]") << QByteArray("[1,10,{}]") << "targets[0].lines[0] must be [";
        QTest::newRow("text as a line") << QByteArray("[1,10,1]") << QByteArray("[1,\"10\",1]")
                                        << "targets[0].lines[0] must be [";
        QTest::newRow("line beyond an int")
            << QByteArray("[1,10,1]") << QByteArray("[1,3000000000,1]")
            << "targets[0].lines[0] must be [";
        QTest::newRow("line is a fraction")
            << QByteArray("[1,10,1]") << QByteArray("[1,1e1,1]") << "targets[0].lines[0] must be [";
        QTest::newRow("line state is negative")
            << QByteArray("[1,10,1]") << QByteArray("[1,10,-1]") << "targets[0].lines[0] must be [";
        QTest::newRow("line twice") << QByteArray("[2,-1,0") << QByteArray("[1,-1,0")
                                    << "targets[0].lines[1] names source line 1 once more";
        QTest::newRow("unknown member nested too deeply")
            << QByteArray("\"state\"")
            << QByteArray("\"x\": " + QByteArray(600, '[') + QByteArray(600, ']') + ", \"state\"")
            << "nested too deeply";
        QTest::newRow("comma missing")
            << QByteArray("[1,10,1],") << QByteArray("[1,10,1]")
            << "line 27, column 8: Missing a comma or ']' after an array";
        QTest::newRow("invalid UTF-8")
            << QByteArray("cat/a") << QByteArray("cat/\xFF") << "Invalid encoding in string";
        QTest::newRow("something behind")
            << QByteArray("\n }\n}\n") << QByteArray("\n }\n}\nx") << "line 35, column 1: ";
        QTest::newRow("byte 0 behind")
            << QByteArray("\n }\n}\n") << QByteArray("\n }\n}\n\0", 7) << "A byte of value 0";
    }
    void badText()
    {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        QFETCH(QString, error);
        QByteArray bytes = Sound;
        QVERIFY(bytes.contains(from));
        bytes.replace(bytes.indexOf(from), from.size(), to);
        MappingFile file;
        QVERIFY(file.parse(Sound));
        QString message;
        QVERIFY(!file.parse(bytes, QString(), &message));
        QVERIFY2(message.contains(error), qPrintable(message));
        QVERIFY(message.startsWith("line "));
        QCOMPARE(file.toByteArray(), Sound);
    }

    void rowsBehindARow_data()
    {
        QTest::addColumn<QByteArray>("rows");
        QTest::addColumn<QList<int>>("ids");
        const QList<int> none;
        QTest::newRow("plain") << QByteArray("[1,2,0],[2,2,0],[3,2,0]") << QList<int>{1, 2, 3};
        QTest::newRow("blanks") << QByteArray("[1,2,0] ,\n[ 2 ,\t2\r,0 ] , [3,2,0] ")
                                << QList<int>{1, 2, 3};
        QTest::newRow("extended in between")
            << QByteArray("[1,2,0],[2,2,0],[3,2,0,\"x\"],[4,2,0]") << QList<int>{1, 2, 3, 4};
        QTest::newRow("limits") << QByteArray("[0,0,0],[1,-0,2147483647],[2147483647,0,0]")
                                << QList<int>{0, 1, std::numeric_limits<int>::max()};
        QTest::newRow("negative source line") << QByteArray("[1,2,0],[-5,1,1]") << none;
        QTest::newRow("negative target line") << QByteArray("[1,2,0],[2,-7,1]") << none;
        QTest::newRow("negative target line with a text")
            << QByteArray("[1,2,0],[2,-2,1,\"x\"]") << none;
        QTest::newRow("leading zero") << QByteArray("[1,2,0],[02,2,0]") << none;
        QTest::newRow("leading zero behind a sign") << QByteArray("[1,2,0],[-02,2,0]") << none;
        QTest::newRow("plus sign") << QByteArray("[1,2,0],[+2,2,0]") << none;
        QTest::newRow("sign alone") << QByteArray("[1,2,0],[-,2,0]") << none;
        QTest::newRow("fraction") << QByteArray("[1,2,0],[2,2.0,0]") << none;
        QTest::newRow("exponent") << QByteArray("[1,2,0],[2,2,0e0]") << none;
        QTest::newRow("beyond an int") << QByteArray("[1,2,0],[2147483648,2,0]") << none;
        QTest::newRow("negative state") << QByteArray("[1,2,0],[2,2,-1]") << none;
        QTest::newRow("two numbers") << QByteArray("[1,2,0],[2,2]") << none;
        QTest::newRow("empty row") << QByteArray("[1,2,0],[]") << none;
        QTest::newRow("four numbers") << QByteArray("[1,2,0],[2,2,0,0]") << none;
        QTest::newRow("comma behind a number") << QByteArray("[1,2,0],[2,2,0,]") << none;
        QTest::newRow("no comma between") << QByteArray("[1,2,0][2,2,0]") << none;
        QTest::newRow("no comma later") << QByteArray("[1,2,0],[2,2,0][3,2,0]") << none;
        QTest::newRow("comma at the end") << QByteArray("[1,2,0],[2,2,0],") << none;
        QTest::newRow("two commas") << QByteArray("[1,2,0],,[2,2,0]") << none;
        QTest::newRow("twice") << QByteArray("[1,2,0],[2,2,0],[1,2,0]") << none;
        QTest::newRow("form feed") << QByteArray("[1,2,0],\f[2,2,0]") << none;
    }
    void rowsBehindARow()
    {
        QFETCH(QByteArray, rows);
        QFETCH(QList<int>, ids);
        QByteArray bytes = Sound;
        const qsizetype from = bytes.indexOf("[1,10,1]");
        bytes.replace(from, bytes.indexOf("      ]\n", from) - from, rows);
        MappingFile file;
        QString error;
        QCOMPARE(file.parse(bytes, QString(), &error), !ids.isEmpty());
        QList<int> found;
        for (const ReleaseMappingC &release : file.releases()) {
            for (const auto &line : release.mappingAt(0).findTarget(0).lines())
                found += line.sourceLine();
        }
        QCOMPARE(found, ids);
        QVERIFY2(ids.isEmpty() == error.startsWith("line "), qPrintable(error));
    }

    void rowsAcrossPieces()
    {
        QRandomGenerator random(21);
        const QByteArrayList blanks{"", "", " ", "\n", "\t\r\n   "};
        const auto blank = [&] {
            return blanks.at(random.bounded(blanks.size()));
        };
        QByteArray rows;
        for (int i = 1; i <= 30000; ++i) {
            rows += i == 1 ? "" : ",";
            rows += blank() + '[' + blank() + QByteArray::number(i * 7) + blank() + ',' + blank() +
                    QByteArray::number(int(random.generate() >> 1U)) + ',' + blank() +
                    QByteArray::number(random.bounded(4)) + blank();
            if (random.bounded(10) == 0)
                rows += ",\"" + QByteArray(random.bounded(40), 'x') + '"';
            rows += ']' + blank();
        }
        QByteArray bytes = Sound;
        const qsizetype from = bytes.indexOf("[1,10,1]");
        bytes.replace(from, bytes.indexOf("      ]\n", from) - from, rows);
        QVERIFY(bytes.size() > 700000);

        QTemporaryDir dir;
        const QString path = dir.filePath("m.json");
        writeFile(path, bytes);
        MappingFile file;
        QString error;
        QVERIFY2(file.read(path, QString(), &error), qPrintable(error));
        QCOMPARE(file.release("2022").mappingAt(0).findTarget(0).countLines(), 30000);
        // The other way to read a release looks at every row alike.
        PJsonValue document;
        QVERIFY(document.parse(bytes));
        ReleaseMappingC release;
        QVERIFY2(release.fromJson(document.value("2022"), &error), qPrintable(error));
        MappingFile expected;
        expected.setRelease(release);
        QCOMPARE(file.toByteArray(), expected.toByteArray());
        // Left as text, it is what it was.
        QVERIFY(file.read(path, "none"));
        QVERIFY(file.toByteArray().contains(rows));
    }

    void cutOffAnywhere()
    {
        const QByteArray bytes = Sound.trimmed();
        MappingFile file;
        for (qsizetype size = 0; size < bytes.size(); ++size) {
            QString error;
            QVERIFY2(!file.parse(bytes.left(size), QString(), &error), qPrintable(error));
            QVERIFY(error.startsWith("line "));
            QVERIFY(file.sourceDates().isEmpty());
        }
        QVERIFY(file.parse(bytes));
    }

    void anyByteChanged()
    {
        QRandomGenerator random(9);
        for (int i = 0; i < 3000; ++i) {
            QByteArray bytes = Sound;
            bytes[qsizetype(random.bounded(quint32(bytes.size())))] = char(random.bounded(256));
            MappingFile file;
            QString error;
            if (!file.parse(bytes, QString(), &error))
                QVERIFY(!error.isEmpty() && file.sourceDates().isEmpty());
        }
    }

    void badReleaseIsNoMatterIfAnotherIsWanted()
    {
        QByteArray bytes = Sound;
        bytes.replace("[1,10,1]", "[1]");
        MappingFile file;
        QVERIFY(!file.parse(bytes, "2022"));
        QVERIFY(file.parse(bytes, "2020"));
        QCOMPARE(file.toByteArray(), bytes);
    }

    void strangeReleaseOfOthersPasses_data()
    {
        QTest::addColumn<QByteArray>("strange");
        QTest::newRow("number beyond a double") << QByteArray("{\"a\": [1e999, -1E+9999]}");
        QTest::newRow("half a surrogate pair") << QByteArray("{\"\\ud800\": \"\\udc00x\"}");
        QTest::newRow("deep nesting") << QByteArray(2000, '[') + QByteArray(2000, ']');
        QTest::newRow("a text with brackets") << QByteArray("[1e999, \"}],\\\"{\"]");
    }
    void strangeReleaseOfOthersPasses()
    {
        QFETCH(QByteArray, strange);
        MappingFile all;
        all.setRelease(sampleRelease("2022", 2));
        QByteArray bytes = all.toByteArray();
        bytes.insert(2, " \"1999\": " + strange + ",\n");
        MappingFile file;
        QString error;
        QVERIFY2(file.parse(bytes, "2022", &error), qPrintable(error));
        QCOMPARE(file.sourceDates(), QStringList({"1999", "2022"}));
        QCOMPARE(file.release("2022").countMappings(), all.release("2022").countMappings());
        QCOMPARE(file.toByteArray(), bytes);
        // The same after it where the wanted one stands first; what is no JSON stays a fault.
        bytes = all.toByteArray();
        bytes.insert(bytes.lastIndexOf('}') - 1, ",\n \"1999\": " + strange);
        QVERIFY2(file.parse(bytes, "2022", &error), qPrintable(error));
        QCOMPARE(file.toByteArray(), bytes);
        QVERIFY(!file.parse(bytes, "1999"));
        QVERIFY(!file.parse(bytes, QString()));
        QVERIFY(!file.parse(bytes + '}', "2022"));
        QVERIFY(file.contains("2022")); // as before
    }

    void readTellsTheFile()
    {
        QTemporaryDir dir;
        MappingFile file;
        QString error;
        const QString path = dir.filePath("m.json");
        QVERIFY(!file.read(path, QString(), &error));
        QVERIFY2(error.startsWith(path), qPrintable(error));
        writeFile(path, "{\n\"2022\" 5}");
        QVERIFY(!file.read(path, QString(), &error));
        QVERIFY2(error.startsWith(path + ", line 2, column 8: "), qPrintable(error));
        QVERIFY(!file.read(dir.path(), QString(), &error));
        QVERIFY2(error.startsWith(dir.path()), qPrintable(error));
        const QString pipe = dir.filePath("pipe");
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QVERIFY(!file.read(pipe, QString(), &error));
        QVERIFY2(error.startsWith(pipe), qPrintable(error));
    }

    void writeIsCompleteOrNothing()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("m.json");
        writeFile(path, "old");
        MappingFile file;
        QVERIFY(file.parse(Sound));
        QString error;
        QVERIFY(!file.write(dir.filePath("missing/m.json"), &error));
        QVERIFY2(error.startsWith(dir.filePath("missing/m.json")), qPrintable(error));

        bool written = true;
        {
            const SizeLimit full(100);
            written = file.write(path, &error);
        }
        QVERIFY(!written);
        QVERIFY2(error.startsWith(path), qPrintable(error));
        QCOMPARE(readFile(path), QByteArray("old"));
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList{"m.json"});

        QVERIFY2(file.write(path, &error), qPrintable(error));
        QCOMPARE(readFile(path), Sound);
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList{"m.json"});
    }
};

QTEST_GUILESS_MAIN(tst_MappingFile)
#include "tst_MappingFile.moc"

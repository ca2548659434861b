#include "../support/EnglishTexts.h"
#include "../support/SizeLimit.h"
#include "MappingFileSample.h"

#include <core/json/PJsonValue.h>
#include <core/parallel/WorkerPool.h>
#include <geomcore/records/MappingFile.h>

#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace MappingFileSample;

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
    void learnedReplacementsStayInTheirRelease()
    {
        const QByteArray text = R"("targetDate": "2026",
  "learned": [
   {
    "variable": "Werkstoff",
    "before": "St37-2",
    "after": "S235JR",
    "supports": 7,
    "cases": 9
   },
   {
    "variable": "k",
    "factor": "0.03937",
    "offset": "0",
    "supports": 6,
    "cases": 7
   }
  ],)";
        QByteArray bytes = Sound;
        bytes.replace("\"targetDate\": \"2026\",", text);
        MappingFile file;
        QString error;
        QVERIFY2(file.parse(bytes, QString(), &error), qPrintable(error));
        ReleaseMappingC release = file.release("2022");
        const QList<LearnedReplacement> learned{{"Werkstoff", "St37-2", "S235JR", 7, 9},
                                                {"k", {}, {}, 6, 7, "0.03937", "0"}};
        QCOMPARE(release.getLearned(), learned);
        QCOMPARE(release.head().getLearned(), learned);
        QCOMPARE(release.getMappingState(), MappingFile(file).release("2022").getMappingState());
        file.setRelease(release);
        QCOMPARE(file.toByteArray(), bytes);
        release.setLearned({});
        file.setRelease(release);
        QCOMPARE(file.toByteArray(), Sound);
        QByteArray wrong = bytes;
        QVERIFY(!MappingFile().parse(wrong.replace("\"cases\": 9", "\"cases\": 6"), {}, &error));
        QVERIFY2(error.contains("learned[0] must not have more \"supports\""), qPrintable(error));
        // Texts or numbers, and a number is written as one.
        for (const auto &[from, to] :
             {std::pair("0.03937", "x"), std::pair("\"offset\": \"0\",", ""),
              std::pair("\"after\": \"S235JR\",", ""),
              std::pair("\"offset\": \"0\",", "\"offset\": \"0\", \"after\": \"\",")}) {
            wrong = bytes;
            QVERIFY(!MappingFile().parse(wrong.replace(from, to), {}, &error));
            QVERIFY2(error.contains("texts as \"before\" and \"after\" or"), qPrintable(error));
        }
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
                             "was moved to the end"});
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

#include "../support/EnglishTexts.h"
#include "MappingFileSample.h"

#include <core/json/PJsonValue.h>
#include <geomcore/records/MappingFile.h>

#include <QTemporaryDir>

using namespace MappingFileSample;

/// Mapping files with faults: what is refused, where it is said to be, and what passes.
class tst_MappingFileFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
            << "line 27, column 8: A comma or ] is missing behind an element.";
        QTest::newRow("invalid UTF-8")
            << QByteArray("cat/a") << QByteArray("cat/\xFF") << "A text is no UTF-8.";
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
};

QTEST_GUILESS_MAIN(tst_MappingFileFaults)
#include "tst_MappingFileFaults.moc"

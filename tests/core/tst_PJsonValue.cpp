#include "../support/EnglishTexts.h"

#include <core/json/JsonText.h>
#include <core/json/JsonWriter.h>
#include <core/json/PJsonValue.h>

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

#include <limits>
#include <thread>

namespace {

PJsonValue parsed(const QByteArray &json)
{
    PJsonValue value;
    QString error;
    if (!value.parse(json, &error))
        qWarning("%s", qPrintable(error));
    return value;
}

/// Takes nothing.
class FullDevice : public QIODevice
{
public:
    FullDevice() { open(WriteOnly | Unbuffered); }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *, qint64) override { return -1; }
};

} // namespace

class tst_PJsonValue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsAsType_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("0 is null") << 0 << QByteArray("null");
        QTest::newRow("bool") << int(PJsonValue::Bool) << QByteArray("false");
        QTest::newRow("number") << int(PJsonValue::Number) << QByteArray("0");
        QTest::newRow("text") << int(PJsonValue::Text) << QByteArray("\"\"");
        QTest::newRow("array") << int(PJsonValue::Array) << QByteArray("[]");
        QTest::newRow("object") << int(PJsonValue::Object) << QByteArray("{}");
    }
    void startsAsType()
    {
        QFETCH(int, type);
        QFETCH(QByteArray, text);
        const PJsonValue value{PJsonValue::Type(type)};
        QCOMPARE(int(value.type()), type);
        QCOMPARE(value.toByteArray(true), text);
        QCOMPARE(PJsonValue().type(), PJsonValue::Null);
    }

    void memberMakesAnObject_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::newRow("null") << QByteArray("null") << QByteArray(R"({"a":1})");
        QTest::newRow("array") << QByteArray("[1,2]") << QByteArray(R"({"a":1})");
        QTest::newRow("number") << QByteArray("17") << QByteArray(R"({"a":1})");
        QTest::newRow("object keeps its members")
            << QByteArray(R"({"b":2})") << QByteArray(R"({"b":2,"a":1})");
        QTest::newRow("same name is replaced in its place")
            << QByteArray(R"({"a":5,"b":2})") << QByteArray(R"({"a":1,"b":2})");
    }
    void memberMakesAnObject()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        PJsonValue value = parsed(before);
        value["a"] = PJsonValue::fromInt(1);
        QCOMPARE(value.toByteArray(true), after);
    }

    void membersKeepTheirOrder()
    {
        PJsonValue value;
        for (const char *name : {"z", "a", "m"})
            value[QLatin1String(name)] = PJsonValue(QString::fromLatin1(name));
        QCOMPARE(value.keys(), QStringList({"z", "a", "m"}));
        QCOMPARE(value.toByteArray(true), QByteArray(R"({"z":"z","a":"a","m":"m"})"));
    }

    void manyMembersAreFound()
    {
        PJsonValue value;
        for (int i = 0; i < 100; ++i)
            value[QString::number(i)] = PJsonValue::fromInt(i);
        QVERIFY(value.remove("50"));
        QVERIFY(!value.remove("50"));
        QCOMPARE(value.size(), 99);
        for (int i = 0; i < 100; ++i)
            QCOMPARE(value.value(QString::number(i)).toInt(-1), i == 50 ? -1 : i);
        value["99"] = PJsonValue::fromInt(7);
        QCOMPARE(value.size(), 99);
        QCOMPARE(value.at(98).toInt(), 7);
    }

    void ofSameNamesTheLastCounts()
    {
        const PJsonValue value = parsed(R"({"a":1,"b":2,"a":3})");
        QCOMPARE(value.keys(), QStringList({"a", "b"}));
        QCOMPARE(value.value("a").toInt(), 3);
    }

    void layout()
    {
        PJsonValue inner;
        inner["empty"] = PJsonValue(PJsonValue::Array);
        inner["none"] = PJsonValue(PJsonValue::Object);
        PJsonValue plain;
        plain.append(PJsonValue::fromInt(1));
        plain.append(PJsonValue(QStringLiteral("zwei")));
        plain.append(PJsonValue::fromBool(true));
        PJsonValue nested;
        nested.append(plain);
        nested.append(inner);
        PJsonValue value;
        value["plain"] = plain;
        value["nested"] = nested;
        QCOMPARE(value.toByteArray(false), QByteArray("{\n"
                                                      " \"plain\": [1,\"zwei\",true],\n"
                                                      " \"nested\": [\n"
                                                      "  [1,\"zwei\",true],\n"
                                                      "  {\n"
                                                      "   \"empty\": [],\n"
                                                      "   \"none\": {}\n"
                                                      "  }\n"
                                                      " ]\n"
                                                      "}\n"));
        QCOMPARE(value.toByteArray(true),
                 QByteArray(R"({"plain":[1,"zwei",true],"nested":[[1,"zwei",true],)"
                            R"({"empty":[],"none":{}}]})"));
    }

    void whatNobodyChangesStaysAsWritten()
    {
        const QByteArray strange = "{ \"x\" :\t[ 1.0, 1e2,\r\n  -0 ],\"x\": \"\\u00e4\\/\" }";
        PJsonValue value = parsed("{\"old\":" + strange + ",\"new\":1}");
        QCOMPARE(value.value("old").value("x").toText(), QString::fromUtf8("ä/"));
        value["new"] = PJsonValue::fromInt(2);
        QCOMPARE(value.toByteArray(false), "{\n \"old\": " + strange + ",\n \"new\": 2\n}\n");
    }

    void numbersKeepTheirForm()
    {
        const QByteArray numbers = "[1.0,1E+300,12345678901234567890,-0,0.10]";
        PJsonValue value = parsed(numbers);
        QCOMPARE(value.toByteArray(true), numbers);
        QCOMPARE(value.at(0).toInt(-1), -1);
        QCOMPARE(value.at(0).toDouble(), 1.0);
        QCOMPARE(value.at(2).toInt(-1), -1);
        value.append(PJsonValue::fromDouble(0.1));
        value.append(PJsonValue::fromDouble(std::numeric_limits<double>::infinity()));
        QCOMPARE(value.toByteArray(true), QByteArray(numbers).chopped(1) + ",0.1,null]");
    }

    void writtenTextIsIndentedForItsDepth()
    {
        PJsonValue release;
        release["a"] = PJsonValue(PJsonValue::Object);
        release["a"]["b"] = PJsonValue::fromInt(1);
        const QByteArray asTree = release.toByteArray(false);
        const PJsonValue written = PJsonValue::fromWritten(asTree);
        QCOMPARE(written.toByteArray(false), asTree);

        PJsonValue byTree;
        byTree["x"]["y"] = release;
        PJsonValue byText;
        byText["x"]["y"] = written;
        QCOMPARE(byText.toByteArray(false), byTree.toByteArray(false));
        QVERIFY(byText.toByteArray(false).contains("\n   \"a\": {\n    \"b\": 1\n   }\n"));
        // Changed inside, its untouched parts still stand at their depth.
        byText["x"]["y"]["c"] = PJsonValue();
        byTree["x"]["y"]["c"] = PJsonValue();
        QCOMPARE(byText.toByteArray(false), byTree.toByteArray(false));
    }

    void fromWriter()
    {
        int calls = 0;
        const PJsonValue value = PJsonValue::fromWriter(PJsonValue::Object, [&](JsonWriter &w) {
            ++calls;
            w.beginObject();
            w.key("a");
            w.beginArray();
            w.row({1, 2});
            w.endArray();
            w.endObject();
        });
        QCOMPARE(calls, 0);
        QVERIFY(value.isObject());
        PJsonValue document;
        document["x"] = value;
        QCOMPARE(calls, 0);
        QCOMPARE(document.toByteArray(false),
                 QByteArray("{\n \"x\": {\n  \"a\": [\n   [1,2]\n  ]\n }\n}\n"));
        QCOMPARE(document.toByteArray(true), QByteArray("{\"x\":{\"a\":[[1,2]]}}"));
        QCOMPARE(value.rawText(), QByteArray("{\"a\":[[1,2]]}"));
        calls = 0;
        QCOMPARE(value.value("a").at(0).at(1).toInt(), 2);
        QCOMPARE(value.keys(), QStringList{"a"});
        QCOMPARE(calls, 1);
        PJsonValue changed = value;
        changed["b"] = PJsonValue();
        QCOMPARE(changed.toByteArray(true), QByteArray("{\"a\":[[1,2]],\"b\":null}"));
        document["y"] = changed;
        QCOMPARE(document.value("y").toByteArray(false), changed.toByteArray(false));
        QCOMPARE(value.toByteArray(true), QByteArray("{\"a\":[[1,2]]}"));
    }

    void writeTo()
    {
        const PJsonValue value = parsed("{ \"a\" : [ 1 ] }");
        for (bool compact : {false, true}) {
            QBuffer buffer;
            QVERIFY(buffer.open(QIODevice::WriteOnly));
            QVERIFY(value.writeTo(buffer, compact));
            QCOMPARE(buffer.data(), value.toByteArray(compact));
        }
        FullDevice full;
        QVERIFY(!value.writeTo(full, false));
    }

    void compactKeepsBlanksInTexts()
    {
        QCOMPARE(parsed("{ \"a b\" : [ 1 , \"c \\\" d\\\\\" ] }").toByteArray(true),
                 QByteArray("{\"a b\":[1,\"c \\\" d\\\\\"]}"));
    }

    void escapes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("plain") << "abc" << QByteArray("\"abc\"");
        QTest::newRow("empty") << "" << QByteArray("\"\"");
        QTest::newRow("quote and backslash") << "a\"b\\c" << QByteArray("\"a\\\"b\\\\c\"");
        QTest::newRow("controls") << QString("\b\f\n\r\t\x01\x1f")
                                  << QByteArray("\"\\b\\f\\n\\r\\t\\u0001\\u001f\"");
        QTest::newRow("zero") << QString(QChar(0)) << QByteArray("\"\\u0000\"");
        QTest::newRow("UTF-8") << QString::fromUtf8("ä€😀") << QByteArray("\"ä€😀\"");
    }
    void escapes()
    {
        QFETCH(QString, text);
        QFETCH(QByteArray, written);
        QCOMPARE(PJsonValue(text).toByteArray(true), written);
        QCOMPARE(parsed(written).toText("?"), text);
    }
    void escapesAreRead()
    {
        const QByteArray json = "\"\\u0041\\ud83d\\ude00\\/\\\"\\\\\\b\\f\\n\\r\\t\"";
        QCOMPARE(parsed(json).toText(), QString::fromUtf8("A😀/\"\\\b\f\n\r\t"));
    }

    void wrongTypesGiveTheOther()
    {
        const PJsonValue text(QStringLiteral("5"));
        QCOMPARE(text.toInt(-1), -1);
        QCOMPARE(text.toDouble(0.5), 0.5);
        QVERIFY(text.toBool(true));
        QCOMPARE(text.size(), 0);
        QVERIFY(text.at(0).isNull());
        QVERIFY(text.value("a").isNull());
        QVERIFY(text.keys().isEmpty());
        QCOMPARE(PJsonValue::fromInt(5).toText("none"), QString("none"));
        QVERIFY(PJsonValue::fromBool(true).toBool());
        QCOMPARE(parsed("[1]").at(1).type(), PJsonValue::Null);
        QCOMPARE(parsed("[1]").at(-1).type(), PJsonValue::Null);
    }

    void copiesAreTheirOwn()
    {
        PJsonValue value = parsed(R"({"a":{"b":1}})");
        PJsonValue copy = value;
        copy["a"]["b"] = PJsonValue::fromInt(2);
        copy["c"] = PJsonValue();
        QCOMPARE(value.toByteArray(true), QByteArray(R"({"a":{"b":1}})"));
        QCOMPARE(copy.toByteArray(true), QByteArray(R"({"a":{"b":2},"c":null})"));
        copy["self"] = PJsonValue(copy);
        QCOMPARE(copy.size(), 3);
        QCOMPARE(copy.value("self").size(), 2);
    }

    void lookingFromSeveralThreads()
    {
        const PJsonValue value = parsed(R"({"a":{"b":[1,2,3]}})");
        qint64 sums[4] = {};
        std::vector<std::thread> threads;
        for (qint64 &sum : sums)
            threads.emplace_back([&] { sum = value.value("a").value("b").at(2).toInt(); });
        for (std::thread &thread : threads)
            thread.join();
        for (qint64 sum : sums)
            QCOMPARE(sum, 3);
    }

    void badText_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("place");
        QTest::newRow("empty") << QByteArray() << "line 1, column 1";
        QTest::newRow("blanks only") << QByteArray(" \n ") << "line 2, column 2";
        QTest::newRow("byte order mark only") << QByteArray("\xEF\xBB\xBF") << "line 1, column 4";
        QTest::newRow("cut off") << QByteArray("{\n \"a\": [1,") << "line 2, column 10";
        QTest::newRow("comma at the end") << QByteArray("[1,]") << "line 1, column 4";
        QTest::newRow("name without quotes") << QByteArray("{a:1}") << "line 1, column 2";
        QTest::newRow("two values") << QByteArray("1 2") << "line 1, column 3";
        QTest::newRow("comment") << QByteArray("{} // x") << "line 1, column 4";
        QTest::newRow("control character in a text")
            << QByteArray("[\"a\nb\"]") << "line 1, column 4";
        QTest::newRow("invalid UTF-8") << QByteArray("[\"a\",\n\"\xC3(\"]") << "line 2, column";
        QTest::newRow("overlong UTF-8") << QByteArray("[\"\xC0\xAF\"]") << "line 1, column";
        QTest::newRow("surrogate in UTF-8")
            << QByteArray("[\"\xED\xA0\x80\"]") << "line 1, column 3";
        QTest::newRow("beyond Unicode") << QByteArray("[\"\xF4\x90\x80\x80\"]") << "line 1, column";
        QTest::newRow("overlong, three bytes")
            << QByteArray("\"\xE0\x80\x80\"") << "line 1, column";
        QTest::newRow("overlong, four bytes")
            << QByteArray("\"\xF0\x80\x80\x80\"") << "line 1, column";
        QTest::newRow("byte that only follows") << QByteArray("\"\x80\"") << "line 1, column 2";
        QTest::newRow("unknown escape") << QByteArray("\"\\x\"") << "line 1, column 3";
        QTest::newRow("short escape") << QByteArray("\"\\u12g4\"") << "line 1, column 6";
        QTest::newRow("no colon") << QByteArray("{\"a\" 1}") << "line 1, column 6";
        QTest::newRow("no value") << QByteArray("{\"a\":}") << "line 1, column 6";
        QTest::newRow("comma in front") << QByteArray("{,\"a\":1}") << "line 1, column 2";
        QTest::newRow("comma behind a member") << QByteArray("{\"a\":1,}") << "line 1, column 8";
        QTest::newRow("no comma") << QByteArray("[1 2]") << "line 1, column 4";
        QTest::newRow("other bracket") << QByteArray("[1}") << "line 1, column 3";
        QTest::newRow("bracket too many") << QByteArray("[1]]") << "line 1, column 4";
        QTest::newRow("sign alone") << QByteArray("[-]") << "line 1, column 3";
        QTest::newRow("plus") << QByteArray("[+1]") << "line 1, column 2";
        QTest::newRow("no digit behind the point") << QByteArray("[1.]") << "line 1, column 4";
        QTest::newRow("no digit before the point") << QByteArray("[.5]") << "line 1, column 2";
        QTest::newRow("no digit in the exponent") << QByteArray("[1e+]") << "line 1, column 5";
        QTest::newRow("half a word") << QByteArray("[tru]") << "line 1, column 2";
        QTest::newRow("word goes on") << QByteArray("[nulls]") << "line 1, column 6";
        QTest::newRow("leading zero") << QByteArray("[01]") << "line 1, column 3";
        QTest::newRow("byte 0 behind") << QByteArray("{}\0{}", 5) << "line 1, column 3";
        QTest::newRow("not a number") << QByteArray("NaN") << "line 1, column 1";
    }
    void badText()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, place);
        PJsonValue value = PJsonValue::fromInt(1);
        QString error;
        QVERIFY(!value.parse(json, &error));
        QVERIFY(value.isNull());
        QVERIFY2(error.startsWith(place), qPrintable(error));
        QVERIFY(error.size() > place.size() + 5);
        QVERIFY(!value.parse(json));
    }

    // What a reader of the values would refuse is passed on nevertheless.
    void whatIsJsonPassesThrough_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::newRow("number beyond a double") << QByteArray("[1e999,-1E+99999,1e-9999]");
        QTest::newRow("number of many digits") << QByteArray(1000, '7');
        QTest::newRow("half a surrogate pair") << QByteArray(R"({"\ud800":"a\udc00\ud83db"})");
        QTest::newRow("deep") << QByteArray(100000, '[') + QByteArray(100000, ']');
        QTest::newRow("all kinds")
            << QByteArray(R"({"a":[null,true,false,-0,0.5E-3,"\u00e4\/\b",{},[]],"":{"b":1}})");
        QTest::newRow("UTF-8 of all lengths")
            << QByteArray("\"\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF"
                          "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF\"");
    }
    void whatIsJsonPassesThrough()
    {
        QFETCH(QByteArray, json);
        PJsonValue document = parsed("{\"other\":" + json + "}");
        document["added"] = PJsonValue();
        QCOMPARE(document.toByteArray(true), "{\"other\":" + json + ",\"added\":null}");
    }

    void numberBeyondADoubleIsNone() { QCOMPARE(parsed("1e999").toDouble(0.5), 0.5); }

    void halfASurrogatePairIsWrittenAsItWasRead()
    {
        PJsonValue value = parsed(R"({"\ud800":1,"ä\ud83d\ude00\n\udc00":2})");
        QVERIFY(value.contains(QString(QChar(0xD800))));
        value["c"] = PJsonValue(QString(QChar(0xDBFF)) + "x");
        QCOMPARE(value.toByteArray(true),
                 QByteArray(R"({"\ud800":1,"ä😀\n\udc00":2,"c":"\udbffx"})"));
    }

    // Cut anywhere, a document is no JSON, and nothing behind it is read.
    void cutText()
    {
        const QByteArray whole = "{\"\xF0\x9F\x98\x80\":[-1.5e+7,\"\\u00e4\xC3\xA4\",true,null]}";
        for (qsizetype size = 0; size < whole.size(); ++size) {
            const std::vector<char> exact(whole.begin(), whole.begin() + size);
            const auto json = QByteArray::fromRawData(exact.data(), size);
            QVERIFY2(!JsonText::check(json, nullptr), json.constData());
        }
        QVERIFY(JsonText::check(whole, nullptr));
    }

    void placeOfAFault()
    {
        QString error;
        QVERIFY(!JsonText::check(QByteArrayView("{\"a\": \xF0"), &error));
        QCOMPARE(error, QString("line 1, column 7: A value is missing."));
        QVERIFY(!JsonText::check(QByteArrayView("{\"\xF0"), &error));
        QCOMPARE(error, QString("line 1, column 3: A text is no UTF-8."));
    }

    void parseFile()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("a.json");
        PJsonValue value;
        QString error;
        QVERIFY(!value.parseFile(path, &error));
        QVERIFY(error.startsWith(path));

        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("\xEF\xBB\xBF {\"a\": \"ä\"}\n");
        file.close();
        QVERIFY2(value.parseFile(path, &error), qPrintable(error));
        QCOMPARE(value.value("a").toText(), QString::fromUtf8("ä"));
        QCOMPARE(value.toByteArray(false), QByteArray("{\"a\": \"ä\"}\n"));

        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("{\"a\": \"ä\"");
        file.close();
        QVERIFY(!value.parseFile(path, &error));
        QVERIFY(value.isNull());
        QVERIFY2(error.startsWith(path + ", line 1, column 11: "), qPrintable(error));

        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        QVERIFY(!value.parseFile(path, &error));
        QVERIFY(!value.parseFile(dir.path(), &error));
        QVERIFY(error.startsWith(dir.path()));
        const QString pipe = dir.filePath("pipe");
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QVERIFY(!value.parseFile(pipe, &error)); // and does not wait
        QCOMPARE(error, pipe + ": It is no regular file.");
    }

    void parseTakesTextThatItDoesNotOwn()
    {
        const char text[] = "[1]garbage";
        QCOMPARE(parsed(QByteArray::fromRawData(text, 3)).at(0).toInt(), 1);
    }
};

QTEST_GUILESS_MAIN(tst_PJsonValue)
#include "tst_PJsonValue.moc"

#include <core/json/JsonWriter.h>
#include <core/json/PJsonValue.h>

#include <QBuffer>
#include <QTest>

#include <limits>

class tst_JsonWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void layouts_data()
    {
        QTest::addColumn<int>("layout");
        QTest::addColumn<int>("level");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("compact") << int(JsonWriter::Compact) << 0
                                 << QByteArray(
                                        R"({"rows":[[1,-2,0.5],["a",true,null]],"none":{}})");
        QTest::newRow("indented")
            << int(JsonWriter::Indented) << 0
            << QByteArray("{\n \"rows\": [\n  [1,-2,0.5],\n  [\"a\",true,null]\n ],\n"
                          " \"none\": {}\n}");
        QTest::newRow("indented for a depth")
            << int(JsonWriter::Indented) << 2
            << QByteArray("{\n   \"rows\": [\n    [1,-2,0.5],\n    [\"a\",true,null]\n   ],\n"
                          "   \"none\": {}\n  }");
    }
    void layouts()
    {
        QFETCH(int, layout);
        QFETCH(int, level);
        QFETCH(QByteArray, text);
        JsonWriter writer(JsonWriter::Layout(layout), level);
        writer.beginObject();
        writer.key("rows");
        writer.beginArray();
        writer.beginArray(true);
        writer.value(1);
        writer.value(-2);
        writer.value(0.5);
        writer.endArray();
        writer.beginArray(true);
        writer.value("a");
        writer.value(true);
        writer.null();
        writer.endArray();
        writer.endArray();
        writer.key(QStringView(u"none"));
        writer.beginObject();
        writer.endObject();
        writer.endObject();
        QCOMPARE(writer.size(), text.size());
        QCOMPARE(writer.take(), text);
        QCOMPARE(writer.take(), QByteArray());
    }

    void numbers_data()
    {
        QTest::addColumn<qint64>("number");
        QTest::newRow("zero") << qint64(0);
        QTest::newRow("smallest") << std::numeric_limits<qint64>::min();
        QTest::newRow("largest") << std::numeric_limits<qint64>::max();
    }
    void numbers()
    {
        QFETCH(qint64, number);
        JsonWriter writer(JsonWriter::Compact);
        writer.value(number);
        QCOMPARE(writer.take(), QByteArray::number(number));
    }

    void growsAcrossAllKindsOfValues()
    {
        JsonWriter writer(JsonWriter::Indented);
        QByteArray expected = "[";
        writer.beginArray(true);
        for (int i = 0; i < 2000; ++i) {
            const QByteArray text(i % 300, 'x');
            writer.value(std::string_view(text.constData(), std::size_t(text.size())));
            writer.value(i);
            writer.value(i + 0.5);
            expected += (i == 0 ? "\"" : ",\"") + text + "\"," + QByteArray::number(i) + ',' +
                        QByteArray::number(i) + ".5";
        }
        writer.endArray();
        QCOMPARE(writer.take(), expected + ']');
    }

    void writtenTextIsIndented()
    {
        JsonWriter writer(JsonWriter::Indented);
        writer.beginArray();
        writer.written("[\n 1\n]", 1);
        writer.written("[\n 1\n]");
        writer.written("[\n    1\n   ]", -2);
        writer.written("[\n    1\n   ]", -9);
        writer.endArray();
        QCOMPARE(writer.take(),
                 QByteArray("[\n [\n  1\n ],\n [\n 1\n],\n [\n  1\n ],\n [\n1\n]\n]"));
    }

    void rows()
    {
        JsonWriter writer(JsonWriter::Indented);
        writer.beginArray();
        writer.row({});
        writer.row({7});
        writer.row({std::numeric_limits<int>::min(), 0, std::numeric_limits<int>::max()});
        writer.endArray();
        QCOMPARE(writer.take(), QByteArray("[\n [],\n [7],\n [-2147483648,0,2147483647]\n]"));
    }

    void deepLevels()
    {
        JsonWriter writer(JsonWriter::Indented);
        for (int i = 0; i < 100; ++i)
            writer.beginArray();
        for (int i = 0; i < 100; ++i)
            writer.endArray();
        QByteArray expected = "[";
        for (int i = 1; i < 100; ++i)
            expected += '\n' + QByteArray(i, ' ') + '[';
        expected += ']';
        for (int i = 98; i >= 0; --i)
            expected += '\n' + QByteArray(i, ' ') + ']';
        QCOMPARE(writer.take(), expected);
    }

    void intoADevice()
    {
        const QByteArray large(600000, 'x');
        const auto write = [&](JsonWriter &writer) {
            writer.beginArray();
            for (int i = 0; i < 100000; ++i)
                writer.row({i, -i});
            writer.written('"' + large + '"');
            writer.value(QStringView(QString::fromLatin1(large)));
            for (int i = 0; i < 1000; ++i)
                writer.value("text");
            writer.endArray();
        };
        JsonWriter collected(JsonWriter::Indented);
        write(collected);
        QBuffer device;
        QVERIFY(device.open(QIODevice::WriteOnly));
        JsonWriter handedOn(device, JsonWriter::Indented);
        write(handedOn);
        QVERIFY(handedOn.finish());
        QCOMPARE(handedOn.size(), collected.size());
        QCOMPARE(device.data(), collected.take());
    }

    // Neither the place of a value nor its size makes a difference to what comes around it.
    void valuesThatOthersSeeOrPut_data()
    {
        QTest::addColumn<bool>("member");
        QTest::addColumn<int>("rows");
        QTest::newRow("member") << true << 3;
        QTest::newRow("large member") << true << 100000;
        QTest::newRow("element") << false << 3;
        QTest::newRow("large element") << false << 100000;
    }
    void valuesThatOthersSeeOrPut()
    {
        QFETCH(bool, member);
        QFETCH(int, rows);
        const auto writeValue = [&](JsonWriter &writer) {
            writer.beginArray();
            for (int i = 0; i < rows; ++i)
                writer.row({i, -i});
            writer.written('"' + QByteArray(rows * 4, 'x') + '"');
            writer.endArray();
        };
        const auto written = [&](const std::function<void(QBuffer &, JsonWriter &)> &value) {
            QBuffer device;
            [[maybe_unused]] const bool open = device.open(QIODevice::WriteOnly);
            JsonWriter writer(device, JsonWriter::Indented);
            if (member)
                writer.beginObject();
            else
                writer.beginArray();
            for (int i = 0; i < 3; ++i) {
                if (member)
                    writer.key("name");
                if (i == 1)
                    value(device, writer);
                else
                    writer.value(i);
            }
            if (member)
                writer.endObject();
            else
                writer.endArray();
            const qsizetype size = writer.size();
            return writer.finish() && size == device.size() ? device.data() : QByteArray();
        };
        const QByteArray plain =
            written([&](QBuffer &, JsonWriter &writer) { writeValue(writer); });
        QVERIFY(!plain.isEmpty());
        QByteArray text;
        QCOMPARE(written([&](QBuffer &, JsonWriter &writer) {
                     writer.seen([&](QByteArrayView piece) { text += piece; },
                                 [&] { writeValue(writer); });
                 }),
                 plain);
        JsonWriter collected(JsonWriter::Indented, 1);
        writeValue(collected);
        QCOMPARE(text, collected.take());
        QCOMPARE(written([&](QBuffer &device, JsonWriter &writer) {
                     writer.leaveTo([&] { return device.write(text); });
                 }),
                 plain);
    }

    void refusingDevice_data()
    {
        QTest::addColumn<int>("rows");
        QTest::newRow("at the end") << 3;
        QTest::newRow("in between") << 100000;
    }
    void refusingDevice()
    {
        QFETCH(int, rows);
        QBuffer closed;
        QVERIFY(closed.open(QIODevice::ReadOnly));
        QTest::ignoreMessage(QtWarningMsg, "QIODevice::write (QBuffer): ReadOnly device");
        JsonWriter writer(closed, JsonWriter::Indented);
        writer.beginArray();
        for (int i = 0; i < rows; ++i)
            writer.row({i});
        writer.endArray();
        QVERIFY(!writer.finish());
    }
};

QTEST_GUILESS_MAIN(tst_JsonWriter)
#include "tst_JsonWriter.moc"

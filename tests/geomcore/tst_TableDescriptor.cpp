#include "../support/EnglishTexts.h"

#include <geomcore/csv/TableDescriptor.h>
#include <TestPaths.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

using namespace VKTab;

namespace {

const QByteArray Full = R"({
  "name": "din931",
  "title": "Sechskantschraube",
  "description": "mit Schaft",
  "path": "lines/din931.csv",
  "normNumber": "DIN 931",
  "designation": "Sechskantschraube",
  "lineNormNumber": "Norm",
  "lineDesignation": "DIN 931 - {Dia} x {L}",
  "finalDate": "2026-01-31T12:00:00Z",
  "lineIdField": "Id",
  "lineSubIdField": "SubId",
  "nextLineId": 12,
  "primaryKey": [
    "Dia",
    "L"
  ],
  "missingValues": [
    "",
    "None"
  ],
  "filterConditions": [
    {
      "name": "PRJLINECOND",
      "condition": "Dia .GT. 3",
      "author": "me"
    }
  ],
  "attributes": {
    "POOLID": "P7"
  },
  "translations": {
    "en": {
      "Länge": "Length"
    }
  },
  "fields": [
    {
      "name": "Dia",
      "title": "Größe",
      "description": "Nenndurchmesser",
      "type": "number",
      "kind": "plain",
      "decimalChar": ",",
      "zType": "GM",
      "unit": "mm",
      "translations": {
        "en": {
          "Größe": "Size"
        }
      }
    },
    {
      "name": "L",
      "type": "integer",
      "kind": "range"
    },
    {
      "name": "V",
      "type": "number",
      "kind": "computed",
      "formula": "V = Dia * 2"
    },
    {
      "name": "Id",
      "type": "integer",
      "kind": "internal",
      "hidden": true,
      "constraints": { "unique": true }
    }
  ],
  "licences": [ 1.50, "x" ]
}
)";

std::optional<TableDescriptor> parse(const QByteArray &json, TableErrorList *errors = nullptr)
{
    TableErrorList own;
    return TableDescriptor::fromJson(json, QStringLiteral("t.json"), errors ? *errors : own);
}

} // namespace

class tst_TableDescriptor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsAll();
    void writesWhatItRead();
    void leavesOutDefaults();
    void refuses_data();
    void refuses();
    void tellsAllErrors();
    void keepsAFewErrors();
    void manyMembersAreToldApart();
    void missingFile();
    void byteOrderMark();
    void keyAsText();
    void csvFile_data();
    void csvFile();
    void translates();
    void anyBytesNeverCrash();
    void schemaNamesTheMembers();
};

void tst_TableDescriptor::readsAll()
{
    const auto read = parse(Full);
    QVERIFY(read);
    QCOMPARE(read->name, QStringLiteral("din931"));
    QCOMPARE(read->title, QStringLiteral("Sechskantschraube"));
    QCOMPARE(read->description, QStringLiteral("mit Schaft"));
    QCOMPARE(read->path, QStringLiteral("lines/din931.csv"));
    QCOMPARE(read->normNumber, QStringLiteral("DIN 931"));
    QCOMPARE(read->designation, QStringLiteral("Sechskantschraube"));
    QCOMPARE(read->lineNormNumber, QStringLiteral("Norm"));
    QCOMPARE(read->lineDesignation, QStringLiteral("DIN 931 - {Dia} x {L}"));
    QCOMPARE(read->finalDate, QStringLiteral("2026-01-31T12:00:00Z"));
    QCOMPARE(read->lineIdField, QStringLiteral("Id"));
    QCOMPARE(read->lineSubIdField, QStringLiteral("SubId"));
    QCOMPARE(read->nextLineId, 12);
    QCOMPARE(read->primaryKey, (QStringList{"Dia", "L"}));
    QCOMPARE(read->missingValues, (QStringList{"", "None"}));
    QCOMPARE(read->filterConditions.size(), 1);
    QCOMPARE(read->filterConditions.first().name, QStringLiteral("PRJLINECOND"));
    QCOMPARE(read->filterConditions.first().condition, QStringLiteral("Dia .GT. 3"));
    QCOMPARE(read->attributes.value("POOLID"), QStringLiteral("P7"));
    QCOMPARE(read->fields.size(), 4);
    const TableField &dia = read->fields.first();
    QCOMPARE(dia.title, QString::fromUtf8("Größe"));
    QCOMPARE(dia.type, FieldType::Number);
    QCOMPARE(dia.kind, FieldKind::Plain);
    QCOMPARE(dia.decimalChar, ',');
    QCOMPARE(dia.zType, QStringLiteral("GM"));
    QCOMPARE(dia.unit, QStringLiteral("mm"));
    QVERIFY(!dia.hidden);
    QVERIFY(read->fields.at(1).isRange());
    QVERIFY(read->fields.at(1).isNumeric());
    QCOMPARE(read->fields.at(2).formula, QStringLiteral("V = Dia * 2"));
    QVERIFY(read->fields.at(3).hidden);
    QCOMPARE(read->fields.at(3).kind, FieldKind::Internal);
    QCOMPARE(read->indexOf(u"V"), 2);
    QCOMPARE(read->indexOf(u"v"), -1);
}

void tst_TableDescriptor::writesWhatItRead()
{
    const QByteArray written = parse(Full)->toJson();
    QCOMPARE(written, Full);
    QCOMPARE(*parse(written), *parse(Full));
}

void tst_TableDescriptor::leavesOutDefaults()
{
    TableDescriptor descriptor;
    descriptor.fields.append(TableField{.name = "a"});
    QCOMPARE(descriptor.toJson(), QByteArray("{\n"
                                             "  \"fields\": [\n"
                                             "    {\n"
                                             "      \"name\": \"a\",\n"
                                             "      \"type\": \"string\",\n"
                                             "      \"kind\": \"plain\"\n"
                                             "    }\n"
                                             "  ]\n"
                                             "}\n"));
    QCOMPARE(parse("{}")->missingValues, QStringList{QString()});
}

void tst_TableDescriptor::refuses_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("message");

    QTest::newRow("empty") << QByteArray()
                           << "t.json: row 1, column 1: no valid JSON: The document has "
                              "no value.";
    QTest::newRow("no JSON") << QByteArray("name = x\n")
                             << "t.json: row 1, column 2: no valid JSON: A value is missing.";
    QTest::newRow("comma missing")
        << QByteArray("{\n  \"name\": \"a\"\n  \"title\": \"b\"\n}")
        << "t.json: row 3, column 3: no valid JSON: A comma or } is missing behind a member.";
    QTest::newRow("cut off") << QByteArray("{\"fields\": [")
                             << "t.json: row 1, column 13: no valid JSON: A value is missing.";
    QTest::newRow("text behind the end")
        << QByteArray("{} x")
        << "t.json: row 1, column 4: no valid JSON: Something stands behind the "
           "document.";
    QTest::newRow("no UTF-8") << QByteArray("{\"name\": \"\xE4\"}")
                              << "t.json: row 1, column 11: no valid JSON: A text is no UTF-8.";
    QTest::newRow("no object") << QByteArray(" []")
                               << "t.json: row 1, column 2: expected an object";
    QTest::newRow("number for a text")
        << QByteArray("{\n  \"name\": 5}") << "t.json: row 2, column 11: expected a text";
    QTest::newRow("characters, not bytes")
        << QByteArray("{\"title\": \"\xC3\xA4\xC3\xB6\", \"name\": 5}")
        << "t.json: row 1, column 25: expected a text";
    QTest::newRow("member twice") << QByteArray("{\"name\": \"a\", \"name\": \"b\"}")
                                  << "t.json: row 1, column 15: the member \"name\" stands twice";
    QTest::newRow("fields no list")
        << QByteArray("{\"fields\": {}}") << "t.json: row 1, column 12: expected a list of fields";
    QTest::newRow("field no object")
        << QByteArray("{\"fields\": [\"a\"]}")
        << "t.json: row 1, column 13: expected a field, which is an object";
    QTest::newRow("field without a name")
        << QByteArray("{\"fields\": [{}]}") << "t.json: row 1, column 13: the field has no name";
    QTest::newRow("field twice") << QByteArray(
                                        "{\"fields\": [{\"name\": \"a\"},\n{\"name\": \"a\"}]}")
                                 << "t.json: row 2, column 1: the field \"a\" stands twice";
    QTest::newRow("unknown type")
        << QByteArray("{\"fields\": [{\"name\": \"a\", \"type\": \"float\"}]}")
        << "t.json: row 1, column 35: unknown type \"float\"; known are string, number, integer, "
           "boolean, date, datetime";
    QTest::newRow("unknown kind")
        << QByteArray("{\"fields\": [{\"name\": \"a\", \"kind\": \"Range\"}]}")
        << "t.json: row 1, column 35: unknown kind \"Range\"; known are plain, range, computed, "
           "internal, topology";
    QTest::newRow("computed without a formula")
        << QByteArray("{\"fields\": [{\"name\": \"a\", \"kind\": \"computed\"}]}")
        << "t.json: row 1, column 13: the computed field \"a\" has no formula";
    QTest::newRow("decimal character")
        << QByteArray("{\"fields\": [{\"name\": \"a\", \"decimalChar\": \";\"}]}")
        << "t.json: row 1, column 42: the decimal character is \".\" or \",\"";
    QTest::newRow("hidden no truth value")
        << QByteArray("{\"fields\": [{\"name\": \"a\", \"hidden\": 1}]}")
        << "t.json: row 1, column 37: expected true or false";
    QTest::newRow("final date")
        << QByteArray("{\"finalDate\": \"31.1.2026\"}")
        << "t.json: row 1, column 15: \"31.1.2026\" is no date; write it as "
           "2026-01-31T12:00:00Z";
    QTest::newRow("next id negative")
        << QByteArray("{\"nextLineId\": -1}")
        << "t.json: row 1, column 16: expected an integer from 0 to 2147483647";
    QTest::newRow("next id too large")
        << QByteArray("{\"nextLineId\": 2147483648}")
        << "t.json: row 1, column 16: expected an integer from 0 to 2147483647";
    QTest::newRow("condition without a name")
        << QByteArray("{\"filterConditions\": [{\"condition\": \"A .EQ. 1\"}]}")
        << "t.json: row 1, column 23: the condition has no name";
    QTest::newRow("attribute no text") << QByteArray("{\"attributes\": {\"POOLID\": 7}}")
                                       << "t.json: row 1, column 27: expected a text";
    QTest::newRow("translations no object")
        << QByteArray("{\"translations\": []}")
        << "t.json: row 1, column 18: expected an object with a member for each language";
    QTest::newRow("deep") << QByteArray(100000, '[')
                          << "t.json: row 1, column 65: more than 64 levels deep";
}

void tst_TableDescriptor::refuses()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, message);
    TableErrorList errors;
    QVERIFY(!parse(json, &errors));
    QCOMPARE(errors.size(), 1);
    QCOMPARE(errors.first().toString(), message);
}

void tst_TableDescriptor::tellsAllErrors()
{
    TableErrorList errors;
    QVERIFY(!parse("{\"name\": 1,\n\"title\": 2,\n\"fields\": [{\"name\": 3}]}", &errors));
    QCOMPARE(errors.size(), 4);
    QCOMPARE(errors.at(0).row, 1);
    QCOMPARE(errors.at(1).row, 2);
    QCOMPARE(errors.at(2).row, 3);
    QCOMPARE(errors.at(3).text, QStringLiteral("the field has no name"));
}

void tst_TableDescriptor::keepsAFewErrors()
{
    QByteArray fields;
    for (int i = 0; i < 100; ++i)
        fields += i == 0 ? "\n{}" : ",\n{}";
    TableErrorList errors;
    QVERIFY(!TableDescriptor::fromJson("{\"fields\": [" + fields + "]}", "t.json", errors));
    QCOMPARE(errors.size(), 21);
    QCOMPARE(errors.at(19).toString(), "t.json: row 21, column 1: the field has no name");
    QCOMPARE(errors.last().toString(), "t.json: 80 more errors");
}

void tst_TableDescriptor::manyMembersAreToldApart()
{
    QByteArray json("{\"x\": {\"m0\": 1}");
    for (int i = 0; i < 1000; ++i)
        json += ", \"m" + QByteArray::number(i) + "\": [{\"m0\": 1}]";
    TableErrorList errors;
    QVERIFY(TableDescriptor::fromJson(json + "}", "t.json", errors));
    QVERIFY(!TableDescriptor::fromJson(json + ", \"m500\": 1}", "t.json", errors));
    QVERIFY(errors.first().text.contains("\"m500\" stands twice"));
}

void tst_TableDescriptor::missingFile()
{
    const QTemporaryDir dir;
    TableErrorList errors;
    QVERIFY(!TableDescriptor::read(dir.filePath("none.json"), errors));
    QCOMPARE(errors.size(), 1);
    QVERIFY(
        errors.first().toString().startsWith(dir.filePath("none.json") + ": cannot be opened: "));
    QFile file(dir.filePath("some.json"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(Full);
    file.close();
    errors.clear();
    QCOMPARE(*TableDescriptor::read(file.fileName(), errors), *parse(Full));
    QVERIFY(errors.isEmpty());
}

void tst_TableDescriptor::byteOrderMark()
{
    QCOMPARE(*parse("\xEF\xBB\xBF" + Full), *parse(Full));
}

void tst_TableDescriptor::keyAsText()
{
    QCOMPARE(parse("{\"primaryKey\": \"Dia\"}")->primaryKey, QStringList{"Dia"});
}

void tst_TableDescriptor::csvFile_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("descriptor");
    QTest::addColumn<QString>("csv");

    QTest::newRow("own name") << ""
                              << "/c/din931.json"
                              << "/c/din931.csv";
    QTest::newRow("dots in the name") << ""
                                      << "/c/B18.2.2.json"
                                      << "/c/B18.2.2.csv";
    QTest::newRow("beside") << "lines.csv"
                            << "/c/din931.json"
                            << "/c/lines.csv";
    QTest::newRow("below") << "lines/a.csv"
                           << "/c/din931.json"
                           << "/c/lines/a.csv";
    QTest::newRow("above") << "../a.csv"
                           << "/c/d/din931.json"
                           << "/c/a.csv";
    QTest::newRow("absolute") << "/x/a.csv"
                              << "/c/din931.json"
                              << "/x/a.csv";
}

void tst_TableDescriptor::csvFile()
{
    QFETCH(QString, path);
    QFETCH(QString, descriptor);
    QFETCH(QString, csv);
    TableDescriptor table;
    table.path = path;
    QCOMPARE(table.csvFile(descriptor), csv);
}

void tst_TableDescriptor::translates()
{
    const auto table = parse(Full);
    const QString size = QString::fromUtf8("Größe");
    const QString length = QString::fromUtf8("Länge");
    QCOMPARE(table->translate(size, 0, "en"), QStringLiteral("Size"));
    QCOMPARE(table->translate(size, 1, "en"), size);
    QCOMPARE(table->translate(length, 0, "en"), QStringLiteral("Length"));
    QCOMPARE(table->translate(length, -1, "en"), QStringLiteral("Length"));
    QCOMPARE(table->translate(length, 0, "fr"), length);
}

void tst_TableDescriptor::anyBytesNeverCrash()
{
    QRandomGenerator random(11);
    for (int round = 0; round < 3000; ++round) {
        QByteArray json = Full;
        for (int i = random.bounded(1, 6); i > 0; --i) {
            const qsizetype at = random.bounded(int(json.size()));
            switch (random.bounded(3)) {
            case 0:
                json[at] = char(random.bounded(256));
                break;
            case 1:
                json.remove(at, random.bounded(1, 40));
                break;
            default:
                json.insert(at, Full.mid(random.bounded(int(Full.size())), random.bounded(30)));
            }
        }
        TableErrorList errors;
        const auto read = parse(json, &errors);
        QCOMPARE(read.has_value(), errors.isEmpty());
        if (read)
            QCOMPARE(*parse(read->toJson()), *read);
    }
}

void tst_TableDescriptor::schemaNamesTheMembers()
{
    QFile file(QStringLiteral(VELK_SOURCE_DIR "/docs/schema/table.schema.json"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonObject schema = QJsonDocument::fromJson(file.readAll()).object();
    const QJsonObject members = schema["properties"].toObject();
    const QJsonObject fieldMembers = schema["$defs"]["field"]["properties"].toObject();
    // What the library knows it refuses as null, all else it keeps.
    for (const QString &name : members.keys())
        QVERIFY2(!parse("{\"" + name.toUtf8() + "\": null}"), qPrintable(name));
    for (const QString &name : fieldMembers.keys())
        QVERIFY2(!parse("{\"fields\": [{\"" + name.toUtf8() + "\": null}]}"), qPrintable(name));
    QVERIFY(parse("{\"other\": null, \"fields\": [{\"name\": \"a\", \"other\": null}]}"));
    // The full example holds every member that is ever written.
    const QJsonObject full = QJsonDocument::fromJson(Full).object();
    for (const QString &name : members.keys())
        QVERIFY2(full.contains(name), qPrintable(name));
    QSet<QString> written;
    for (const QJsonValue &field : full["fields"].toArray())
        for (const QString &name : field.toObject().keys())
            written.insert(name);
    for (const QString &name : fieldMembers.keys())
        QVERIFY2(written.contains(name), qPrintable(name));
    const QJsonObject field = schema["$defs"]["field"].toObject();
    for (const QJsonValue &type : field["properties"]["type"]["enum"].toArray())
        QVERIFY(parse("{\"fields\": [{\"name\": \"a\", \"type\": \"" + type.toString().toUtf8() +
                      "\"}]}"));
    for (const QJsonValue &kind : field["properties"]["kind"]["enum"].toArray())
        QVERIFY(parse("{\"fields\": [{\"name\": \"a\", \"formula\": \"a = 1\", \"kind\": \"" +
                      kind.toString().toUtf8() + "\"}]}"));
}

QTEST_GUILESS_MAIN(tst_TableDescriptor)
#include "tst_TableDescriptor.moc"

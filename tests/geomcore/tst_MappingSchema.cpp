#include "RecordSamples.h"

#include <geomcore/records/MappingFile.h>
#include <geomcore/records/ReleaseLayout.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <rapidjson/document.h>
#include <rapidjson/schema.h>
#include <TestPaths.h>

namespace {

QByteArray fileBytes(const QString &name)
{
    QFile file(QStringLiteral(VELK_SOURCE_DIR "/docs/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray releaseWith(const QByteArray &lines, const QByteArray &modifiers = {})
{
    return R"({"2022":{"sourceDate":"2022","targetDate":"","mappings":[{"sourcePath":"a",)"
           R"("sourceVersion":"","tabVersion":"","state":0,"targets":[{"path":"","version":"",)"
           R"("tabVersion":"","valid":true,"conditions":[],"modifiers":[)" +
           modifiers + R"(],"lines":[)" + lines + "]}]}]}}";
}

} // namespace

/// The published schema says the same as the reader.
class tst_MappingSchema : public QObject
{
    Q_OBJECT

private:
    bool fits(const QByteArray &json) const
    {
        rapidjson::Document document;
        document.Parse(json.constData());
        rapidjson::SchemaValidator validator(*m_schema);
        return !document.HasParseError() && document.Accept(validator);
    }

    std::unique_ptr<rapidjson::SchemaDocument> m_schema;

private Q_SLOTS:
    void initTestCase()
    {
        rapidjson::Document document;
        document.Parse(fileBytes("schema/mapping.schema.json").constData());
        QVERIFY(!document.HasParseError());
        m_schema = std::make_unique<rapidjson::SchemaDocument>(document);
    }

    void membersAreThoseOfTheReader_data()
    {
        QTest::addColumn<int>("place");
        QTest::addColumn<QString>("definition");
        QTest::newRow("release") << int(ReleaseLayout::Release) << "release";
        QTest::newRow("replacement") << int(ReleaseLayout::Replacement) << "replacement";
        QTest::newRow("mapping") << int(ReleaseLayout::Mapping) << "mapping";
        QTest::newRow("target") << int(ReleaseLayout::Target) << "target";
    }

    void membersAreThoseOfTheReader()
    {
        QFETCH(const int, place);
        QFETCH(const QString, definition);
        const QJsonObject schema = QJsonDocument::fromJson(fileBytes("schema/mapping.schema.json"))
                                       .object()["definitions"][definition]
                                       .toObject();
        QStringList names;
        QStringList required;
        QStringList arrays;
        for (const ReleaseLayout::Member &member : ReleaseLayout::Members) {
            const QString name = QString::fromLatin1(member.name.data(), int(member.name.size()));
            if (member.place != place)
                continue;
            names << name;
            if (member.required)
                required << name;
            if (member.kind == ReleaseLayout::ArrayKind)
                arrays << name;
        }
        const QJsonObject properties = schema["properties"].toObject();
        names.sort();
        QCOMPARE(properties.keys(), names);
        QStringList wanted;
        for (const QJsonValue &name : schema["required"].toArray())
            wanted << name.toString();
        QCOMPARE(wanted, required);
        for (const QString &name : std::as_const(names))
            QCOMPARE(properties[name]["type"].toString() == "array", arrays.contains(name));
    }

    void whatIsWrittenFits()
    {
        for (quint32 seed = 0; seed < 30; ++seed) {
            QRandomGenerator random(seed);
            MappingFile file;
            file.setRelease(RecordSamples::randomRelease(random, "2020"));
            file.setRelease(RecordSamples::randomRelease(random, "2022"));
            QVERIFY(fits(file.toByteArray()));
        }
        QVERIFY(fits(MappingFile().toByteArray()));
    }

    void exampleOfTheDocumentation()
    {
        const QByteArray text = fileBytes("formats.md");
        const qsizetype section = text.indexOf("## Mapping file");
        const qsizetype begin = text.indexOf("```json\n", section) + 8;
        const QByteArray example = text.mid(begin, text.indexOf("```", begin) - begin);
        QVERIFY(fits(example));
        MappingFile file;
        QString error;
        QVERIFY2(file.parse(example, QString(), &error), qPrintable(error));
        QCOMPARE(file.toByteArray(), example);
        // The flags are what these lines give.
        PrjMappingC mapping = file.releases().first().mappingAt(0);
        const PRJMAPPING::MappingState stored = mapping.getMappingState();
        mapping.updateMappingState();
        QCOMPARE(mapping.getMappingState(), stored);
    }

    void schemaAndReaderAgree_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<bool>("good");
        const auto line = [](const char *name, const char *row, bool good) {
            QTest::newRow(name) << releaseWith(row) << good;
        };
        line("plain row", "[1,2,0]", true);
        line("state 3", "[1,2,3]", true);
        line("extended", "[1,2,0,\"x\"]", true);
        line("conflict", "[1,2,0,\"\",true]", true);
        line("row of two", "[1,2]", false);
        line("row of six", "[1,2,0,\"\",true,0]", false);
        line("conflict false", "[1,2,0,\"\",false]", false);
        line("negative state", "[1,2,-1]", false);
        line("negative source line", "[-1,2,0]", false);
        line("no target line", "[1,-1,0]", true);
        line("negative target line", "[1,-2,0]", false);
        line("fraction", "[1,2.5,0]", false);
        line("beyond an int", "[1,2147483648,0]", false);
        line("text as a line", "[\"1\",2,0]", false);
        line("object as a row", "{}", false);
        const auto modifier = [](const char *name, const char *text, bool good) {
            QTest::newRow(name) << releaseWith("", text) << good;
        };
        modifier("variable", R"({"kind":"var","source":"","target":"B"})", true);
        modifier("formula", R"({"kind":"value","formula":"A = 1"})", true);
        modifier("variable without target", R"({"kind":"var","source":"A"})", false);
        modifier("unknown kind", R"({"kind":"x","source":"A","target":"B"})", false);
        modifier("without kind", R"({"source":"A","target":"B"})", false);
        const auto learned = [](const char *name, const char *text, bool good) {
            QTest::newRow(name) << QByteArray(R"({"2022":{"sourceDate":"2022","targetDate":"",)"
                                              R"("learned":[)") +
                                       text + "]}}"
                                << good;
        };
        learned("learned", R"({"variable":"A","before":"7","after":"8","supports":2,"cases":2})",
                true);
        learned("learned from no case", R"({"variable":"A","before":"7","after":"8","supports":2})",
                false);
        learned("learned of negative cases",
                R"({"variable":"A","before":"7","after":"8","supports":0,"cases":-1})", false);
        learned("learned of numbers",
                R"({"variable":"A","factor":"2","offset":"-1e3","supports":2,"cases":2})", true);
        learned("learned of numbers without offset",
                R"({"variable":"A","factor":"2","supports":2,"cases":2})", false);
        learned("learned of no number",
                R"({"variable":"A","factor":"x","offset":"0","supports":2,"cases":2})", false);
        learned("learned of texts and numbers",
                R"({"variable":"A","before":"7","after":"8","factor":"2","offset":"0",)"
                R"("supports":2,"cases":2})",
                false);
        learned("learned of neither", R"({"variable":"A","supports":2,"cases":2})", false);
        learned("learned of no variable", R"({"before":"7","after":"8","supports":2,"cases":2})",
                false);
        const auto replacement = [](const char *name, const char *text, bool good) {
            QTest::newRow(name) << QByteArray(R"({"2022":{"sourceDate":"2022","targetDate":"",)"
                                              R"("replacements":[)") +
                                       text + "]}}"
                                << good;
        };
        replacement("token", R"({"folder":"","variable":"A","before":"7","after":""})", true);
        replacement("numbers", R"({"folder":"a/b","variable":"A","factor":"0.5","offset":"-1"})",
                    true);
        replacement("replacement of nothing", R"({"folder":"","variable":"A"})", false);
        replacement("replacement without variable",
                    R"({"folder":"","variable":"","before":"7","after":"8"})", false);
        replacement("half a text", R"({"folder":"","variable":"A","before":"7"})", false);
        replacement("text and numbers",
                    R"({"folder":"","variable":"A","before":"","after":"","factor":"1",)"
                    R"("offset":"0"})",
                    false);
        replacement("factor is no number",
                    R"({"folder":"","variable":"A","factor":"x","offset":"0"})", false);
        replacement("factor is infinite",
                    R"({"folder":"","variable":"A","factor":"inf","offset":"0"})", false);
        replacement("replacement without folder", R"({"variable":"A","before":"7","after":"8"})",
                    false);
        replacement("text as a replacement", R"("x")", false);
        QTest::newRow("no release") << QByteArray("{}") << true;
        QTest::newRow("array") << QByteArray("[]") << false;
        QTest::newRow("heads only")
            << QByteArray(R"({"2022":{"sourceDate":"2022","targetDate":""}})") << true;
        QTest::newRow("without target date")
            << QByteArray(R"({"2022":{"sourceDate":"2022"}})") << false;
        for (const char *member :
             {"sourcePath", "sourceVersion", "tabVersion", "state", "targets", "path", "version",
              "valid", "conditions", "modifiers", "lines"}) {
            QByteArray json = releaseWith("");
            const QByteArray name = '"' + QByteArray(member) + "\":";
            QTest::addRow("without %s", member) << json.replace(name, "\"other\":") << false;
        }
        QTest::newRow("empty source path")
            << releaseWith("").replace("\"sourcePath\":\"a\"", "\"sourcePath\":\"\"") << false;
    }
    void schemaAndReaderAgree()
    {
        QFETCH(QByteArray, json);
        QFETCH(bool, good);
        QCOMPARE(fits(json), good);
        QCOMPARE(MappingFile().parse(json), good);
    }
};

QTEST_GUILESS_MAIN(tst_MappingSchema)
#include "tst_MappingSchema.moc"

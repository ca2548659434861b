#include <TestPaths.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

bool writeFile(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// scripts/translations, in a tree of its own.
class tst_translations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        directory = std::make_unique<QTemporaryDir>();
        for (const char *folder : {"scripts", "translations", "platform", "forms"})
            QVERIFY(QDir(directory->path()).mkpath(folder));
        QVERIFY(QFile::copy(VELK_SOURCE_DIR "/scripts/translations", path("scripts/translations")));
    }

    void aTextWithACountGetsItsForms_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<int>("forms");
        QTest::newRow("Czech") << "cs" << 3;
        QTest::newRow("German") << "de" << 2;
        QTest::newRow("Korean") << "ko" << 1;
        QTest::newRow("Slovenian") << "sl" << 4;
    }
    void aTextWithACountGetsItsForms()
    {
        QFETCH(QString, language);
        QFETCH(int, forms);
        writeSource("f(translateCount(\"%Ln Zeile(n)\", \"VelkCore\", count));");
        QCOMPARE(run({}), 0);
        const QByteArray catalog = contentOf(path("translations/VelkCore_" + language + ".ts"));
        QVERIFY(catalog.contains("<message numerus=\"yes\">"));
        QCOMPARE(catalog.count("<numerusform>"), forms);
        QVERIFY(catalog.contains("unfinished"));
    }

    void noFormMayBeEmpty()
    {
        writeSource("f(translateCount(\"%Ln Zeile(n)\", \"VelkCore\", count));");
        QCOMPARE(run({}), 0);
        const QStringList names = QDir(path("translations")).entryList({"VelkCore_*.ts"});
        QCOMPARE(names.size(), 21);
        for (const QString &name : names) {
            const QByteArray empty = contentOf(path("translations/" + name));
            QVERIFY(writeFile(path("translations/" + name),
                              QByteArray(empty)
                                  .replace("<numerusform>", "<numerusform>%Ln x")
                                  .replace(" type=\"unfinished\"", "")));
        }
        QCOMPARE(run({"--check"}), 0);
        const QString polish = path("translations/VelkCore_pl.ts");
        QByteArray text = contentOf(polish);
        const qsizetype last = text.lastIndexOf("%Ln x");
        QVERIFY(writeFile(polish, text.remove(last, 5)));
        QCOMPARE(run({"--check"}), 1);
        QVERIFY2(output.contains("without a translation: VelkCore_pl.ts"), output);
        QVERIFY2(!output.contains("VelkCore_sl.ts"), output);
    }

    /// German has the text itself, unless it has plural forms; no other language has.
    void otherTextsHaveOneTranslation()
    {
        writeSource("f(PString::translate(\"Zeile %1\", \"VelkCore\"));");
        QCOMPARE(run({}), 0);
        const QByteArray german = contentOf(path("translations/VelkCore_de.ts"));
        QVERIFY2(german.contains("<translation>Zeile %1</translation>"), german);
        QVERIFY(!german.contains("numerus"));
        QVERIFY(contentOf(path("translations/VelkCore_en.ts"))
                    .contains("<translation type=\"unfinished\"></translation>"));
    }

    void aFunctionMayHandTheCountOn()
    {
        writeSource("QString tr(const char *text, qsizetype count)\n{\n"
                    "    return translateCount(text, \"VelkGui\", int(count));\n}\n"
                    "f(tr(\"%Ln Wert(e)\", 3));");
        QCOMPARE(run({}), 0);
        QCOMPARE(contentOf(path("translations/VelkGui_de.ts")).count("<numerusform>"), 2);
    }

    void placeAndCountGoTogether_data()
    {
        QTest::addColumn<QByteArray>("source");
        QTest::newRow("no count") << QByteArray("translateCount(\"%Ln Wert(e)\", \"VelkGui\")");
        QTest::newRow("no place") << QByteArray("translateCount(\"Werte\", \"VelkGui\", 3)");
    }
    void placeAndCountGoTogether()
    {
        QFETCH(QByteArray, source);
        writeSource(source);
        QCOMPARE(run({}), 1);
        QVERIFY2(output.contains("count"), output);
    }

private:
    [[nodiscard]] QString path(const QString &name) const { return directory->filePath(name); }
    void writeSource(const QByteArray &text)
    {
        QVERIFY(writeFile(path("platform/Source.cpp"), text));
    }
    int run(const QStringList &arguments)
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start("python3", QStringList{path("scripts/translations")} + arguments);
        if (!process.waitForFinished())
            return -1;
        output = process.readAll();
        return process.exitCode();
    }

    std::unique_ptr<QTemporaryDir> directory;
    QByteArray output;
};

QTEST_GUILESS_MAIN(tst_translations)
#include "tst_translations.moc"

#include <core/Version.h>
#include <TestPaths.h>
#include <workbench/start/PluginLibrary.h>
#include <workbench/start/SettingsPlace.h>
#include <workbench/start/StartOptions.h>

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

class tst_StartOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsAllOptions()
    {
        const StartOptions options = StartOptions::parse({"m.json",
                                                          "--source",
                                                          "old",
                                                          "--target",
                                                          "new",
                                                          "--release",
                                                          "2021-01-01T00:00:00Z",
                                                          "--read-only",
                                                          "--select",
                                                          "a/b.prj",
                                                          "--line",
                                                          "17",
                                                          "--screenshot",
                                                          "p.png",
                                                          "--size",
                                                          "800x600",
                                                          "--scale",
                                                          "2",
                                                          "--theme",
                                                          "dark",
                                                          "--language",
                                                          "en",
                                                          "--settings",
                                                          "s"});
        QCOMPARE(options.outcome, StartOptions::Outcome::Run);
        QCOMPARE(options.mappingFile, QStringLiteral("m.json"));
        QCOMPARE(options.sourceRoot, QStringLiteral("old"));
        QCOMPARE(options.targetRoot, QStringLiteral("new"));
        QCOMPARE(options.release, QStringLiteral("2021-01-01T00:00:00Z"));
        QVERIFY(options.readOnly);
        QCOMPARE(options.selectedPath, QStringLiteral("a/b.prj"));
        QCOMPARE(options.selectedLine, 17);
        QCOMPARE(options.screenshot, QStringLiteral("p.png"));
        QCOMPARE(options.size, QSize(800, 600));
        QCOMPARE(options.scale, 2);
        QCOMPARE(options.theme, QStringLiteral("dark"));
        QCOMPARE(options.language, QStringLiteral("en"));
        QCOMPARE(options.settingsDirectory, QStringLiteral("s"));
        QCOMPARE(options.dialog, QString());
    }

    void readsADialog()
    {
        const StartOptions options =
            StartOptions::parse({"--screenshot", "p", "--dialog", "search", "--text", "din 9"});
        QCOMPARE(options.outcome, StartOptions::Outcome::Run);
        QCOMPARE(options.dialog, QStringLiteral("search"));
        QCOMPARE(options.dialogText, QStringLiteral("din 9"));
    }

    void needsNone()
    {
        const StartOptions options = StartOptions::parse({});
        QCOMPARE(options.outcome, StartOptions::Outcome::Run);
        QCOMPARE(options.selectedLine, -1);
        QCOMPARE(options.scale, 1);
        QVERIFY(!options.size.isValid());
        QVERIFY(!options.readOnly);
    }

    void refusesWrongValues_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("text");
        QTest::newRow("unknown option") << QStringList{"--nothing"} << "Unknown option 'nothing'.";
        QTest::newRow("two files") << QStringList{"a", "b"} << "more than one mapping file: a, b";
        QTest::newRow("line is no number")
            << QStringList{"--line", "x"} << "--line is not the number of a line: x";
        QTest::newRow("line is negative")
            << QStringList{"--line=-3"} << "--line is not the number of a line: -3";
        QTest::newRow("size") << QStringList{"--size", "800"}
                              << "--size is not of the form WxH: 800";
        QTest::newRow("dialog") << QStringList{"--dialog", "x"}
                                << "--dialog is not formula or search or links or proof or "
                                   "documents or script or locator or keys or manual or "
                                   "review or sample or neighbours or carried: x";
        QTest::newRow("scale") << QStringList{"--scale", "3"} << "--scale is not 1 or 2: 3";
        QTest::newRow("theme") << QStringList{"--theme", "red"}
                               << "--theme is not light, dark or contrast: red";
        QTest::newRow("language") << QStringList{"--language", "xx"}
                                  << "--language is not one of de, cs, da, en, es, fi, fr, hu, id, "
                                     "it, ja, ko, nb, pl, pt, ru, sl, sv, tr, zh, zh_CHT: xx";
    }
    void refusesWrongValues()
    {
        QFETCH(QStringList, arguments);
        const StartOptions options = StartOptions::parse(arguments);
        QCOMPARE(options.outcome, StartOptions::Outcome::Wrong);
        QTEST(options.text, "text");
    }

    void tellsHelpAndVersion()
    {
        const StartOptions help = StartOptions::parse({"--help"});
        QCOMPARE(help.outcome, StartOptions::Outcome::Over);
        QVERIFY(help.text.contains("--screenshot <FILE>"));
        const StartOptions version = StartOptions::parse({"--version"});
        QCOMPARE(version.outcome, StartOptions::Outcome::Over);
        QCOMPARE(version.text, "velkworkbench " + velkVersion() + '\n');
    }

    void preparesScreenshotsOnly()
    {
        const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
        qunsetenv("QT_SCALE_FACTOR");
        qputenv("QT_QPA_PLATFORM", "something");
        StartOptions::parse({}).prepareEnvironment();
        QCOMPARE(qgetenv("QT_QPA_PLATFORM"), QByteArray("something"));
        StartOptions::parse({"--screenshot", "p", "--scale", "2"}).prepareEnvironment();
        QCOMPARE(qgetenv("QT_QPA_PLATFORM"), QByteArray("offscreen"));
        QCOMPARE(qgetenv("QT_SCALE_FACTOR"), QByteArray("2"));
        qputenv("QT_QPA_PLATFORM", platform);
        qunsetenv("QT_SCALE_FACTOR");
    }

    void makesTheSettingsDirectory()
    {
        const QTemporaryDir directory;
        const SettingsPlace place(directory.filePath("a/b"));
        QVERIFY(QDir(directory.filePath("a/b")).exists());
        QCOMPARE(place.workbenchSettings(), directory.filePath("a/b/workbench.ini"));
        QCOMPARE(QString(place.applicationConfig()), directory.filePath("a/b/windows.cfg"));
    }

    void makesThePluginObject()
    {
        PluginLibrary library;
        QVERIFY(!library.plugin());
        QVERIFY2(library.load(VELK_BINARY_DIR "/lib/VelkLinkDbGui"), qPrintable(library.error()));
        QVERIFY(library.plugin());
    }

    void saysWhyThereIsNoPlugin_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("part");
        QTest::newRow("no such library") << VELK_BINARY_DIR "/lib/NoSuchLibrary"
                                         << "NoSuchLibrary";
        QTest::newRow("no library at all") << VELK_SOURCE_DIR "/README.md"
                                           << "README.md";
    }
    void saysWhyThereIsNoPlugin()
    {
        QFETCH(QString, path);
        QFETCH(QString, part);
        PluginLibrary library;
        QVERIFY(!library.load(path));
        QVERIFY2(library.error().contains(part), qPrintable(library.error()));
        QVERIFY(!library.plugin());
    }
};

QTEST_MAIN(tst_StartOptions)
#include "tst_StartOptions.moc"

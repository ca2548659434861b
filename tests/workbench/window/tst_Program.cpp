#include "WindowFixture.h"

#include <core/config/PConfigService.h>
#include <core/plugin/PTranslateManager.h>
#include <TestPaths.h>
#include <workbench/start/SettingsPlace.h>
#include <workbench/start/StartOptions.h>
#include <workbench/window/settings/WorkbenchSettings.h>
#include <workbench/window/WorkbenchRun.h>

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTest>

namespace {

struct Run
{
    int status = -1;
    QString out;
    QString err;
};

const QString built = QStringLiteral(VELK_BINARY_DIR "/bin/velkworkbench");

Run program(const QStringList &arguments, const QString &file = built)
{
    QProcess process;
    // A copy of the program elsewhere finds the platform's libraries nevertheless.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LD_LIBRARY_PATH", VELK_BINARY_DIR "/lib");
    process.setProcessEnvironment(environment);
    process.start(file, arguments);
    if (!process.waitForFinished(60000))
        return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QStringList pictureOf(const QString &mapping, const QString &picture)
{
    const CatalogRoots roots = WindowFixture::roots();
    return {"--screenshot", picture,      "--source", roots.source,
            "--target",     roots.target, "--select", "standardparts/screws/din933.prj",
            "--line",       "3",          mapping};
}

/// Share of pixels that are darker than a middle grey.
double darkShare(const QImage &image)
{
    int dark = 0;
    int all = 0;
    for (int y = 0; y < image.height(); y += 7) {
        for (int x = 0; x < image.width(); x += 7) {
            dark += qGray(image.pixel(x, y)) < 128 ? 1 : 0;
            ++all;
        }
    }
    return double(dark) / all;
}

} // namespace

class tst_Program : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsVersionAndHelp()
    {
        QCOMPARE(program({"--version"}).status, 0);
        const Run help = program({"--help"});
        QCOMPARE(help.status, 0);
        QVERIFY(help.out.startsWith("Usage: velkworkbench [options] [mapping]\n"));
        QVERIFY(help.out.contains("--screenshot"));
        const Run wrong = program({"--theme", "red"});
        QCOMPARE(wrong.status, 1);
        QVERIFY(
            wrong.err.startsWith("velkworkbench: --theme is not light, dark or contrast: red\n"));
    }

    void saysWhichLibraryIsMissing()
    {
        const QTemporaryDir installation;
        QVERIFY(QDir(installation.path()).mkpath("bin"));
        QVERIFY(QDir(installation.path()).mkpath("lib/velkworkbench"));
        const QString copy = installation.filePath("bin/velkworkbench");
        QVERIFY(QFile::copy(built, copy));
        const QStringList arguments{"--screenshot", installation.filePath("p.png")};
        const Run none = program(arguments, copy);
        QCOMPARE(none.status, 4);
        QVERIFY2(none.err.contains("lib/velkworkbench/VelkLinkDbGui"), qPrintable(none.err));
        QVERIFY(QFile::link(VELK_BINARY_DIR "/lib/libVelkLinkDbGui.so",
                            installation.filePath("lib/velkworkbench/libVelkLinkDbGui.so")));
        const Run half = program(arguments, copy);
        QCOMPARE(half.status, 4);
        QVERIFY2(half.err.contains("lib/velkworkbench/VelkWorkbench"), qPrintable(half.err));
        QVERIFY(QFile::link(VELK_BINARY_DIR "/lib/libVelkWorkbench.so",
                            installation.filePath("lib/velkworkbench/libVelkWorkbench.so")));
        QCOMPARE(program(arguments, copy).status, 0);
        QVERIFY(QFile::exists(installation.filePath("p.png")));
    }

    void findsSetUpFilesAmongTheSettings()
    {
        const WindowFixture fixture;
        QFile config(fixture.directory.filePath("pproject.cfg"));
        QVERIFY(config.open(QIODevice::WriteOnly));
        config.write("[CatalogMappingWidget]\nAllowVerifyAllOnDir=true\n");
        config.close();
        StartOptions options;
        options.language = "en";
        options.theme = "dark";
        const WorkbenchSettings::Values before = fixture.settings->values();
        prepareWorkbench(*fixture.settings, SettingsPlace(fixture.directory.path()), options);
        const PRefPtr<PConfig> found = PConfigService::getConfig(0, "pproject");
        QVERIFY(found);
        QVERIFY(
            found->getItemValue("AllowVerifyAllOnDir", "CatalogMappingWidget", "false").GetBool());
        QCOMPARE(PTranslateManager::instance().language(), QString("en"));
        QCOMPARE(fixture.settings->values().theme, QString("dark"));
        // For this run only.
        QCOMPARE(WorkbenchSettings(fixture.settings->store()->fileName()).values(), before);
        PConfigService::setDirectories({"$TORMEVA_SETUP"});
    }

    void rendersPictures_data()
    {
        QTest::addColumn<QStringList>("extra");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<bool>("dark");
        QTest::newRow("light") << QStringList{"--theme", "light", "--size", "1200x800"}
                               << QSize(1200, 800) << false;
        QTest::newRow("dark") << QStringList{"--theme", "dark", "--size", "1200x800"}
                              << QSize(1200, 800) << true;
        QTest::newRow("double") << QStringList{"--theme",  "light",   "--size",
                                               "1200x800", "--scale", "2"}
                                << QSize(2400, 1600) << false;
    }
    void rendersPictures()
    {
        QFETCH(QStringList, extra);
        QFETCH(bool, dark);
        const WindowFixture fixture;
        const QString mapping = fixture.mappingFile();
        const QString picture = fixture.directory.filePath("p.png");
        const QStringList before = QDir(fixture.directory.path()).entryList(QDir::Files);
        const Run run = program(pictureOf(mapping, picture) + extra);
        QVERIFY2(run.status == 0, qPrintable(run.err));
        const QImage image(picture);
        QTEST(image.size(), "size");
        QCOMPARE(darkShare(image) > 0.5, dark);
        // No lock, no journal, nothing else beside the mapping.
        QVERIFY(QFile::remove(picture));
        QCOMPARE(QDir(fixture.directory.path()).entryList(QDir::Files), before);
    }

    void rendersDialogs_data()
    {
        QTest::addColumn<QStringList>("extra");
        QTest::addColumn<QSize>("size");
        QTest::newRow("formula") << QStringList{"--dialog", "formula", "--text", "Dia .EQ. 12"}
                                 << QSize(560, 260);
        QTest::newRow("search") << QStringList{"--dialog", "search", "--text", "din"}
                                << QSize(640, 520);
        QTest::newRow("keys") << QStringList{"--dialog", "keys", "--text", "line"}
                              << QSize(640, 420);
        QTest::newRow("manual") << QStringList{"--dialog", "manual", "--text", "manual/tour.md"}
                                << QSize(980, 620);
        for (const char *dialog : {"links", "proof"})
            QTest::newRow(dialog) << QStringList{"--dialog", dialog, "--text", "link.db"}
                                  << QSize(900, 420);
        QTest::newRow("documents")
            << QStringList{"--dialog", "documents", "--text",
                           "link.db",  "--select",  "standardparts/screws/iso4014.prj",
                           "--line",   "4"}
            << QSize(1000, 420);
    }
    void rendersDialogs()
    {
        QFETCH(QStringList, extra);
        const WindowFixture fixture;
        const QString picture = fixture.directory.filePath("p.png");
        extra.replaceInStrings("link.db", "sqlite:" + fixture.directory.filePath("link.db"));
        qputenv("XDG_CACHE_HOME", fixture.directory.filePath("cache").toUtf8());
        const Run run = program(pictureOf(fixture.mappingFile(), picture) + extra);
        qunsetenv("XDG_CACHE_HOME");
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QTEST(QImage(picture).size(), "size");
    }

    void picturesAreTheSameTwice()
    {
        const WindowFixture fixture;
        const QString mapping = fixture.mappingFile();
        QList<QImage> images;
        for (int i = 0; i < 2; ++i) {
            const QString picture = fixture.directory.filePath(QString::number(i) + ".png");
            QCOMPARE(program(pictureOf(mapping, picture)).status, 0);
            images << QImage(picture);
        }
        QVERIFY(!images.first().isNull());
        QCOMPARE(images.first(), images.last());
    }

    void saysWhatCannotBeShown_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("part");
        const WindowFixture fixture;
        QTest::newRow("no file") << pictureOf("/no/such.json", "never.png") << 2
                                 << "cannot read /no/such.json";
    }
    void saysWhatCannotBeShown()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QFETCH(QString, part);
        const Run run = program(arguments);
        QCOMPARE(run.status, status);
        QVERIFY2(run.err.contains(part), qPrintable(run.err));
    }

    void saysWhenAPartIsMissing()
    {
        const WindowFixture fixture;
        const QString mapping = fixture.mappingFile();
        const QString picture = fixture.directory.filePath("p.png");
        const Run line = program(pictureOf(mapping, picture) + QStringList{"--line", "9999"});
        QCOMPARE(line.status, 2);
        QVERIFY2(line.err.contains("there is no such project or line: "
                                   "standardparts/screws/din933.prj 9999"),
                 qPrintable(line.err));
        QStringList elsewhere = pictureOf(mapping, picture);
        elsewhere[elsewhere.indexOf("--select") + 1] = "standardparts/no/such.prj";
        const Run project = program(elsewhere);
        QCOMPARE(project.status, 2);
        QVERIFY2(project.err.contains("there is no such project or line: standardparts/no/such"),
                 qPrintable(project.err));
        QVERIFY(!QFile::exists(picture));
        const Run roots = program({"--screenshot", picture, mapping});
        QCOMPARE(roots.status, 2);
        QVERIFY2(roots.err.contains("--source"), qPrintable(roots.err));
        const Run database =
            program(pictureOf(mapping, picture) +
                    QStringList{"--dialog", "links", "--text", fixture.directory.path()});
        QCOMPARE(database.status, 2);
        QVERIFY2(database.err.contains("it is no regular file"), qPrintable(database.err));
        const Run unwritable =
            program(pictureOf(mapping, fixture.directory.filePath("no/such/p.png")));
        QCOMPARE(unwritable.status, 3);
        QVERIFY(!QFile::exists(picture));
    }
};

QTEST_MAIN(tst_Program)
#include "tst_Program.moc"

#include <core/plugin/PTranslateManager.h>
#include <core/text/PString.h>

#include <QLibraryInfo>
#include <QProcess>
#include <QResource>
#include <QTemporaryDir>
#include <QTest>

#include <iostream>

namespace {

bool writeFile(const QString &path, const QString &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) > 0;
}

bool run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished() && process.exitCode() == 0;
}

/// Makes a resource file with catalogs of the module "Sample" for "en" and "zh_CHT".
bool makeCatalogs(const QString &dir, const QString &resourceFile)
{
    QString list;
    for (const auto &[language, text] : {std::pair("en", "size"), std::pair("zh_CHT", "尺寸")}) {
        const QString name = QStringLiteral("Sample_%1").arg(QString(language));
        const QString ts =
            QStringLiteral("<?xml version=\"1.0\" encoding=\"utf-8\"?><!DOCTYPE TS>"
                           "<TS version=\"2.1\" language=\"en\"><context><name>Ctx</name>"
                           "<message><source>Größe</source><translation>%1</translation>"
                           "</message></context></TS>")
                .arg(QString::fromUtf8(text));
        if (!writeFile(dir + "/" + name + ".ts", ts) ||
            !run(QLibraryInfo::path(QLibraryInfo::BinariesPath) + "/lrelease",
                 {"-silent", dir + "/" + name + ".ts", "-qm", dir + "/" + name + ".qm"}))
            return false;
        list += "<file>" + name + ".qm</file>";
    }
    return writeFile(dir + "/t.qrc",
                     "<RCC><qresource prefix=\"/translations\">" + list + "</qresource></RCC>") &&
           run(QLibraryInfo::path(QLibraryInfo::LibraryExecutablesPath) + "/rcc",
               {"--binary", dir + "/t.qrc", "-o", resourceFile});
}

QByteArray size()
{
    return PString::translate("Größe", "Ctx").toUtf8();
}

/// Registers before there is an application, which comes and goes twice.
int runWithoutApplication(const char *resourceFile)
{
    const QString path = QString::fromUtf8(resourceFile);
    QResource::registerResource(path);
    PTranslateManager::registerModule("Sample");
    std::cout << size().constData();
    for (int i = 0; i < 2; ++i) {
        int argc = 1;
        char name[] = "x";
        char *argv[] = {name, nullptr};
        const QCoreApplication app(argc, argv);
        std::cout << ' ' << size().constData();
    }
    std::cout << ' ' << size().constData() << '\n';
    QResource::unregisterResource(path);
    return 0;
}

} // namespace

class tst_PTranslateManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_resource = m_dir.filePath("t.rcc");
        QVERIFY(makeCatalogs(m_dir.path(), m_resource));
        QVERIFY(QResource::registerResource(m_resource));
        PTranslateManager::instance().setLanguage("");
    }
    void cleanupTestCase() { QVERIFY(QResource::unregisterResource(m_resource)); }
    void cleanup()
    {
        PTranslateManager::instance().setLanguage("");
        PTranslateManager::unregisterModule("Sample");
        PTranslateManager::unregisterModule("Other");
    }

    void sourceTextWithoutALanguage()
    {
        PTranslateManager::registerModule("Sample");
        QCOMPARE(size(), QByteArray("Größe"));
        QVERIFY(PTranslateManager::instance().translatedModules().isEmpty());
    }
    void languageAfterModule()
    {
        PTranslateManager::registerModule("Sample");
        PTranslateManager::instance().setLanguage("en");
        QCOMPARE(size(), QByteArray("size"));
        QCOMPARE(PTranslateManager::instance().language(), QString("en"));
        QCOMPARE(PTranslateManager::instance().translatedModules(), QStringList{"Sample"});
    }
    void moduleAfterLanguage()
    {
        PTranslateManager::instance().setLanguage("en");
        PTranslateManager::registerModule("Sample");
        PTranslateManager::registerModule("Sample");
        QCOMPARE(size(), QByteArray("size"));
        QCOMPARE(PTranslateManager::instance().modules(), QStringList{"Sample"});
    }
    void catalogWhoseNameIsNoLocale()
    {
        PTranslateManager::registerModule("Sample");
        PTranslateManager::instance().setLanguage("zh_CHT");
        QCOMPARE(size(), QByteArray("尺寸"));
    }
    void noOtherFileStandsIn()
    {
        PTranslateManager::registerModule("Sample");
        for (const char *language : {"en_US", "EN", "e", "zh", "xx"}) {
            PTranslateManager::instance().setLanguage(language);
            QCOMPARE(size(), QByteArray("Größe"));
        }
    }
    void languageChanges()
    {
        PTranslateManager::registerModule("Sample");
        PTranslateManager::registerModule("Other");
        PTranslateManager::instance().setLanguage("en");
        PTranslateManager::instance().setLanguage("zh_CHT");
        QCOMPARE(size(), QByteArray("尺寸"));
        PTranslateManager::instance().setLanguage("");
        QCOMPARE(size(), QByteArray("Größe"));
        QCOMPARE(PTranslateManager::instance().modules(), QStringList({"Sample", "Other"}));
    }
    void catalogOutlivesTheResource()
    {
        PTranslateManager::registerModule("Sample");
        PTranslateManager::instance().setLanguage("en");
        QVERIFY(QResource::unregisterResource(m_resource));
        QCOMPARE(size(), QByteArray("size"));
        PTranslateManager::unregisterModule("Sample");
        QCOMPARE(size(), QByteArray("Größe"));
        QVERIFY(QResource::registerResource(m_resource));
    }
    void unknownTextStays()
    {
        PTranslateManager::registerModule("Sample");
        PTranslateManager::instance().setLanguage("en");
        QCOMPARE(PString::translate("Länge", "Ctx"), QString("Länge"));
        QCOMPARE(PString::translate("Größe", "Other"), QString("Größe"));
    }

    void environment_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("of the environment") << "en" << QByteArray("Größe size size Größe\n");
        QTest::newRow("none") << "" << QByteArray("Größe Größe Größe Größe\n");
    }
    void environment()
    {
        QFETCH(QString, language);
        QProcess process;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("TORMEVA_LANGUAGE", language);
        process.setProcessEnvironment(env);
        process.start(QCoreApplication::applicationFilePath(), {"--no-application", m_resource});
        QVERIFY(process.waitForFinished());
        QTEST(process.readAllStandardOutput(), "expected");
    }

private:
    QTemporaryDir m_dir;
    QString m_resource;
};

int main(int argc, char **argv)
{
    if (argc > 2 && qstrcmp(argv[1], "--no-application") == 0)
        return runWithoutApplication(argv[2]);
    QCoreApplication app(argc, argv);
    tst_PTranslateManager test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_PTranslateManager.moc"

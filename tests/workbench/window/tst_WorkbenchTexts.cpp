#include "../../support/CatalogCheck.h"

#include <core/plugin/PTranslateManager.h>

#include <TestPaths.h>
#include <workbench/start/EditorLanguages.h>
#include <workbench/window/look/QtTexts.h>

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

namespace {

/// Sources, or translations with all their forms.
QStringList textsOf(const QString &catalog, bool sources)
{
    QFile file(catalog);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader xml(&file);
    QStringList texts;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == QLatin1String(sources ? "source" : "translation"))
            texts += xml.readElementText(QXmlStreamReader::IncludeChildElements);
    }
    return texts;
}

} // namespace

class tst_WorkbenchTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void catalogIsCompleteAndUpToDate()
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start("python3", {QStringLiteral(VELK_SOURCE_DIR "/scripts/workbench-translations"),
                                  "--check"});
        QVERIFY(process.waitForFinished());
        QVERIFY2(process.exitCode() == 0, process.readAll().constData());
    }

    void textsOfQtComeFromItsCatalogs()
    {
        const QTemporaryDir directory;
        QVERIFY(
            QFile::copy(":/translations/velkworkbench_en.qm", directory.filePath("qtbase_en.qm")));
        QVERIFY(QFile::copy(":/translations/velkworkbench_en.qm",
                            directory.filePath("qtbase_pt_BR.qm")));
        QVERIFY(!QtTexts::setLanguage("zh_CHT", directory.path()));
        QVERIFY(QtTexts::setLanguage("pt", directory.path())); // better than none
        QVERIFY(QFile::copy(":/translations/velkworkbench_en.qm",
                            directory.filePath("qtbase_zh_TW.qm")));
        QVERIFY(QtTexts::setLanguage("zh_CHT", directory.path()));
        QVERIFY(!QtTexts::setLanguage("fr", directory.path()));
        QCOMPARE(QCoreApplication::translate("MainWindow", "&Datei"), QString("&Datei"));
        QVERIFY(QtTexts::setLanguage("en", directory.path()));
        QCOMPARE(QCoreApplication::translate("MainWindow", "&Datei"), QString("&File"));
        QVERIFY(!QtTexts::setLanguage("de", directory.path()));
        QCOMPARE(QCoreApplication::translate("MainWindow", "&Datei"), QString("&Datei"));
    }

    void everyTextKeepsItsPlaces_data();
    void everyTextKeepsItsPlaces();

    /// docs/glossary.md: one thing has one word. The German texts of the editor's widgets are as
    /// they are; those of the workbench are looked at.
    void wordsAreThoseOfTheGlossary_data()
    {
        QTest::addColumn<QString>("catalogs");
        QTest::addColumn<bool>("sources");
        QTest::addColumn<QString>("forbidden");
        QTest::newRow("German") << "workbench/translations/velkworkbench_en.ts" << true
                                << "Zuordnungsdatei|entfallen|überprüfen|nicht zugeordnet|"
                                   "(?<!erneut )zugewiesen|(?<!erneut )zuweisen|nicht gefundene";
        const QString english = "\\bexpired?\\b|preferred range|\\banew\\b|\\bmakes? the\\b";
        QTest::newRow("English") << "translations/*_en.ts" << false << english;
        QTest::newRow("English of the workbench")
            << "workbench/translations/velkworkbench_en.ts" << false << english;
        QTest::newRow("Spanish") << "translations/*_es.ts" << false
                                 << "caducad|líneas? (?!%1, carácter)|mapeo de variables|"
                                    "asignaci(ón|ones) de variable";
        QTest::newRow("Polish") << "translations/*_pl.ts" << false
                                << "pocztą|modelarz|przypisani\\w+ zmienn";
        QTest::newRow("French") << "translations/*_fr.ts" << false
                                << "modeleur|du programme\\.|supprimée du programme|"
                                   "affectations? de variable";
        // Of the workbench; a line of a text is none of a table.
        QTest::newRow("Spanish of the workbench")
            << "workbench/translations/velkworkbench_es.ts" << false
            << "caducad|mapeo de variables|asignaci(ón|ones) de variable|"
               "(?<!por )(?<!sin )(?<!servidor, )línea(?!s ilegibles| de un script| de JavaScript)";
        QTest::newRow("Polish of the workbench")
            << "workbench/translations/velkworkbench_pl.ts" << false
            << "pocztą|modelarz|przypisani\\w+ zmienn";
        QTest::newRow("French of the workbench")
            << "workbench/translations/velkworkbench_fr.ts" << false
            << "modeleur|du programme\\.|supprimée du programme|affectations? de variable";
    }
    void wordsAreThoseOfTheGlossary()
    {
        QFETCH(QString, catalogs);
        QFETCH(bool, sources);
        QFETCH(QString, forbidden);
        const QRegularExpression wrong(forbidden,
                                       QRegularExpression::CaseInsensitiveOption |
                                           QRegularExpression::UseUnicodePropertiesOption);
        QVERIFY2(wrong.isValid(), qPrintable(wrong.errorString()));
        const QFileInfo pattern(QStringLiteral(VELK_SOURCE_DIR "/") + catalogs);
        const QFileInfoList files = pattern.dir().entryInfoList({pattern.fileName()});
        QVERIFY(!files.isEmpty());
        QStringList faults;
        for (const QFileInfo &file : files) {
            for (const QString &text : textsOf(file.filePath(), sources)) {
                if (wrong.match(QString(text).remove(u'&')).hasMatch())
                    faults += text;
            }
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }

    void textsAreFoundAtRunTime_data()
    {
        QTest::addColumn<QByteArray>("context");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("translation");
        QTest::newRow("class") << QByteArray("MainWindow") << QByteArray("&Datei") << "en"
                               << "&File";
        QTest::newRow("table") << QByteArray("WorkbenchActions") << QByteArray("&Aktualisieren")
                               << "en"
                               << "&Refresh";
        QTest::newRow("session") << QByteArray("StepSummary")
                                 << QByteArray("Zeile %1 → %2 bestätigt") << "en"
                                 << QString::fromUtf8("line %1 → %2 confirmed");
        QTest::newRow("French") << QByteArray("MainWindow") << QByteArray("&Datei") << "fr"
                                << "&Fichier";
        QTest::newRow("Japanese") << QByteArray("MainWindow") << QByteArray("&Datei") << "ja"
                                  << QString::fromUtf8("ファイル(&F)");
        QTest::newRow("traditional Chinese") << QByteArray("ConflictModel") << QByteArray("Zeile")
                                             << "zh_CHT" << QString::fromUtf8("列");
    }
    void textsAreFoundAtRunTime()
    {
        QFETCH(QByteArray, context);
        QFETCH(QByteArray, text);
        QFETCH(QString, language);
        PTranslateManager::registerModule("velkworkbench");
        PTranslateManager::instance().setLanguage(language);
        QTEST(QCoreApplication::translate(context.constData(), text.constData()), "translation");
        PTranslateManager::instance().setLanguage("de");
        QCOMPARE(QCoreApplication::translate(context.constData(), text.constData()),
                 QString::fromUtf8(text));
    }
    void countsBeforeWordsHaveForms();
    void numbersChooseTheForm_data();
    void numbersChooseTheForm();
};

void tst_WorkbenchTexts::everyTextKeepsItsPlaces_data()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = EditorLanguages::all();
    for (const QString &language : languages)
        QTest::newRow(qPrintable(language)) << language;
}

/// Of each text that has a translation, and of each of its plural forms.
void tst_WorkbenchTexts::everyTextKeepsItsPlaces()
{
    QFETCH(QString, language);
    const CatalogCheck::Faults faults = CatalogCheck::faultsOf(
        QStringLiteral(VELK_SOURCE_DIR "/workbench/translations/velkworkbench_%1.ts").arg(language),
        language);
    QVERIFY2(faults.list.isEmpty(), qPrintable(faults.list.join('\n')));
    QVERIFY(faults.texts > (language == "de" ? 50 : 900));
}

void tst_WorkbenchTexts::countsBeforeWordsHaveForms()
{
    QVERIFY(CatalogCheck::countsByHand("Offen: %1 Zeilen"));
    const QStringList sources = textsOf(
        QStringLiteral(VELK_SOURCE_DIR "/workbench/translations/velkworkbench_en.ts"), true);
    QVERIFY(sources.size() > 900);
    QStringList faults;
    for (const QString &source : sources) {
        if (CatalogCheck::countsByHand(source))
            faults += source;
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
}

void tst_WorkbenchTexts::numbersChooseTheForm_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *language, int number, const char *text) {
        QTest::addRow("%s, %d", language, number)
            << language << number << QString::fromUtf8(text).arg(number);
    };
    row("de", 1, "%1 Projekt");
    row("de", 2, "%1 Projekte");
    row("fr", 0, "%1 projet");
    row("fr", 2, "%1 projets");
    row("pl", 3, "%1 projekty");
    row("pl", 12, "%1 projektów");
    row("ru", 21, "%1 проект");
    row("sl", 2, "%1 projekta");
    row("sl", 4, "%1 projekti");
    row("sl", 5, "%1 projektov");
    row("tr", 5, "%1 proje");
    row("ko", 5, "프로젝트 %1개");
}

void tst_WorkbenchTexts::numbersChooseTheForm()
{
    QFETCH(QString, language);
    QFETCH(int, number);
    PTranslateManager::registerModule("velkworkbench");
    PTranslateManager::instance().setLanguage(language);
    QTEST(QCoreApplication::translate("PatternModel", "%Ln Projekt(e)", nullptr, number), "text");
    PTranslateManager::instance().setLanguage("de");
}

QTEST_MAIN(tst_WorkbenchTexts)
#include "tst_WorkbenchTexts.moc"

#include "../support/CatalogCheck.h"
#include "ViewTables.h"

#include <core/json/PJsonValue.h>
#include <core/message/PScriptedMessageSink.h>
#include <core/plugin/PTranslateManager.h>
#include <core/text/countText.h>
#include <core/text/PString.h>
#include <geomcore/binding/VarsetConditionC.h>
#include <geomcore/csv/TableDescriptor.h>
#include <geomcore/records/MappingFile.h>
#include <geomcoregui/table/VkTableView.h>

#include <TestPaths.h>

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>

#include <memory>

/// Each library speaks the user's language whether or not the plug-in is there.
class tst_LibraryTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(qEnvironmentVariableIsEmpty("TORMEVA_LANGUAGE"));
        view = std::make_unique<VkTableView>(); // its library is loaded
        PTranslateManager::registerLibraries();
    }
    void cleanup() { PTranslateManager::instance().setLanguage(QString()); }

    void eachLanguageHasACatalog_data()
    {
        QTest::addColumn<QString>("language");
        for (const char *language :
             {"cs", "da", "de", "en", "es", "fi", "fr", "hu", "id", "it",    "ja",
              "ko", "nb", "pl", "pt", "ru", "sl", "sv", "tr", "zh", "zh_CHT"})
            QTest::newRow(language) << language;
    }
    void eachLanguageHasACatalog()
    {
        QFETCH(QString, language);
        PTranslateManager::instance().setLanguage(language);
        QCOMPARE(PTranslateManager::instance().translatedModules(),
                 (QStringList{"VelkCore", "VelkGeomCore", "VelkGeomCoreGui", "VelkGui"}));
    }

    void textsAreTranslated_data()
    {
        QTest::addColumn<QString>("context");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("english");
        QTest::newRow("progress") << "VelkGui"
                                  << "Abbrechen"
                                  << "Cancel";
        QTest::newRow("table") << "VelkGeomCoreGui"
                               << "Kopieren"
                               << "Copy";
        QTest::newRow("files") << "VelkCore"
                               << "das ist ein Verzeichnis"
                               << "it is a directory";
        QTest::newRow("mapper") << "VelkGeomCore"
                                << "kein Wert"
                                << "no value";
    }
    void textsAreTranslated()
    {
        QFETCH(QString, context);
        QFETCH(QString, text);
        PTranslateManager::instance().setLanguage("en");
        QTEST(QString(PString::translate(text.toUtf8(), context.toUtf8())), "english");
        PTranslateManager::instance().setLanguage({});
        QCOMPARE(QString(PString::translate(text.toUtf8(), context.toUtf8())), text);
    }

    void catalogsKeepPlaces_data() { eachLanguageHasACatalog_data(); }
    void catalogsKeepPlaces()
    {
        QFETCH(QString, language);
        const QDir folder(VELK_SOURCE_DIR "/translations");
        const QStringList names = folder.entryList({"*_" + language + ".ts"});
        QStringList faults;
        for (const QString &name : names) {
            const CatalogCheck::Faults found =
                CatalogCheck::faultsOf(folder.filePath(name), language);
            QVERIFY2(found.texts > 5, qPrintable(name));
            for (const QString &fault : found.list)
                faults += name + ": " + fault;
        }
        QVERIFY(names.size() >= 5);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }

    void countsBeforeWordsHaveForms()
    {
        QVERIFY(CatalogCheck::countsByHand("1 Zelle statt %1"));
        const QDir folder(VELK_SOURCE_DIR "/translations");
        const QStringList names = folder.entryList({"*_en.ts"});
        QStringList faults;
        for (const QString &name : names) {
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            QXmlStreamReader xml(&file);
            while (xml.readNext() != QXmlStreamReader::EndDocument && !xml.hasError()) {
                if (!xml.isStartElement() || xml.name() != QLatin1String("source"))
                    continue;
                const QString source = xml.readElementText();
                if (CatalogCheck::countsByHand(source))
                    faults += source;
            }
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }

    void countsChooseTheForm_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QByteArray>("context");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *language, const char *context, const char *text, int count,
                            const char *expected) {
            QTest::addRow("%s, %d, %s", language, count, text)
                << language << QByteArray(context) << QByteArray(text) << count
                << QString::fromUtf8(expected);
        };
        const char *const lines = "%Ln Zeile(n)";
        const char *const rarer = "und %Ln seltenere(r) Wert(e)";
        row("", "VelkGeomCoreGui", lines, 1, "1 Zeile");
        row("", "VelkGeomCoreGui", lines, 0, "0 Zeilen");
        row("", "VelkGeomCoreGui", rarer, 1, "und 1 seltenerer Wert");
        row("", "VelkGeomCoreGui", rarer, 2, "und 2 seltenere Werte");
        row("de", "VelkGeomCoreGui", lines, 1, "1 Zeile");
        row("de", "VelkGeomCoreGui", lines, 1234, "1.234 Zeilen");
        row("en", "VelkGeomCoreGui", lines, 1, "1 line");
        row("en", "VelkGeomCoreGui", lines, 1234, "1,234 lines");
        row("fr", "VelkGeomCoreGui", lines, 0, "0 ligne");
        row("pl", "VelkGeomCoreGui", lines, 3, "3 wiersze");
        row("pl", "VelkGeomCoreGui", lines, 12, "12 wierszy");
        row("ru", "VelkGeomCoreGui", lines, 21, "21 строка");
        row("sl", "VelkGeomCoreGui", lines, 2, "2 vrstici");
        row("sl", "VelkGeomCoreGui", lines, 4, "4 vrstice");
        row("cs", "VelkGeomCoreGui", lines, 3, "3 řádky");
        row("tr", "VelkGeomCoreGui", lines, 5, "5 satır");
        const char *const likewise = "so in %Ln weiteren Zeile(n)";
        row("de", "VelkGeomCore", likewise, 1, "so in 1 weiteren Zeile");
        row("de", "VelkGeomCore", likewise, 12345, "so in 12.345 weiteren Zeilen");
        row("en", "VelkGeomCore", likewise, 1, "likewise in 1 other line");
        row("ru", "VelkGeomCore", likewise, 2, "так же в 2 других строках");
    }
    void countsChooseTheForm()
    {
        QFETCH(QString, language);
        QFETCH(QByteArray, context);
        QFETCH(QByteArray, text);
        QFETCH(int, count);
        PTranslateManager::instance().setLanguage(language);
        const QLocale before;
        QLocale::setDefault(QLocale(language));
        const QString shown = translateCount(text, context, count);
        QLocale::setDefault(before);
        QTEST(shown, "expected");
    }

    void faultsOfFormulas()
    {
        const auto sink = std::make_shared<PScriptedMessageSink>();
        const PMessageSinkScope scope(sink);
        const auto told = [&](const QString &language) {
            PTranslateManager::instance().setLanguage(language);
            sink->clear();
            const std::unique_ptr<VarsetConditionC> condition(VarsetConditionC::fromText("A .EQ."));
            return condition->usedVariables().isEmpty() ? sink->logged().value(0) : QString();
        };
        QCOMPARE(told("en"),
                 QString("A .EQ. contains errors! Character 7: Expected a value, found the end"));
        QCOMPARE(told("de"), QString("A .EQ. enthält Fehler! Zeichen 7: Erwartet wird ein Wert, "
                                     "gefunden wurde das Ende"));
    }

    /// Of files that people write by hand, and of the parser of JSON.
    void faultsOfFiles_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("language");
        QTest::newRow("source") << "t.json: Zeile 1, Spalte 10: ein Text wird erwartet"
                                << QString();
        QTest::newRow("English") << "t.json: row 1, column 10: expected a text"
                                 << "en";
        QTest::newRow("Slovenian") << "t.json: vrstica 1, stolpec 10: pričakovano je besedilo"
                                   << "sl";
    }
    void faultsOfFiles()
    {
        QFETCH(QString, language);
        PTranslateManager::instance().setLanguage(language);
        VKTab::TableErrorList errors;
        QVERIFY(!VKTab::TableDescriptor::fromJson("{\"name\": 5}", "t.json", errors));
        QTEST(errors.first().toString(), "text");
    }
    void faultsOfMappingFiles_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("german");
        QTest::addColumn<QString>("french");
        QTest::newRow("no object")
            << QByteArray("[]") << "Eine Mapping-Datei muss ein Objekt enthalten."
            << "Un fichier de mapping doit contenir un objet.";
        QTest::newRow("member") << QByteArray("{\"1\": {\"sourceDate\": 5}}")
                                << "\"1\": sourceDate muss ein Text sein"
                                << "\"1\": sourceDate doit être un texte";
        QTest::newRow("release")
            << QByteArray("{\"1\": {\"sourceDate\": \"1\"}}")
            << "\"1\": Der Katalogstand hat keinen Eintrag „targetDate“"
            << "\"1\": La version du catalogue n'a pas d'entrée « targetDate »";
        QTest::newRow("row")
            << QByteArray(R"({"1": {"sourceDate": "1", "targetDate": "2", "mappings": [{)"
                          R"("sourcePath": "a", "state": 0, "targets": [{"path": "b",)"
                          R"( "lines": [[4, 5, 1], [4, 5, 1]]}]}]}})")
            << "\"1\": mappings[0].targets[0].lines[1] nennt die Quellzeile 4 noch einmal"
            << "\"1\": mappings[0].targets[0].lines[1] nomme encore une fois la ligne source 4";
    }
    void faultsOfMappingFiles()
    {
        QFETCH(QByteArray, json);
        const auto fault = [&] {
            MappingFile file;
            QString error;
            return file.parse(json, QString(), &error) ? "none" : error.section(": ", 1);
        };
        PTranslateManager::instance().setLanguage("de");
        QTEST(fault(), "german");
        PTranslateManager::instance().setLanguage("fr");
        QTEST(fault(), "french");
    }
    void faultsOfJson_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("text");
        QTest::newRow("no comma") << QByteArray("[1 2]")
                                  << "Hinter einem Listenwert fehlt ein "
                                     "Komma oder ].";
        QTest::newRow("no value") << QByteArray("[tru]") << "Ein Wert fehlt.";
        QTest::newRow("no quote") << QByteArray("[\"a")
                                  << "Das schließende Anführungszeichen "
                                     "eines Textes fehlt.";
    }
    /// Both readers say the same.
    void faultsOfJson()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, text);
        QString error;
        PJsonValue value;
        QVERIFY(!value.parse(json, &error));
        QVERIFY2(error.startsWith("Zeile 1, Spalte ") && error.endsWith(": " + text),
                 qPrintable(error));
        VKTab::TableErrorList errors;
        QVERIFY(!VKTab::TableDescriptor::fromJson(json, "t.json", errors));
        QVERIFY2(errors.first().text == "kein gültiges JSON: " + text,
                 qPrintable(errors.first().text));
    }

    // What is shown already changes with the language.
    void shownBarsAreTranslatedAnew()
    {
        PTranslateManager::instance().setLanguage("en");
        view->setTable(ViewTables::large(2));
        view->show();
        view->showFilterBar(true);
        const auto *const filter = view->findChild<QLineEdit *>("filter_B");
        QVERIFY(filter);
        const auto texts = [&] {
            QStringList result{filter->accessibleName(), filter->toolTip()};
            for (const QToolButton *button : view->findChildren<QToolButton *>())
                result.append(button->toolTip());
            for (const QLineEdit *edit : view->findChildren<QLineEdit *>())
                result.append(edit->placeholderText());
            return result;
        };
        QTRY_VERIFY(texts().contains("Next match (F3)"));
        const QStringList english = texts();
        PTranslateManager::instance().setLanguage("de");
        QTRY_VERIFY(texts().contains("Nächste Fundstelle (F3)"));
        const QStringList german = texts();
        QVERIFY(german.contains("In der Tabelle suchen"));
        QVERIFY(german.contains("Alle Spaltenfilter aufheben"));
        QVERIFY(german.contains("Spaltenfilter B"));
        for (qsizetype i = 0; i < german.size(); ++i)
            QVERIFY2(german.at(i) != english.at(i) || german.at(i).isEmpty() ||
                         german.at(i) == "Filter",
                     qPrintable(german.at(i)));
    }

private:
    std::unique_ptr<VkTableView> view;
};

QTEST_MAIN(tst_LibraryTexts)
#include "tst_LibraryTexts.moc"

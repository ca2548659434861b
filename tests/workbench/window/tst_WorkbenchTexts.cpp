#include <core/plugin/PTranslateManager.h>

#include <TestPaths.h>
#include <workbench/window/QtTexts.h>

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

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
        QVERIFY(!QtTexts::setLanguage("fr", directory.path()));
        QCOMPARE(QCoreApplication::translate("MainWindow", "&Datei"), QString("&Datei"));
        QVERIFY(QtTexts::setLanguage("en", directory.path()));
        QCOMPARE(QCoreApplication::translate("MainWindow", "&Datei"), QString("&File"));
        QVERIFY(!QtTexts::setLanguage("de", directory.path()));
        QCOMPARE(QCoreApplication::translate("MainWindow", "&Datei"), QString("&Datei"));
    }

    void everyTextKeepsItsPlaces()
    {
        QFile file(QStringLiteral(VELK_SOURCE_DIR "/workbench/translations/velkworkbench_en.ts"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QXmlStreamReader xml(&file);
        QString source;
        int texts = 0;
        while (!xml.atEnd()) {
            xml.readNext();
            if (!xml.isStartElement())
                continue;
            if (xml.name() == QLatin1String("source"))
                source = xml.readElementText();
            if (xml.name() != QLatin1String("translation"))
                continue;
            const QString translation = xml.readElementText(QXmlStreamReader::IncludeChildElements);
            ++texts;
            for (int i = 1; i < 10; ++i) {
                const QString place = "%" + QString::number(i);
                QVERIFY2(source.contains(place) == translation.contains(place), qPrintable(source));
            }
            QVERIFY2(source.endsWith("...") == translation.endsWith("..."), qPrintable(source));
        }
        QVERIFY(texts > 250);
    }

    void textsAreFoundAtRunTime_data()
    {
        QTest::addColumn<QByteArray>("context");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("english");
        QTest::newRow("class") << QByteArray("MainWindow") << QByteArray("&Datei") << "&File";
        QTest::newRow("table") << QByteArray("WorkbenchActions") << QByteArray("&Aktualisieren")
                               << "&Refresh";
        QTest::newRow("session") << QByteArray("StepSummary")
                                 << QByteArray("Zeile %1 → %2 bestätigt")
                                 << QString::fromUtf8("line %1 → %2 confirmed");
    }
    void textsAreFoundAtRunTime()
    {
        QFETCH(QByteArray, context);
        QFETCH(QByteArray, text);
        PTranslateManager::registerModule("velkworkbench");
        PTranslateManager::instance().setLanguage("en");
        QTEST(QCoreApplication::translate(context.constData(), text.constData()), "english");
        PTranslateManager::instance().setLanguage("de");
        QCOMPARE(QCoreApplication::translate(context.constData(), text.constData()),
                 QString::fromUtf8(text));
    }
};

QTEST_MAIN(tst_WorkbenchTexts)
#include "tst_WorkbenchTexts.moc"

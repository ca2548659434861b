#include <TestPaths.h>
#include <workbench/start/EditorLanguages.h>

#include <QFile>
#include <QTest>

class tst_EditorLanguages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstOn_data()
    {
        QTest::addColumn<QLocale>("desktop");
        QTest::addColumn<QString>("language");
        QTest::newRow("German of Austria") << QLocale("de_AT") << "de";
        QTest::newRow("English") << QLocale("en_US") << "en";
        QTest::newRow("one without a catalog") << QLocale("fr_FR") << "en";
        QTest::newRow("none") << QLocale::c() << "en";
    }
    void firstOn()
    {
        QFETCH(QLocale, desktop);
        QTEST(EditorLanguages::firstOn(desktop), "language");
    }

    void allHaveACatalog()
    {
        const QStringList all = EditorLanguages::all();
        QCOMPARE(all.first(), QStringLiteral("de")); // of the sources
        for (const QString &language : all.mid(1))
            QVERIFY2(QFile::exists(QStringLiteral(VELK_SOURCE_DIR
                                                  "/workbench/translations/velkworkbench_%1.ts")
                                       .arg(language)),
                     qPrintable(language));
        QVERIFY(all.contains("en"));
    }

    void areCalledByTheirOwnNames()
    {
        QCOMPARE(EditorLanguages::nameOf("de"), QStringLiteral("Deutsch"));
        QCOMPARE(EditorLanguages::nameOf("en"), QStringLiteral("English"));
    }
};

QTEST_GUILESS_MAIN(tst_EditorLanguages)
#include "tst_EditorLanguages.moc"

#include <TestPaths.h>
#include <workbench/start/EditorLanguages.h>

#include <QFile>
#include <QSet>
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
        QTest::newRow("French of Canada") << QLocale("fr_CA") << "fr";
        QTest::newRow("Norwegian") << QLocale("nb_NO") << "nb";
        QTest::newRow("the other Norwegian") << QLocale("nn_NO") << "nb";
        QTest::newRow("Chinese") << QLocale("zh_CN") << "zh";
        QTest::newRow("Chinese of Taiwan") << QLocale("zh_TW") << "zh_CHT";
        QTest::newRow("Chinese of Hong Kong") << QLocale("zh_HK") << "zh_CHT";
        QTest::newRow("one without a catalog") << QLocale("el_GR") << "en";
        QTest::newRow("none") << QLocale::c() << "en";
    }
    void firstOn()
    {
        QFETCH(QLocale, desktop);
        QTEST(EditorLanguages::firstOn(desktop), "language");
    }

    void localeIsTheDesktopsIfItFits_data()
    {
        QTest::addColumn<QLocale>("desktop");
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("locale");
        QTest::newRow("German of Austria") << QLocale("de_AT") << "de"
                                           << "de-AT";
        QTest::newRow("another language") << QLocale("en_US") << "de"
                                          << "de";
        QTest::newRow("English of Britain") << QLocale("en_GB") << "en"
                                            << "en-GB";
        QTest::newRow("other signs") << QLocale("zh_CN") << "zh_CHT"
                                     << "zh-TW";
        QTest::newRow("none") << QLocale::c() << "fr"
                              << "fr";
    }
    void localeIsTheDesktopsIfItFits()
    {
        QFETCH(QLocale, desktop);
        QFETCH(QString, language);
        QTEST(EditorLanguages::localeOn(desktop, language).bcp47Name(), "locale");
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
        QCOMPARE(all.size(), 21);
        QCOMPARE(QSet<QString>(all.cbegin(), all.cend()).size(), 21);
    }

    void areCalledByTheirOwnNames()
    {
        QCOMPARE(EditorLanguages::nameOf("de"), QStringLiteral("Deutsch"));
        QCOMPARE(EditorLanguages::nameOf("en"), QStringLiteral("English"));
        QCOMPARE(EditorLanguages::nameOf("fr"), QString::fromUtf8("français"));
        QCOMPARE(EditorLanguages::nameOf("es"), QString::fromUtf8("español"));
        QCOMPARE(EditorLanguages::nameOf("pt"), QString::fromUtf8("português"));
        QSet<QString> names;
        for (const QString &language : EditorLanguages::all())
            names << EditorLanguages::nameOf(language);
        QCOMPARE(names.size(), EditorLanguages::all().size());
        QVERIFY(!names.contains(QString()));
    }

    void haveALocale()
    {
        QCOMPARE(EditorLanguages::localeOf("pt").bcp47Name(), QStringLiteral("pt-PT"));
        QCOMPARE(EditorLanguages::localeOf("zh_CHT").script(), QLocale::TraditionalHanScript);
        for (const QString &language : EditorLanguages::all())
            QVERIFY2(EditorLanguages::localeOf(language).language() != QLocale::C,
                     qPrintable(language));
    }
};

QTEST_GUILESS_MAIN(tst_EditorLanguages)
#include "tst_EditorLanguages.moc"

#include "../support/TestTables.h"

#include <geomcore/value/LangThreadSettings.h>

#include <QTest>

#include <thread>

using namespace VKTab;

class tst_LangThreadSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void translatesIntoTheCommonLanguage();
    void withoutLanguageNothingIsTranslated();
    void endsWithItsScope();
    void guardsNest();
    void actsOnItsThreadOnly();
    void aThreadMayHaveALanguageOfItsOwn();
    void unknownTextsStay();
    void numbersAreNotTranslated();

private:
    [[nodiscard]] QString note() const
    {
        return m_table.getLine(1, false).getValue(m_table.getVar(u"Note"), {}, {}).toString();
    }
    ContentRef m_table = TestTables::screws();
};

void tst_LangThreadSettings::init()
{
    LangThreadSettings::setCommonLanguage("en");
}

void tst_LangThreadSettings::cleanup()
{
    LangThreadSettings::setCommonLanguage("");
}

void tst_LangThreadSettings::translatesIntoTheCommonLanguage()
{
    QCOMPARE(note(), "plain");
    QCOMPARE(m_table.getLine(1, false)
                 .getValue(m_table.getVar(u"Note"), FormatUntranslated, {})
                 .toString(),
             "blank");
    QCOMPARE(m_table.translateText("Durchmesser", m_table.getVar(u"Dia").getVarId()), "Diameter");
    QCOMPARE(m_table.translateText("Durchmesser", VarId()), "Diameter");
}

void tst_LangThreadSettings::withoutLanguageNothingIsTranslated()
{
    LangThreadSettings::setCommonLanguage("");
    QCOMPARE(note(), "blank");
    LangThreadSettings::setCommonLanguage("fr");
    QCOMPARE(note(), "blank");
}

void tst_LangThreadSettings::endsWithItsScope()
{
    {
        LangThreadSettings settings;
        QCOMPARE(note(), "plain");
        settings.disableTranslation(true);
        QCOMPARE(note(), "blank");
        QCOMPARE(m_table.translateText("Durchmesser", VarId()), "Durchmesser");
        QVERIFY(LangThreadSettings::isTranslationDisabled());
        settings.disableTranslation(false);
        QCOMPARE(note(), "plain");
        settings.disableTranslation(true);
    }
    QVERIFY(!LangThreadSettings::isTranslationDisabled());
    QCOMPARE(note(), "plain");
}

void tst_LangThreadSettings::guardsNest()
{
    LangThreadSettings outer;
    outer.disableTranslation(true);
    {
        LangThreadSettings inner;
        QCOMPARE(note(), "blank");
        inner.disableTranslation(false);
        QCOMPARE(note(), "plain");
    }
    QCOMPARE(note(), "blank");
}

void tst_LangThreadSettings::actsOnItsThreadOnly()
{
    LangThreadSettings settings;
    settings.disableTranslation(true);
    QString other;
    std::thread([&] { other = note(); }).join();
    QCOMPARE(other, "plain");
    QCOMPARE(note(), "blank");
}

void tst_LangThreadSettings::aThreadMayHaveALanguageOfItsOwn()
{
    {
        LangThreadSettings settings;
        settings.setLanguage("");
        QCOMPARE(note(), "blank");
        settings.setLanguage("en");
        QCOMPARE(LangThreadSettings::language(), "en");
    }
    QCOMPARE(note(), "plain");
}

void tst_LangThreadSettings::unknownTextsStay()
{
    QCOMPARE(m_table.translateText("galvanised", VarId()), "galvanised");
    QCOMPARE(m_table.translateText("", VarId()), "");
}

void tst_LangThreadSettings::numbersAreNotTranslated()
{
    TableDescriptor descriptor = TestTables::screwDescriptor();
    descriptor.translations["en"].insert("8", "eight");
    const ContentRef table = TestTables::table(descriptor, TestTables::screwLines());
    QCOMPARE(table.getLine(1, false).getValue(table.getVar(u"Dia"), {}, {}).toString(), "8");
}

QTEST_GUILESS_MAIN(tst_LangThreadSettings)
#include "tst_LangThreadSettings.moc"

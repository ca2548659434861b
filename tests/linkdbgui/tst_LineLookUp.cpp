#include "EditorFixture.h"

#include <mapping/table/LineLookUp.h>

#include <QTest>

using PRJMAPPING::Mapped;
using PRJMAPPING::Verified;

class tst_LineLookUp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_catalogs.reset(); }

    void storedLine();
    void proposalFromAnyTarget();
    void nothingToFind();
    void withoutRelease();
    void withoutSourcePath();
    void otherMappingsOfTheReleaseDoNotCount();
    void valuesGiven();
    void varsetBecomesTheTargets();
    void varsetOfALineWithoutTarget();
    void check();
    void bothFormsAgree();

private:
    [[nodiscard]] LineLookUp lookUp() const
    {
        return LineLookUp(m_catalog->read("old/a.prj"), m_mapping, m_release);
    }

    std::unique_ptr<TestCatalog> m_catalog;
    std::unique_ptr<LocalCatalogs> m_catalogs;
    PrjMappingC m_mapping;
    CatalogMappingC m_release;
};

void tst_LineLookUp::init()
{
    m_catalog = std::make_unique<TestCatalog>();
    m_catalogs = std::make_unique<LocalCatalogs>(m_catalog->root());
    m_catalog->write("old/a.prj", "D,k:n\nM8,5\nM9,6\nZZ,4711\n");
    m_catalog->write("new/a.prj", "D,Size:n\nM1,1\nM8,5\n");
    m_catalog->write("new/b.prj", "D,k:n\nM7,4\nM9,6\n");
    m_mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"});
    addRename(m_mapping, 0, "k", "Size");
    m_release = catalogOf(m_mapping);
}

void tst_LineLookUp::storedLine()
{
    enter(m_mapping, 0, 1, 1, Verified);
    const PrjMapperLineC line = lookUp().find(1, {});
    QVERIFY(line.isValid() && line.isFound());
    QCOMPARE(line.getTargetIndex(), 0);
    QCOMPARE(line.getTargetLineId(), 1); // as stored, though line 2 has the values
    QCOMPARE(line.getCheckState(), Verified);
    QCOMPARE(entriesOf(line.getHistory().last().second), QString("0:1>1/2"));
}

void tst_LineLookUp::proposalFromAnyTarget()
{
    const PrjMapperLineC first = lookUp().find(1, {});
    QCOMPARE(first.getTargetIndex(), 0);
    QCOMPARE(first.getTargetLineId(), 2);
    const PrjMapperLineC second = lookUp().find(2, {});
    QCOMPARE(second.getTargetIndex(), 1);
    QCOMPARE(second.getTargetLineId(), 2);
}

void tst_LineLookUp::nothingToFind()
{
    const PrjMapperLineC line = lookUp().find(3, {});
    QVERIFY(line.isValid() && !line.isFound());
    QVERIFY(line.getHistory().isEmpty());
}

void tst_LineLookUp::withoutRelease()
{
    m_release = CatalogMappingC();
    LineLookUp::Varset varset;
    PrjMapperCheckResultC check(true, "a", "b", {}, {}, {});
    QVERIFY(!lookUp().find(1, {}).isValid());
    QVERIFY(!lookUp().find(1, varset, &check).isValid());
    QVERIFY(varset.isEmpty());
    QVERIFY(check.isOK()); // not asked
}

void tst_LineLookUp::withoutSourcePath()
{
    m_mapping.setSourcePath(QString());
    LineLookUp::Varset varset;
    PrjMapperCheckResultC check(true, QString(), QString(), {}, {}, {});
    const bool isKnown = lookUp().find(1, {}).isValid();
    QCOMPARE(lookUp().find(1, varset, &check).isValid(), isKnown);
    QVERIFY(!isKnown);
    QVERIFY(!check.isOK());
}

void tst_LineLookUp::otherMappingsOfTheReleaseDoNotCount()
{
    // The editor's mapping is newer than the release's.
    enter(m_mapping, 1, 1, 1, Verified);
    QCOMPARE(lookUp().find(1, {}).getTargetIndex(), 1);
}

void tst_LineLookUp::valuesGiven()
{
    addCondition(m_mapping, 0, "k .LT. 5");
    addCondition(m_mapping, 1, "k .GT. 5");
    for (const int target : {0, 1})
        enter(m_mapping, target, 1, 1, Mapped);
    MapVarValueC value;
    value.setName("k");
    value.setNumeric(true);
    value.setValue(VKTab::Value("3"));
    QCOMPARE(lookUp().find(1, {{"k", value}}).getTargetIndex(), 0);
    value.setValue(VKTab::Value("9"));
    QCOMPARE(lookUp().find(1, {{"k", value}}).getTargetIndex(), 1);
    LineLookUp::Varset varset{{"k", value}};
    QCOMPARE(lookUp().find(1, varset, nullptr).getTargetIndex(), 1);
}

void tst_LineLookUp::varsetBecomesTheTargets()
{
    LineLookUp::Varset varset;
    QVERIFY(lookUp().find(1, varset, nullptr).isFound());
    QStringList names = varset.keys();
    names.sort();
    QCOMPARE(names, QStringList({"D", "Size"})); // only what the target table has
    QCOMPARE(varset.value("Size").getValue().toString(), QString("5"));
}

void tst_LineLookUp::varsetOfALineWithoutTarget()
{
    LineLookUp::Varset varset;
    QVERIFY(!lookUp().find(3, varset, nullptr).isFound());
    QStringList names = varset.keys();
    names.sort();
    QCOMPARE(names, QStringList({"D", "k"}));
}

void tst_LineLookUp::check()
{
    enter(m_mapping, 0, 1, 1, Mapped);
    LineLookUp::Varset varset;
    PrjMapperCheckResultC check(true, QString(), QString(), {}, {}, {});
    QVERIFY(lookUp().find(1, varset, &check).isFound());
    QVERIFY(!check.isOK());
    QVERIFY(!check.getErrMsgList().isEmpty());
    enter(m_mapping, 0, 1, 2, Mapped);
    varset.clear();
    QVERIFY(lookUp().find(1, varset, &check).isFound());
    QVERIFY2(check.isOK(), qPrintable(check.getErrMsgList().join('|')));
}

void tst_LineLookUp::bothFormsAgree()
{
    enter(m_mapping, 1, 2, 1, Mapped);
    for (const int number : {1, 2, 3, 99}) {
        LineLookUp::Varset varset;
        const PrjMapperLineC full = lookUp().find(number, varset, nullptr);
        const PrjMapperLineC quick = lookUp().find(number, {});
        QCOMPARE(quick.isValid(), full.isValid());
        QCOMPARE(quick.isFound(), full.isFound());
        QCOMPARE(quick.getTargetIndex(), full.getTargetIndex());
        QCOMPARE(quick.getTargetLineId(), full.getTargetLineId());
        QCOMPARE(quick.getCheckState(), full.getCheckState());
    }
}

QTEST_MAIN(tst_LineLookUp)
#include "tst_LineLookUp.moc"

#include "RecordSamples.h"

#include <core/files/ContentHash.h>
#include <core/json/PJsonValue.h>
#include <geomcore/records/CatalogMappingC.h>
#include <geomcore/records/MappingChange.h>
#include <geomcore/records/ReleaseDigest.h>

#include <QBuffer>
#include <QTest>

using RecordSamples::mapping;

namespace {

QByteArray jsonOf(const ReleaseMappingC &release, bool headsOnly = false)
{
    PJsonValue value;
    release.toJson(value, headsOnly);
    return value.toByteArray(false);
}

QStringList keysOf(const ReleaseMappingC &release)
{
    QStringList keys;
    for (const PrjMappingC &entry : release.getMappingList())
        keys +=
            entry.getSourcePath() + '|' + entry.getSourceVersion() + '|' + entry.getTabVersion();
    return keys;
}

PrjMappingC withState(const QString &path, int state)
{
    PrjMappingC result = mapping(path);
    result.setMappingState(PRJMAPPING::MappingState::fromInt(state));
    return result;
}

} // namespace

class tst_ReleaseMappingC : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emptyRelease()
    {
        const ReleaseMappingC release;
        QVERIFY(release.getSourceDate().isEmpty());
        QVERIFY(release.getMappingList().isEmpty());
        QVERIFY(!release.findMapping("a", "", "").isValid());
        QVERIFY(!release.mappingAt(0).isValid());
        QVERIFY(!release.mappingAt(-1).isValid());
        QCOMPARE(release.getMappingState().toInt(), 0);
    }

    // What is noted is what stands in the file, of nothing but the release as it was.
    void digestIsOfWhatWasWritten()
    {
        QRandomGenerator random(7);
        const ReleaseMappingC release = RecordSamples::randomRelease(random, "2022");
        const auto bytes = [](const ReleaseMappingC &of) {
            PJsonValue document(PJsonValue::Object);
            document["2021"] = PJsonValue::fromInt(1);
            of.toJson(document["2022"], false);
            QBuffer device;
            return device.open(QIODevice::WriteOnly) && document.writeTo(device, false)
                       ? device.data()
                       : QByteArray();
        };
        const QByteArray plain = bytes(release);
        const auto digest = release.noteDigest();
        QVERIFY(!digest->text());
        (void)jsonOf(release);
        (void)jsonOf(release, true);
        ReleaseMappingC changed = release;
        changed.setTargetDate("2030");
        QVERIFY(bytes(changed) != plain);
        QVERIFY(!digest->text());

        const ReleaseMappingC copy = release;
        QCOMPARE(bytes(copy), plain);
        QVERIFY(digest->text().has_value());
        const qsizetype from = plain.indexOf("{\n  \"sourceDate\"");
        const QByteArray text = plain.sliced(from, plain.size() - from - 3);
        QCOMPARE(digest->text()->size, qint64(text.size()));
        QCOMPARE(digest->text()->hash, ContentHash::of(text));
    }

    void digestKeepsTheReleaseAsItWas()
    {
        QRandomGenerator random(7);
        ReleaseMappingC release = RecordSamples::randomRelease(random, "2022");
        const auto digest = release.noteDigest();
        release.setTargetDate("2030"); // nobody else has it
        PJsonValue document(PJsonValue::Object);
        release.toJson(document["2022"], false);
        QBuffer device;
        QVERIFY(device.open(QIODevice::WriteOnly) && document.writeTo(device, false));
        QVERIFY(!digest->text());
    }

    /// 600 of them, of which one is replaced.
    void sharedMappings()
    {
        ReleaseMappingC release;
        PrjMappingC mapping;
        for (int i = 0; i < 600; ++i) {
            mapping.setSourcePath(QString::number(i));
            release.appendMapping(mapping);
        }
        ReleaseMappingC copy = release;
        mapping.setSourcePath("300");
        copy.addMapping(mapping);
        QVERIFY(release.sharesMapping(copy, 0));
        QVERIFY(!release.sharesMapping(copy, 300));
        QVERIFY(release.sharesMapping(copy, 599));
        copy.clearMappings();
        copy.appendMapping(release.mappingAt(0));
        QVERIFY(!release.sharesMapping(copy, 0));
    }

    void findMapping_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("version");
        QTest::addColumn<QString>("tabVersion");
        QTest::addColumn<int>("position");
        QTest::newRow("exact") << "a"
                               << "v1"
                               << "t1" << 0;
        QTest::newRow("other table version") << "a"
                                             << "v1"
                                             << "t2" << 2;
        QTest::newRow("empty table version gives the first") << "a"
                                                             << "v1"
                                                             << "" << 0;
        QTest::newRow("other version") << "a"
                                       << "v2"
                                       << "" << 3;
        QTest::newRow("stored empty table version") << "c"
                                                    << "v1"
                                                    << "" << 4;
        QTest::newRow("stored empty table version matches no other") << "c"
                                                                     << "v1"
                                                                     << "t1" << -1;
        QTest::newRow("empty version is no wildcard") << "a"
                                                      << ""
                                                      << "" << -1;
        QTest::newRow("unknown path") << "x"
                                      << "v1"
                                      << "" << -1;
        QTest::newRow("case counts") << "A"
                                     << "v1"
                                     << "" << -1;
    }
    void findMapping()
    {
        QFETCH(QString, path);
        QFETCH(QString, version);
        QFETCH(QString, tabVersion);
        QFETCH(int, position);
        ReleaseMappingC release;
        release.addMapping(mapping("a", "v1", "t1"));
        release.addMapping(mapping("b", "v1", "t1"));
        release.addMapping(mapping("a", "v1", "t2"));
        release.addMapping(mapping("a", "v2", "t1"));
        release.addMapping(mapping("c", "v1", ""));
        QCOMPARE(release.countMappings(), 5);
        const PrjMappingC found = release.findMapping(path, version, tabVersion);
        QCOMPARE(found.isValid(), position >= 0);
        if (position >= 0) {
            const QString key = found.getSourcePath() + '|' + found.getSourceVersion() + '|' +
                                found.getTabVersion();
            QCOMPARE(key, keysOf(release).at(position));
        }
    }

    void findPositions()
    {
        ReleaseMappingC release;
        QCOMPARE(release.findPositions("a"), QList<int>());
        release.addMapping(mapping("a", "v1", "t1"));
        release.addMapping(mapping("b", "v1", "t1"));
        release.addMapping(mapping("a", "v1", "t2"));
        release.addMapping(mapping("a", "v2", "t1"));
        QCOMPARE(release.findPositions("a"), (QList<int>{0, 2, 3}));
        QCOMPARE(release.findPositions("b"), QList<int>{1});
        QCOMPARE(release.findPositions("A"), QList<int>());
    }

    void addMappingReplacesWhatFindMappingGives_data()
    {
        QTest::addColumn<QString>("version");
        QTest::addColumn<QString>("tabVersion");
        QTest::addColumn<QStringList>("keys");
        QTest::newRow("same key") << "v1"
                                  << "t1" << QStringList{"a|v1|t1", "a|v1|t2"};
        QTest::newRow("same key, second") << "v1"
                                          << "t2" << QStringList{"a|v1|t1", "a|v1|t2"};
        QTest::newRow("empty table version replaces the first")
            << "v1"
            << "" << QStringList{"a|v1|", "a|v1|t2"};
        QTest::newRow("new table version") << "v1"
                                           << "t3" << QStringList{"a|v1|t1", "a|v1|t2", "a|v1|t3"};
        QTest::newRow("new version") << "v2"
                                     << "t1" << QStringList{"a|v1|t1", "a|v1|t2", "a|v2|t1"};
    }
    void addMappingReplacesWhatFindMappingGives()
    {
        QFETCH(QString, version);
        QFETCH(QString, tabVersion);
        QFETCH(QStringList, keys);
        ReleaseMappingC release;
        release.addMapping(mapping("a", "v1", "t1"));
        release.addMapping(mapping("a", "v1", "t2"));
        PrjMappingC added = mapping("a", version, tabVersion);
        added.addTarget("new", "");
        release.addMapping(added);
        QCOMPARE(keysOf(release), keys);
        const PrjMappingC found = release.findMapping("a", version, tabVersion);
        QCOMPARE(found.getTabVersion(), tabVersion);
        QCOMPARE(found.countTargets(), 1);
    }

    void equalPathAndVersionStand()
    {
        ReleaseMappingC release;
        release.addMapping(mapping("a", "v1", "t1"));
        release.addMapping(mapping("a", "v1", "t2"));
        QCOMPARE(release.countMappings(), 2);
        QCOMPARE(release.findMapping("a", "v1", "").getTabVersion(), QString("t1"));
    }

    void manyMappings()
    {
        constexpr int Count = 2000;
        ReleaseMappingC release;
        for (int i = 0; i < Count; ++i)
            release.addMapping(mapping("cat/" + QString::number(i % 700)));
        QCOMPARE(release.countMappings(), 700);
        ReleaseMappingC copy = release;
        for (int i = 0; i < 700; i += 7)
            copy.addMapping(mapping("cat/" + QString::number(i), "v220101000000", ""));
        copy.addMapping(mapping("new"));
        QCOMPARE(copy.countMappings(), 701);
        QCOMPARE(release.countMappings(), 700);
        QVERIFY(!release.findMapping("new", "v220101000000", "").isValid());
        QVERIFY(copy.findMapping("new", "v220101000000", "").isValid());
        for (int i = 0; i < 700; ++i) {
            const QString path = "cat/" + QString::number(i);
            QCOMPARE(release.mappingAt(i).getSourcePath(), path);
            QCOMPARE(release.findMapping(path, "v220101000000", "").getTabVersion().isEmpty(),
                     false);
            QCOMPARE(copy.findMapping(path, "v220101000000", "").getTabVersion().isEmpty(),
                     i % 7 == 0);
        }
        QCOMPARE(release.getMappingList().size(), 700);
        QCOMPARE(release.getMappingList().at(699).getSourcePath(), QString("cat/699"));
    }

    void storedMappingIsNoAlias()
    {
        ReleaseMappingC release;
        PrjMappingC given = mapping("a");
        release.addMapping(given);
        given.addTarget("t", "");
        PrjMappingC got = release.findMapping("a", given.getSourceVersion(), "");
        QCOMPARE(got.countTargets(), 0);
        got.addTarget("t", "");
        QCOMPARE(release.mappingAt(0).countTargets(), 0);
    }

    void state_data()
    {
        QTest::addColumn<QList<int>>("states");
        QTest::addColumn<int>("rolledUp");
        QTest::newRow("none") << QList<int>{} << 0;
        QTest::newRow("usable is never rolled up") << QList<int>{0x001} << 0;
        QTest::newRow("one") << QList<int>{0x282} << 0x282;
        QTest::newRow("all bits of several")
            << QList<int>{0x002, 0x080, 0x101, 0x200, 0x400, 0x800} << 0xF82;
        QTest::newRow("bits without a name are not rolled up") << QList<int>{0x7FFFF07C} << 0;
    }
    void state()
    {
        QFETCH(QList<int>, states);
        QFETCH(int, rolledUp);
        ReleaseMappingC release;
        for (int i = 0; i < states.size(); ++i)
            release.addMapping(withState(QString::number(i + 1), states[i]));
        QCOMPARE(release.getMappingState().toInt(), rolledUp);
        // Replacing takes the old state away.
        for (int i = 0; i < states.size(); ++i)
            release.addMapping(withState(QString::number(i + 1), 0));
        QCOMPARE(release.getMappingState().toInt(), 0);
    }

    void layout()
    {
        ReleaseMappingC release;
        release.setSourceDate("2022-01-31");
        release.setTargetDate("2026-01-31");
        PrjMappingC project = mapping("cat/a.prj", "v220131000000", "v220130000000");
        PrjMappingTargetC target = RecordSamples::target("cat/b.prj");
        target.setTargetVersion("v260131000000");
        target.setTabVersion("v260130000000");
        target.addCondition(VarsetConditionC::fromText("D .EQ. 4"));
        target.addCondition(VarsetConditionC::fromText("T .EQ. 'x'"));
        target.addModifier(new VarsetVarMappingC("A", "B"));
        target.addModifier(VarsetValueMappingC::fromText("C = 2 * A"));
        target.addLineId(30, 3, PRJMAPPING::Mapped, "");
        target.addLineId(4, 17, PRJMAPPING::Verified, "{D=4} -> 17\n{D=5} -> 18");
        target.addLineId(5, -1, PRJMAPPING::ToCheck, "");
        target.addLineId(6, 8, PRJMAPPING::ToCheck, "{D=4} -> 8");
        target.setLineConflicted(5, true);
        target.setLineConflicted(6, true);
        project.addTarget(target);
        project.addTarget("", "");
        release.addMapping(project);
        const QByteArray expected = R"({
 "sourceDate": "2022-01-31",
 "targetDate": "2026-01-31",
 "mappings": [
  {
   "sourcePath": "cat/a.prj",
   "sourceVersion": "v220131000000",
   "tabVersion": "v220130000000",
   "state": 898,
   "targets": [
    {
     "path": "cat/b.prj",
     "version": "v260131000000",
     "tabVersion": "v260130000000",
     "valid": true,
     "conditions": ["D .EQ. 4","T .EQ. 'x'"],
     "modifiers": [
      {
       "kind": "var",
       "source": "A",
       "target": "B"
      },
      {
       "kind": "value",
       "formula": "C = 2 * A"
      }
     ],
     "lines": [
      [4,17,2,"{D=4} -> 17\n{D=5} -> 18"],
      [5,-1,0,"",true],
      [6,8,0,"{D=4} -> 8",true],
      [30,3,1]
     ]
    },
    {
     "path": "",
     "version": "",
     "tabVersion": "",
     "valid": true,
     "conditions": [],
     "modifiers": [],
     "lines": []
    }
   ]
  }
 ]
}
)";
        QCOMPARE(jsonOf(release), expected);
        QCOMPARE(jsonOf(release, true), QByteArray("{\n \"sourceDate\": \"2022-01-31\",\n"
                                                   " \"targetDate\": \"2026-01-31\"\n}\n"));
    }

    void writeReadWriteGivesTheSameBytes_data()
    {
        QTest::addColumn<int>("seed");
        for (int seed = 0; seed < 40; ++seed)
            QTest::addRow("%d", seed) << seed;
    }
    void writeReadWriteGivesTheSameBytes()
    {
        QFETCH(int, seed);
        QRandomGenerator random{quint32(seed)};
        const ReleaseMappingC release = RecordSamples::randomRelease(random, "2022");
        const QByteArray bytes = jsonOf(release);
        QCOMPARE(jsonOf(release), bytes);

        PJsonValue document;
        QString error;
        QVERIFY2(document.parse(bytes, &error), qPrintable(error));
        ReleaseMappingC read;
        QVERIFY2(read.fromJson(document, &error), qPrintable(error));
        QCOMPARE(jsonOf(read), bytes);
        QCOMPARE(read.getMappingState(), release.getMappingState());

        PJsonValue direct;
        release.toJson(direct, false);
        ReleaseMappingC again;
        QVERIFY2(again.fromJson(direct, &error), qPrintable(error));
        QCOMPARE(jsonOf(again), bytes);

        // The same through a tree of values, every text and number taken apart.
        document["mappings"].append(PJsonValue());
        QVERIFY(!read.fromJson(document, &error));
        QCOMPARE(jsonOf(read), bytes);
    }

    void fromJsonReplacesWhatWasThere()
    {
        ReleaseMappingC release;
        release.setSourceDate("old");
        release.addMapping(mapping("a"));
        PJsonValue heads;
        heads["sourceDate"] = PJsonValue(QStringLiteral("2022"));
        heads["targetDate"] = PJsonValue(QStringLiteral("2026"));
        QVERIFY(release.fromJson(heads));
        QCOMPARE(release.getSourceDate(), QString("2022"));
        QCOMPARE(release.getTargetDate(), QString("2026"));
        QCOMPARE(release.countMappings(), 0);
    }

    void defaultCatalog()
    {
        CatalogMappingC catalog;
        QVERIFY(catalog.getReleases().isEmpty());
        QVERIFY(catalog.lastRelease().getSourceDate().isEmpty());
        QVERIFY(catalog.lastRelease().getMappingList().isEmpty());
        QVERIFY(catalog.getReleases().isEmpty());
    }

    void addMappingWithoutARelease()
    {
        CatalogMappingC catalog;
        catalog.addMapping(mapping("a"));
        QVERIFY(catalog.getReleases().isEmpty());
        QCOMPARE(catalog.lastRelease().countMappings(), 1);
    }

    void lastReleaseIsAReference()
    {
        CatalogMappingC catalog;
        ReleaseMappingC first;
        first.setSourceDate("2020");
        ReleaseMappingC second;
        second.setSourceDate("2022");
        catalog.addRelease(first);
        catalog.addRelease(second);
        const CatalogMappingC copy = catalog;
        QCOMPARE(catalog.lastRelease().getSourceDate(), QString("2022"));
        catalog.lastRelease().setTargetDate("2026");
        catalog.addMapping(mapping("a"));
        QCOMPARE(catalog.getReleases().at(1).getTargetDate(), QString("2026"));
        QCOMPARE(catalog.getReleases().at(1).countMappings(), 1);
        QCOMPARE(catalog.getReleases().at(0).countMappings(), 0);
        QCOMPARE(copy.getReleases().at(1).countMappings(), 0);
    }

    void oneProjectCatalogBothWays()
    {
        ReleaseMappingC release;
        CatalogMappingC afterwards;
        afterwards.addRelease(release);
        afterwards.addMapping(mapping("a"));
        release.addMapping(mapping("a"));
        CatalogMappingC before;
        before.addRelease(release);
        QCOMPARE(jsonOf(before.lastRelease()), jsonOf(afterwards.lastRelease()));
    }

    void changeMapKeepsSeveralOfOneKey()
    {
        MappingChangeMap changes;
        const QPair<QString, QString> key("2022", "cat/a.prj");
        for (int line : {1, 2, 3}) {
            MappingChange change;
            change.lineId = line;
            changes.insert(key, change);
        }
        changes.insert({"2021", "cat/b.prj"}, MappingChange());
        QList<int> lines;
        for (const MappingChange &change : changes.values(key))
            lines += change.lineId;
        QCOMPARE(lines, (QList<int>{3, 2, 1}));
        QCOMPARE(changes.keys().size(), 4);
        QCOMPARE(changes.uniqueKeys(),
                 (QList<QPair<QString, QString>>{{"2021", "cat/b.prj"}, key}));
    }

    void defaultChange()
    {
        const MappingChange change;
        QCOMPARE(change.type, 0);
        QCOMPARE(change.lineId, 0);
        QVERIFY(!change.flag);
        QCOMPARE(change.targetLine.getTargetLineId(), -1);
        QVERIFY(!change.target.isValid());
        QVERIFY(!change.addedMapping.isValid());
        QVERIFY(change.json.isNull());
    }
};

QTEST_GUILESS_MAIN(tst_ReleaseMappingC)
#include "tst_ReleaseMappingC.moc"

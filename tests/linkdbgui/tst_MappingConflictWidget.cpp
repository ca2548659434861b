#include "EditorFixture.h"

#include <mapping/project/MappingConflictWidget.h>

#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QVBoxLayout>

using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;

namespace {

const QString Path = QStringLiteral("old/a.prj");
const QString Heading = QStringLiteral("Durchgeführte Änderungen durch Update des ERP-Mappings: ");
const QString LocalHeading =
    QStringLiteral("\n\n\nVon Ihnen durchgeführte Änderungen, welche nicht übernommen werden "
                   "konnten:");

MappingChange changeOf(int type, int lineId = 1)
{
    MappingChange change;
    change.type = type;
    change.lineId = lineId;
    return change;
}

MappingChange targetChange(int type, const QString &path)
{
    MappingChange change;
    change.type = type;
    change.target.setTargetPath(path);
    return change;
}

MappingChangeMap mapOf(const QList<MappingChange> &changes,
                       const QString &date = QStringLiteral("2024"), const QString &path = Path)
{
    MappingChangeMap map;
    for (const MappingChange &change : changes)
        map.insert({date, path}, change);
    return map;
}

void setDesignation(VKTab::TableDescriptor &table)
{
    table.lineDesignation = QStringLiteral("N {D}");
}

/// The widget with a release of a project in it.
struct Conflicts
{
    Conflicts()
    {
        catalog.write("old/a.prj", "D\nM1\nM2\nM3\n", setDesignation);
        catalog.write("new/a.prj", "D\nT1\nT2\n", setDesignation);
        enter(mapping, 0, 1, 1, Mapped);
        enter(mapping, 0, 2, 2, Mapped);
        setRelease();
    }
    void setRelease()
    {
        ReleaseMappingC older;
        older.setSourceDate("2023");
        older.addMapping(mapping);
        ReleaseMappingC release;
        release.setSourceDate("2024");
        release.addMapping(mapping);
        for (const PrjMappingC &other : std::as_const(others))
            release.addMapping(other);
        CatalogMappingC releases;
        releases.addRelease(older);
        releases.addRelease(release);
        widget.setCatalogMapping(releases);
    }
    void load() { widget.loadSourceProject(mapping, catalog.read("old/a.prj")); }
    /// Loads the project with its lines marked as they would be.
    void loadMarked(const QList<MappingChange> &mine, const QList<MappingChange> &theirs)
    {
        widget.setConflictedLocalChanges(mapOf(mine));
        widget.setConflictedOnlineChanges(mapOf(theirs));
        if (!changed.isEmpty())
            mapping = changed.last().first().value<PrjMappingC>();
        setRelease();
        changed.clear();
        load();
    }
    [[nodiscard]] QString text() const
    {
        return widget.findChild<QLabel *>("messageLabel")->text();
    }
    /// The text for one online change, without what is always there.
    [[nodiscard]] QString onlineText(const MappingChange &change)
    {
        widget.setConflictedLocalChanges(mapOf({changeOf(7)}));
        widget.setConflictedOnlineChanges(mapOf({change}));
        load();
        QString found = text();
        found.remove(Heading);
        found.remove(LocalHeading);
        return found;
    }
    /// The mapping of an announcement.
    [[nodiscard]] PrjMappingC announced(int place) const
    {
        return changed.at(place).first().value<PrjMappingC>();
    }

    TestCatalog catalog;
    LocalCatalogs local{catalog.root()};
    MessageCapture messages;
    PrjMappingC mapping = mappingOf(Path, {"new/a.prj", ""});
    QList<PrjMappingC> others;
    MappingConflictWidget widget{nullptr};
    QSignalSpy changed{&widget, SIGNAL(conflictsChanged(PrjMappingC))};
    QSignalSpy told{&widget, SIGNAL(targetLineConflict(QString, int))};
};

} // namespace

class tst_MappingConflictWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void layout();
    void metaObject();

    void oneMapMarksNothing();
    void emptyMapMarksNothing();
    void marksEachLineChange_data();
    void marksEachLineChange();
    void olderReleaseIsPassedOver();
    void otherProjectsAreMarkedToo();
    void everyVersionIsMarked();
    void onlyTheFirstTargetIsMarked();
    void hasConflicts();
    void withoutRelease();

    void onlyOnlineChangesShowNothing();
    void textOfBothSides();
    void newestChangeComesFirst();
    void changesNotTold_data();
    void changesNotTold();
    void describedChange_data();
    void describedChange();
    void changedVersions_data();
    void changedVersions();
    void hiddenAgain();
    void updatedMappingKeepsTheText();
    void roomForTheText_data();
    void roomForTheText();

    void conflictMessages();
    void conflictMessageAtEachLoad();
    void eachTableIsReadOnceForAText();
    void onlineChangesTellNoConflict();
    void plannedExpiry();
    void plannedTextAndIdFromDifferentLines();
    void currentLineOfNoTarget();
    void currentLineThatIsNotThere();

    void acceptLine();
    void acceptLineOfOtherType_data();
    void acceptLineOfOtherType();
    void acceptUnknownLine();
};

void tst_MappingConflictWidget::layout()
{
    const MappingConflictWidget widget(nullptr);
    QCOMPARE(widget.sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed));
    const auto *const outer = qobject_cast<QVBoxLayout *>(widget.layout());
    QCOMPARE(outer->contentsMargins(), QMargins());
    QCOMPARE(outer->count(), 1);
    const auto *const area = qobject_cast<QScrollArea *>(outer->itemAt(0)->widget());
    QVERIFY(area->widgetResizable());
    QCOMPARE(area->widget()->sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed));
    const auto *const inner = qobject_cast<QVBoxLayout *>(area->widget()->layout());
    QCOMPARE(inner->count(), 2);
    const auto *const title = qobject_cast<QLabel *>(inner->itemAt(0)->widget());
    QCOMPARE(title->text(), QStringLiteral("Konflikte"));
    QCOMPARE(title->objectName(), QStringLiteral("TitleBarLabel"));
    QCOMPARE(inner->itemAt(1)->widget(), widget.findChild<QLabel *>("messageLabel"));
}

void tst_MappingConflictWidget::metaObject()
{
    const QMetaObject &meta = MappingConflictWidget::staticMetaObject;
    QStringList methods;
    for (int method = meta.methodOffset(); method < meta.methodCount(); ++method)
        methods.append(QString::fromLatin1(meta.method(method).methodSignature()) + u'/' +
                       QString::fromLatin1(meta.method(method).parameterNames().join(',')));
    QCOMPARE(methods, QStringList({"conflictsChanged(PrjMappingC)/",
                                   "targetLineConflict(QString,int)/conflictMessage,lineId",
                                   "onMappingUpdated(PrjMappingC)/mapping",
                                   "onTargetLineConflictAccepted(int)/lineId"}));
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
}

void tst_MappingConflictWidget::oneMapMarksNothing()
{
    Conflicts conflicts;
    conflicts.widget.setConflictedLocalChanges(mapOf({changeOf(0)}));
    conflicts.widget.setConflictedLocalChanges(mapOf({changeOf(0)}));
    QCOMPARE(conflicts.changed.count(), 0);
    conflicts.widget.setConflictedOnlineChanges(mapOf({changeOf(0)}));
    QCOMPARE(conflicts.changed.count(), 1);
    conflicts.widget.setConflictedOnlineChanges(mapOf({changeOf(0)}));
    QCOMPARE(conflicts.changed.count(), 1);
}

void tst_MappingConflictWidget::emptyMapMarksNothing()
{
    Conflicts conflicts;
    conflicts.widget.setConflictedLocalChanges(mapOf({changeOf(0)}));
    conflicts.widget.setConflictedOnlineChanges({});
    QCOMPARE(conflicts.changed.count(), 0);
    // It can still come.
    conflicts.widget.setConflictedOnlineChanges(mapOf({changeOf(3)}));
    QCOMPARE(conflicts.changed.count(), 1);
}

void tst_MappingConflictWidget::marksEachLineChange_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("marked");
    for (int type = 0; type <= 13; ++type)
        QTest::addRow("type %d", type) << type << (type <= 2);
}

void tst_MappingConflictWidget::marksEachLineChange()
{
    QFETCH(int, type);
    Conflicts conflicts;
    conflicts.widget.setConflictedLocalChanges(mapOf({changeOf(type, 1), changeOf(type, 2)}));
    conflicts.widget.setConflictedOnlineChanges(mapOf({changeOf(0)}));
    // Announced once for each change, whatever its type.
    QCOMPARE(conflicts.changed.count(), 2);
    // The newest change first.
    QTEST(conflicts.announced(0).findTarget(0).getLineConflicted(2), "marked");
    QVERIFY(!conflicts.announced(0).findTarget(0).getLineConflicted(1));
    QTEST(conflicts.announced(1).findTarget(0).getLineConflicted(1), "marked");
    QTEST(conflicts.announced(1).findTarget(0).getLineConflicted(2), "marked");
}

void tst_MappingConflictWidget::olderReleaseIsPassedOver()
{
    Conflicts conflicts;
    MappingChangeMap local = mapOf({changeOf(0, 1)}, "2023");
    conflicts.widget.setConflictedLocalChanges(local);
    conflicts.widget.setConflictedOnlineChanges(mapOf({changeOf(0)}));
    QCOMPARE(conflicts.changed.count(), 0);
    // That was the one time.
    conflicts.widget.setConflictedLocalChanges(mapOf({changeOf(0, 1)}));
    QCOMPARE(conflicts.changed.count(), 0);
}

void tst_MappingConflictWidget::otherProjectsAreMarkedToo()
{
    Conflicts conflicts;
    PrjMappingC other = mappingOf("old/b.prj", {"new/a.prj"});
    enter(other, 0, 7, 1, Mapped);
    conflicts.others.append(other);
    conflicts.setRelease();
    MappingChangeMap local = mapOf({changeOf(0, 1)});
    local.insert({"2024", "old/b.prj"}, changeOf(0, 7));
    local.insert({"2024", "old/none.prj"}, changeOf(0, 7));
    conflicts.widget.setConflictedLocalChanges(local);
    conflicts.widget.setConflictedOnlineChanges(mapOf({changeOf(0)}));
    QCOMPARE(conflicts.changed.count(), 2);
    QCOMPARE(conflicts.announced(0).getSourcePath(), Path);
    QCOMPARE(conflicts.announced(1).getSourcePath(), QStringLiteral("old/b.prj"));
    QVERIFY(conflicts.announced(1).findTarget(0).getLineConflicted(7));
}

void tst_MappingConflictWidget::everyVersionIsMarked()
{
    Conflicts conflicts;
    PrjMappingC other = conflicts.mapping;
    other.setSourceVersion("v2");
    conflicts.others.append(other);
    conflicts.setRelease();
    conflicts.widget.setConflictedLocalChanges(mapOf({changeOf(0, 1)}));
    conflicts.widget.setConflictedOnlineChanges(mapOf({changeOf(0)}));
    QCOMPARE(conflicts.changed.count(), 2);
    QCOMPARE(conflicts.announced(0).getSourceVersion(), QStringLiteral("v1"));
    QCOMPARE(conflicts.announced(1).getSourceVersion(), QStringLiteral("v2"));
    QVERIFY(conflicts.announced(1).findTarget(0).getLineConflicted(1));
}

void tst_MappingConflictWidget::onlyTheFirstTargetIsMarked()
{
    Conflicts conflicts;
    enter(conflicts.mapping, 1, 1, -1, ToCheck);
    conflicts.setRelease();
    conflicts.widget.setConflictedLocalChanges(mapOf({changeOf(0, 1)}));
    conflicts.widget.setConflictedOnlineChanges(mapOf({changeOf(0)}));
    QVERIFY(conflicts.announced(0).findTarget(0).getLineConflicted(1));
    QVERIFY(!conflicts.announced(0).findTarget(1).getLineConflicted(1));
}

void tst_MappingConflictWidget::hasConflicts()
{
    Conflicts conflicts;
    QVERIFY(!conflicts.widget.hasConflicts());
    PrjMappingC other = mappingOf("old/b.prj", {"new/a.prj"});
    enter(other, 0, 7, 1, Mapped);
    PrjMappingTargetC target = other.findTarget(0);
    target.setLineConflicted(7, true);
    other.updateTarget(0, target);
    conflicts.others.append(other);
    QVERIFY(!conflicts.widget.hasConflicts());
    conflicts.setRelease();
    QVERIFY(conflicts.widget.hasConflicts());
}

void tst_MappingConflictWidget::withoutRelease()
{
    Conflicts conflicts;
    conflicts.widget.setCatalogMapping(CatalogMappingC());
    QVERIFY(!conflicts.widget.hasConflicts());
    conflicts.widget.setConflictedLocalChanges(mapOf({changeOf(0, 1)}));
    conflicts.widget.setConflictedOnlineChanges(mapOf({changeOf(0)}));
    conflicts.load();
    conflicts.widget.onTargetLineConflictAccepted(1);
    QCOMPARE(conflicts.changed.count(), 0);
    QVERIFY(conflicts.widget.isHidden());
}

void tst_MappingConflictWidget::onlyOnlineChangesShowNothing()
{
    Conflicts conflicts;
    conflicts.widget.show();
    conflicts.widget.setConflictedOnlineChanges(mapOf({changeOf(0)}));
    QVERIFY(conflicts.widget.isVisible());
    conflicts.load();
    QVERIFY(!conflicts.widget.isVisible());
    QCOMPARE(conflicts.text(), QString());
}

void tst_MappingConflictWidget::textOfBothSides()
{
    Conflicts conflicts;
    conflicts.loadMarked({changeOf(0, 1)}, {changeOf(1, 2), targetChange(3, "new/gone.prj")});
    QVERIFY(conflicts.widget.isVisible());
    QCOMPARE(conflicts.text(), Heading +
                                   "\n- Das Zielprojekt mit dem Pfad new/gone.prj wurde entfernt." +
                                   "\n- Die Zeile N M2 wurde geändert." + LocalHeading +
                                   "\n- Die Zeile N M1 wurde geändert.");
}

void tst_MappingConflictWidget::newestChangeComesFirst()
{
    Conflicts conflicts;
    conflicts.widget.setConflictedLocalChanges(
        mapOf({targetChange(9, "1"), targetChange(9, "2"), targetChange(9, "3")}));
    conflicts.load();
    QCOMPARE(conflicts.text(), Heading + LocalHeading +
                                   "\n- Die Bedingungen für das Projekt 3 wurden geändert." +
                                   "\n- Die Bedingungen für das Projekt 2 wurden geändert." +
                                   "\n- Die Bedingungen für das Projekt 1 wurden geändert.");
}

void tst_MappingConflictWidget::changesNotTold_data()
{
    QTest::addColumn<int>("type");
    for (const int type : {7, 8, 11, 12, 14, -1})
        QTest::addRow("type %d", type) << type;
}

void tst_MappingConflictWidget::changesNotTold()
{
    QFETCH(int, type);
    Conflicts conflicts;
    QCOMPARE(conflicts.onlineText(targetChange(type, "new/a.prj")), QString());
}

void tst_MappingConflictWidget::describedChange_data()
{
    QTest::addColumn<MappingChange>("change");
    QTest::addColumn<QString>("text");
    QTest::newRow("line changed") << changeOf(0, 1) << "\n- Die Zeile N M1 wurde geändert.";
    QTest::newRow("line assigned") << changeOf(1, 2) << "\n- Die Zeile N M2 wurde geändert.";
    QTest::newRow("line removed") << changeOf(2, 3) << "\n- Die Zeile N M3 wurde geändert.";
    QTest::newRow("unknown line") << changeOf(0, 99) << "\n- Die Zeile  wurde geändert.";
    QTest::newRow("target removed")
        << targetChange(3, "a%1b") << "\n- Das Zielprojekt mit dem Pfad a%1b wurde entfernt.";
    QTest::newRow("target added") << targetChange(4, "new/b.prj")
                                  << "\n- Das Zielprojekt mit dem Pfad new/b.prj wurde "
                                     "hinzugefügt.";
    QTest::newRow("not-found target added") << targetChange(4, "") << "";
    MappingChange change = changeOf(5);
    change.removedMapping.setSourcePath("old/r.prj");
    change.addedMapping.setSourcePath("old/n.prj");
    QTest::newRow("mapping removed")
        << change << "\n- Es wurde ein Mapping für das Projekt old/r.prj entfernt.";
    change.type = 6;
    QTest::newRow("mapping added")
        << change << "\n- Es wurde ein Mapping für das Projekt old/n.prj hinzugefügt.";
    QTest::newRow("conditions") << targetChange(9, "new/b.prj")
                                << "\n- Die Bedingungen für das Projekt new/b.prj wurden "
                                   "geändert.";
    QTest::newRow("variables") << targetChange(10, "new/b.prj")
                               << "\n- Die Variablenzuordnung für das Projekt new/b.prj wurde "
                                  "geändert.";
}

void tst_MappingConflictWidget::describedChange()
{
    QFETCH(MappingChange, change);
    Conflicts conflicts;
    QTEST(conflicts.onlineText(change), "text");
}

void tst_MappingConflictWidget::changedVersions_data()
{
    QTest::addColumn<QStringList>("versions"); // project old and new, table old and new
    QTest::addColumn<QString>("text");
    const QString table =
        QStringLiteral("\n- Die Tabellenversion des Zielprojektes mit dem Pfad p%2 wurde "
                       "geändert.\n  Altes Tabellendatum: %1, Neues Tabellendatum: ");
    const QString project =
        QStringLiteral("\n- Die Projektversion des Zielprojektes mit dem Pfad p%2 wurde "
                       "geändert.\n  Altes Projektdatum: %1, Neues Projektdatum: ");
    const auto with = [](QString text, const QString &from, const QString &to) {
        return text.replace("%1", from) + to;
    };
    QTest::newRow("table") << QStringList({"", "", "v240131101112", "v250228131415"})
                           << with(table, "31.01.24 10:11:12", "28.02.25 13:14:15");
    QTest::newRow("both") << QStringList({"v1", "v2", "v240131101112", "v250228131415"})
                          << with(table, "31.01.24 10:11:12", "28.02.25 13:14:15");
    QTest::newRow("project") << QStringList({"v240131101112", "v250228131415", "v1", "v1"})
                             << with(project, "31.01.24 10:11:12", "28.02.25 13:14:15");
    QTest::newRow("equal") << QStringList({"v1", "v1", "v2", "v2"}) << "";
    QTest::newRow("no date") << QStringList({"v1", "", "", ""}) << with(project, "", "");
    // In the hour that a clock leaves out somewhere, and in no century at all.
    QTest::newRow("old summer time") << QStringList({"v160430233000", "v000229000000", "", ""})
                                     << with(project, "30.04.16 23:30:00", "");
}

void tst_MappingConflictWidget::changedVersions()
{
    QFETCH(QStringList, versions);
    MappingChange change = targetChange(13, "p%2");
    change.oldProjectVersion = versions.at(0);
    change.newProjectVersion = versions.at(1);
    change.oldTableVersion = versions.at(2);
    change.newTableVersion = versions.at(3);
    Conflicts conflicts;
    QTEST(conflicts.onlineText(change), "text");
}

void tst_MappingConflictWidget::hiddenAgain()
{
    Conflicts conflicts;
    conflicts.loadMarked({targetChange(9, "1")}, {});
    QVERIFY(conflicts.widget.isVisible());
    const QString text = conflicts.text();
    conflicts.widget.loadSourceProject(mappingOf("old/other.prj", {}), VKTab::ContentRef());
    QVERIFY(!conflicts.widget.isVisible());
    QCOMPARE(conflicts.text(), text);
}

void tst_MappingConflictWidget::updatedMappingKeepsTheText()
{
    Conflicts conflicts;
    conflicts.loadMarked({targetChange(9, "1")}, {});
    const QString text = conflicts.text();
    conflicts.widget.onMappingUpdated(mappingOf("old/other.prj", {}));
    QCOMPARE(conflicts.text(), text);
    QVERIFY(conflicts.widget.isVisible());
    QCOMPARE(conflicts.changed.count() + conflicts.told.count(), 0);
}

void tst_MappingConflictWidget::roomForTheText_data()
{
    QTest::addColumn<int>("changes");
    QTest::addColumn<bool>("scrolls");
    QTest::newRow("short text") << 2 << false;
    QTest::newRow("long text") << 50 << true;
}

void tst_MappingConflictWidget::roomForTheText()
{
    QFETCH(int, changes);
    Conflicts conflicts;
    QList<MappingChange> local;
    for (int number = 0; number < changes; ++number)
        local.append(targetChange(9, QString::number(number)));
    conflicts.loadMarked(local, {});
    conflicts.widget.resize(600, conflicts.widget.minimumSizeHint().height());
    QVERIFY(QTest::qWaitForWindowExposed(&conflicts.widget));
    QCoreApplication::processEvents();
    const auto *const area = conflicts.widget.findChild<QScrollArea *>();
    QTEST(area->verticalScrollBar()->maximum() > 0, "scrolls");
    QVERIFY(area->minimumHeight() <= 10 * area->fontMetrics().lineSpacing());
}

namespace {

/// A plan of the modeller for line 1: line 2 of new/a.prj.
MappingChange plannedChange()
{
    MappingChange change = targetChange(0, "new/a.prj");
    change.lineId = 1;
    change.targetLine = PrjMappingTargetLineC(2, Mapped, QString());
    change.otherTargetLine = change.targetLine;
    return change;
}

} // namespace

void tst_MappingConflictWidget::conflictMessages()
{
    Conflicts conflicts;
    conflicts.loadMarked({plannedChange()}, {changeOf(0, 1)});
    QCOMPARE(conflicts.told.count(), 1);
    QCOMPARE(conflicts.told.first().at(0).toString(),
             QStringLiteral("Von Ihnen geplante Änderung:"
                            "<br />Diese Zeile wurde der Zeile<br />N T2 des Projektes new/a.prj "
                            "zugewiesen."
                            "<br /><br />Von einem anderen Nutzer durchgeführte Änderung:"
                            "<br />Neue Zuordnung: <br />N T1 des Projektes new/a.prj <br />."));
    QCOMPARE(conflicts.told.first().at(1).toInt(), 1);
}

void tst_MappingConflictWidget::conflictMessageAtEachLoad()
{
    Conflicts conflicts;
    conflicts.loadMarked({changeOf(0, 1), changeOf(1, 2), changeOf(2, 3)}, {changeOf(0, 1)});
    // Line 3 is in no target, so it is in no conflict.
    QCOMPARE(conflicts.told.count(), 2);
    QCOMPARE(conflicts.told.at(0).at(1).toInt(), 2);
    QCOMPARE(conflicts.told.at(1).at(1).toInt(), 1);
    conflicts.load();
    QCOMPARE(conflicts.told.count(), 4);
}

void tst_MappingConflictWidget::eachTableIsReadOnceForAText()
{
    Conflicts conflicts;
    MappingChange second = plannedChange();
    second.lineId = 2;
    // The first message takes the project away that the second one tells about.
    connect(&conflicts.widget, &MappingConflictWidget::targetLineConflict, &conflicts.widget,
            [&] { QFile::remove(conflicts.catalog.file("new/a.prj")); });
    conflicts.loadMarked({plannedChange(), second}, {changeOf(0, 1)});
    QCOMPARE(conflicts.told.count(), 2);
    QVERIFY(!QFile::exists(conflicts.catalog.file("new/a.prj")));
    QVERIFY(conflicts.told.at(1).first().toString().contains("N T2 des Projektes new/a.prj"));
    conflicts.load(); // and the next text reads anew
    QVERIFY(!conflicts.told.at(2).first().toString().contains("N T2"));
}

void tst_MappingConflictWidget::onlineChangesTellNoConflict()
{
    Conflicts conflicts;
    conflicts.loadMarked({changeOf(0, 1)}, {changeOf(0, 1), changeOf(0, 2)});
    QCOMPARE(conflicts.told.count(), 1);
}

void tst_MappingConflictWidget::plannedExpiry()
{
    Conflicts conflicts;
    MappingChange change = changeOf(0, 1);
    change.targetLine = PrjMappingTargetLineC(-1, Mapped, QString());
    change.otherTargetLine = change.targetLine;
    conflicts.loadMarked({change}, {changeOf(0, 1)});
    QVERIFY(conflicts.told.first().at(0).toString().startsWith(
        QStringLiteral("Von Ihnen geplante Änderung:"
                       "<br />Diese Zeile wurde als ausgelaufen markiert."
                       "<br /><br />Von einem anderen Nutzer durchgeführte Änderung:")));
}

void tst_MappingConflictWidget::plannedTextAndIdFromDifferentLines()
{
    // The text is that of one line, whether there is one is asked of the other.
    Conflicts conflicts;
    MappingChange change = plannedChange();
    change.targetLine = PrjMappingTargetLineC(-1, Mapped, QString());
    change.otherTargetLine = PrjMappingTargetLineC(1, Mapped, QString());
    conflicts.loadMarked({change}, {changeOf(0, 1)});
    QVERIFY(conflicts.told.first().at(0).toString().contains(
        QStringLiteral("<br />Diese Zeile wurde der Zeile<br />N T1 des Projektes new/a.prj "
                       "zugewiesen.")));
    conflicts.told.clear();
    // An expiry with a line id only.
    change = changeOf(0, 1);
    change.targetLine = PrjMappingTargetLineC(5, Mapped, QString());
    conflicts.widget.setConflictedLocalChanges(mapOf({change}));
    conflicts.load();
    QVERIFY(conflicts.told.first().at(0).toString().contains(
        QStringLiteral("<br />Diese Zeile wurde der Zeile<br /> des Projektes  zugewiesen.")));
}

void tst_MappingConflictWidget::currentLineOfNoTarget()
{
    Conflicts conflicts;
    PrjMappingTargetC target = conflicts.mapping.findTarget(0);
    target.removeLineId(1);
    conflicts.mapping.updateTarget(0, target);
    enter(conflicts.mapping, 1, 1, -1, ToCheck);
    conflicts.setRelease();
    conflicts.loadMarked({plannedChange()}, {changeOf(0, 1)});
    QVERIFY(conflicts.told.first().at(0).toString().endsWith(
        QStringLiteral("<br /><br />Von einem anderen Nutzer durchgeführte Änderung:"
                       "<br />Die Zeile wurde als ausgelaufen markiert.")));
}

void tst_MappingConflictWidget::currentLineThatIsNotThere()
{
    Conflicts conflicts;
    enter(conflicts.mapping, 0, 1, 77, Mapped);
    conflicts.setRelease();
    conflicts.loadMarked({plannedChange()}, {changeOf(0, 1)});
    QVERIFY(conflicts.told.first().at(0).toString().endsWith(
        QStringLiteral("<br /><br />Von einem anderen Nutzer durchgeführte Änderung:"
                       "<br />Die Zeile wurde neu zugewiesen. Die neu zugewiesene Zeile existiert "
                       "(lokal) nicht.")));
    QVERIFY(QFile::remove(conflicts.catalog.file("new/a.prj")));
    conflicts.load();
    QCOMPARE(conflicts.told.at(1).at(0).toString(),
             QStringLiteral("Von Ihnen geplante Änderung:"
                            "<br />Diese Zeile wurde der Zeile<br /> des Projektes new/a.prj "
                            "zugewiesen."
                            "<br /><br />Von einem anderen Nutzer durchgeführte Änderung:"
                            "<br />Die Zeile wurde neu zugewiesen. Die neu zugewiesene Zeile "
                            "existiert (lokal) nicht."));
}

void tst_MappingConflictWidget::acceptLine()
{
    Conflicts conflicts;
    conflicts.loadMarked({changeOf(0, 1), changeOf(0, 2)}, {changeOf(0, 1)});
    conflicts.widget.onTargetLineConflictAccepted(1);
    QCOMPARE(conflicts.changed.count(), 1);
    QVERIFY(!conflicts.announced(0).findTarget(0).getLineConflicted(1));
    QVERIFY(conflicts.announced(0).findTarget(0).getLineConflicted(2));
    // The change is still known: accepting again announces again.
    conflicts.widget.onTargetLineConflictAccepted(1);
    QCOMPARE(conflicts.changed.count(), 2);
}

void tst_MappingConflictWidget::acceptLineOfOtherType_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("newly assigned") << 1;
    QTest::newRow("removed") << 2;
}

void tst_MappingConflictWidget::acceptLineOfOtherType()
{
    QFETCH(int, type);
    Conflicts conflicts;
    conflicts.loadMarked({changeOf(type, 1)}, {changeOf(0, 1)});
    QVERIFY(conflicts.mapping.findTarget(0).getLineConflicted(1));
    conflicts.widget.onTargetLineConflictAccepted(1);
    QCOMPARE(conflicts.changed.count(), 0);
}

void tst_MappingConflictWidget::acceptUnknownLine()
{
    Conflicts conflicts;
    conflicts.loadMarked({changeOf(0, 1)}, {changeOf(0, 1)});
    conflicts.widget.onTargetLineConflictAccepted(2);
    QCOMPARE(conflicts.changed.count(), 0);
    // A project without changes.
    conflicts.widget.onMappingUpdated(mappingOf("old/other.prj", {}));
    conflicts.widget.onTargetLineConflictAccepted(1);
    QCOMPARE(conflicts.changed.count(), 0);
}

QTEST_MAIN(tst_MappingConflictWidget)
#include "tst_MappingConflictWidget.moc"

#include "TableEditorFixture.h"

#include <core/config/PConfigService.h>
#include <core/message/PScriptedMessageSink.h>
#include <geomcore/binding/VarsetConditionC.h>
#include <geomcore/table/BaseLayer.h>
#include <geomcore/table/FileLayer.h>
#include <geomcore/table/FilterByLineId.h>
#include <geomcore/table/LayerType.h>
#include <geomcore/table/Line.h>
#include <geomcore/table/SignalConnect.h>
#include <geomcore/table/TabOptions.h>
#include <geomcoregui/table/VkTableModel.h>

#include <QAbstractItemModelTester>
#include <QBoxLayout>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QLayout>
#include <QMenu>
#include <QMetaMethod>
#include <QPaintEvent>
#include <QRandomGenerator>
#include <QSplitter>
#include <QTest>
#include <QTimer>

#include <boost/make_shared.hpp>

using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
using PRJMAPPING::Verified;
using VKTab::LineId;

namespace {

QStringList warnings;

void noteWarning(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type != QtDebugMsg && !text.contains("does not support"))
        warnings.append(text);
}

/// Texts and object names of the widgets in a layout, row by row.
QStringList rowTexts(QLayout *layout)
{
    QStringList texts;
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem *const item = layout->itemAt(i);
        if (QLayout *const inner = item->layout()) {
            texts.append(rowTexts(inner).join(u'|'));
        } else if (const QWidget *const child = item->widget()) {
            const auto *const label = qobject_cast<const QLabel *>(child);
            const QString name = child->objectName();
            texts.append(label && name.isEmpty() ? label->text() : name);
        } else if (item->spacerItem()) {
            texts.append(
                QStringLiteral("<%1,%2>")
                    .arg(item->sizeHint().width())
                    .arg(item->expandingDirections() == Qt::Horizontal ? "expanding" : "fixed"));
        }
    }
    return texts;
}

} // namespace

class tst_TableMappingWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QDir::setSearchPaths("bitmaps", {":/hostbitmaps"}); }
    void init();
    void cleanup() { f.reset(); }

    void ownSlots();
    void connectionsAreFound();
    void panes();
    void buttons_data();
    void buttons();
    void boxes();
    void views();
    void statusKeys();
    void optionsComeFromTheConfiguration();
    void valueRangeVariablesInTableOrder();
    void statusColumnsOfBothTables();
    void optionsOfTheTable();
    void optionsWithKeysStayAsTheyAre();
    void beforeTheFirstTable();

    void loading();
    void loadingRemovesProjectFilters();
    void loadingDropsFormerTable();
    void loadingAppliesTheFilterBox();
    void loadingAnInvalidTable();
    void rangeButton();
    void selectedSourceLine();

    void states_data();
    void states();
    void stateOfAnUnknownLine();
    void rangeColumn();
    void conditionsChooseAmongTargets();
    void updatesTouchChangedLinesOnly();
    void updatesEqualAWalk();
    void targetsComeAndGo();
    void modifiedLineIsLookedAtAgain();
    void sharedLineNumbers();
    void layerIsAskedAnewForEveryWrite();
    void manyChangedLinesAtOnce();
    void updateRepaints();
    void designationsFollowThePalette();

    void toolTips_data();
    void toolTips();
    void toolTipOfAProposal();
    void toolTipOfAConflict();
    void toolTipOfAConflictWithoutText();
    void toolTipKeepsOneBlank();
    void toolTipAfterTheWidget();

private:
    std::unique_ptr<TableEditorFixture> f;
};

void tst_TableMappingWidget::init()
{
    f = std::make_unique<TableEditorFixture>();
    f->catalog.write("old/a.prj", "D,k:n\nM8,5\nM9,6\nM10,7\n", [](auto &table) {
        table.normNumber = "DIN 1";
        table.lineDesignation = "DIN 1 - {D}";
        table.filterConditions = {{"PRJLINECOND", "k .LT. 6", {}},
                                  {"BYPRJ", "k .LT. 7", {}},
                                  {"OTHER", "k .LT. 100", {}}};
    });
    f->catalog.write("new/a.prj", "D,k:n\nM10,7\nM9,66\nM8,5\n");
    enter(f->mapping, 0, 1, 3, Mapped);
    enter(f->mapping, 0, 2, 2, ToCheck);
}

void tst_TableMappingWidget::ownSlots()
{
    const QMetaObject &meta = TableMappingWidget::staticMetaObject;
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        names.append(meta.method(i).methodSignature());
    QCOMPARE(names, QStringList({"onTargetLineConflict(QString,int)", "onRemapLinesClicked()"}));
    QCOMPARE(meta.method(meta.methodOffset()).parameterNames(),
             QByteArrayList({"toolTipMessage", "lineId"}));
    QCOMPARE(meta.superClass(), &PrjMappingWidgetBase::staticMetaObject);
}

void tst_TableMappingWidget::connectionsAreFound()
{
    warnings.clear();
    const QtMessageHandler former = qInstallMessageHandler(noteWarning);
    {
        TableEditorFixture other;
        other.catalog.write("old/a.prj", "k:n\n5\n");
        other.catalog.write("new/a.prj", "k:n\n5\n");
        enter(other.mapping, 0, 1, 1, Mapped);
        other.load();
        other.select(1);
        for (VkTableView *const view : {other.source, other.target}) {
            if (QMenu *const menu = other.openMenu(view, 1))
                menu->close();
        }
    }
    qInstallMessageHandler(former);
    QCOMPARE(warnings, QStringList());
}

void tst_TableMappingWidget::panes()
{
    const auto *const outer = qobject_cast<QVBoxLayout *>(f->widget->layout());
    QVERIFY(outer);
    QCOMPARE(outer->contentsMargins(), QMargins());
    QCOMPARE(rowTexts(f->widget->layout()), QStringList({"tableSplitter", "chkShowHiddenCols"}));
    const auto *const splitter = f->widget->findChild<QSplitter *>("tableSplitter");
    QCOMPARE(splitter->orientation(), Qt::Horizontal);
    QCOMPARE(splitter->count(), 2);
    QCOMPARE(splitter->widget(0)->layout()->contentsMargins(), QMargins());
    QCOMPARE(rowTexts(splitter->widget(0)->layout()),
             QStringList({"Pfad: |sourcePathLabel|<0,expanding>",
                          "Normbezeichnung: |sourceDesignationLabel|<0,expanding>",
                          "Normnummer: |sourceNumberLabel|<0,expanding>|btnResolvedRanges|"
                          "btnCondition|btnVerifyAll",
                          "sourceView", "chkFilterSource"}));
    QCOMPARE(splitter->widget(1)->layout()->contentsMargins(), QMargins());
    QCOMPARE(rowTexts(splitter->widget(1)->layout()),
             QStringList({"Pfad: |targetPathLabel|<0,expanding>",
                          "Normbezeichnung: |targetDesignationLabel|<0,expanding>",
                          "Normnummer: |targetNumberLabel|<0,expanding>|btnMapLine|btnRemoveLine|"
                          "btnRemoveVerifyLine",
                          "targetView", "chkFilterTarget"}));
}

void tst_TableMappingWidget::buttons_data()
{
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<QKeySequence>("keys");
    QTest::addColumn<QString>("image");
    QTest::addColumn<bool>("enabled");

    const QKeySequence none;
    QTest::newRow("btnResolvedRanges") << "Aufgelöste Wertebereiche zuordnen" << none
                                       << ":/toolicons/actionFormatRanges_16.png" << false;
    QTest::newRow("btnCondition")
        << "Bedingung für die markierte Zeile generieren und in die Zwischenablage kopieren" << none
        << ":/toolicons/actionFormatAlgorithm_16.png" << true;
    QTest::newRow("btnVerifyAll") << "Alle Zuordnungen bestätigen" << none
                                  << ":/bitmaps/double_check.png" << true;
    QTest::newRow("btnMapLine") << "Aktuell markierte Zeile zuordnen (v)" << QKeySequence(Qt::Key_V)
                                << ":/bitmaps/line.png" << true;
    QTest::newRow("btnRemoveLine")
        << "Zuordnung zu diesem Projekt aufheben (x)" << QKeySequence(Qt::Key_X)
        << "bitmaps:indextree/state_deleted.png" << true;
    QTest::newRow("btnRemoveVerifyLine")
        << "Zuordnung zu diesem Projekt aufheben und bestätigen (STRG + x)"
        << QKeySequence(Qt::CTRL | Qt::Key_X) << ":/bitmaps/remove_verify.png" << true;
}

void tst_TableMappingWidget::buttons()
{
    const QPushButton *const button = f->button(QTest::currentDataTag());
    QVERIFY(button);
    QTEST(button->toolTip(), "toolTip");
    QTEST(button->shortcut(), "keys");
    QTEST(button->isEnabled(), "enabled");
    QCOMPARE(button->accessibleName(), button->toolTip());
    QCOMPARE(button->text(), QString());
    QFETCH(QString, image);
    QVERIFY(!QIcon(image).pixmap(16).isNull());
    QCOMPARE(button->icon().pixmap(16).toImage(), QIcon(image).pixmap(16).toImage());
}

void tst_TableMappingWidget::boxes()
{
    QCOMPARE(f->box("chkFilterSource")->text(),
             QString("Zeige nur nicht zugewiesene Zeilen (Quellprojekt)"));
    QCOMPARE(f->box("chkFilterTarget")->text(),
             QString("Zeige nur nicht zugewiesene Zeilen (Zielprojekt)"));
    QCOMPARE(f->box("chkShowHiddenCols")->text(), QString("Versteckte Spalten anzeigen"));
    for (const char *const name : {"chkFilterSource", "chkFilterTarget", "chkShowHiddenCols"})
        QVERIFY(!f->box(name)->isChecked());
}

void tst_TableMappingWidget::views()
{
    QCOMPARE(f->source->selectionMode(), QAbstractItemView::ExtendedSelection);
    QCOMPARE(f->target->selectionMode(), QAbstractItemView::SingleSelection);
    QVERIFY(!f->source->isHeaderVisible());
    QVERIFY(!f->target->isHeaderVisible());
    f->catalog.write("old/a.prj", "k:n,I:i\n5,1\n");
    f->load();
    QVERIFY(f->source->model()->columnOf(f->sourceTable().getVar(u"I").getVarId()) >= 0);
}

void tst_TableMappingWidget::statusKeys()
{
    f->load();
    const auto options = f->sourceTable().getOptions();
    QVERIFY(options->isStatusColumnsShown());
    QStringList keys;
    for (const VKTab::StatusKey &key : options->getStatusIcons()) {
        keys.append(key.getName());
        QCOMPARE(int(key.getKeyType()), 1);
    }
    QCOMPARE(keys, QStringList({"CatalogMapper", "ValueRangeMapping", "TargetMapping"}));
    QStringList values;
    for (const VKTab::StatusKey &key : options->getStatusIcons()) {
        for (const VKTab::StatusValue &value : key.getValues()) {
            values.append(value.getText() + "|" + value.getImageFile() + "|" +
                          (value.getToolTipHandler2() ? "handler" : value.getToolTipText()));
        }
    }
    QCOMPARE(values,
             QStringList(
                 {"M|:/bitmaps/state_confirmed.png|Diese Zuordnung wurde vom Modellierer bestätigt",
                  "C|:/bitmaps/state_check.png|handler",
                  "N|:/bitmaps/state_deleted.png|Diese Zeile konnte nicht zugeordnet werden",
                  "NC|:/bitmaps/state_deleted_confirmed.png|Diese Zeile ist ausgelaufen. Dies "
                  "wurde vom Modellierer bestätigt",
                  "Conflicted|:/bitmaps/state_conflict.png|handler",
                  "VR|:/toolicons/actionFormatRanges_16.png|Wertebereichszuordnungen bearbeiten",
                  "C|:/bitmaps/line.png|Aktuell zugeordnete Zeile"}));
}

void tst_TableMappingWidget::optionsComeFromTheConfiguration()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("velkopt.cfg"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[TabOptions]\nToolTipTextExportOn=from the set-up\n");
    file.close();
    const PStringList former = PConfigService::directories();
    PConfigService::setDirectories(QStringList(folder.path()));
    TableEditorFixture other;
    PConfigService::setDirectories(former);
    other.catalog.write("old/a.prj", "k:n\n5\n");
    other.load();
    QCOMPARE(other.sourceTable().getOptions()->getToolTipTextExportOn(),
             QString("from the set-up"));
    QVERIFY(other.sourceTable().getOptions()->isStatusColumnsShown());
}

void tst_TableMappingWidget::valueRangeVariablesInTableOrder()
{
    f->catalog.write("old/a.prj", "Z:r,D,A:r,M:r\n1;2,x,3;4,5;6\n");
    f->load();
    QStringList names;
    auto *const timer = new QTimer(f->widget.get());
    connect(timer, &QTimer::timeout, this, [&] {
        if (auto *const dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
            timer->stop();
            for (const QCheckBox *const box : dialog->findChildren<QCheckBox *>())
                names.append(box->text());
            dialog->reject();
        }
    });
    timer->start(5);
    const PMessageSinkScope scope(
        std::make_shared<PScriptedMessageSink>(QList<PMsgReply>{PMsgReply::Ok}));
    f->button("btnResolvedRanges")->click();
    QCOMPARE(names, QStringList({"Z", "A", "M"}));
}

void tst_TableMappingWidget::statusColumnsOfBothTables()
{
    f->load();
    f->select(1);
    QVERIFY(f->sourceTable().getOptions() == f->targetTable().getOptions());
    QCOMPARE(f->target->model()->statusColumnCount(), 3);
}

void tst_TableMappingWidget::optionsOfTheTable()
{
    VKTab::ContentRef table = f->read("old/a.prj");
    const auto own = boost::make_shared<VKTab::TabOptions>();
    own->setStatusColumnsShown(true);
    table.setOptions(own);
    f->load(table);
    QVERIFY(table.getOptions() == own);
    QVERIFY(own->getStatusKey("CatalogMapper").isValid());
    QVERIFY(own->getStatusKey("TargetMapping").isValid());
    f->select(1);
    QVERIFY(f->targetTable().getOptions() != own);
}

void tst_TableMappingWidget::optionsWithKeysStayAsTheyAre()
{
    VKTab::ContentRef table = f->read("old/a.prj");
    const auto own = boost::make_shared<VKTab::TabOptions>();
    own->setStatusKey(VKTab::StatusKey(VKTab::StatusKey::IconColumn, "CatalogMapper"));
    table.setOptions(own);
    f->load(table);
    QCOMPARE(own->getStatusIcons().size(), 1);
    QVERIFY(own->getStatusKey("CatalogMapper").getValues().empty());
}

void tst_TableMappingWidget::beforeTheFirstTable()
{
    QVERIFY(!f->widget->selectedSourceLine().isValid());
    QCOMPARE(f->widget->sourcePath(), QString());
    for (QPushButton *const button : f->widget->findChildren<QPushButton *>())
        QMetaObject::invokeMethod(button, "clicked");
    f->box("chkFilterSource")->click();
    f->box("chkFilterTarget")->click();
    f->box("chkShowHiddenCols")->click();
    f->widget->onRemapLinesClicked();
    f->widget->onProjectMappingUpdated(PrjMappingC());
    QVERIFY(f->order.isEmpty());
}

void tst_TableMappingWidget::loading()
{
    f->load();
    QCOMPARE(f->label("sourcePathLabel")->text(), QString("old/a.prj"));
    QCOMPARE(f->label("sourceNumberLabel")->text(), QString("DIN 1"));
    QCOMPARE(f->label("sourceDesignationLabel")->text(), QString());
    QCOMPARE(f->label("targetPathLabel")->text(), QString());
    QCOMPARE(f->widget->sourcePath(), QString("old/a.prj"));
    QVERIFY(f->sourceTable().isValid());
    QVERIFY(!f->targetTable().isValid());
    QCOMPARE(f->states(), QString("- C N"));
    QVERIFY(f->order.isEmpty());
}

void tst_TableMappingWidget::loadingRemovesProjectFilters()
{
    f->load();
    const auto conditions = f->sourceTable().getFileLayer()->getFilterConditions();
    QCOMPARE(conditions.size(), 1);
    QCOMPARE(conditions.first().name, QString("OTHER"));
    QCOMPARE(TableEditorFixture::visibleLines(f->sourceTable()), QString("1 2 3"));
    QCOMPARE(f->source->model()->rowCount(), 3);
}

void tst_TableMappingWidget::loadingDropsFormerTable()
{
    f->load();
    f->select(1);
    VKTab::ContentRef former = f->sourceTable();
    QVERIFY(f->targetTable().isValid());
    f->source->setSelectionMode(QAbstractItemView::SingleSelection);
    f->load();
    QVERIFY(!(f->sourceTable() == former));
    QVERIFY(!f->targetTable().isValid());
    QCOMPARE(f->source->selectionMode(), QAbstractItemView::ExtendedSelection);
    QVERIFY(!f->widget->selectedSourceLine().isValid());
    former.setSelection(LineId(2), true); // nobody listens to it any more
    QVERIFY(!f->targetTable().isValid());
}

void tst_TableMappingWidget::loadingAppliesTheFilterBox()
{
    f->load();
    f->box("chkFilterSource")->click();
    QCOMPARE(TableEditorFixture::visibleLines(f->sourceTable()), QString("2 3"));
    f->load();
    QCOMPARE(TableEditorFixture::visibleLines(f->sourceTable()), QString("2 3"));
    f->box("chkFilterSource")->click();
    f->load();
    QCOMPARE(TableEditorFixture::visibleLines(f->sourceTable()), QString("1 2 3"));
}

void tst_TableMappingWidget::loadingAnInvalidTable()
{
    f->load();
    f->load(VKTab::ContentRef());
    QVERIFY(!f->sourceTable().isValid());
    QCOMPARE(f->label("sourcePathLabel")->text(), QString("old/a.prj"));
    QVERIFY(!f->button("btnResolvedRanges")->isEnabled());
    f->press(Qt::Key_V);
    QVERIFY(f->order.isEmpty());
}

void tst_TableMappingWidget::rangeButton()
{
    f->load();
    QVERIFY(!f->button("btnResolvedRanges")->isEnabled());
    f->catalog.write("old/a.prj", "D,k:r\nM8,5;6\n");
    f->load();
    QVERIFY(f->button("btnResolvedRanges")->isEnabled());
    f->catalog.write("old/a.prj", "D,k:n\nM8,5\n");
    f->load();
    QVERIFY(!f->button("btnResolvedRanges")->isEnabled());
}

void tst_TableMappingWidget::selectedSourceLine()
{
    f->load();
    f->select(2);
    QCOMPARE(f->widget->selectedSourceLine(), LineId(2));
}

void tst_TableMappingWidget::states_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<int>("targetLine");
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("conflict");
    QTest::addColumn<QString>("expected");

    QTest::newRow("found, verified") << 0 << 3 << 2 << false << "M";
    QTest::newRow("found, mapped: no icon") << 0 << 3 << 1 << false << "";
    QTest::newRow("found, to check") << 0 << 3 << 0 << false << "C";
    QTest::newRow("found, unknown state") << 0 << 3 << 3 << false << "C";
    QTest::newRow("without target line, verified") << 0 << -1 << 2 << false << "NC";
    QTest::newRow("without target line, mapped") << 0 << -1 << 1 << false << "N";
    QTest::newRow("not found, verified") << 1 << -1 << 2 << false << "NC";
    QTest::newRow("not found, mapped") << 1 << -1 << 1 << false << "N";
    QTest::newRow("not found, to check") << 1 << -1 << 0 << false << "N";
    QTest::newRow("conflict over verified") << 0 << 3 << 2 << true << "Conflicted";
    QTest::newRow("conflict over mapped") << 0 << 3 << 1 << true << "Conflicted";
    QTest::newRow("conflict over not found") << 1 << -1 << 1 << true << "Conflicted";
}

void tst_TableMappingWidget::states()
{
    QFETCH(int, target);
    QFETCH(int, targetLine);
    QFETCH(int, state);
    QFETCH(bool, conflict);
    QFETCH(QString, expected);
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", ""});
    enter(mapping, target, 1, targetLine, PRJMAPPING::CheckState(state));
    PrjMappingTargetC changed = mapping.findTarget(target);
    changed.setLineConflicted(1, conflict);
    mapping.updateTarget(target, changed);
    f->load();
    f->widget->onProjectMappingUpdated(mapping);
    QCOMPARE(TableEditorFixture::status(f->sourceTable(), 1, "CatalogMapper"), expected);
    f->mapping = mapping;
    f->load();
    QCOMPARE(TableEditorFixture::status(f->sourceTable(), 1, "CatalogMapper"), expected);
    QCOMPARE(TableEditorFixture::status(f->sourceTable(), 1, "ValueRangeMapping"), QString());
}

void tst_TableMappingWidget::stateOfAnUnknownLine()
{
    f->mapping = mappingOf("old/a.prj", {});
    f->load();
    QCOMPARE(f->states(), QString("N N N"));
}

void tst_TableMappingWidget::rangeColumn()
{
    f->catalog.write("old/a.prj", "D,k:r\nM8,5;6\nM9,6\n");
    f->load();
    QCOMPARE(TableEditorFixture::status(f->sourceTable(), 1, "ValueRangeMapping"), QString("VR"));
    QCOMPARE(TableEditorFixture::status(f->sourceTable(), 2, "ValueRangeMapping"), QString("VR"));
}

void tst_TableMappingWidget::conditionsChooseAmongTargets()
{
    f->mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"});
    addCondition(f->mapping, 0, "k .LT. 6");
    for (const int line : {1, 2}) {
        enter(f->mapping, 0, line, 1, Verified);
        enter(f->mapping, 1, line, 1, ToCheck);
    }
    f->load();
    QCOMPARE(f->states(), QString("M C N"));
    // A changed condition may send any line elsewhere.
    PrjMappingTargetC target = f->mapping.findTarget(0);
    target.clearConditions();
    f->mapping.updateTarget(0, target);
    f->widget->onProjectMappingUpdated(f->mapping);
    QCOMPARE(f->states(), QString("M M N"));
}

void tst_TableMappingWidget::updatesTouchChangedLinesOnly()
{
    f->load();
    QList<int> touched;
    const boost::signals2::scoped_connection connection =
        f->sourceTable().signalConnect().connectSignalLineStatus(
            [&](const VKTab::Content &, const LineId &id) { touched.append(id.value(0)); });
    enter(f->mapping, 0, 2, 2, Verified);
    f->widget->onProjectMappingUpdated(f->mapping);
    QCOMPARE(touched, QList<int>({2}));
    QCOMPARE(f->states(), QString("- M N"));
    // What nobody changed is not written again, so a foreign value stays.
    f->sourceTable().getModifyLayer()->setLineKeyValue(LineId(1), "CatalogMapper", "C");
    enter(f->mapping, 0, 3, 1, Verified);
    f->widget->onProjectMappingUpdated(f->mapping);
    QCOMPARE(f->states(), QString("C M M"));
}

void tst_TableMappingWidget::updatesEqualAWalk()
{
    QByteArray lines = "D,k:n\n";
    for (int i = 1; i <= 600; ++i)
        lines += "M" + QByteArray::number(i) + "," + QByteArray::number(i % 7) + "\n";
    f->catalog.write("old/a.prj", lines);
    QRandomGenerator random(4711);
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj", ""});
    addCondition(mapping, 0, "k .LT. 4");
    f->mapping = mapping;
    f->load();
    for (int step = 0; step < 60; ++step) {
        for (int change = random.bounded(1, 40); change > 0; --change) {
            const int target = random.bounded(3);
            const int line = random.bounded(1, 601);
            PrjMappingTargetC edited = mapping.findTarget(target);
            if (random.bounded(3) == 0)
                edited.removeLineId(line);
            else
                edited.addLineId(line, random.bounded(-1, 3),
                                 PRJMAPPING::CheckState(random.bounded(3)), QString());
            edited.setLineConflicted(line, random.bounded(5) == 0);
            mapping.updateTarget(target, edited);
        }
        if (step % 20 == 19)
            addCondition(mapping, 1, QStringLiteral("k .NE. %1").arg(step % 7));
        f->widget->onProjectMappingUpdated(mapping);
        const QString updated = f->states();
        f->mapping = mapping;
        if (step % 10 == 0) {
            TableEditorFixture walked;
            walked.catalog.write("old/a.prj", lines);
            walked.mapping = mapping;
            walked.load();
            QCOMPARE(updated, walked.states());
            qputenv("TORMEVA_DATA", QFile::encodeName(f->data.path()));
        }
    }
}

void tst_TableMappingWidget::targetsComeAndGo()
{
    f->load();
    QCOMPARE(f->states(), QString("- C N"));
    PrjMappingC mapping = f->mapping;
    mapping.addTarget("", "");
    enter(mapping, 1, 3, -1, Verified);
    f->widget->onProjectMappingUpdated(mapping);
    QCOMPARE(f->states(), QString("- C NC"));
    PrjMappingTargetC first;
    first.setTargetPath("new/b.prj");
    first.setValid(true);
    mapping.insertTarget(0, first);
    enter(mapping, 0, 3, 1, Verified);
    f->widget->onProjectMappingUpdated(mapping);
    QCOMPARE(f->states(), QString("- C M"));
    mapping.removeTarget(1);
    f->widget->onProjectMappingUpdated(mapping);
    QCOMPARE(f->states(), QString("N N M"));
    mapping.removeTarget(0);
    f->widget->onProjectMappingUpdated(mapping);
    QCOMPARE(f->states(), QString("N N NC"));
    mapping.removeTarget(0);
    f->widget->onProjectMappingUpdated(mapping);
    QCOMPARE(f->states(), QString("N N N"));
}

void tst_TableMappingWidget::modifiedLineIsLookedAtAgain()
{
    f->catalog.write("old/a.prj", "D,k:r\nM8,5;8\nM9,6\n");
    f->mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"});
    addCondition(f->mapping, 0, "k .EQ. 5");
    enter(f->mapping, 0, 1, 1, Verified);
    enter(f->mapping, 1, 1, 1, ToCheck);
    addCondition(f->mapping, 1, "k .EQ. 8");
    f->load();
    const QString before = f->states();
    VKTab::Line line = f->sourceTable().getLine(LineId(1), false);
    line.putValue(f->sourceTable().getVar(u"k").getVarId(), VKTab::Value("8"));
    QVERIFY(line.apply());
    enter(f->mapping, 0, 2, 1, Verified);
    f->widget->onProjectMappingUpdated(f->mapping);
    QCOMPARE(before, QString("M N"));
    QCOMPARE(f->states(), QString("C M"));
}

void tst_TableMappingWidget::sharedLineNumbers()
{
    f->catalog.write("old/a.prj", "Id:i,Sub:i,k:n\n1,0,5\n1,1,6\n2,0,7\n", [](auto &table) {
        table.lineIdField = "Id";
        table.lineSubIdField = "Sub";
    });
    f->load();
    QCOMPARE(f->sourceTable().getLineCount(), 3);
    enter(f->mapping, 0, 1, 3, Verified);
    f->widget->onProjectMappingUpdated(f->mapping);
    for (const LineId &id : {LineId(1, 0), LineId(1, 1)})
        QCOMPARE(f->sourceTable().getLine(id, false).getLineKeyValue("CatalogMapper").toString(),
                 QString("M"));
}

void tst_TableMappingWidget::layerIsAskedAnewForEveryWrite()
{
    f->load();
    VKTab::ContentRef table = f->sourceTable();
    const VKTab::ContentRef again = f->read("old/a.prj");
    QList<int> heard;
    const boost::signals2::scoped_connection connection =
        table.signalConnect().connectSignalLineStatus(
            [&](const VKTab::Content &, const LineId &id) {
                heard.append(id.value(0));
                if (heard.size() == 1)
                    table.setFileLayer(again.getFileLayer()); // as if the table were read again
            });
    enter(f->mapping, 0, 1, 3, Verified);
    enter(f->mapping, 0, 2, 2, Verified);
    f->widget->onProjectMappingUpdated(f->mapping);
    QVERIFY(heard.size() >= 2);
    QCOMPARE(TableEditorFixture::status(table, 2, "CatalogMapper"), QString("M"));
}

void tst_TableMappingWidget::manyChangedLinesAtOnce()
{
    QByteArray lines = "k:n\n";
    for (int i = 1; i <= 900; ++i)
        lines += QByteArray::number(i) + "\n";
    f->catalog.write("old/a.prj", lines);
    f->mapping = mappingOf("old/a.prj", {"new/a.prj"});
    for (int line = 1; line <= 800; ++line)
        enter(f->mapping, 0, line, 1, ToCheck);
    f->load();
    // What nobody changed is not written again, so a foreign value stays.
    f->sourceTable().getModifyLayer()->setLineKeyValue(LineId(900), "CatalogMapper", "C");
    int heard = 0;
    const boost::signals2::scoped_connection connection =
        f->sourceTable().signalConnect().connectSignalLineStatus(
            [&](const VKTab::Content &, const LineId &) { ++heard; });
    f->mapping.verifyAll();
    f->widget->onProjectMappingUpdated(f->mapping);
    QCOMPARE(heard, 1);
    QCOMPARE(f->states().count('M'), 800);
    QCOMPARE(f->states().count('N'), 99);
    QVERIFY(f->states().endsWith("N C"));
}

void tst_TableMappingWidget::updateRepaints()
{
    /// Counts the times that a widget is painted from corner to corner.
    class PaintCount : public QObject
    {
    public:
        bool eventFilter(QObject *object, QEvent *event) override
        {
            if (event->type() == QEvent::Paint &&
                static_cast<QPaintEvent *>(event)->region().boundingRect() ==
                    static_cast<QWidget *>(object)->rect())
                ++count;
            return false;
        }
        int count = 0;
    } paints;
    f->load();
    f->widget->onProjectMappingUpdated(f->mapping); // buttons find their states
    QTest::qWait(20);
    f->widget->installEventFilter(&paints);
    f->widget->onProjectMappingUpdated(f->mapping); // nothing changed
    QTRY_VERIFY(paints.count > 0);
}

void tst_TableMappingWidget::designationsFollowThePalette()
{
    f->catalog.write("old/a.prj", "D\nM8\n", [](auto &table) { table.lineDesignation = "{D}"; });
    f->load();
    f->select(1);
    const QLabel *const label = f->label("sourceDesignationLabel");
    QVERIFY(!label->text().isEmpty());
    QVERIFY(!label->autoFillBackground());
    f->widget->setPalette(QPalette(QColor(40, 40, 40)));
    QVERIFY(label->autoFillBackground());
    f->widget->setPalette(QPalette(QColor(240, 240, 240)));
    QVERIFY(!label->autoFillBackground());
}

void tst_TableMappingWidget::toolTips_data()
{
    QTest::addColumn<int>("targetLine");
    QTest::addColumn<QString>("expected");

    QTest::newRow("confirmed") << 3 << "Diese Zuordnung wurde vom Modellierer bestätigt";
    QTest::newRow("expired") << -1
                             << "Diese Zeile ist ausgelaufen. Dies wurde vom Modellierer bestätigt";
}

void tst_TableMappingWidget::toolTips()
{
    QFETCH(int, targetLine);
    enter(f->mapping, 0, 1, targetLine, Verified);
    f->load();
    QTEST(TableEditorFixture::iconToolTip(f->source, 1, "CatalogMapper"), "expected");
}

void tst_TableMappingWidget::toolTipOfAProposal()
{
    f->load();
    QCOMPARE(TableEditorFixture::iconToolTip(f->source, 2, "CatalogMapper"),
             QString("<b>Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt "
                     "oder korrigiert werden</b><br />Die Werte der Variable k sind verschieden."
                     "<br />&nbsp; Alter Wert: 6<br />&nbsp; Neuer Wert: 66<br />"));
    // Without messages the sentence stands alone.
    enter(f->mapping, 0, 1, 3, ToCheck);
    f->widget->onProjectMappingUpdated(f->mapping);
    QCOMPARE(TableEditorFixture::iconToolTip(f->source, 1, "CatalogMapper"),
             QString("<b>Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt "
                     "oder korrigiert werden</b>"));
}

void tst_TableMappingWidget::toolTipOfAConflict()
{
    PrjMappingTargetC target = f->mapping.findTarget(0);
    target.setLineConflicted(2, true);
    f->mapping.updateTarget(0, target);
    f->load();
    QVERIFY(QMetaObject::invokeMethod(f->widget.get(), "onTargetLineConflict",
                                      Q_ARG(QString, "an older text"), Q_ARG(int, 2)));
    f->widget->onTargetLineConflict("somebody else", 2);
    f->widget->onTargetLineConflict("of another line", 1);
    const QString expected = "<b>Für diese Zeile besteht ein Konflikt. Die Zuordnung muss "
                             "bestätigt oder korrigiert werden</b><br />somebody else";
    QCOMPARE(TableEditorFixture::iconToolTip(f->source, 2, "CatalogMapper"), expected);
    f->load(); // the texts live as long as the widget
    QCOMPARE(TableEditorFixture::iconToolTip(f->source, 2, "CatalogMapper"), expected);
}

void tst_TableMappingWidget::toolTipOfAConflictWithoutText()
{
    PrjMappingTargetC target = f->mapping.findTarget(0);
    target.setLineConflicted(2, true);
    f->mapping.updateTarget(0, target);
    f->load();
    QCOMPARE(TableEditorFixture::iconToolTip(f->source, 2, "CatalogMapper"),
             QString("<b>Für diese Zeile besteht ein Konflikt. Die Zuordnung muss bestätigt oder "
                     "korrigiert werden</b><br />"));
}

void tst_TableMappingWidget::toolTipKeepsOneBlank()
{
    f->mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addCondition(f->mapping, 0, " k .EQ. 4711");
    enter(f->mapping, 0, 1, 3, ToCheck);
    f->load();
    const QString text = TableEditorFixture::iconToolTip(f->source, 1, "CatalogMapper");
    QVERIFY2(text.contains("<br />&nbsp;  k .EQ. 4711<br />"), qPrintable(text));
}

void tst_TableMappingWidget::toolTipAfterTheWidget()
{
    f->load();
    const auto options = f->sourceTable().getOptions();
    VKTab::ContentRef table = f->sourceTable();
    const auto handler =
        options->getStatusKey("CatalogMapper").findValue("C")->getToolTipHandler2();
    QVERIFY(!handler(table.getLine(LineId(2), false), 2, 0, nullptr).isEmpty());
    f->widget.reset();
    QCOMPARE(handler(table.getLine(LineId(2), false), 2, 0, nullptr), QString());
}

QTEST_MAIN(tst_TableMappingWidget)
#include "tst_TableMappingWidget.moc"

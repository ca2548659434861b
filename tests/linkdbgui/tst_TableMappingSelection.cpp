#include "TableEditorFixture.h"

#include <mapping/project/ProjectMappingWidget.h>

#include <geomcore/mapper/TargetTable.h>
#include <geomcore/mapper/TargetTables.h>
#include <geomcore/table/BaseLayer.h>
#include <geomcore/table/Line.h>
#include <geomcore/table/SignalConnect.h>
#include <geomcore/table/TableData.h>
#include <geomcore/value/LangThreadSettings.h>
#include <geomcoregui/table/VkTableModel.h>

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QTest>

using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
using PRJMAPPING::Verified;
using VKTab::LineId;

namespace {

QString coloured(const char *colour, const QString &text)
{
    return QStringLiteral("<span style=\"color:%1;\">%2</span>")
        .arg(QColor(QLatin1String(colour)).name(), text);
}

} // namespace

class tst_TableMappingSelection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { f.reset(); }

    void selectedLineShowsItsTarget();
    void keyboardWalksLines();
    void focusStaysInTheTable();
    void lineWithoutTarget();
    void targetThatCannotBeRead();
    void severalSelectedLines();
    void backToOneLine();
    void tellsOfBothTablesAreObeyed_data();
    void tellsOfBothTablesAreObeyed();
    void modifiedLinesAreShownAnew();
    void otherListenersHearFirst();
    void deselectionForgetsTheLine();
    void targetSelectionWithoutSourceLine();
    void newTableKeepsItsPosition();
    void formerTablesAreLetGo();
    void targetLabelIsUntranslated();
    void sameTargetKeepsTableAndPosition();
    void otherTargetReadsItsTable();
    void targetTableIsReadWithoutProjectFilters();
    void valuesOfTheSourceLineAreShown();
    void designations();
    void designationsAreComparedUntranslated();
    void lineIdColumnOnlyBesideRanges();
    void zoomIsTheLarger();
    void assignButtonsOfTargets();

    void mapButton();
    void mapButtonWithRangeText();
    void mapButtonOfSeveralLines();
    void labelsFollowTheTargetSelection();

private:
    /// The mappers of the process keep the target tables that were used last: others take their
    /// place.
    void useOtherTargets();
    [[nodiscard]] QString visible(VkTableView *view) const
    {
        return TableEditorFixture::visibleLines(view->getTable());
    }

    std::unique_ptr<TableEditorFixture> f;
};

void tst_TableMappingSelection::useOtherTargets()
{
    for (int i = 0; i < 8; ++i) {
        const QString path = QStringLiteral("other/%1.prj").arg(i);
        f->catalog.write(path, "D\nM8\n");
        QVERIFY(Mapper::TargetTables::instance().open(f->catalog.file(path)));
    }
}

void tst_TableMappingSelection::init()
{
    f = std::make_unique<TableEditorFixture>();
    f->writeBolts();
}

void tst_TableMappingSelection::selectedLineShowsItsTarget()
{
    f->load();
    f->select(2);
    QVERIFY(f->targetTable().isValid());
    QCOMPARE(f->targetTable().getSelection(), LineId(2));
    QCOMPARE(f->target->getSelectedLines(), QList<LineId>({LineId(2)}));
    QCOMPARE(TableEditorFixture::status(f->targetTable(), 2, "TargetMapping"), QString("C"));
    for (const int line : {1, 3, 4})
        QCOMPARE(TableEditorFixture::status(f->targetTable(), line, "TargetMapping"), QString());
    QCOMPARE(f->label("targetPathLabel")->text(), QString("new/a.prj"));
    QCOMPARE(f->label("targetNumberLabel")->text(), QString("ISO 1-M9"));
    QVERIFY(f->button("btnRemoveLine")->isEnabled());
    QVERIFY(f->button("btnRemoveVerifyLine")->isEnabled());
    QVERIFY(f->button("btnCondition")->isEnabled());
    f->select(3);
    QCOMPARE(f->targetTable().getSelection(), LineId(1));
    QCOMPARE(TableEditorFixture::status(f->targetTable(), 1, "TargetMapping"), QString("C"));
    QCOMPARE(TableEditorFixture::status(f->targetTable(), 2, "TargetMapping"), QString());
}

void tst_TableMappingSelection::keyboardWalksLines()
{
    f->load();
    f->select(1);
    f->press(Qt::Key_Down);
    QCOMPARE(f->widget->selectedSourceLine(), LineId(2));
    QCOMPARE(f->targetTable().getSelection(), LineId(2));
    f->press(Qt::Key_End, Qt::ControlModifier);
    QCOMPARE(f->widget->selectedSourceLine(), LineId(5));
    QVERIFY(!f->targetTable().isValid());
}

void tst_TableMappingSelection::focusStaysInTheTable()
{
    f->load();
    f->select(1);
    QTest::mouseClick(f->button("btnMapLine"), Qt::LeftButton);
    QVERIFY(f->source->grid()->hasFocus());
    f->press(Qt::Key_Down);
    QCOMPARE(f->widget->selectedSourceLine(), LineId(2));
}

void tst_TableMappingSelection::lineWithoutTarget()
{
    f->load();
    f->select(1);
    f->select(5);
    QVERIFY(!f->targetTable().isValid());
    QVERIFY(!f->button("btnRemoveLine")->isEnabled());
    QVERIFY(!f->button("btnRemoveVerifyLine")->isEnabled());
    QVERIFY(f->button("btnCondition")->isEnabled());
    QCOMPARE(f->label("targetPathLabel")->text(), QString());
    QCOMPARE(f->label("targetNumberLabel")->text(), QString());
    QCOMPARE(f->button("btnMapLine")->toolTip(), QString("Zuordnung bestätigen (v)"));
    QVERIFY(f->button("btnMapLine")->isEnabled());
}

void tst_TableMappingSelection::targetThatCannotBeRead()
{
    f->mapping = mappingOf("old/a.prj", {"new/gone.prj"});
    enter(f->mapping, 0, 1, 3, Mapped);
    f->load();
    f->select(1);
    QVERIFY(!f->targetTable().isValid());
    QCOMPARE(f->widget->selectedSourceLine(), LineId(1));
    QVERIFY(!f->button("btnRemoveLine")->isEnabled());
    QCOMPARE(f->label("targetPathLabel")->text(), QString());
}

void tst_TableMappingSelection::severalSelectedLines()
{
    f->load();
    f->select(1);
    f->click(f->source, 2, Qt::ControlModifier);
    QCOMPARE(f->source->getSelectedLineCount(), 2);
    QVERIFY(!f->targetTable().isValid());
    QVERIFY(!f->button("btnCondition")->isEnabled());
    QVERIFY(!f->button("btnResolvedRanges")->isEnabled());
    QVERIFY(f->button("btnRemoveLine")->isEnabled());
    QVERIFY(f->button("btnRemoveVerifyLine")->isEnabled());
    for (const char *const name : {"sourceDesignationLabel", "targetDesignationLabel",
                                   "targetNumberLabel", "targetPathLabel"})
        QCOMPARE(f->label(name)->text(), QString());
}

void tst_TableMappingSelection::backToOneLine()
{
    f->load();
    f->select(1);
    f->click(f->source, 2, Qt::ControlModifier);
    f->select(2);
    QVERIFY(f->targetTable().isValid());
    QVERIFY(f->button("btnCondition")->isEnabled());
}

void tst_TableMappingSelection::tellsOfBothTablesAreObeyed_data()
{
    QTest::addColumn<bool>("modifies");
    QTest::newRow("selection") << false;
    QTest::newRow("modification") << true;
}

/// Puts a value into a line, or takes it back.
static void modify(const VKTab::ContentRef &table, int line, const char *value)
{
    VKTab::Line changed = table.getLine(LineId(line), false);
    changed.putValue(table.getVar(u"k").getVarId(),
                     value ? VKTab::Value(value) : changed.getValue(table.getVar(u"k"), {}));
    QVERIFY(changed.apply());
}

void tst_TableMappingSelection::tellsOfBothTablesAreObeyed()
{
    QFETCH(bool, modifies);
    f->catalog.write("old/a.prj", "D,k:r\nM8,5;6\nM9,6\n");
    f->catalog.write("new/a.prj", "D,k:r\nM10,7\nM9,66\nM8,5;6\n");
    f->load();
    f->select(1);
    const VKTab::ContentRef source = f->sourceTable();
    VKTab::ContentRef target = f->targetTable();
    // A line that is no longer selected, or shows the file's values again, changes nothing but what
    // is known of the last line shown: with the selection gone the labels stay.
    f->label("targetPathLabel")->setText("left alone");
    f->label("targetNumberLabel")->setText("left alone");
    if (modifies) {
        source.getModifyLayer()->setValue(source.getVar(u"k").getVarId(), 1, VKTab::Value("5"));
        QCOMPARE(f->label("targetPathLabel")->text(), QString("new/a.prj"));
        f->label("targetPathLabel")->setText("left alone");
        source.getModifyLayer()->setValue(source.getVar(u"k").getVarId(), 1, VKTab::Value());
        QCOMPARE(f->label("targetPathLabel")->text(), QString("left alone"));
        f->label("targetNumberLabel")->setText("left alone");
        target.getModifyLayer()->setValue(target.getVar(u"k").getVarId(), 1, VKTab::Value("8"));
        QCOMPARE(f->label("targetNumberLabel")->text(), QString());
        f->label("targetNumberLabel")->setText("left alone");
        target.getModifyLayer()->setValue(target.getVar(u"k").getVarId(), 1, VKTab::Value());
    } else {
        target.setSelection(LineId(), true);
        QCOMPARE(f->label("targetNumberLabel")->text(), QString("left alone"));
        VKTab::ContentRef(source).setSelection(LineId(), true);
        QCOMPARE(f->label("targetPathLabel")->text(), QString("left alone"));
    }
    QCOMPARE(f->label("targetNumberLabel")->text(), QString("left alone"));
}

void tst_TableMappingSelection::modifiedLinesAreShownAnew()
{
    f->catalog.write("old/a.prj", "D,k:r\nM8,5;6\nM9,6\n");
    f->catalog.write("new/a.prj", "D,k:r\nM10,7\nM9,66\nM8,5;6;7\n");
    f->load();
    f->select(1);
    const VKTab::ContentRef target = f->targetTable();
    const auto shown = [&] {
        return target.getLine(LineId(3), false).getValue(target.getVar(u"k"), {}).toString();
    };
    modify(f->sourceTable(), 1, "6");
    QCOMPARE(shown(), QString("6"));
    modify(f->sourceTable(), 1, "5");
    QCOMPARE(shown(), QString("5"));
    // In the target table the button looks again.
    f->button("btnMapLine")->setEnabled(false);
    modify(target, 3, "7");
    QVERIFY(f->button("btnMapLine")->isEnabled());
}

void tst_TableMappingSelection::otherListenersHearFirst()
{
    f->load();
    f->select(1);
    // The tables' own listeners, which come first, have the new line when the widget asks.
    QString atLibraryTime;
    const auto listen = [&](const VKTab::ContentRef &table, QLabel *label) {
        return table.signalConnect().connectSignalLineSelected(
            [&atLibraryTime, label](const VKTab::Content &, const LineId &, bool selected) {
                if (selected)
                    atLibraryTime = label->text();
                return 0;
            },
            VKTab::ConnectGroupLibrary);
    };
    const boost::signals2::scoped_connection source =
        listen(f->sourceTable(), f->label("sourceDesignationLabel"));
    f->select(2);
    QVERIFY(atLibraryTime.contains("M8"));
    QVERIFY(f->label("sourceDesignationLabel")->text().contains("M9"));
    const boost::signals2::scoped_connection target =
        listen(f->targetTable(), f->label("targetDesignationLabel"));
    f->click(f->target, 4);
    QVERIFY(atLibraryTime.contains("M9"));
    QVERIFY(f->label("targetDesignationLabel")->text().contains("M20"));
}

void tst_TableMappingSelection::deselectionForgetsTheLine()
{
    f->load();
    f->select(1);
    f->click(f->target, 2);
    const QString toolTip = f->button("btnMapLine")->toolTip();
    QVERIFY(toolTip.startsWith("Aktuell markierte"));
    f->sourceTable().setSelection(LineId(), true);
    QVERIFY(f->targetTable().isValid());
    f->click(f->target, 1); // belongs to no source line now
    QCOMPARE(f->button("btnMapLine")->toolTip(), toolTip);
    QCOMPARE(f->label("targetNumberLabel")->text(), QString());
}

void tst_TableMappingSelection::targetSelectionWithoutSourceLine()
{
    f->load();
    f->select(1);
    f->source->setActive(
        false); // the view keeps no selection of its own for a line shown by others
    f->sourceTable().setSelection(LineId(2), true);
    f->click(f->target, 1);
    QCOMPARE(f->label("targetNumberLabel")->text(), QString("ISO 1-M10"));
    f->source->setActive(true);
}

void tst_TableMappingSelection::newTableKeepsItsPosition()
{
    QByteArray head = "D";
    QByteArray line = "M8";
    for (int i = 0; i < 40; ++i) {
        head += ",column" + QByteArray::number(i);
        line += ",value";
    }
    f->catalog.write("new/a.prj", head + "\n" + line + "\n" + line + "\n" + line + "\n");
    f->catalog.write("new/b.prj", head + "\n" + line + "\n");
    f->load();
    f->select(1);
    f->target->setHorizontalScrollPos(150);
    f->select(4);
    QCOMPARE(f->target->getHorizontalScrollPos(), 0);
}

void tst_TableMappingSelection::formerTablesAreLetGo()
{
    f->load();
    f->select(1);
    f->tick("chkFilterTarget");
    const std::weak_ptr<const VKTab::TableData> target = f->targetTable().getTableData();
    f->tick("chkFilterTarget");
    f->select(4);
    useOtherTargets();
    QVERIFY(target.expired());
    const std::weak_ptr<const VKTab::TableData> source = f->sourceTable().getTableData();
    f->load(VKTab::ContentRef());
    QVERIFY(source.expired());
}

void tst_TableMappingSelection::targetLabelIsUntranslated()
{
    f->catalog.write("old/a.prj", "D,k:n\nBlank,5\n");
    f->catalog.write("new/a.prj", "D,k:n\nBlank,5\nBlank,6\nBlank,7\n",
                     [](VKTab::TableDescriptor &table) {
                         table.lineDesignation = "D";
                         table.lineNormNumber = "D";
                         table.translations["en"].insert("Blank", "bare");
                     });
    VKTab::LangThreadSettings language;
    language.setLanguage("en");
    f->load();
    f->select(1);
    f->click(f->target, 2); // no source line is being shown meanwhile
    QVERIFY(f->label("targetDesignationLabel")->text().contains("Blank"));
    QCOMPARE(f->label("targetNumberLabel")->text(), QString("Blank"));
}

void tst_TableMappingSelection::sameTargetKeepsTableAndPosition()
{
    QByteArray head = "D";
    QByteArray line = "M8";
    for (int i = 0; i < 40; ++i) {
        head += ",column" + QByteArray::number(i);
        line += ",value";
    }
    f->catalog.write("new/a.prj", head + "\n" + line + "\n" + line + "\n" + line + "\n");
    f->load();
    f->select(1);
    const VKTab::ContentRef table = f->targetTable();
    f->target->setHorizontalScrollPos(150);
    f->select(2);
    QVERIFY(f->targetTable() == table);
    QCOMPARE(f->target->getHorizontalScrollPos(), 150);
}

void tst_TableMappingSelection::otherTargetReadsItsTable()
{
    f->load();
    f->select(1);
    const VKTab::ContentRef table = f->targetTable();
    f->select(4);
    QVERIFY(f->targetTable().isValid());
    QVERIFY(!(f->targetTable() == table));
    QCOMPARE(f->label("targetPathLabel")->text(), QString("new/b.prj"));
    QCOMPARE(f->targetTable().getSelection(), LineId(1));
    f->select(1);
    QVERIFY(!(f->targetTable() == table)); // read anew
}

void tst_TableMappingSelection::targetTableIsReadWithoutProjectFilters()
{
    f->catalog.write("new/a.prj", "D,k:n\nM10,7\nM9,66\nM8,5\n", [](auto &table) {
        table.filterConditions = {{"PRJLINECOND", "k .LT. 6", {}}, {"BYPRJ", "k .LT. 7", {}}};
    });
    f->load();
    f->select(2);
    QCOMPARE(visible(f->target), QString("1 2 3"));
}

void tst_TableMappingSelection::valuesOfTheSourceLineAreShown()
{
    f->catalog.write("new/a.prj", "D,k:r\nM10,7\nM9,66\nM8,4;5;6\nM20,1\n");
    f->load();
    f->select(1);
    const VKTab::ContentRef table = f->targetTable();
    QCOMPARE(table.getLine(LineId(3), false).getValue(table.getVar(u"k"), {}).toString(),
             QString("5"));
}

void tst_TableMappingSelection::designations()
{
    f->load();
    f->select(1);
    QCOMPARE(f->label("sourceDesignationLabel")->text(), coloured("#008000", "Bolt M8"));
    QCOMPARE(f->label("targetDesignationLabel")->text(), coloured("#008000", "Bolt M8"));
    f->click(f->target, 2);
    QCOMPARE(f->label("sourceDesignationLabel")->text(), coloured("#ff0000", "Bolt M8"));
    QCOMPARE(f->label("targetDesignationLabel")->text(), coloured("#ff0000", "Bolt M9"));
    f->select(5);
    QCOMPARE(f->label("sourceDesignationLabel")->text(), coloured("#ff0000", "Bolt M12"));
    QCOMPARE(f->label("targetDesignationLabel")->text(), coloured("#ff0000", ""));
}

void tst_TableMappingSelection::designationsAreComparedUntranslated()
{
    f->catalog.write("old/a.prj", "D,k:n\nBlank,5\n", [](VKTab::TableDescriptor &table) {
        table.lineDesignation = "D";
        table.translations["en"].insert("Blank", "plain");
    });
    f->catalog.write("new/a.prj", "D,k:n\nBlank,5\nBlank,6\nBlank,7\n",
                     [](VKTab::TableDescriptor &table) {
                         table.lineDesignation = "D";
                         table.translations["en"].insert("Blank", "bare");
                     });
    VKTab::LangThreadSettings language;
    language.setLanguage("en");
    f->load();
    f->select(1);
    QCOMPARE(f->label("sourceDesignationLabel")->text(), coloured("#008000", "Blank"));
    QCOMPARE(f->label("targetDesignationLabel")->text(), coloured("#008000", "Blank"));
    QVERIFY(!VKTab::LangThreadSettings::isTranslationDisabled());
}

void tst_TableMappingSelection::lineIdColumnOnlyBesideRanges()
{
    f->load();
    f->select(1);
    QVERIFY(!f->targetTable().getVar(u"LINE_ID").isValid());
    f->catalog.write("old/a.prj", "D,k:r\nM8,5;6\n");
    f->load();
    f->select(1);
    const VKTab::Var var = f->targetTable().getVar(u"LINE_ID");
    QVERIFY(var.isValid());
    QCOMPARE(f->target->model()->columnOf(var.getVarId()), f->target->model()->columnCount() - 1);
}

void tst_TableMappingSelection::zoomIsTheLarger()
{
    f->load();
    f->source->setZoomFactor(1.5);
    f->select(1);
    QCOMPARE(f->target->getZoomFactor(), 1.5);
    f->target->setZoomFactor(2);
    f->select(4);
    QCOMPARE(f->source->getZoomFactor(), 2.0);
}

void tst_TableMappingSelection::assignButtonsOfTargets()
{
    ProjectMappingWidget project(nullptr);
    f->widget->setProjectMappingWidget(&project);
    project.loadSourceProject(f->mapping, f->read("old/a.prj"), CatalogMappingC());
    const auto enabled = [&] {
        QStringList states;
        for (const QPushButton *const button : project.findChildren<QPushButton *>("assignButton"))
            states.append(button->isEnabled() ? "on" : "off");
        return states.join(u' ');
    };
    f->load();
    f->select(1);
    QCOMPARE(enabled(), QString("off off"));
    f->select(5);
    QCOMPARE(enabled(), QString("on on"));
    f->select(1);
    f->click(f->source, 2, Qt::ControlModifier);
    QCOMPARE(enabled(), QString("on on"));
    f->widget->setProjectMappingWidget(nullptr);
}

void tst_TableMappingSelection::mapButton()
{
    f->load();
    f->select(1);
    const QPushButton *const button = f->button("btnMapLine");
    const auto image = [](const QIcon &icon) {
        return icon.pixmap(16).toImage();
    };
    const QImage confirm = image(QIcon(":/bitmaps/confirm_mapping.png"));
    const QImage assign = image(QIcon(":/bitmaps/line.png"));
    QVERIFY(confirm != assign);
    QCOMPARE(button->toolTip(), QString("Zuordnung bestätigen (v)"));
    QCOMPARE(image(button->icon()), confirm);
    QVERIFY(button->isEnabled());
    QCOMPARE(button->text(), QString());
    f->click(f->target, 1);
    QCOMPARE(button->text(), QString("1 → 1"));
    QCOMPARE(button->shortcut(), QKeySequence(Qt::Key_V));
    QCOMPARE(button->toolTip(), QString("Aktuell markierte Zeile zuordnen (v)"));
    QCOMPARE(button->accessibleName(), button->toolTip());
    QCOMPARE(image(button->icon()), assign);
    QVERIFY(button->isEnabled());
    f->click(f->target, 3);
    QCOMPARE(button->toolTip(), QString("Zuordnung bestätigen (v)"));
    QCOMPARE(image(button->icon()), confirm);
    QCOMPARE(button->text(), QString());
    QCOMPARE(button->shortcut(), QKeySequence(Qt::Key_V));
    // With the target table goes what was selected in it.
    f->click(f->target, 1);
    f->click(f->source, 2, Qt::ControlModifier);
    QCOMPARE(button->text(), QString());
    QCOMPARE(button->shortcut(), QKeySequence(Qt::Key_V));
}

void tst_TableMappingSelection::mapButtonWithRangeText()
{
    enter(f->mapping, 0, 1, 3, Mapped, "{k=5} -> 3");
    f->load();
    f->select(1);
    const QPushButton *const button = f->button("btnMapLine");
    QVERIFY(button->isEnabled());
    f->click(f->target, 1);
    QVERIFY(!button->isEnabled());
    QCOMPARE(button->text(), QString());
    QCOMPARE(button->toolTip(),
             QString("Es existiert eine Wertebereichszuordnung für diese Zeile.\nZuordnung muss "
                     "über 'Wertebereichszuordnung bearbeiten' verändert werden"));
    f->click(f->target, 3);
    QVERIFY(button->isEnabled());
    QCOMPARE(button->toolTip(), QString("Zuordnung bestätigen (v)"));
}

void tst_TableMappingSelection::mapButtonOfSeveralLines()
{
    // A multiple selection leaves the button as it was.
    enter(f->mapping, 0, 1, 3, Mapped, "{k=5} -> 3");
    f->load();
    f->select(1);
    f->click(f->target, 1);
    const QString toolTip = f->button("btnMapLine")->toolTip();
    f->click(f->source, 2, Qt::ControlModifier);
    QCOMPARE(f->button("btnMapLine")->toolTip(), toolTip);
    QVERIFY(!f->button("btnMapLine")->isEnabled());
}

void tst_TableMappingSelection::labelsFollowTheTargetSelection()
{
    f->load();
    f->select(1);
    f->click(f->target, 4);
    QCOMPARE(f->label("targetNumberLabel")->text(), QString("ISO 1-M20"));
    QCOMPARE(f->label("targetPathLabel")->text(), QString("new/a.prj"));
}

QTEST_MAIN(tst_TableMappingSelection)
#include "tst_TableMappingSelection.moc"

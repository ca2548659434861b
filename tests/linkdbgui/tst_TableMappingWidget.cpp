#include "TableEditorFixture.h"

#include <core/config/PConfigService.h>
#include <core/message/PScriptedMessageSink.h>
#include <geomcore/table/BaseLayer.h>
#include <geomcore/table/FileLayer.h>
#include <geomcore/table/TabOptions.h>
#include <geomcoregui/table/VkTableModel.h>

#include <QDialog>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QLayout>
#include <QMenu>
#include <QPaintEvent>
#include <QSplitter>
#include <QTest>
#include <QTimer>

#include <boost/make_shared.hpp>

using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
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

    void updateRepaints();
    void designationsFollowThePalette();

private:
    std::unique_ptr<TableEditorFixture> f;
};

void tst_TableMappingWidget::init()
{
    f = std::make_unique<TableEditorFixture>();
    f->writeThreeLines([](auto &table) {
        table.normNumber = "DIN 1";
        table.lineDesignation = "DIN 1 - {D}";
        table.filterConditions = {{"PRJLINECOND", "k .LT. 6", {}},
                                  {"BYPRJ", "k .LT. 7", {}},
                                  {"OTHER", "k .LT. 100", {}}};
    });
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
    QLabel *const label = f->label("sourceDesignationLabel");
    QVERIFY(!label->text().isEmpty());
    for (const QColor &ground : {QColor(40, 40, 40), QColor(240, 240, 240)}) {
        f->widget->setPalette(QPalette(ground));
        QCOMPARE(label->palette().color(QPalette::Window), ground);
        label->resize(label->sizeHint());
        const QImage shown = label->grab().toImage();
        int contrast = 0;
        for (int y = 0; y < shown.height(); ++y) {
            for (int x = 0; x < shown.width(); ++x)
                contrast = qMax(contrast, qAbs(qGray(shown.pixel(x, y)) - qGray(ground.rgb())));
        }
        QVERIFY2(contrast > 60, qPrintable(QString::number(contrast)));
    }
}

QTEST_MAIN(tst_TableMappingWidget)
#include "tst_TableMappingWidget.moc"

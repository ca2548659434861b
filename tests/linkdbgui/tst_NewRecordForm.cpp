#include "DocumentFixture.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

/// The form in which a record of the document dialog is typed.
class tst_NewRecordForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void contents();
    void systems();
    void values();
    void grows();
    void ofAnotherShape();
};

void tst_NewRecordForm::contents()
{
    const PApplication host({});
    const StatementLog log;
    NewRecordDialogC form;
    QCOMPARE(form.parent(), nullptr);
    QCOMPARE(form.objectName(), QString("NewRecordDialog"));
    QCOMPARE(form.windowTitle(), QString("Neuen Datensatz anlegen"));
    QCOMPARE(form.size(), QSize(411, 231));
    const QMetaObject &meta = NewRecordDialogC::staticMetaObject;
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(form.values(), ValueMap());
    form.setXVarset("nowhere");
    form.setFields({"B", "CADSYSTEM", "XVARSET", "PDMSYSTEM", "A"});
    QCOMPARE(labelsOf(form), (QStringList{"B", "XVARSET", "A", "CADSYSTEM", "PDMSYSTEM"}));
    const auto *const grid = widgetOf<QGridLayout>(form, "gridLayout");
    QVERIFY(qobject_cast<QLineEdit *>(grid->itemAtPosition(0, 1)->widget()));
    QCOMPARE(fieldOf(form, "XVARSET")->property("field").toString(), QString("XVARSET"));
    for (const char *system : {"CADSYSTEM", "PDMSYSTEM"}) {
        const auto *const box = qobject_cast<QComboBox *>(fieldOf(form, system));
        QVERIFY(box && box->isEditable());
    }
    // The first of its kind takes it.
    QLineEdit second(&form);
    second.setProperty("field", "XVARSET");
    form.setXVarset("{L=1}");
    QCOMPARE(second.text(), QString());
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    QVERIFY(fieldOf(form, "B")->hasFocus());
    QCOMPARE(
        form.values(),
        (ValueMap{
            {"A", ""}, {"B", ""}, {"CADSYSTEM", ""}, {"PDMSYSTEM", ""}, {"XVARSET", "{L=1}"}}));
    QCOMPARE(StatementLog::warnings(), QStringList());
    // Keyboard alone: through the fields to Ok.
    QTest::keyClicks(&form, "b");
    QTest::keyClick(qApp->focusWidget(), Qt::Key_Tab);
    QVERIFY(fieldOf(form, "XVARSET")->hasFocus());
    QTest::keyClick(qApp->focusWidget(), Qt::Key_Return);
    QCOMPARE(form.result(), int(QDialog::Accepted));
}

void tst_NewRecordForm::systems()
{
    const PApplication host({});
    NewRecordDialogC form;
    QCOMPARE(form.cadSystem() + form.pdmSystem(), QString());
    form.setSystemLists({"c1", "c2"}, {"p1"});
    QCOMPARE(form.cadSystem() + form.pdmSystem(), QString());
    form.setFields({});
    QCOMPARE(labelsOf(form), (QStringList{"CADSYSTEM", "PDMSYSTEM"}));
    QCOMPARE(boxTexts(form, "CADSYSTEM"), QString("c1|c2:c1"));
    form.setSystemLists({"c3"}, {"p2"});
    QCOMPARE(boxTexts(form, "CADSYSTEM"), QString("c1|c2|c3:c1"));
    QCOMPARE(boxTexts(form, "PDMSYSTEM"), QString("p1|p2:p1"));
    form.setValues({{"CADSYSTEM", "c2"}, {"PDMSYSTEM", "P1"}});
    QCOMPARE(boxTexts(form, "CADSYSTEM"), QString("c1|c2|c3:c2"));
    QCOMPARE(boxTexts(form, "PDMSYSTEM"), QString("p1|p2|P1:P1"));
    QCOMPARE(QString(form.cadSystem()), QString("c2"));
    QCOMPARE(QString(form.pdmSystem()), QString("P1"));
    // What is typed stays as it is, whatever the list offers.
    form.show();
    for (const char *text : {"C", "p", "C2", "c"}) {
        typeInto(form, "CADSYSTEM", text);
        QTest::keyClick(&form, Qt::Key_Tab);
        QCOMPARE(QString(form.cadSystem()), QString(text));
    }
}

void tst_NewRecordForm::values()
{
    const PApplication host({});
    NewRecordDialogC form;
    form.setFields({"A", "b", "<i>C</i>"});
    QCOMPARE(fieldOf(form, "b")->property("field").toString(), QString("B"));
    form.setValues({{"A", "1"}, {"B", "2"}, {"D", "3"}});
    form.setValues({{"<i>C</i>", "4"}});
    QCOMPARE(
        form.values(),
        (ValueMap{{"<i>C</i>", "4"}, {"A", "1"}, {"CADSYSTEM", ""}, {"PDMSYSTEM", ""}, {"b", ""}}));
}

void tst_NewRecordForm::grows()
{
    const PApplication host({});
    NewRecordDialogC form;
    PStringList columns;
    for (int i = 0; i < 200; ++i)
        columns.append(QStringLiteral("COLUMN%1").arg(i));
    form.setFields(columns);
    form.show();
    QVERIFY(form.height() <= form.screen()->availableSize().height());
    QVERIFY(form.height() > 231);
    // Each field can be reached, and the buttons stay in sight.
    auto *const area = form.findChild<QScrollArea *>();
    QWidget *const last = fieldOf(form, "PDMSYSTEM");
    last->setFocus();
    area->ensureWidgetVisible(last);
    QVERIFY(
        area->viewport()->rect().contains(last->mapTo(area->viewport(), last->rect().center())));
    const QWidget *const buttons = widgetOf<QWidget>(form, "buttonBox");
    QVERIFY(form.rect().contains(buttons->mapTo(&form, buttons->rect().center())));
    NewRecordDialogC small;
    small.setFields({"A"});
    small.show();
    QVERIFY(!small.findChild<QScrollArea *>()->verticalScrollBar()->isVisible());
}

void tst_NewRecordForm::ofAnotherShape()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkpath("linkdbgui"));
    const QStringList places = QDir::searchPaths("forms");
    const PApplication host({});
    // The grid is the form's own layout; then there is no grid at all.
    for (const char *layout : {"<layout class=\"QGridLayout\" name=\"gridLayout\"/>", ""}) {
        QFile file(folder.filePath("linkdbgui/NewRecordDialog.ui"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray("<ui version=\"4.0\"><widget class=\"QWidget\" name=\"f\">") +
                   layout + "</widget></ui>");
        file.close();
        QDir::setSearchPaths("forms", {folder.path()});
        NewRecordDialogC form;
        QDir::setSearchPaths("forms", places);
        form.setFields({"A"});
        form.setValues({{"A", "1"}, {"CADSYSTEM", "c"}});
        QCOMPARE(form.values(), qstrlen(layout) > 0
                                    ? (ValueMap{{"A", "1"}, {"CADSYSTEM", "c"}, {"PDMSYSTEM", ""}})
                                    : ValueMap());
    }
}

QTEST_MAIN(tst_NewRecordForm)
#include "tst_NewRecordForm.moc"

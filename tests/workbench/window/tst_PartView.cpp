#include "WindowFixture.h"

#include <core/message/PMessage.h>
#include <core/message/PScriptedMessageSink.h>
#include <geomcore/project/CatalogPlaces.h>
#include <geomcoregui/table/VkTableModel.h>
#include <geomcoregui/table/VkTableView.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/look/PartView.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/message/StatusArea.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace {

const QString Nuts = QStringLiteral("standardparts/nuts/din985.prj");
const QString Target = QStringLiteral("standardparts/nuts/iso10511.prj");

QList<PartView *> partViews(const WindowFixture &fixture)
{
    return fixture.window->findChildren<PartView *>();
}

QString textOf(const PartView *view, const char *name)
{
    const auto *const label = view->findChild<QLabel *>(QLatin1String(name));
    return label ? label->text() : QStringLiteral("-");
}

} // namespace

/// The view of a target project that the editor asks for.
class tst_PartView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensTheTargetProject();
    void findsAndFilters();
    void oneViewForAProject();
    void closesWithTheDocument();
    void placesOfTheSettingsMayBeRead();
    void missingProject();
    void unreadableTable();
    void hostilePath();
};

void tst_PartView::opensTheTargetProject()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    QVERIFY(fixture.window->editor()->selectProject(Nuts));
    auto *const button = fixture.window->findChild<QPushButton *>("openButton");
    QVERIFY(button);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(partViews(fixture).size(), 1);
    const PartView *const view = partViews(fixture).first();
    QVERIFY(view->isVisible());
    QVERIFY(!view->isModal());
    QCOMPARE(view->windowTitle(), QStringLiteral("iso10511"));
    QCOMPARE(textOf(view, "path"), Target);
    QCOMPARE(textOf(view, "norm"), QStringLiteral("ISO 10511"));
    QVERIFY(!textOf(view, "designation").isEmpty());
    QCOMPARE(textOf(view, "projectVersion"), QStringLiteral("v240531114500"));
    QCOMPARE(textOf(view, "tableVersion"), QStringLiteral("v240531114500"));
    QVERIFY(textOf(view, "file").endsWith(QDir::toNativeSeparators(Target)));
    const auto *const table = view->findChild<VkTableView *>();
    QCOMPARE(QString::number(table->model()->rowCount()), textOf(view, "lines"));
    QVERIFY(table->model()->rowCount() > 0);
}

void tst_PartView::findsAndFilters()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    Q_EMIT fixture.window->editor()->targetProjectWanted(Target);
    const PartView *const view = partViews(fixture).first();
    QVERIFY(QTest::qWaitForWindowExposed(view->window()));
    const auto *const table = view->findChild<VkTableView *>();
    auto *const findBar = table->findChild<QWidget *>("findBar");
    QVERIFY(findBar->isHidden());
    QTest::mouseClick(view->findChild<QPushButton *>("find"), Qt::LeftButton);
    QVERIFY(findBar->isVisible());
    auto *const filterBar = table->findChild<QWidget *>("filterBar");
    QVERIFY(!filterBar->isVisible());
    auto *const filter = view->findChild<QPushButton *>("filter");
    QTest::keyClick(filter, Qt::Key_Space);
    QVERIFY(filterBar->isVisible());
    QTest::keyClick(filter, Qt::Key_Space);
    QVERIFY(!filterBar->isVisible());
}

void tst_PartView::oneViewForAProject()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    Q_EMIT fixture.window->editor()->targetProjectWanted(Target);
    Q_EMIT fixture.window->editor()->targetProjectWanted(Target);
    QCOMPARE(partViews(fixture).size(), 1);
    Q_EMIT fixture.window->editor()->targetProjectWanted(Nuts.chopped(10) + "iso4032.prj");
    QCOMPARE(partViews(fixture).size(), 2);
    QTest::keyClick(partViews(fixture).first(), Qt::Key_Escape);
    QTRY_COMPARE(partViews(fixture).size(), 1);
}

void tst_PartView::closesWithTheDocument()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    Q_EMIT fixture.window->editor()->targetProjectWanted(Target);
    QVERIFY(fixture.window->desk()->close());
    QTRY_COMPARE(partViews(fixture).size(), 0);
}

void tst_PartView::placesOfTheSettingsMayBeRead()
{
    WindowFixture fixture;
    const QTemporaryDir elsewhere;
    const QString file = elsewhere.filePath("a.prj");
    QVERIFY(!CatalogPlaces::instance().refusalOfTarget(file).isEmpty());
    WorkbenchSettings::Values values = fixture.settings->values();
    values.allowedPlaces = QStringList{elsewhere.path()};
    fixture.settings->setValues(values);
    QCOMPARE(CatalogPlaces::instance().refusalOfTarget(file), QString());
    values.allowedPlaces.clear();
    fixture.settings->setValues(values);
    QVERIFY(!CatalogPlaces::instance().refusalOfTarget(file).isEmpty());
}

void tst_PartView::missingProject()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    const auto sink = std::make_shared<PScriptedMessageSink>();
    const PMessageSinkScope scope(sink);
    Q_EMIT fixture.window->editor()->targetProjectWanted("standardparts/%1<b>.prj");
    QCOMPARE(partViews(fixture).size(), 0);
    QCOMPARE(sink->texts(), QStringList("Das Zielprojekt standardparts/%1<b>.prj gibt es nicht."));
}

void tst_PartView::unreadableTable()
{
    const QTemporaryDir directory;
    const QString file = directory.filePath("a.prj");
    QFile project(file);
    QVERIFY(project.open(QIODevice::WriteOnly));
    project.write("[PROJECT]\nSACHM=gone.json\nDATE=2024-05-06T07:08:09Z\n");
    project.close();
    const auto sink = std::make_shared<PScriptedMessageSink>();
    const PMessageSinkScope scope(sink);
    auto *const view = new PartView("cat/a.prj", file, nullptr);
    view->show();
    QVERIFY(textOf(view, "unreadable")
                .startsWith("Die Tabelle des Projektes kann nicht gelesen werden.\n"));
    QCOMPARE(textOf(view, "projectVersion"), QStringLiteral("v240506070809"));
    QCOMPARE(textOf(view, "tableVersion"), QStringLiteral("-"));
    QVERIFY(!view->findChild<QPushButton *>("find"));
    QTest::mouseClick(view->findChild<QPushButton *>("close"), Qt::LeftButton);
    QCOMPARE(sink->texts(), QStringList());
}

void tst_PartView::hostilePath()
{
    const QString path = "cat/<b>%1\"'&\n" + QString(3000, 'x') + ".prj";
    const auto sink = std::make_shared<PScriptedMessageSink>();
    const PMessageSinkScope scope(sink);
    PartView *const view = new PartView(path, "/nowhere/x.prj", nullptr);
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view));
    QCOMPARE(textOf(view, "path"), path);
    QVERIFY(view->width() < 2000);
    view->close();
}

QTEST_MAIN(tst_PartView)
#include "tst_PartView.moc"

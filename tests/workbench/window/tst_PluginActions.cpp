#include "ModalScript.h"
#include "WindowFixture.h"

#include <geomcore/table/Content.h>
#include <geomcore/table/TabOptions.h>
#include <geomcoregui/table/VkTableView.h>
#include <gui/application/PApplicationPool.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <QAction>
#include <QCheckBox>
#include <QDesktopServices>
#include <QToolBar>
#include <QUrl>
#include <QUrlQuery>

namespace {

const QString din933 = QStringLiteral("standardparts/screws/din933.prj");

QAction *pooled(const char *name)
{
    return PApplicationPool::instance().action(QLatin1String(name));
}

} // namespace

class tst_PluginActions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void allStandInTheToolBarInOrder()
    {
        const WindowFixture fixture;
        QStringList names;
        const auto actions = fixture.window->findChild<QToolBar *>("pluginToolBar")->actions();
        for (const QAction *action : actions) {
            names << action->objectName();
            QVERIFY2(!action->icon().isNull(), qPrintable(action->objectName()));
            QVERIFY(!action->icon().pixmap(24, 24).isNull());
        }
        QCOMPARE(names,
                 (QStringList{"LinkDbLogin", "LinkDbChangeGroup", "CallLinkMgr", "LinkDbBackToMgr",
                              "LinkDbCancelBackToMgr", "LinkDbSendMail", "LinkDbAddToDb",
                              "LinkDbShowLegend", "LinkDbFilteronoff", "PreferredRanges"}));
    }

    void saysWhyOneIsNotThere_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("tip");
        const QString noDatabase =
            QStringLiteral(" – nicht verfügbar: es ist keine Linkdatenbank verbunden");
        QTest::newRow("login") << "LinkDbLogin"
                               << "Benutzer authentifizieren/wechseln" + noDatabase;
        QTest::newRow("group") << "LinkDbChangeGroup"
                               << "Gruppe auswählen" + noDatabase;
        QTest::newRow("manager") << "CallLinkMgr"
                                 << "Linkmanager aufrufen" + noDatabase;
        QTest::newRow("back") << "LinkDbBackToMgr"
                              << "Auswahl an Linkmanager senden" + noDatabase;
        QTest::newRow("cancel") << "LinkDbCancelBackToMgr"
                                << "Auswahl abbrechen" + noDatabase;
        QTest::newRow("add") << "LinkDbAddToDb"
                             << "Datensatz zur Linkdatenbank hinzufügen" + noDatabase;
        QTest::newRow("mail") << "LinkDbSendMail"
                              << "Beantragen einer ERP-Nummer per Mail – nicht verfügbar: es ist "
                                 "kein Projekt gewählt";
        QTest::newRow("filter") << "LinkDbFilteronoff"
                                << "Baum gefiltert darstellen – nicht verfügbar: es ist keine "
                                   "Datei geöffnet";
        QTest::newRow("ranges") << "PreferredRanges"
                                << "Vorzugsreihen An/Aus – nicht verfügbar: es ist keine Datei "
                                   "geöffnet";
    }
    void saysWhyOneIsNotThere()
    {
        QFETCH(QString, name);
        QFETCH(QString, tip);
        const WindowFixture fixture;
        const QAction *const action = pooled(qPrintable(name));
        QVERIFY(!action->isEnabled());
        QCOMPARE(action->isVisible(), !tip.contains("Linkdatenbank verbunden"));
        QCOMPARE(action->toolTip(), tip);
        QCOMPARE(action->statusTip(), tip);
    }

    void filterFollowsTheTreesBox()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        QAction *const action = pooled("LinkDbFilteronoff");
        auto *box = fixture.window->editor()->findChild<QCheckBox *>("checkToCheck");
        QVERIFY(action->isEnabled());
        action->trigger();
        QVERIFY(box->isChecked());
        box->setChecked(false);
        QVERIFY(!action->isChecked());
        action->trigger();
        // An editor made anew begins as the action says.
        fixture.window->editor()->rebuild();
        QVERIFY(fixture.window->editor()->findChild<QCheckBox *>("checkToCheck")->isChecked());
        action->trigger();
    }

    void preferredRangesReachTheTable()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->editor()->selectProject(din933));
        QAction *const action = pooled("PreferredRanges");
        QVERIFY(!fixture.sourceView()->getTable().getOptions()->getShowOnlyPrefRanges());
        action->trigger();
        QVERIFY(fixture.sourceView()->getTable().getOptions()->getShowOnlyPrefRanges());
        QVERIFY(fixture.window->editor()->selectProject("standardparts/screws/iso4762.prj"));
        QVERIFY(fixture.sourceView()->getTable().getOptions()->getShowOnlyPrefRanges());
        action->trigger();
        QVERIFY(!fixture.sourceView()->getTable().getOptions()->getShowOnlyPrefRanges());
    }

    void mailHoldsPathAndLine()
    {
        WindowFixture fixture;
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->editor()->selectProject(din933));
        QVERIFY(fixture.window->editor()->selectLine(3));
        QTRY_VERIFY(pooled("LinkDbSendMail")->isEnabled());
        QDesktopServices::setUrlHandler("mailto", this, "takeMail");
        pooled("LinkDbSendMail")->trigger();
        QDesktopServices::unsetUrlHandler("mailto");
        const QUrlQuery query(m_mail);
        QCOMPARE(query.queryItemValue("subject", QUrl::FullyDecoded),
                 "ERP-Nummer für " + din933 + ", Zeile 3");
        QVERIFY(query.queryItemValue("body", QUrl::FullyDecoded)
                    .contains("Projekt: " + din933 + "\nZeile: 3\n"));
    }

    void legendOpens()
    {
        const WindowFixture fixture;
        ModalScript script;
        script.thenClick("close");
        pooled("LinkDbShowLegend")->trigger();
        QCOMPARE(script.seen, QStringList{"LegendDialog"});
    }

    void textsFollowTheLanguage()
    {
        WindowFixture fixture;
        WorkbenchSettings::Values values = fixture.settings->values();
        values.language = "en";
        fixture.settings->setValues(values);
        QApplication::processEvents();
        QVERIFY(pooled("LinkDbShowLegend")->text() != "Legende anzeigen");
        QVERIFY(pooled("LinkDbLogin")
                    ->toolTip()
                    .endsWith(" – not available: no link database is connected"));
        values.language = "de";
        fixture.settings->setValues(values);
        QApplication::processEvents();
        QCOMPARE(pooled("LinkDbShowLegend")->text(), QStringLiteral("Legende anzeigen"));
        QCOMPARE(pooled("PreferredRanges")->text(),
                 QStringLiteral("Vorzugsreihen  ein und ausschalten"));
    }

public Q_SLOTS:
    void takeMail(const QUrl &url) { m_mail = url; }

private:
    QUrl m_mail;
};

QTEST_MAIN(tst_PluginActions)
#include "tst_PluginActions.moc"

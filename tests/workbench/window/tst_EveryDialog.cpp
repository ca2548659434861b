// Every window of the workbench: can it be used by keyboard and with a screen reader?
#include "../../support/ControlCheck.h"
#include "ModalScript.h"
#include "WindowFixture.h"

#include <geomcore/records/ReleaseMappingC.h>
#include <workbench/locator/LocatorDialog.h>
#include <workbench/locator/LocatorSearch.h>
#include <workbench/session/MappingDocument.h>
#include <workbench/session/RecoveryOffer.h>
#include <workbench/window/CatalogRootsDialog.h>
#include <workbench/window/DocumentDesk.h>
#include <workbench/window/EditorArea.h>
#include <workbench/window/HelpWindow.h>
#include <workbench/window/LegendDialog.h>
#include <workbench/window/LineCommands.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/NewMappingDialog.h>
#include <workbench/window/PartView.h>
#include <workbench/window/Question.h>
#include <workbench/window/RecoveryDialog.h>
#include <workbench/window/ReplacementsDialog.h>
#include <workbench/window/RepositoryLoginDialog.h>
#include <workbench/window/SettingsDialog.h>
#include <workbench/window/WorkbenchSettings.h>

#include <QAccessible>
#include <QDockWidget>

namespace {

const QString din933 = QStringLiteral("standardparts/screws/din933.prj");

/// Shows a window and hands it over; modal ones are closed again.
using Show = std::function<void(WindowFixture &, const std::function<void(QWidget *)> &look)>;

/// Of a dialog that a command opens.
Show byCommand(const char *action)
{
    return [action](WindowFixture &fixture, const std::function<void(QWidget *)> &look) {
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->editor()->goTo({{din933, {}, {}}, 3}));
        ModalScript script;
        script.then([&](QWidget *dialog) {
            look(dialog);
            dialog->close();
        });
        fixture.action(action)->trigger();
        QVERIFY2(script.isDone(), action);
    };
}

Show byHand(const std::function<QWidget *(WindowFixture &)> &make)
{
    return [make](WindowFixture &fixture, const std::function<void(QWidget *)> &look) {
        const std::unique_ptr<QWidget> window(make(fixture));
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        look(window.get());
    };
}

RecoveryOffer fullOffer()
{
    RecoveryOffer offer;
    offer.saved.available = offer.recovered.available = offer.further.available = true;
    offer.laterChanges = 18;
    offer.damage = "damage";
    return offer;
}

void addWindows()
{
    QTest::addColumn<Show>("show");
    QTest::newRow("start page") << Show(
        [](WindowFixture &fixture, const auto &look) { look(fixture.window.get()); });
    QTest::newRow("main window") << Show([](WindowFixture &fixture, const auto &look) {
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->editor()->goTo({{din933, {}, {}}, 3}));
        const auto docks = fixture.window->findChildren<QDockWidget *>();
        for (QDockWidget *const dock : docks)
            dock->show();
        QApplication::processEvents();
        look(fixture.window.get());
    });
    for (const char *const command : {"settings", "helpKeys", "goLine", "linesConfirm", "assignAll",
                                      "helpAbout", "reviewReplacements", "fileNew", "fileRoots"})
        QTest::newRow(command) << byCommand(command);
    QTest::newRow("recovery") << byHand(
        [](WindowFixture &) { return new RecoveryDialog("/d/m.json", fullOffer(), nullptr); });
    QTest::newRow("locator") << byHand([](WindowFixture &fixture) {
        auto *const search = new LocatorSearch(fixture.window.get());
        return new LocatorDialog(search, nullptr);
    });
    QTest::newRow("manual") << byHand([](WindowFixture &) {
        auto *const help = new HelpWindow(nullptr);
        help->showTopic("manual/tour.md");
        return help;
    });
    QTest::newRow("legend") << byHand([](WindowFixture &) { return new LegendDialog(nullptr); });
    QTest::newRow("login") << byHand([](WindowFixture &) {
        return new RepositoryLoginDialog("svn://host/catalog", "refused", "me", nullptr);
    });
    QTest::newRow("part") << byHand([](WindowFixture &) {
        return new PartView(din933, WindowFixture::roots().target + '/' + din933, nullptr);
    });
}

} // namespace

Q_DECLARE_METATYPE(Show)

class tst_EveryDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QAccessible::setActive(true); }

    void keysAreMarkedOnce_data() { addWindows(); }
    void keysAreMarkedOnce() { check(&ControlCheck::mnemonics); }
    void keysAreMarkedOnceInEnglish_data() { addWindows(); }
    void keysAreMarkedOnceInEnglish() { check(&ControlCheck::mnemonics, "en"); }
    void keysLeadToOnePlace_data() { addWindows(); }
    void keysLeadToOnePlace() { check(&ControlCheck::keys); }
    void fitsASmallScreen_data();
    void fitsASmallScreen();
    void controlsHaveNameRoleAndFocus_data() { addWindows(); }
    void controlsHaveNameRoleAndFocus() { check(&ControlCheck::access); }

private:
    static void check(QStringList (*faultsOf)(const QWidget &), const char *language = "de")
    {
        QFETCH(Show, show);
        WindowFixture fixture;
        WorkbenchSettings::Values values = fixture.settings->values();
        values.language = QLatin1String(language);
        fixture.settings->setValues(values);
        bool looked = false;
        show(fixture, [&](const QWidget *window) {
            looked = true;
            const QStringList faults = faultsOf(*window);
            QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        });
        QVERIFY(looked);
    }
};

void tst_EveryDialog::fitsASmallScreen_data()
{
    addWindows();
}

/// 1024 x 768, and 1920 x 1200 at 200 %; title, frame and a bar of the desktop need room too.
void tst_EveryDialog::fitsASmallScreen()
{
    QFETCH(Show, show);
    WindowFixture fixture;
    show(fixture, [](QWidget *window) {
        for (QDockWidget *const dock : window->findChildren<QDockWidget *>())
            dock->hide(); // they are for larger ones
        QApplication::processEvents();
        const QSize least = window->minimumSizeHint().expandedTo(window->minimumSize());
        QVERIFY2(least.width() <= 950 && least.height() <= 560,
                 qPrintable(QStringLiteral("%1 x %2").arg(least.width()).arg(least.height())));
    });
}

QTEST_MAIN(tst_EveryDialog)
#include "tst_EveryDialog.moc"

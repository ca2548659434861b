// Every window of the workbench: can it be used by keyboard and with a screen reader?
#include "../../support/ControlCheck.h"
#include "EveryWindow.h"
#include "WindowFixture.h"

#include <workbench/start/EditorLanguages.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/WorkbenchSettings.h>

#include <QAccessible>
#include <QDockWidget>
#include <QMenu>
#include <QSet>

class tst_EveryDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QAccessible::setActive(true); }

    void keysAreMarkedOnce_data() { EveryWindow::addRows(); }
    void keysAreMarkedOnce() { check(&ControlCheck::mnemonics); }
    void keysAreMarkedOnceInEnglish_data() { EveryWindow::addRows(); }
    void keysAreMarkedOnceInEnglish() { check(&ControlCheck::mnemonics, "en"); }
    void mainWindowInEveryLanguage();
    void keysLeadToOnePlace_data() { EveryWindow::addRows(); }
    void keysLeadToOnePlace() { check(&ControlCheck::keys); }
    void fitsASmallScreen_data();
    void fitsASmallScreen();
    void controlsHaveNameRoleAndFocus_data() { EveryWindow::addRows(); }
    void controlsHaveNameRoleAndFocus() { check(&ControlCheck::access); }

private:
    static void check(QStringList (*faultsOf)(const QWidget &), const char *language = "de")
    {
        QFETCH(EveryWindow::Show, show);
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

/// The window takes the texts of each language as it is chosen: marks each key once, with all parts
/// and without, and fits.
void tst_EveryDialog::mainWindowInEveryLanguage()
{
    WindowFixture fixture;
    fixture.open(fixture.mappingFile());
    const QStringList languages = EditorLanguages::all();
    QSet<QString> titles;
    for (const QString &language : languages) {
        WorkbenchSettings::Values values = fixture.settings->values();
        values.language = language;
        fixture.settings->setValues(values);
        QApplication::processEvents();
        titles << fixture.window->findChild<QMenu *>("reviewMenu")->title().remove('&');
        QStringList faults = ControlCheck::mnemonics(*fixture.window);
        const auto docks = fixture.window->findChildren<QDockWidget *>();
        for (QDockWidget *const dock : docks)
            dock->show();
        QApplication::processEvents();
        faults << ControlCheck::mnemonics(*fixture.window);
        const QSize least = fixture.window->minimumSizeHint();
        for (QDockWidget *const dock : docks)
            dock->hide();
        QVERIFY2(faults.isEmpty(), qPrintable(language + ": " + faults.join('\n')));
        QVERIFY2(least.width() <= 1024 && least.height() <= 730,
                 qPrintable(QStringLiteral("%1: %2 x %3, with all parts")
                                .arg(language)
                                .arg(least.width())
                                .arg(least.height())));
    }
    QVERIFY(titles.size() > languages.size() / 2);
    WorkbenchSettings::Values values = fixture.settings->values();
    values.language = "de";
    fixture.settings->setValues(values);
}

void tst_EveryDialog::fitsASmallScreen_data()
{
    EveryWindow::addRows();
}

/// 1024 x 768, and 1920 x 1200 at 200 %; title, frame and a bar of the desktop need room too.
void tst_EveryDialog::fitsASmallScreen()
{
    QFETCH(EveryWindow::Show, show);
    WindowFixture fixture;
    show(fixture, [](QWidget *window) {
        const QSize withDocks = window->minimumSizeHint().expandedTo(window->minimumSize());
        QVERIFY2(withDocks.width() <= 1024 && withDocks.height() <= 730,
                 qPrintable(QStringLiteral("%1 x %2, with all parts")
                                .arg(withDocks.width())
                                .arg(withDocks.height())));
        for (QDockWidget *const dock : window->findChildren<QDockWidget *>())
            dock->hide(); // not all of them at 200 %
        QApplication::processEvents();
        const QSize least = window->minimumSizeHint().expandedTo(window->minimumSize());
        QVERIFY2(least.width() <= 950 && least.height() <= 560,
                 qPrintable(QStringLiteral("%1 x %2").arg(least.width()).arg(least.height())));
    });
}

QTEST_MAIN(tst_EveryDialog)
#include "tst_EveryDialog.moc"

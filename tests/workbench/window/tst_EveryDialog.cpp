// Every window of the workbench: can it be used by keyboard and with a screen reader?
#include "../../support/ControlCheck.h"
#include "EveryWindow.h"
#include "WindowFixture.h"

#include <workbench/window/MainWindow.h>

#include <QAccessible>
#include <QDockWidget>

class tst_EveryDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QAccessible::setActive(true); }

    void keysLeadToOnePlace_data() { EveryWindow::addRows(); }
    void keysLeadToOnePlace() { check(&ControlCheck::keys); }
    void controlsHaveNameRoleAndFocus_data() { EveryWindow::addRows(true); }
    void controlsHaveNameRoleAndFocus() { check(&ControlCheck::access); }
    void fitsASmallScreen_data() { EveryWindow::addRows(); }
    void fitsASmallScreen();

private:
    static void check(QStringList (*faultsOf)(const QWidget &))
    {
        QFETCH(EveryWindow::Show, show);
        WindowFixture fixture;
        bool looked = false;
        show(fixture, [&](const QWidget *window) {
            looked = true;
            const QStringList faults = faultsOf(*window);
            ControlCheck::picture(const_cast<QWidget *>(window), QTest::currentDataTag());
            QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        });
        QVERIFY(looked);
    }
};

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

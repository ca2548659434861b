// What every window of the workbench looks like: its texts in light, dark and high contrast, on
// small and on scaled screens. VELK_PICTURES=FOLDER leaves pictures of all of them.
#include "../../support/ControlCheck.h"
#include "EveryWindow.h"
#include "WindowFixture.h"

#include <gui/views/Inks.h>
#include <workbench/window/look/ApplicationTheme.h>
#include <workbench/window/look/WorkbenchStyle.h>
#include <workbench/window/MainWindow.h>

#include <QDialogButtonBox>
#include <QPushButton>

class tst_WindowLooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsAreLegible_data() { EveryWindow::addRows(); }
    void textsAreLegible();
    void marksAreLegible_data();
    void marksAreLegible();
    void buttonsLookAlike();
    void cleanup() { ApplicationTheme::setColours("light"); }
};

/// Those of Qt's own dialogs too: a cross on one that goes on says the wrong thing.
void tst_WindowLooks::buttonsLookAlike()
{
    WorkbenchStyle style(WorkbenchStyle::Own);
    QDialogButtonBox box;
    box.setStyle(&style);
    const QPushButton *const cancel = box.addButton(QDialogButtonBox::Cancel);
    QVERIFY(!cancel->text().isEmpty());
    QVERIFY(cancel->icon().isNull());
}

void tst_WindowLooks::textsAreLegible()
{
    QFETCH(EveryWindow::Show, show);
    WindowFixture fixture;
    bool looked = false;
    show(fixture, [&](QWidget *window) {
        looked = true;
        const QByteArray size = qgetenv("VELK_SIZE"); // of the pictures
        if (size.contains('x') && window == fixture.window.get())
            window->resize(size.split('x')[0].toInt(), size.split('x')[1].toInt());
        for (const char *const theme : {"light", "dark", "contrast"}) {
            ApplicationTheme::setColours(theme);
            QApplication::processEvents();
            const QStringList faults = ControlCheck::contrasts(*window);
            ControlCheck::picture(window, QString(QTest::currentDataTag()) + '-' + theme);
            QVERIFY2(faults.isEmpty(), qPrintable(theme + (": " + faults.join('\n'))));
        }
    });
    QVERIFY(looked);
}

void tst_WindowLooks::marksAreLegible_data()
{
    QTest::addColumn<QString>("theme");
    for (const QString &theme : ApplicationTheme::names())
        QTest::newRow(qPrintable(theme)) << theme;
}

/// What is marked by colour, on every ground that it may stand on. Each of them is told by a sign,
/// a word or a line as well; their own tests say which.
void tst_WindowLooks::marksAreLegible()
{
    QFETCH(QString, theme);
    ApplicationTheme::setColours(theme);
    const QPalette palette = QApplication::palette();
    for (const auto ground : {QPalette::Base, QPalette::AlternateBase, QPalette::Window}) {
        for (const Inks::Ink ink : {Inks::Ink::Plain, Inks::Ink::Good, Inks::Ink::Bad,
                                    Inks::Ink::Warning, Inks::Ink::Value, Inks::Ink::Quiet}) {
            const double found =
                ControlCheck::contrast(Inks::ink(ink, palette, ground), palette.color(ground));
            QVERIFY2(found >= 4.5, qPrintable(QStringLiteral("ink %1 on %2: %3")
                                                  .arg(int(ink))
                                                  .arg(palette.color(ground).name())
                                                  .arg(found)));
        }
    }
    QVERIFY(ControlCheck::contrast(Inks::differenceText(palette),
                                   Inks::differenceGround(palette)) >= 4.5);
    QVERIFY(ControlCheck::contrast(palette.color(QPalette::ToolTipText),
                                   palette.color(QPalette::ToolTipBase)) >= 4.5);
}

QTEST_MAIN(tst_WindowLooks)
#include "tst_WindowLooks.moc"

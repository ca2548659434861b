// Every window of the workbench in every language: no text is cut, each key is marked once, and all
// of it fits small and scaled screens. VELK_PICTURES=FOLDER leaves pictures.
#include "../../support/ControlCheck.h"
#include "EveryWindow.h"
#include "WindowFixture.h"

#include <workbench/start/EditorLanguages.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <QDockWidget>
#include <QMenu>
#include <QSet>

class tst_EveryLanguage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mainWindow_data() { addLanguages(); }
    void mainWindow();
    void dialogs_data() { addLanguages(); }
    void dialogs();
    void everyLanguageHasItsOwnTexts();
    void cleanupTestCase() { m_fixture.reset(); }

private:
    // Without title and frame: 1024 x 768 with a bar of the desktop, and 1920 x 1200 at 200 %.
    static constexpr QSize SmallScreen = {1024, 730};
    static constexpr QSize ScaledScreen = {950, 560};

    static void addLanguages();
    /// The same window for all, which takes the texts of each language as it is chosen.
    void useLanguage();

    std::unique_ptr<WindowFixture> m_fixture;
    QSet<QString> m_titles;
};

void tst_EveryLanguage::addLanguages()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = EditorLanguages::all();
    for (const QString &language : languages)
        QTest::newRow(qPrintable(language)) << language;
}

void tst_EveryLanguage::useLanguage()
{
    QFETCH(QString, language);
    if (!m_fixture) {
        m_fixture = std::make_unique<WindowFixture>();
        m_fixture->open(m_fixture->mappingFile());
    }
    WorkbenchSettings::Values values = m_fixture->settings->values();
    values.language = language;
    m_fixture->settings->setValues(values);
    QApplication::processEvents();
}

void tst_EveryLanguage::mainWindow()
{
    useLanguage();
    MainWindow &window = *m_fixture->window;
    m_titles << window.findChild<QMenu *>("reviewMenu")->title().remove('&');
    QStringList faults =
        ControlCheck::mnemonics(window) + ControlCheck::cuts(&window, ScaledScreen);
    ControlCheck::picture(&window, "window-" + QString(QTest::currentDataTag()));
    window.resize(SmallScreen);
    const auto docks = window.findChildren<QDockWidget *>();
    for (QDockWidget *const dock : docks) {
        dock->show();
        QApplication::processEvents();
        faults << ControlCheck::cuts(&window, SmallScreen);
        ControlCheck::picture(&window, dock->objectName() + u'-' + QTest::currentDataTag());
        dock->hide();
    }
    for (QDockWidget *const dock : docks)
        dock->show();
    QApplication::processEvents();
    faults << ControlCheck::mnemonics(window);
    const QSize least = window.minimumSizeHint();
    for (QDockWidget *const dock : docks)
        dock->hide();
    QVERIFY2(least.width() <= SmallScreen.width() && least.height() <= SmallScreen.height(),
             qPrintable(
                 QStringLiteral("%1 x %2, with all parts").arg(least.width()).arg(least.height())));
    faults.removeDuplicates();
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
}

void tst_EveryLanguage::dialogs()
{
    useLanguage();
    QStringList faults;
    const QList<EveryWindow::Window> windows = EveryWindow::all();
    int number = 0;
    for (const EveryWindow::Window &window : windows) {
        if (window.isMainWindow)
            continue;
        window.show(*m_fixture, [&](QWidget *shown) {
            QStringList found;
            if (!window.isOfQt)
                found = ControlCheck::mnemonics(*shown) + ControlCheck::cuts(shown, ScaledScreen);
            if (!window.isTitledByFile)
                found += ControlCheck::title(*shown, QTest::currentDataTag());
            for (const QString &fault : found)
                faults += QString(window.name) + ": " + fault;
            ControlCheck::picture(shown, QStringLiteral("%1-%2-%3")
                                             .arg(QTest::currentDataTag(), QString(window.name))
                                             .arg(++number));
        });
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    QVERIFY(number >= windows.size() - 3);
}

void tst_EveryLanguage::everyLanguageHasItsOwnTexts()
{
    QVERIFY(m_titles.size() > EditorLanguages::all().size() / 2);
}

QTEST_MAIN(tst_EveryLanguage)
#include "tst_EveryLanguage.moc"

#include <core/message/PMessage.h>
#include <core/plugin/PTranslateManager.h>
#include <core/progress/PProgress.h>
#include <gui/progress/DefaultObserverDelegate.h>
#include <gui/views/Inks.h>
#include <workbench/window/document/TargetRoot.h>
#include <workbench/window/help/LegendDialog.h>
#include <workbench/window/help/TourOverlay.h>
#include <workbench/window/help/WelcomePage.h>
#include <workbench/window/look/ApplicationTheme.h>
#include <workbench/window/look/DockRoom.h>
#include <workbench/window/look/useLanguage.h>
#include <workbench/window/message/LogWindow.h>
#include <workbench/window/message/StatusArea.h>
#include <workbench/window/message/StatusProgress.h>
#include <workbench/window/message/WindowMessageSink.h>
#include <workbench/window/settings/WorkbenchActions.h>

#include <core/text/PPathName.h>
#include <geomcore/index/IndexTreeC.h>

#include <QAction>
#include <QDialog>
#include <QFile>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QToolButton>
#include <QToolTip>

#include <thread>

class tst_WindowParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void logShowsMessagesInOrder()
    {
        QMainWindow window;
        LogWindow log(&window);
        const QSignalSpy problems(&log, &LogWindow::problemAdded);
        log.addMessage(LogWindow::Severity::Information, "first");
        QCOMPARE(problems.size(), 0);
        log.addMessage(LogWindow::Severity::Warning, " second\n");
        QCOMPARE(problems.size(), 1);
        const QStringList lines = log.text().split('\n');
        QCOMPARE(lines.size(), 2);
        QVERIFY(lines.first().endsWith("  first"));
        QVERIFY(lines.last().endsWith("  Warnung: second"));
    }

    void logDropsTheOldest()
    {
        QMainWindow window;
        LogWindow log(&window);
        for (int i = 0; i < LogWindow::LineLimit + 3; ++i)
            log.addMessage(LogWindow::Severity::Information, QString::number(i));
        QCOMPARE(log.text().count('\n'), LogWindow::LineLimit - 1);
        QVERIFY(log.text().endsWith(QString::number(LogWindow::LineLimit + 2)));
    }

    void logComesForwardForErrors_data()
    {
        QTest::addColumn<int>("severity");
        QTest::addColumn<bool>("shown");
        QTest::newRow("information") << int(LogWindow::Severity::Information) << false;
        QTest::newRow("warning") << int(LogWindow::Severity::Warning) << true;
        QTest::newRow("error") << int(LogWindow::Severity::Error) << true;
    }
    void logComesForwardForErrors()
    {
        QFETCH(int, severity);
        QMainWindow window;
        auto *log = new LogWindow(&window);
        window.addDockWidget(Qt::BottomDockWidgetArea, log);
        window.show();
        log->hide();
        log->addMessage(LogWindow::Severity(severity), "text");
        QTEST(log->isVisible(), "shown");
    }

    void docksBelowLeaveRoom_data()
    {
        QTest::addColumn<bool>("wasThere"); // with the state of the last session
        QTest::newRow("at first") << false;
        QTest::newRow("kept") << true;
    }
    void docksBelowLeaveRoom()
    {
        QFETCH(bool, wasThere);
        QMainWindow window;
        window.resize(1000, 800);
        window.setCentralWidget(new QPlainTextEdit);
        auto *log = new LogWindow(&window);
        auto *panel = new QDockWidget(&window);
        panel->setWidget(new QPlainTextEdit);
        window.addDockWidget(Qt::BottomDockWidgetArea, log);
        window.addDockWidget(Qt::BottomDockWidgetArea, panel);
        panel->hide();
        log->setVisible(wasThere);
        DockRoom room(&window);
        room.add(log, 1.0 / 8);
        room.add(panel, 1.0 / 4);
        window.show();
        if (wasThere)
            window.resizeDocks({log}, {300}, Qt::Vertical);
        log->addMessage(LogWindow::Severity::Warning, "text");
        if (wasThere) {
            QTest::qWait(20);
            QCOMPARE(log->height(), 300);
            return;
        }
        QTRY_COMPARE(log->height(), 100);
        // What comes beside it has its height, and half of the width.
        panel->show();
        QTRY_COMPARE(panel->height(), 200);
        QTRY_COMPARE(log->height(), 200);
        QVERIFY2(std::abs(panel->width() - 500) < 10, qPrintable(QString::number(panel->width())));
        // From then on it is the user's.
        window.resizeDocks({log}, {400}, Qt::Vertical);
        log->hide();
        log->addMessage(LogWindow::Severity::Warning, "text");
        QTest::qWait(20);
        QTRY_COMPARE(log->height(), 400);
    }

    /// Two of them side by side would have no room for their columns.
    void docksOfANarrowWindowLieOverEachOther()
    {
        QMainWindow window;
        window.resize(80 * window.fontMetrics().averageCharWidth(), 700);
        window.setCentralWidget(new QPlainTextEdit);
        QList<QDockWidget *> docks;
        DockRoom room(&window);
        for (int i = 0; i < 2; ++i) {
            docks << new QDockWidget(&window);
            docks.last()->setWidget(new QPlainTextEdit);
            window.addDockWidget(Qt::BottomDockWidgetArea, docks.last());
            docks.last()->hide();
            room.add(docks.last(), 1.0 / 4);
        }
        window.show();
        docks[0]->show();
        QTest::qWait(20);
        docks[1]->show();
        QTRY_COMPARE(window.tabifiedDockWidgets(docks[1]), QList<QDockWidget *>{docks[0]});
        QTRY_VERIFY(!docks[1]->visibleRegion().isEmpty());
        QVERIFY(docks[1]->width() > window.width() * 3 / 4);
    }

    void messagesComeFromOtherThreads()
    {
        QMainWindow window;
        LogWindow log(&window);
        const PMessageSinkScope scope(std::make_shared<WindowMessageSink>(&window, &log));
        std::thread([] {
            PMessage::Show("broken", PMsgDlgMode::Error);
            PMessage::LogToWindow("said");
        }).join();
        QTRY_VERIFY(log.text().endsWith("  said"));
        QVERIFY(log.text().contains("  Fehler: broken\n"));
    }

    void noteOffersUndo()
    {
        StatusArea status(nullptr);
        auto *note = status.findChild<QLabel *>("statusNote");
        status.showNote("1 < 2", true);
        QCOMPARE(note->text(), QStringLiteral("1 &lt; 2 · <a href=\"undo\">rückgängig</a>"));
        const QSignalSpy undo(&status, &StatusArea::undoRequested);
        Q_EMIT note->linkActivated("undo");
        QCOMPARE(undo.size(), 1);
        status.dropUndo();
        QCOMPARE(note->text(), QStringLiteral("1 &lt; 2"));
        status.showNote(QString());
        QCOMPARE(note->text(), QString());
        status.showNote("plain");
        QCOMPARE(note->text(), QStringLiteral("plain"));
        status.setOpenLines(3, 1);
        QCOMPARE(status.findChild<QLabel *>("statusOpen")->toolTip(),
                 QStringLiteral("Zeilen, die noch eine Entscheidung brauchen"));
    }

    void themesAreLightDarkOrOfHighContrast()
    {
        const QPalette before = QApplication::palette();
        const QPalette tips = QToolTip::palette();
        ApplicationTheme::setColours("system");
        const QPalette desktop = QApplication::palette();
        ApplicationTheme::setColours("dark");
        QVERIFY(QApplication::palette().color(QPalette::Window).lightness() < 128);
        ApplicationTheme::setColours("system"); // nothing of ours is left
        QCOMPARE(QApplication::palette(), desktop);
        QCOMPARE(QToolTip::palette(), tips);
        ApplicationTheme::setColours("contrast");
        QCOMPARE(QApplication::palette().color(QPalette::Window), QColor(Qt::black));
        QCOMPARE(QApplication::palette().color(QPalette::Text), QColor(Qt::white));
        ApplicationTheme::setColours("light");
        QVERIFY(QApplication::palette().color(QPalette::Window).lightness() > 128);
        QApplication::setPalette(before);
    }

    /// Dark blue cannot be read on black.
    void linksFollowTheColours()
    {
        const QPalette before = QApplication::palette();
        ApplicationTheme::setColours("light");
        StatusArea status(nullptr);
        WelcomePage welcome({}, nullptr);
        welcome.setRecentFiles({"/d/m.json"});
        status.setOpenLines(3, 2);
        status.showNote("done", true);
        status.resize(700, 30);
        status.show();
        welcome.show();
        const auto inks = [](const QWidget &parent) {
            QApplication::processEvents();
            const QColor link = QApplication::palette().color(QPalette::Link);
            QList<bool> shown;
            for (QLabel *const label : parent.findChildren<QLabel *>()) {
                if (!label->text().contains("<a "))
                    continue;
                const QImage image = label->grab().toImage();
                bool isShown = false;
                for (int y = 0; y < image.height(); ++y) {
                    for (int x = 0; x < image.width(); ++x)
                        isShown |= image.pixelColor(x, y).rgb() == link.rgb();
                }
                shown << isShown;
            }
            return shown;
        };
        for (const char *const theme : {"light", "dark", "contrast", "light"}) {
            ApplicationTheme::setColours(theme);
            QCOMPARE(inks(status), QList<bool>({true, true}));
            QCOMPARE(inks(welcome), QList<bool>({true}));
        }
        QApplication::setPalette(before);
    }

    /// What stood in the log before is to be read after a change of colours too.
    void messagesFollowTheColours()
    {
        const QPalette before = QApplication::palette();
        ApplicationTheme::setColours("light");
        LogWindow log(nullptr);
        log.addMessage(LogWindow::Severity::Information, "one");
        log.addMessage(LogWindow::Severity::Warning, "two\nlines");
        log.addMessage(LogWindow::Severity::Error, "three");
        auto *const text = log.findChild<QPlainTextEdit *>("logText");
        const auto inkOf = [text](int block) {
            QTextCursor cursor(text->document()->findBlockByNumber(block));
            cursor.movePosition(QTextCursor::EndOfBlock);
            return cursor.charFormat().foreground().color();
        };
        for (const QString &theme : ApplicationTheme::names()) {
            ApplicationTheme::setColours(theme);
            QCoreApplication::processEvents();
            const QPalette now = text->palette();
            QCOMPARE(inkOf(0), Inks::ink(Inks::Ink::Plain, now));
            QCOMPARE(inkOf(1), Inks::ink(Inks::Ink::Warning, now));
            QCOMPARE(inkOf(2), Inks::ink(Inks::Ink::Warning, now));
            QCOMPARE(inkOf(3), Inks::ink(Inks::Ink::Bad, now));
        }
        QApplication::setPalette(before);
    }

    /// On tables too, after a key of a command as well as after Tab.
    void focusIsSeen()
    {
        ApplicationTheme::setColours("light");
        QWidget window;
        auto *const layout = new QHBoxLayout(&window);
        QList<QTableWidget *> tables;
        for (int i = 0; i < 2; ++i) {
            tables += new QTableWidget(2, 2, &window);
            layout->addWidget(tables.last());
        }
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        for (QTableWidget *const focused : tables) {
            focused->setFocus(Qt::ShortcutFocusReason);
            QCoreApplication::processEvents();
            const QColor edge = focused->palette().color(QPalette::Highlight);
            for (QTableWidget *const table : tables) {
                const QImage shown = table->grab().toImage();
                QCOMPARE(shown.pixelColor(table->width() / 2, 1) == edge, table == focused);
            }
        }
        // The cell with the keys has a frame in the colour of its text.
        QTableWidget *const table = tables.last();
        table->setCurrentCell(1, 1);
        const QRect cell = table->visualRect(table->model()->index(1, 1));
        QCOMPARE(table->viewport()->grab().toImage().pixelColor(cell.left(), cell.center().y()),
                 table->palette().color(QPalette::HighlightedText));
    }

    void longNotesDoNotWidenTheWindow()
    {
        StatusArea status(nullptr);
        const int width = status.minimumSizeHint().width();
        status.showNote(QString(500, 'x'));
        QCOMPARE(status.minimumSizeHint().width(), width);
        QCOMPARE(status.findChild<QLabel *>("statusNote")->toolTip(), QString(500, 'x'));
    }

    void readOnlyIsToldWithItsReason()
    {
        StatusArea status(nullptr);
        status.show();
        const auto *const label = status.findChild<QLabel *>("statusReadOnly");
        QVERIFY(!label->isVisible());
        status.setReadOnly("somebody else has it open");
        QVERIFY(label->isVisible());
        QCOMPARE(label->toolTip(), "somebody else has it open");
        status.setReadOnly(QString());
        QVERIFY(!label->isVisible());
    }

    void counterHasTheFormsOfTheLanguage_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<int>("lines");
        QTest::addColumn<int>("projects");
        QTest::addColumn<QString>("text");
        QTest::newRow("one") << "de" << 1 << 1 << "1 Zeile</a> in 1 Projekt";
        QTest::newRow("several of one") << "de" << 12 << 1 << "12 Zeilen</a> in 1 Projekt";
        QTest::newRow("grouped") << "de" << 1234567 << 1089
                                 << "1.234.567 Zeilen</a> in 1.089 Projekten";
        QTest::newRow("English") << "en" << 1234 << 1 << "1,234 lines</a> in 1 project";
        QTest::newRow("Polish") << "pl" << 3 << 1 << "3 wiersze</a> w 1 projekcie";
        QTest::newRow("Slovenian") << "sl" << 2 << 2 << "2 vrstici</a> v 2 projektih";
    }
    void counterHasTheFormsOfTheLanguage()
    {
        QFETCH(QString, language);
        QFETCH(int, lines);
        QFETCH(int, projects);
        QFETCH(QString, text);
        PTranslateManager::registerModule("velkworkbench");
        useLanguage(language);
        StatusArea status(nullptr);
        auto *open = status.findChild<QLabel *>("statusOpen");
        status.setOpenLines(lines, projects);
        QVERIFY2(open->text().endsWith(": <a href=\"next\">" + text), qPrintable(open->text()));
        status.setFilteredLines(lines, projects);
        QVERIFY2(open->text().endsWith(": <a href=\"next\">" + text), qPrintable(open->text()));
        useLanguage("de");
    }

    void counterTellsThatNothingIsOpen()
    {
        StatusArea status(nullptr);
        auto *open = status.findChild<QLabel *>("statusOpen");
        status.setOpenLines(0, 0);
        QCOMPARE(open->text(), QStringLiteral("Alles entschieden"));
        QVERIFY(!open->isHidden());
        status.setOpenLines(-1, 0);
        QVERIFY(open->isHidden());
        status.setNothingAssigned();
        QVERIFY(!open->isHidden());
        QVERIFY(open->toolTip().isEmpty());
        QEvent change(QEvent::LanguageChange);
        QApplication::sendEvent(&status, &change);
        QCOMPARE(open->text(),
                 QStringLiteral("<a href=\"assign\">Noch keine Zeile zugeordnet</a>"));
    }

    void progressShowsAndCancels()
    {
        StatusArea status(nullptr);
        status.show();
        StatusProgress *const part = status.progress();
        QVERIFY(part->isHidden());
        DefaultObserverDelegate::setTimes(0, 0);
        DefaultObserverDelegate::setDisplay(std::make_shared<StatusProgressDisplay>(part));
        {
            DefaultObserverDelegate delegate;
            delegate.activate(PProgressObserverBase::Thread);
            PProgress progress(0, 4, 1, true, false);
            progress.setText("Work");
            progress.nextStep();
            progress.nextStep();
            QVERIFY(!part->isHidden());
            QCOMPARE(part->findChild<QLabel *>("progressText")->text(), QStringLiteral("Work"));
            auto *cancel = part->findChild<QToolButton *>("progressCancel");
            QVERIFY(!cancel->isHidden());
            QVERIFY(part->owns(cancel));
            QVERIFY(!part->owns(part));
            auto *const problems = part->findChild<QLabel *>("progressProblems");
            QVERIFY(problems->isHidden());
            part->countProblem();
            part->countProblem();
            QVERIFY(!problems->isHidden());
            QCOMPARE(problems->text(), QStringLiteral("Fehler und Warnungen: 2"));
            QTest::mouseClick(cancel, Qt::LeftButton);
            QVERIFY(progress.isCanceled());
            QVERIFY(!cancel->isEnabled());
        }
        QVERIFY(part->isHidden());
        part->countProblem(); // of no work
        part->showProgress({PProgressInfo()});
        QVERIFY(part->findChild<QLabel *>("progressProblems")->isHidden());
        DefaultObserverDelegate::setDisplay(nullptr);
        DefaultObserverDelegate::setTimes(500, 100);
    }

    void progressOutOfReachHasAWindow_data()
    {
        QTest::addColumn<bool>("isShown");
        QTest::addColumn<bool>("underADialog");
        QTest::addColumn<bool>("inWindow");
        QTest::newRow("in sight") << true << false << false;
        QTest::newRow("hidden") << false << false << true;
        QTest::newRow("barred by a dialog") << true << true << true;
    }
    void progressOutOfReachHasAWindow()
    {
        QFETCH(bool, isShown);
        QFETCH(bool, underADialog);
        QFETCH(bool, inWindow);
        StatusArea status(nullptr);
        status.setVisible(isShown);
        StatusProgress *const part = status.progress();
        StatusProgressDisplay display(part);
        const auto window = [] {
            QPointer<QWidget> found;
            for (QWidget *const each : QApplication::topLevelWidgets()) {
                if (each->objectName() == u"ProgressWindow")
                    found = each;
            }
            return found;
        };
        QDialog dialog;
        dialog.setModal(true);
        if (underADialog)
            dialog.show();
        PProgressInfo info;
        info.cancellable = true;
        display.showProgress({info});
        QCOMPARE(window() != nullptr, inWindow);
        QCOMPARE(part->isHidden(), inWindow);
        if (inWindow) {
            auto *const cancel = window()->findChild<QPushButton *>("progressCancel");
            QVERIFY(display.acceptsInput(cancel));
        }
        QVERIFY(display.acceptsInput(part->findChild<QToolButton *>("progressCancel")));
        // It stays where it began.
        dialog.setVisible(!underADialog);
        display.showProgress({info});
        QCOMPARE(window() != nullptr, inWindow);
        display.showProgress({});
        QVERIFY(!window());
        QVERIFY(part->isHidden());
    }

    void progressWithoutCancelHasNoButton()
    {
        StatusProgress part(nullptr);
        PProgressInfo info;
        info.text = "Work";
        info.total = 200;
        info.count = 50;
        part.showProgress({info});
        QVERIFY(part.findChild<QToolButton *>("progressCancel")->isHidden());
        auto *bar = part.findChild<QProgressBar *>("progressBar");
        QCOMPARE(bar->value() * 4, bar->maximum());
        info.total = -1;
        part.showProgress({info});
        QCOMPARE(bar->maximum(), 0);
    }

    void actionsHaveNamesTextsAndTips()
    {
        QObject owner;
        const WorkbenchActions actions(&owner);
        QStringList names;
        QStringList keys;
        for (int i = 0; i < WorkbenchActions::CommandCount; ++i) {
            const QAction *const action = actions.action(WorkbenchActions::Command(i));
            QVERIFY(!action->objectName().isEmpty());
            QVERIFY2(!action->text().isEmpty(), qPrintable(action->objectName()));
            QVERIFY2(!action->statusTip().isEmpty(), qPrintable(action->objectName()));
            QVERIFY2(!names.contains(action->objectName()), qPrintable(action->objectName()));
            names << action->objectName();
            const QString key = action->shortcut().toString();
            QVERIFY2(key.isEmpty() || !keys.contains(key), qPrintable(key));
            keys << key;
        }
    }

    void undoTextsKeepAmpersands()
    {
        QObject owner;
        WorkbenchActions actions(&owner);
        actions.setUndoTexts("1 Zeile in a&b.prj", QString());
        const QAction *const undo = actions.action(WorkbenchActions::Undo);
        QCOMPARE(undo->text(), QStringLiteral("&Rückgängig: 1 Zeile in a&&b.prj"));
        QCOMPARE(undo->toolTip(), QStringLiteral("Rückgängig: 1 Zeile in a&b.prj"));
        QVERIFY(undo->isEnabled());
        QVERIFY(!actions.action(WorkbenchActions::Redo)->isEnabled());
    }

    void readOnlyDisablesWhatWrites()
    {
        QObject owner;
        WorkbenchActions actions(&owner);
        actions.setDocumentOpen(true, true);
        for (const auto command :
             {WorkbenchActions::Save, WorkbenchActions::ConfirmLines, WorkbenchActions::RemoveLines,
              WorkbenchActions::RemoveConfirmLines, WorkbenchActions::AssignAll})
            QVERIFY(!actions.action(command)->isEnabled());
        for (const auto command : {WorkbenchActions::SaveAs, WorkbenchActions::NextOpen,
                                   WorkbenchActions::CheckValueRanges, WorkbenchActions::CloseFile})
            QVERIFY(actions.action(command)->isEnabled());
    }

    void tourLeadsAndCanBeSkipped()
    {
        QMainWindow window;
        window.resize(800, 600);
        auto *part = new QLabel("part", &window);
        part->setGeometry(10, 10, 100, 100);
        window.show();
        const QList<TourOverlay::Step> steps{{part, "one", "1"}, {nullptr, "two", "2"}};
        QPointer<TourOverlay> tour = new TourOverlay(steps, &window);
        const QSignalSpy ended(tour, &TourOverlay::ended);
        QCOMPARE(tour->geometry(), window.rect());
        // The keys are the overlay's, whatever was clicked.
        for (const QPushButton *const button : tour->findChildren<QPushButton *>())
            QCOMPARE(button->focusPolicy(), Qt::NoFocus);
        auto *title = tour->findChild<QLabel *>("tourTitle");
        QCOMPARE(title->text(), QStringLiteral("one"));
        QVERIFY(!tour->findChild<QPushButton *>("tourBack")->isEnabled());
        QTest::mouseClick(tour->findChild<QPushButton *>("tourNext"), Qt::LeftButton);
        QCOMPARE(title->text(), QStringLiteral("two"));
        QCOMPARE(tour->findChild<QPushButton *>("tourNext")->text(), QStringLiteral("&Fertig"));
        QTest::keyClick(tour, Qt::Key_Left);
        QCOMPARE(title->text(), QStringLiteral("one"));
        window.resize(700, 500);
        QApplication::processEvents();
        QCOMPARE(tour->geometry(), window.rect());
        QTest::keyClick(tour, Qt::Key_Escape);
        QCOMPARE(ended.size(), 1);
        QTRY_VERIFY(!tour);
    }

    void welcomePageOpensRecentFiles()
    {
        QAction action("&Open", nullptr);
        WelcomePage page({&action}, nullptr);
        page.setRecentFiles({"/a/<b>.json", "/c.json"});
        const QSignalSpy chosen(&page, &WelcomePage::fileChosen);
        const auto labels = page.findChildren<QLabel *>();
        for (QLabel *label : labels) {
            if (label->toolTip() == "/a/<b>.json")
                Q_EMIT label->linkActivated(QString());
        }
        QCOMPARE(chosen.size(), 1);
        QCOMPARE(chosen.first().first().toString(), QStringLiteral("/a/<b>.json"));
        QTest::mouseClick(page.findChild<QToolButton *>(), Qt::LeftButton);
    }

    void legendHasAllStates()
    {
        const LegendDialog dialog(nullptr);
        int pictures = 0;
        const auto labels = dialog.findChildren<QLabel *>();
        for (const QLabel *label : labels)
            pictures += label->pixmap().isNull() ? 0 : 1;
        QCOMPARE(pictures, 8);
    }

    void targetRootIsTheCatalogRoot_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("any name") << "release-2";
        QTest::newRow("the fixed name") << "23d-libs";
    }
    void targetRootIsTheCatalogRoot()
    {
        QFETCH(QString, name);
        const QTemporaryDir directory;
        QVERIFY(QDir(directory.path()).mkpath(name + "/cat"));
        QFile file(directory.filePath(name + "/cat/a.prj"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        qputenv("TORMEVA_DATA", "/before");
        const PPathName project("$TORMEVA_DATA/23d-libs/cat/a.prj");
        {
            const TargetRoot root(directory.filePath(name));
            QVERIFY(project.exists(false));
            QVERIFY(IndexTreeC::instance()
                        ->compatiblePathToResolvedPath(PPathName("cat/a.prj"))
                        .exists(false));
            QCOMPARE(qgetenv("TORMEVA_DATA"), QByteArray("/before"));
            {
                const TargetRoot other(directory.path());
                QVERIFY(!project.exists(false));
            }
            QVERIFY(project.exists(false));
        }
        QCOMPARE(project.native(), PString("/before/23d-libs/cat/a.prj"));
        QVERIFY(QFile::exists(file.fileName()));
        qunsetenv("TORMEVA_DATA");
    }
};

QTEST_MAIN(tst_WindowParts)
#include "tst_WindowParts.moc"

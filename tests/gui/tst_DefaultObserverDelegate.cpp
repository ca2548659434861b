#include "RecordingDisplay.h"

#include <gui/progress/DefaultObserverDelegate.h>

#include <core/progress/PProgress.h>
#include <core/progress/PProgressHandOver.h>
#include <core/progress/PProgressObserverNode.h>

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <thread>

namespace {

class Outer : public PProgressObserverBase
{
public:
    Outer() { Outer::activate(Thread); }
    ~Outer() override { deactivate(); }
    void progressStarted(const PProgressInfo &) override { events.append("started"); }
    void progressChanged(const PProgressInfo &) override { events.append("changed"); }
    void progressText(const PProgressInfo &) override { events.append("text"); }
    void progressDone(const PProgressInfo &) override { events.append("done"); }

    QStringList events;
};

/// Calls a function at the first request to quit.
class QuitWatch : public QObject
{
public:
    explicit QuitWatch(std::function<void()> function)
        : m_function(std::move(function))
    {
        qApp->installEventFilter(this);
    }
    bool eventFilter(QObject *receiver, QEvent *event) override
    {
        if (event->type() == QEvent::Quit && m_function)
            std::exchange(m_function, {})();
        return QObject::eventFilter(receiver, event);
    }

private:
    std::function<void()> m_function;
};

/// A window of the application with a button, an edit and a shortcut.
struct Window : QWidget
{
    Window()
    {
        auto *const layout = new QVBoxLayout(this);
        layout->addWidget(&button);
        layout->addWidget(&edit);
        show();
    }
    QPushButton button;
    QLineEdit edit;
    QShortcut shortcut{QKeySequence("Ctrl+K"), this};
};

} // namespace

class tst_DefaultObserverDelegate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_display = std::make_shared<RecordingDisplay>();
        DefaultObserverDelegate::setDisplay(m_display);
        DefaultObserverDelegate::setTimes(0, 0);
        PProgress::setInterval(std::chrono::milliseconds(0));
    }
    void cleanup()
    {
        DefaultObserverDelegate::setDisplay(nullptr);
        DefaultObserverDelegate::setTimes(500, 100);
        QVERIFY(!PProgressObserverNode::current());
    }

    void showsFromBeginToEnd()
    {
        {
            DefaultObserverDelegate delegate;
            delegate.activate(PProgressObserverBase::Thread);
            PProgress progress(0, 2, 1.0);
            progress.setText("Zeilen");
            progress.nextStep();
            progress.nextStep();
            progress.done();
        }
        QCOMPARE(m_display->shown,
                 QStringList({"0/2", "0/2 Zeilen", "1/2 Zeilen", "2/2 Zeilen", "-"}));
    }
    void nothingAppearsBeforeTheDelay()
    {
        DefaultObserverDelegate::setTimes(1000000, 0);
        {
            DefaultObserverDelegate delegate;
            delegate.activate(PProgressObserverBase::Thread);
            PProgress progress(0, 100);
            for (int i = 0; i < 100; ++i)
                progress.nextStep();
        }
        QCOMPARE(m_display->shown, QStringList());
    }
    void changesWaitForTheInterval()
    {
        DefaultObserverDelegate::setTimes(0, 1000000);
        {
            DefaultObserverDelegate delegate;
            delegate.activate(PProgressObserverBase::Thread);
            PProgress progress(0, 100);
            for (int i = 0; i < 100; ++i)
                progress.nextStep();
        }
        QCOMPARE(m_display->shown, QStringList({"0/100", "-"}));
    }
    void staysBetweenOneProgressAndTheNext()
    {
        DefaultObserverDelegate delegate;
        delegate.activate(PProgressObserverBase::Thread);
        PProgress(0, 1).done();
        PProgress(0, 2).done();
        QCOMPARE(m_display->shown, QStringList({"0/1", "0/2"}));
        delegate.deactivate();
        QCOMPARE(m_display->shown.constLast(), QString("-"));
        QVERIFY(!delegate.isActive());
    }
    void nestedOnesAreShownTogether()
    {
        DefaultObserverDelegate delegate;
        delegate.activate(PProgressObserverBase::Thread);
        PProgress outer(0, 2);
        {
            PProgress inner(0, 3);
            inner.nextStep();
        }
        outer.nextStep();
        QCOMPARE(m_display->shown, QStringList({"0/2", "0/2, 0/3", "0/2, 1/3", "0/2", "1/2"}));
    }
    void delegateInsideAnotherOneLeavesItToThat()
    {
        DefaultObserverDelegate outer;
        outer.activate(PProgressObserverBase::Thread);
        {
            DefaultObserverDelegate inner;
            inner.activate(PProgressObserverBase::Thread);
            QVERIFY(!inner.isActive());
            PProgress(0, 1).done();
        }
        PProgress(0, 2).done();
        QCOMPARE(m_display->shown, QStringList({"0/1", "0/2"}));
    }
    void outerObserverGoesOnHearing()
    {
        const Outer outer;
        DefaultObserverDelegate delegate;
        delegate.activate(PProgressObserverBase::Thread);
        PProgress progress(0, 1);
        progress.setText("a");
        progress.nextStep();
        progress.done();
        QCOMPARE(outer.events, QStringList({"started", "text", "changed", "done"}));
    }
    void cancelReachesTheWork()
    {
        m_display->onShow = [](const QList<PProgressInfo> &running) {
            if (!running.isEmpty() && running.constFirst().count >= 2)
                running.constFirst().cancel->request();
        };
        DefaultObserverDelegate delegate;
        delegate.activate(PProgressObserverBase::Thread);
        PProgress progress(0, 1000, 1.0, true, false);
        while (!progress.isCanceled() && progress.count() < 1000)
            progress.nextStep();
        QVERIFY(progress.count() >= 2 && progress.count() < 1000);
    }
    void doesNothingOnAnotherThread()
    {
        bool active = true;
        std::thread([&active] {
            DefaultObserverDelegate delegate;
            delegate.activate(PProgressObserverBase::Thread);
            active = delegate.isActive();
            PProgress(0, 1).done();
        }).join();
        QVERIFY(!active);
        QVERIFY(m_display->shown.isEmpty());
    }
    void progressOfOtherThreadsIsShownByEvents()
    {
        DefaultObserverDelegate delegate;
        delegate.activate(PProgressObserverBase::Thread);
        const PProgressHandOver handOver;
        std::thread([&handOver] {
            const PProgressHandOver::Receiver receiver(handOver);
            PProgress progress(0, 5);
            for (int i = 0; i < 5; ++i)
                progress.nextStep();
            progress.done();
            PProgress next(0, 7);
            next.setText("next");
        }).join();
        QVERIFY(m_display->shown.isEmpty());
        PProgress own(0, 9);
        QTRY_COMPARE(m_display->shown.constLast(), QString("0/9"));
    }

    void eventsAreProcessedOnlyWhileShown()
    {
        int ticks = 0;
        QTimer timer;
        timer.callOnTimeout([&ticks] { ++ticks; });
        timer.start(0);
        DefaultObserverDelegate::setTimes(1000000, 0);
        DefaultObserverDelegate delegate;
        delegate.activate(PProgressObserverBase::Thread);
        PProgress progress(0, 10);
        progress.nextStep();
        progress.setText("a");
        QCOMPARE(ticks, 0);
        DefaultObserverDelegate::setTimes(0, 0);
        progress.setText("b");
        QCOMPARE(ticks, 1);
    }
    void workInsideEventsDoesNotNest()
    {
        int depth = 0;
        int deepest = 0;
        const auto work = [&] {
            deepest = std::max(deepest, ++depth);
            PProgress inner(0, 3);
            inner.nextStep();
            --depth;
        };
        QTimer timers[3];
        for (QTimer &timer : timers) {
            timer.callOnTimeout(work);
            timer.start(0);
        }
        DefaultObserverDelegate delegate;
        delegate.activate(PProgressObserverBase::Thread);
        PProgress progress(0, 10);
        for (int i = 0; i < 10; ++i)
            progress.nextStep();
        QCOMPARE(deepest, 1);
    }

    void inputToOtherWindowsIsDropped()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const QSignalSpy clicked(&window.button, &QPushButton::clicked);
        const QSignalSpy shortcut(&window.shortcut, &QShortcut::activated);
        {
            DefaultObserverDelegate delegate;
            delegate.activate(PProgressObserverBase::Thread);
            QTest::mouseClick(&window.button, Qt::LeftButton);
            QTest::keyClicks(&window.edit, "abc");
            QTest::keyClick(window.windowHandle(), Qt::Key_K, Qt::ControlModifier);
            window.windowHandle()->close();
            QCoreApplication::processEvents();
        }
        QCOMPARE(clicked.size(), 0);
        QCOMPARE(shortcut.size(), 0);
        QCOMPARE(window.edit.text(), QString());
        QVERIFY(window.isVisible());
        QTest::mouseClick(&window.button, Qt::LeftButton);
        QTest::keyClicks(&window.edit, "abc");
        QTest::keyClick(window.windowHandle(), Qt::Key_K, Qt::ControlModifier);
        QCOMPARE(clicked.size(), 1);
        QCOMPARE(shortcut.size(), 1);
        QCOMPARE(window.edit.text(), QString("abc"));
        window.windowHandle()->close();
        QTRY_VERIFY(!window.isVisible());
    }
    void inputToTheDisplayPasses()
    {
        Window window;
        m_display->own = &window.button;
        const QSignalSpy clicked(&window.button, &QPushButton::clicked);
        DefaultObserverDelegate delegate;
        delegate.activate(PProgressObserverBase::Thread);
        QTest::mouseClick(&window.button, Qt::LeftButton);
        QCOMPARE(clicked.size(), 1);
    }
    void escapeCancels_data()
    {
        QTest::addColumn<bool>("cancellable");
        QTest::addColumn<bool>("shown");
        QTest::addColumn<bool>("expected");
        QTest::newRow("as the button does") << true << true << true;
        QTest::newRow("not what cannot be cancelled") << false << true << false;
        QTest::newRow("not what nobody sees yet") << true << false << false;
    }
    void escapeCancels()
    {
        QFETCH(bool, cancellable);
        QFETCH(bool, shown);
        Window window;
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.edit.setFocus();
        DefaultObserverDelegate::setTimes(shown ? 0 : 1000000, 1000000);
        DefaultObserverDelegate delegate;
        delegate.activate(PProgressObserverBase::Thread);
        PProgress outer(0, 10);
        PProgress progress(0, 10, 1.0, cancellable, false);
        progress.nextStep();
        QTest::keyClick(&window.edit, Qt::Key_A);
        QVERIFY(!progress.isCanceled());
        const qsizetype before = m_display->shown.size();
        QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
        QTEST(progress.isCanceled(), "expected");
        QCOMPARE(m_display->shown.size() > before, shown); // says so at once
        QCOMPARE(window.edit.text(), QString());
    }
    void escapeInTheDisplayCancelsToo()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowActive(&window));
        m_display->own = &window.button;
        window.button.setFocus();
        DefaultObserverDelegate delegate;
        delegate.activate(PProgressObserverBase::Thread);
        PProgress progress(0, 10, 1.0, true, false);
        progress.nextStep();
        QTest::keyClick(&window.button, Qt::Key_Escape, Qt::ShiftModifier);
        QVERIFY(!progress.isCanceled());
        QTest::keyClick(&window.button, Qt::Key_Escape);
        QVERIFY(progress.isCanceled());
    }
    void escapeClosesADialogOpenedSince()
    {
        Window window;
        DefaultObserverDelegate delegate;
        delegate.activate(PProgressObserverBase::Thread);
        PProgress progress(0, 10, 1.0, true, false);
        progress.nextStep();
        QDialog dialog(&window);
        QTimer::singleShot(0, [&dialog] {
            QTest::keyClick(&dialog, Qt::Key_Escape);
            if (dialog.isVisible())
                dialog.accept();
        });
        QCOMPARE(dialog.exec(), int(QDialog::Rejected));
        QVERIFY(!progress.isCanceled());
    }
    void inputToADialogOpenedSincePasses()
    {
        Window window;
        DefaultObserverDelegate delegate;
        delegate.activate(PProgressObserverBase::Thread);
        QDialog dialog(&window);
        QPushButton ok(&dialog);
        connect(&ok, &QPushButton::clicked, &dialog, &QDialog::accept);
        QTimer::singleShot(0, [&ok] { QTest::mouseClick(&ok, Qt::LeftButton); });
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QDialog second(&window);
        QTimer::singleShot(0, [&second] { second.windowHandle()->close(); });
        QCOMPARE(second.exec(), int(QDialog::Rejected));
    }
    void inputToTheDialogThatStartedTheWorkIsDropped()
    {
        QDialog dialog;
        QPushButton button(&dialog);
        dialog.open();
        const QSignalSpy clicked(&button, &QPushButton::clicked);
        QCOMPARE(QApplication::activeModalWidget(), &dialog);
        DefaultObserverDelegate delegate;
        delegate.activate(PProgressObserverBase::Thread);
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(clicked.size(), 0);
    }
    void requestToQuitWaitsForTheEnd()
    {
        auto delegate = std::make_unique<DefaultObserverDelegate>();
        delegate->activate(PProgressObserverBase::Thread);
        bool stillRunning = false;
        // Hears of the request before the delegate drops it.
        QuitWatch watch([&] {
            QTimer::singleShot(0, qApp, [&] {
                stillRunning = true;
                delegate.reset();
            });
        });
        QTimer::singleShot(0, [] { QCoreApplication::quit(); });
        QCOMPARE(QCoreApplication::exec(), 0);
        QVERIFY(stillRunning);
    }

private:
    std::shared_ptr<RecordingDisplay> m_display;
};

QTEST_MAIN(tst_DefaultObserverDelegate)
#include "tst_DefaultObserverDelegate.moc"

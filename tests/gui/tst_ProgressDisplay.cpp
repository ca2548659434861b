#include "../support/ForeignLocale.h"

#include <gui/progress/DefaultObserverDelegate.h>
#include <gui/progress/ProgressDisplay.h>
#include <gui/progress/ProgressText.h>

#include <core/progress/PProgress.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLocale>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace {

QString withPlainBlanks(QString text)
{
    return text.replace(QChar(0xa0), u' ');
}

PProgressInfo sample(quint64 id, bool cancellable)
{
    PProgressInfo info;
    info.id = id;
    info.text = "Zeilen werden <b>neu</b> zugewiesen";
    info.count = 250;
    info.total = 1000;
    info.cancellable = cancellable;
    info.cancel = std::make_shared<PProgressCancel>(cancellable, nullptr);
    return info;
}

QWidget *window()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == u"ProgressWindow")
            return widget;
    }
    return nullptr;
}

template<class T>
QList<T *> visibleChildren(const QString &name)
{
    QList<T *> found = window()->findChildren<T *>(name);
    found.removeIf([](const T *child) { return !child->isVisible(); });
    return found;
}

} // namespace

class tst_ProgressDisplay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German)); }
    void time_data()
    {
        QTest::addColumn<qint64>("milliseconds");
        QTest::addColumn<QString>("expected");
        QTest::newRow("zero") << qint64(0) << "0 s";
        QTest::newRow("part of a second") << qint64(1) << "1 s";
        QTest::newRow("seconds") << qint64(36500) << "37 s";
        QTest::newRow("nearly a minute") << qint64(59001) << "1 min 00 s";
        QTest::newRow("minutes") << qint64(125000) << "2 min 05 s";
        QTest::newRow("hours") << qint64(3 * 3600000 + 59000) << "3 h 00 min";
        QTest::newRow("many hours") << qint64(1234) * 3600000 << "1.234 h 00 min";
    }
    void time()
    {
        QFETCH(qint64, milliseconds);
        QTEST(withPlainBlanks(progressTime(milliseconds)), "expected");
    }
    void details_data()
    {
        QTest::addColumn<qint64>("count");
        QTest::addColumn<qint64>("total");
        QTest::addColumn<double>("rate");
        QTest::addColumn<qint64>("remaining");
        QTest::addColumn<QString>("expected");
        QTest::newRow("all") << qint64(1234) << qint64(1000000) << 1234.5 << qint64(61000)
                             << "1.234 von 1.000.000 · 1.235/s · noch 1 min 01 s";
        QTest::newRow("slow") << qint64(1) << qint64(999) << 0.25 << qint64(8000)
                              << "1 von 999 · 0,3/s · noch 8 s";
        QTest::newRow("no rate yet") << qint64(0) << qint64(7) << 0.0 << qint64(-1) << "0 von 7";
        QTest::newRow("no end known")
            << qint64(12) << qint64(-1) << 50.0 << qint64(-1) << "12 · 50/s";
        QTest::newRow("at the end")
            << qint64(7) << qint64(7) << 50.0 << qint64(0) << "7 von 7 · 50/s";
    }
    void details()
    {
        PProgressInfo info;
        QFETCH(qint64, count);
        QFETCH(qint64, total);
        QFETCH(double, rate);
        QFETCH(qint64, remaining);
        info.count = count;
        info.total = total;
        info.rate = rate;
        info.remaining = remaining;
        QTEST(withPlainBlanks(progressDetails(info)), "expected");
    }

    void foreignLocaleIsThere()
    {
        if (qEnvironmentVariableIsSet("LOCPATH"))
            QVERIFY(ForeignLocale::isThere());
    }
    void otherLocales_data() { ForeignLocale::addRows(); }
    /// Runs the tests of texts again in such an environment.
    void otherLocales() { ForeignLocale::runAgain({"time", "details"}); }
    void showsARowForEachProgress()
    {
        ProgressDisplay display;
        QVERIFY(!window());
        display.showProgress({sample(1, false), sample(2, true)});
        QVERIFY(window() && window()->isVisible());
        QCOMPARE(window()->windowTitle(), QString("Bitte warten"));
        QVERIFY(!window()->fontInfo().family().isEmpty());
        QCOMPARE(visibleChildren<QProgressBar>("progressBar").size(), 2);
        QCOMPARE(visibleChildren<QPushButton>("progressCancel").size(), 1);
        QCOMPARE(visibleChildren<QLabel>("progressText").constFirst()->text(),
                 QString("Zeilen werden <b>neu</b> zugewiesen"));
        QCOMPARE(visibleChildren<QLabel>("progressText").constFirst()->textFormat(), Qt::PlainText);
        QCOMPARE(withPlainBlanks(visibleChildren<QLabel>("progressDetails").constFirst()->text()),
                 QString("250 von 1.000"));
        const QProgressBar *bar = visibleChildren<QProgressBar>("progressBar").constFirst();
        QCOMPARE(bar->value() * 4, bar->maximum());
        display.showProgress({sample(1, false)});
        QCOMPARE(visibleChildren<QProgressBar>("progressBar").size(), 1);
        display.showProgress({});
        QVERIFY(!window());
    }
    void unknownEndIsABusyBar()
    {
        ProgressDisplay display;
        PProgressInfo info = sample(1, false);
        info.total = -1;
        display.showProgress({info});
        QCOMPARE(visibleChildren<QProgressBar>("progressBar").constFirst()->maximum(), 0);
    }
    void veryManyAreShownInPart()
    {
        ProgressDisplay display;
        display.showProgress(QList<PProgressInfo>(30, sample(1, false)));
        QCOMPARE(visibleChildren<QProgressBar>("progressBar").size(), 8);
    }
    void buttonRequestsToCancel()
    {
        ProgressDisplay display;
        const PProgressInfo info = sample(1, true);
        display.showProgress({info});
        QPushButton *button = visibleChildren<QPushButton>("progressCancel").constFirst();
        QCOMPARE(button->text(), QString("Abbrechen"));
        QVERIFY(display.acceptsInput(button));
        QVERIFY(display.acceptsInput(window()));
        QVERIFY(!display.acceptsInput(nullptr));
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(info.cancel->isRequested());
        QVERIFY(!button->isEnabled());
        QCOMPARE(button->text(), QString("Wird abgebrochen..."));
    }
    void outlivesNoWidget()
    {
        ProgressDisplay display;
        const QWidget other;
        QVERIFY(!display.acceptsInput(&other));
        display.showProgress({sample(1, true)});
        QVERIFY(!display.acceptsInput(&other));
    }

    /// The whole way: a dialog's work shows its progress, and a click through the window system
    /// reaches the button although the dialog is modal.
    void clickCancelsTheWorkOfAModalDialog()
    {
        DefaultObserverDelegate::setTimes(0, 0);
        PProgress::setInterval(std::chrono::milliseconds(0));
        QDialog dialog;
        dialog.setWindowModality(Qt::ApplicationModal);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QTimer clicker;
        clicker.callOnTimeout([] {
            if (!window())
                return;
            auto *button = window()->findChild<QPushButton *>("progressCancel");
            const QPoint place = button->mapTo(window(), button->rect().center());
            QTest::mouseClick(window()->windowHandle(), Qt::LeftButton, {}, place);
        });
        clicker.start(0);
        {
            DefaultObserverDelegate delegate;
            delegate.activate(PProgressObserverBase::Thread);
            PProgress progress(0, 1e9, 1.0, true, false);
            while (!progress.isCanceled() && progress.count() < 100000)
                progress.nextStep();
            QVERIFY(progress.isCanceled());
        }
        DefaultObserverDelegate::setTimes(500, 100);
        QVERIFY(!window());
    }
};

QTEST_MAIN(tst_ProgressDisplay)
#include "tst_ProgressDisplay.moc"

#include <workbench/session/common/BackgroundWork.h>

#include <QAbstractEventDispatcher>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <functional>

class tst_BackgroundWork : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void runsBesideTheLoop();
    void letsShowUntilTheLoopWaits();
};

void tst_BackgroundWork::runsBesideTheLoop()
{
    const QThread *worker = nullptr;
    bool isServed = false;
    QTimer::singleShot(20, this, [&isServed] { isServed = true; });
    BackgroundWork::run(QStringLiteral("..."), [&worker] {
        worker = QThread::currentThread();
        QThread::msleep(60);
    });
    QVERIFY(worker && worker != QThread::currentThread());
    QVERIFY(isServed);
}

/// Not only for a moment: each piece of work here asks for the next one, and takes longer than
/// that.
void tst_BackgroundWork::letsShowUntilTheLoopWaits()
{
    int pieces = 0;
    const std::function<void()> piece = [&] {
        QThread::msleep(2);
        if (++pieces < 5)
            QMetaObject::invokeMethod(this, piece, Qt::QueuedConnection);
    };
    int waits = 0;
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            [&waits] { ++waits; });
    QMetaObject::invokeMethod(this, piece, Qt::QueuedConnection);
    BackgroundWork::letShow();
    QCOMPARE(pieces, 5);
    QVERIFY(waits > 0);
}

QTEST_GUILESS_MAIN(tst_BackgroundWork)
#include "tst_BackgroundWork.moc"

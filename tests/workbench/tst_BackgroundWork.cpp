#include <workbench/session/BackgroundWork.h>

#include <QTest>
#include <QThread>
#include <QTimer>

class tst_BackgroundWork : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void runsBesideTheLoop();
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

QTEST_GUILESS_MAIN(tst_BackgroundWork)
#include "tst_BackgroundWork.moc"

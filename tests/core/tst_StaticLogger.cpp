#include "../support/ForeignLocale.h"

#include <core/config/PConfigService.h>
#include <core/logging/StaticLogger.h>

#include <QLoggingCategory>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <iostream>
#include <thread>

namespace {

QStringList messages;

void keep(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    messages.append(QStringLiteral("%1 %2 %3:%4 %5: %6")
                        .arg(QLatin1String(context.category), QString::number(int(type)),
                             QLatin1String(context.file), QString::number(context.line),
                             QLatin1String(context.function), text));
}

} // namespace

class tst_StaticLogger : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        StaticLogger::setLevels("");
        qInstallMessageHandler(nullptr);
    }

    void level_data()
    {
        QTest::addColumn<QString>("levels");
        QTest::addColumn<int>("expected");
        QTest::newRow("none") << "" << 10000;
        QTest::newRow("itself") << "a.b.c=5000" << 5000;
        QTest::newRow("above it") << "a.b=5000" << 5000;
        QTest::newRow("far above it") << " a = 5000 " << 5000;
        QTest::newRow("all") << "*=4000" << 4000;
        QTest::newRow("longest wins") << "*=1;a.b=5000;a=2" << 5000;
        QTest::newRow("part of a name is no name") << "a.b.=5000;a.=3;a.b.c.d=4" << 10000;
        QTest::newRow("no number") << "a.b.c=all" << 10000;
        QTest::newRow("never -2") << "a.b.c=-2" << 0;
    }
    void level()
    {
        QFETCH(QString, levels);
        StaticLoggerRecord record("a.b.c");
        QCOMPARE(record.level.load(), -2);
        StaticLogger::setLevels(levels);
        StaticLogger::init(record);
        QTEST(record.level.load(), "expected");
        StaticLogger::release(record);
        QCOMPARE(record.level.load(), -2);
    }
    void knownRecordsFollowAndReleasedOnesDoNot()
    {
        StaticLoggerRecord known("a");
        StaticLoggerRecord released("a");
        StaticLogger::init(known);
        StaticLogger::init(known);
        StaticLogger::init(released);
        StaticLogger::release(released);
        StaticLogger::setLevels("a=7");
        QCOMPARE(known.level.load(), 7);
        QCOMPARE(released.level.load(), -2);
        StaticLogger::release(known);
        StaticLogger::setLevels("a=8");
        QCOMPARE(known.level.load(), -2);
    }
    void messageHasAllParts()
    {
        messages.clear();
        qInstallMessageHandler(keep);
        StaticLogger::log(5000, "linkdbgui\\DocumentListDialog", "void f()", 12, "Größe");
        QCOMPARE(messages,
                 QStringList{"velk 0 linkdbgui\\DocumentListDialog:12 void f(): 5000 Größe"});
        // As every category of Qt it can be switched off.
        QLoggingCategory::setFilterRules("velk.debug=false");
        StaticLogger::log(5000, "f", "g", 1, "m");
        QLoggingCategory::setFilterRules({});
        QCOMPARE(messages.size(), 1);
    }
    void foreignLocaleIsThere()
    {
        if (qEnvironmentVariableIsSet("LOCPATH"))
            QVERIFY(ForeignLocale::isThere());
    }
    void otherLocales_data() { ForeignLocale::addRows(); }
    /// Runs the test of what is written again in such an environment.
    void otherLocales() { ForeignLocale::runAgain({"configured"}); }
    // Records may come from several libraries that are loaded by several threads.
    void threadsShareTheLevels()
    {
        StaticLogger::setLevels("t=3");
        std::atomic<int> right = 0;
        std::vector<std::thread> threads;
        for (int t = 0; t < 4; ++t) {
            threads.emplace_back([&right] {
                for (int i = 0; i < 1000; ++i) {
                    StaticLoggerRecord record("t");
                    StaticLogger::init(record);
                    right += record.level == 3 ? 1 : 0;
                    StaticLogger::release(record);
                }
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(right.load(), 4000);
    }

    void configured_data()
    {
        QTest::addColumn<QString>("environment");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("configuration alone") << "" << QByteArray("3000 10000");
        QTest::newRow("environment first") << "a.b=2000;c=1" << QByteArray("2000 1");
    }
    /// In a process of its own: the levels are read once.
    void configured()
    {
        QFETCH(QString, environment);
        QTemporaryDir dir;
        QFile file(dir.filePath("logging.cfg"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[Levels]\na = 3000\n");
        file.close();
        QProcess process;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("TORMEVA_SETUP", dir.path());
        env.insert("VELK_LOG_LEVELS", environment);
        env.insert("QT_MESSAGE_PATTERN", "%{category} %{file}:%{line} %{function}: %{message}");
        process.setProcessEnvironment(env);
        process.start(QCoreApplication::applicationFilePath(), {"--levels"});
        QVERIFY(process.waitForFinished());
        QTEST(process.readAllStandardOutput().trimmed(), "expected");
        QCOMPARE(process.readAllStandardError(), QByteArray("velk f.cpp:7 g: 5000 text\n"));
    }
};

int main(int argc, char **argv)
{
    if (argc > 1 && qstrcmp(argv[1], "--levels") == 0) {
        StaticLoggerRecord a("a.b");
        StaticLoggerRecord c("c");
        StaticLogger::init(a);
        StaticLogger::init(c);
        std::cout << a.level << ' ' << c.level << '\n';
        StaticLogger::log(5000, "f.cpp", "void g()", 7, "text");
        return 0;
    }
    QCoreApplication app(argc, argv);
    tst_StaticLogger test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_StaticLogger.moc"

#include <tools/velkmap/CommandLine.h>
#include <tools/velkmap/Commands.h>

#include <QTest>
#include <QTextStream>

using velkmap::CommandLine;
using velkmap::ExitStatus;

class tst_CommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void program_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("out");
        QTest::addColumn<QString>("err");
        QTest::newRow("nothing") << QStringList() << 1 << ""
                                 << "Usage: velkmap COMMAND";
        QTest::newRow("help") << QStringList{"--help"} << 0 << "Usage: velkmap COMMAND"
                              << "";
        QTest::newRow("version") << QStringList{"--version"} << 0 << "velkmap 0."
                                 << "";
        QTest::newRow("unknown") << QStringList{"fly"} << 1 << ""
                                 << "there is no command 'fly'";
    }
    void program()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QFETCH(QString, out);
        QFETCH(QString, err);
        QString outText;
        QString errText;
        {
            QTextStream outStream(&outText);
            QTextStream errStream(&errText);
            QCOMPARE(int(velkmap::run(arguments, outStream, errStream)), status);
        }
        QVERIFY2(outText.contains(out), qPrintable(outText));
        QVERIFY2(errText.contains(err), qPrintable(errText));
        QCOMPARE(outText.isEmpty(), out.isEmpty());
        QCOMPARE(errText.isEmpty(), err.isEmpty());
    }

    void command_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("err");
        QTest::newRow("complete") << QStringList{"--file", "a", "--many", "x", "--many", "y"} << -1
                                  << "";
        QTest::newRow("required option missing")
            << QStringList{"--many", "x"} << 1 << "velkmap test: --file is missing";
        QTest::newRow("required option empty")
            << QStringList{"--file", ""} << 1 << "velkmap test: --file is missing";
        QTest::newRow("unknown option")
            << QStringList{"--file", "a", "--fly"} << 1 << "Unknown option 'fly'";
        QTest::newRow("stray argument")
            << QStringList{"--file", "a", "b"} << 1 << "velkmap test: unexpected argument: b";
        QTest::newRow("value missing") << QStringList{"--file"} << 1 << "Missing value";
        QTest::newRow("help wins") << QStringList{"--help"} << 0 << "";
    }
    void command()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QFETCH(QString, err);
        CommandLine line("test", "Tests.");
        line.addRequired("file", "FILE", "A file.");
        line.addOptional("many", "NAME", "Names.");
        QString outText;
        QString errText;
        {
            QTextStream out(&outText);
            QTextStream errStream(&errText);
            const auto result = line.parse(arguments, out, errStream);
            QCOMPARE(result ? int(*result) : -1, status);
        }
        QVERIFY2(errText.contains(err), qPrintable(errText));
        QCOMPARE(errText.isEmpty(), err.isEmpty());
        if (status == -1) {
            QCOMPARE(line.value("file"), QString("a"));
            QCOMPARE(line.values("many"), QStringList({"x", "y"}));
        }
        if (status == 0)
            QVERIFY2(outText.startsWith("Usage: velkmap test [options]\nTests."),
                     qPrintable(outText));
    }
};

QTEST_GUILESS_MAIN(tst_CommandLine)
#include "tst_CommandLine.moc"

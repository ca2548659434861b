#include <core/message/PMessage.h>
#include <core/message/PScriptedMessageSink.h>
#include <core/message/PStringMessageImpl.h>

#include <QProcess>
#include <QTest>

#include <iostream>
#include <thread>

class tst_PMessage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_sink = std::make_shared<PScriptedMessageSink>();
        PMessage::setSink(m_sink);
    }
    void cleanup() { PMessage::setSink(nullptr); }

    void numbersAreFixed()
    {
        QCOMPARE(int(PMsgDlgMode::OkCancel), 1);
        QCOMPARE(int(PMsgDlgMode::YesNoCancel), 3);
        QCOMPARE(int(PMsgDlgMode::Error), 0x10);
        QCOMPARE(int(PMsgDlgMode::Warning), 0x30);
        QCOMPARE(int(PMsgReply::Ok), 1);
        QCOMPARE(int(PMsgReply::Cancel), 2);
        QCOMPARE(int(PMsgReply::Yes), 6);
        QCOMPARE(int(PMsgReply::No), 7);
    }
    void severity_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("question");
        QTest::newRow("information") << 0 << "info" << false;
        QTest::newRow("ok, cancel") << 1 << "question" << true;
        QTest::newRow("yes, no, cancel") << 3 << "question" << true;
        QTest::newRow("error") << 0x10 << "error" << false;
        QTest::newRow("warning") << 0x30 << "warning" << false;
        QTest::newRow("warning as question") << 0x33 << "warning" << true;
    }
    void severity()
    {
        QFETCH(int, mode);
        const auto flags = QFlags<PMsgDlgMode>::fromInt(mode);
        QTEST(PMessage::severityName(flags), "name");
        QTEST(PMessage::isQuestion(flags), "question");
    }

    void scriptAnswersQuestionsInTurn()
    {
        m_sink->addAnswer(PMsgReply::Yes);
        m_sink->addAnswer(PMsgReply::No);
        QCOMPARE(PMessage::Show("one", PMsgDlgMode::YesNoCancel), PMsgReply::Yes);
        QCOMPARE(PMessage::Show("told"), PMsgReply::Ok);
        QCOMPARE(PMessage::Show("bad", PMsgDlgMode::Error), PMsgReply::Ok);
        QCOMPARE(m_sink->answersLeft(), 1);
        QCOMPARE(PMessage::Show("two", PMsgDlgMode::OkCancel), PMsgReply::No);
        QCOMPARE(PMessage::Show("three", PMsgDlgMode::YesNoCancel), PMsgReply::Cancel);
        QCOMPARE(m_sink->texts(), QStringList({"one", "told", "bad", "two", "three"}));
        QCOMPARE(int(m_sink->shown().at(2).mode), 0x10);
        QCOMPARE(m_sink->shown().at(4).reply, PMsgReply::Cancel);
    }
    void exceptionAndLogReachTheSink()
    {
        PMessage::DisplayException({"x is not defined", "a.js", 3});
        PMessage::LogToWindow("line");
        QCOMPARE(m_sink->texts(), QStringList{"a.js:3: x is not defined"});
        QCOMPARE(int(m_sink->shown().constFirst().mode), 0x10);
        QCOMPARE(m_sink->logged(), QStringList{"line"});
    }
    void exceptionText_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("line");
        QTest::addColumn<QString>("expected");
        QTest::newRow("all") << "a.js" << 3 << "a.js:3: m";
        QTest::newRow("no line") << "a.js" << 0 << "a.js: m";
        QTest::newRow("no file") << "" << 3 << "3: m";
        QTest::newRow("neither") << "" << 0 << "m";
    }
    void exceptionText()
    {
        QFETCH(QString, file);
        QFETCH(int, line);
        QTEST((PScriptException{"m", file, line}.text()), "expected");
    }
    void scopeBringsBackTheFormerSink()
    {
        const auto inner = std::make_shared<PScriptedMessageSink>();
        {
            const PMessageSinkScope scope(inner);
            PMessage::Show("inner");
        }
        PMessage::Show("outer");
        QCOMPARE(inner->texts(), QStringList{"inner"});
        QCOMPARE(m_sink->texts(), QStringList{"outer"});
    }

    void captureCollectsBySeverity()
    {
        PStringMessageImpl capture(PMsgReply::Cancel, false, false);
        PMessage::Show("error: one", PMsgDlgMode::Error);
        PMessage::Show("two", PMsgDlgMode::Warning);
        PMessage::Show("three", PMsgDlgMode::Error);
        PMessage::Show("four");
        QCOMPARE(PMessage::Show("five?", PMsgDlgMode::YesNoCancel), PMsgReply::Cancel);
        PMessage::DisplayException({"six", "", 0});
        const QHash<QString, QStringList> expected{{"error", {"error: one", "three", "six"}},
                                                   {"warning", {"two"}},
                                                   {"info", {"four"}},
                                                   {"question", {"five?"}}};
        QCOMPARE(capture.getMessages(), expected);
        QCOMPARE(capture.buffer(), QString("error: one\ntwo\nthree\nfour\nfive?\nsix"));
        QVERIFY(m_sink->texts().isEmpty());
        QVERIFY(m_sink->logged().isEmpty());
    }
    void captureOfNothingIsEmpty()
    {
        const PStringMessageImpl capture(PMsgReply::Cancel, false);
        QVERIFY(capture.getMessages().isEmpty());
        QVERIFY(capture.buffer().isEmpty());
    }
    void captureAnswersQuestionsAlone()
    {
        const PStringMessageImpl capture(PMsgReply::Yes, false);
        QCOMPARE(PMessage::Show("?", PMsgDlgMode::OkCancel), PMsgReply::Yes);
        QCOMPARE(PMessage::Show("!", PMsgDlgMode::Error), PMsgReply::Ok);
    }
    void innermostCaptureCollects()
    {
        PStringMessageImpl outer(PMsgReply::Cancel, false);
        {
            PStringMessageImpl inner(PMsgReply::Yes, false);
            PMessage::Show("inner");
            QCOMPARE(inner.buffer(), QString("inner"));
        }
        PMessage::Show("outer");
        QCOMPARE(outer.buffer(), QString("outer"));
    }
    void deactivatedCaptureKeepsWhatItHas()
    {
        PStringMessageImpl capture(PMsgReply::Cancel, false);
        PMessage::Show("in");
        capture.deactivate();
        capture.deactivate();
        QVERIFY(!capture.isActive());
        PMessage::Show("out");
        QCOMPARE(capture.buffer(), QString("in"));
        QCOMPARE(m_sink->texts(), QStringList{"out"});
    }
    void outerCaptureMayEndFirst()
    {
        auto outer = std::make_unique<PStringMessageImpl>(PMsgReply::Cancel, false);
        PStringMessageImpl inner(PMsgReply::Cancel, false, true);
        outer.reset();
        PMessage::Show("text");
        QCOMPARE(inner.buffer(), QString("text"));
        QCOMPARE(m_sink->texts(), QStringList{"text"});
    }
    void captureLogs()
    {
        const PStringMessageImpl capture(PMsgReply::Cancel, true);
        PMessage::Show("a", PMsgDlgMode::Error);
        QCOMPARE(m_sink->logged(), QStringList{"a"});
        QVERIFY(m_sink->texts().isEmpty());
    }
    void captureForwards()
    {
        m_sink->addAnswer(PMsgReply::No);
        const PStringMessageImpl capture(PMsgReply::Yes, false, true);
        PMessage::Show("a", PMsgDlgMode::Error);
        QCOMPARE(PMessage::Show("b", PMsgDlgMode::YesNoCancel), PMsgReply::Yes);
        QCOMPARE(m_sink->texts(), QStringList({"a", "b"}));
        QCOMPARE(int(m_sink->shown().at(0).mode), 0x10);
        QCOMPARE(int(m_sink->shown().at(1).mode), 0);
        QCOMPARE(m_sink->answersLeft(), 1);
    }
    void forwardGoesToTheOuterCapture()
    {
        PStringMessageImpl outer(PMsgReply::Cancel, false);
        const PStringMessageImpl inner(PMsgReply::Cancel, false, true);
        PMessage::Show("a", PMsgDlgMode::Warning);
        QCOMPARE(outer.getMessages().value("warning"), QStringList{"a"});
        QVERIFY(m_sink->texts().isEmpty());
    }
    void captureIsOfItsThreadAlone()
    {
        PStringMessageImpl capture(PMsgReply::Cancel, false);
        QString other;
        std::thread([&other] {
            PMessage::Show("to the sink");
            PStringMessageImpl own(PMsgReply::Cancel, false);
            PMessage::Show("own");
            other = own.buffer();
        }).join();
        QCOMPARE(other, QString("own"));
        QVERIFY(capture.buffer().isEmpty());
        QCOMPARE(m_sink->texts(), QStringList{"to the sink"});
    }
    void manyThreadsShow()
    {
        std::vector<std::thread> threads;
        for (int t = 0; t < 4; ++t) {
            threads.emplace_back([] {
                for (int i = 0; i < 500; ++i) {
                    PStringMessageImpl capture(PMsgReply::Cancel, false, true);
                    PMessage::Show("x");
                }
            });
        }
        for (int i = 0; i < 500; ++i)
            PMessage::setSink(m_sink);
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(m_sink->shown().size(), 2000);
    }

    void consoleWritesToStandardError()
    {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {"--console"});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.readAllStandardOutput(), QByteArray("1 1 2 2\n"));
        QCOMPARE(process.readAllStandardError(),
                 QByteArray("error: Größe\nerror: kept\nquestion: a?\nquestion: b?\ntold\n"
                            "warning: w\nlog\n"));
    }

private:
    std::shared_ptr<PScriptedMessageSink> m_sink;
};

namespace {

int showOnConsole()
{
    const auto show = [](const char *text, PMsgDlgMode mode) {
        return int(PMessage::Show(QString::fromUtf8(text), mode));
    };
    const int error = show("Größe", PMsgDlgMode::Error);
    const int kept = show("error: kept", PMsgDlgMode::Error);
    const int first = show("a?", PMsgDlgMode::OkCancel);
    const int second = show("b?", PMsgDlgMode::YesNoCancel);
    PMessage::Show("told");
    PMessage::Show("w", PMsgDlgMode::Warning);
    PMessage::LogToWindow("log");
    std::cout << error << ' ' << kept << ' ' << first << ' ' << second << '\n';
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc > 1 && qstrcmp(argv[1], "--console") == 0)
        return showOnConsole();
    QCoreApplication app(argc, argv);
    tst_PMessage test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_PMessage.moc"

#include <tools/velkmap/TerminalProgress.h>

#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <functional>

#include <fcntl.h>
#include <pty.h>
#include <unistd.h>

using velkmap::TerminalProgress;

namespace {

/// What is written to the standard error stream meanwhile, as a terminal gets it.
QByteArray onATerminal(const std::function<void()> &work)
{
    int terminal = -1;
    int program = -1;
    if (openpty(&terminal, &program, nullptr, nullptr, nullptr) != 0)
        return "no terminal";
    const int before = dup(STDERR_FILENO);
    dup2(program, STDERR_FILENO);
    work();
    dup2(before, STDERR_FILENO);
    close(before);
    fcntl(terminal, F_SETFL, O_NONBLOCK);
    QByteArray text(4096, '\0');
    text.resize(std::max(ssize_t(0), read(terminal, text.data(), size_t(text.size()))));
    close(program);
    close(terminal);
    return text;
}

} // namespace

class tst_TerminalProgress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// The time since it was made is the time of the work.
    void tellsRateAndRest()
    {
        const QString shown = QString::fromUtf8(onATerminal([] {
            TerminalProgress progress;
            QTest::qWait(20);
            progress.show(5, 10, 500);
            progress.show(10, 10, 1000);
        }));
        static const QRegularExpression expected(
            "^\r\x1b\\[K5 of 10 projects, 500 lines, (\\d+) lines/s, 0:(\\d\\d) left"
            "\r\x1b\\[K10 of 10 projects, 1000 lines, \\d+ lines/s\r\n$");
        const QRegularExpressionMatch found = expected.match(shown);
        QVERIFY2(found.hasMatch(), qPrintable(shown));
        const int rate = found.captured(1).toInt();
        QVERIFY2(rate > 0 && rate <= 500 * 1000 / 20, qPrintable(shown));
    }

    void projectsAlone()
    {
        const QByteArray shown = onATerminal([] {
            TerminalProgress progress;
            progress.showProjects(2, 2);
        });
        QCOMPARE(shown, QByteArray("\r\x1b[K2 of 2 projects\r\n"));
    }
};

QTEST_GUILESS_MAIN(tst_TerminalProgress)
#include "tst_TerminalProgress.moc"

#include "TerminalProgress.h"

#include "counted.h"

#include <cstdio>
#include <unistd.h>

namespace velkmap {

TerminalProgress::TerminalProgress()
    : m_terminal(isatty(STDERR_FILENO) == 1)
{
    m_clock.start();
}

TerminalProgress::~TerminalProgress()
{
    if (m_shown)
        std::fputs("\n", stderr);
}

bool TerminalProgress::isDue(int done, int total)
{
    const qint64 now = m_clock.elapsed();
    if (!m_terminal || (done < total && now - m_lastShown < 100))
        return false;
    m_lastShown = now;
    m_shown = true;
    return true;
}

void TerminalProgress::print(const QString &text)
{
    std::fprintf(stderr, "\r\033[K%s", qPrintable(text));
    std::fflush(stderr);
}

void TerminalProgress::show(int done, int total, qint64 lines)
{
    if (isDue(done, total))
        print(text(done, total, lines, m_lastShown));
}

void TerminalProgress::showProjects(int done, int total)
{
    if (isDue(done, total))
        print(text(done, total, m_lastShown));
}

namespace {

QString rest(int done, int total, qint64 elapsed)
{
    if (done <= 0 || done >= total)
        return {};
    const qint64 seconds = elapsed * (total - done) / done / 1000;
    return QString(", %1:%2 left").arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

} // namespace

QString TerminalProgress::text(int done, int total, qint64 lines, qint64 elapsed)
{
    QString result =
        QString("%1 of %2, %3")
            .arg(QString::number(done), counted(total, "project"), counted(lines, "line"));
    if (elapsed > 0)
        result += QString(", %1 lines/s").arg(lines * 1000 / elapsed);
    return result + rest(done, total, elapsed);
}

QString TerminalProgress::text(int done, int total, qint64 elapsed)
{
    return QString("%1 of %2").arg(QString::number(done), counted(total, "project")) +
           rest(done, total, elapsed);
}

} // namespace velkmap

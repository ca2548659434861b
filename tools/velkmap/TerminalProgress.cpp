#include "TerminalProgress.h"

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

void TerminalProgress::show(int done, int total, qint64 lines)
{
    const qint64 now = m_clock.elapsed();
    if (!m_terminal || (done < total && now - m_lastShown < 100))
        return;
    m_lastShown = now;
    m_shown = true;
    std::fprintf(stderr, "\r\033[K%s", qPrintable(text(done, total, lines, now)));
    std::fflush(stderr);
}

QString TerminalProgress::text(int done, int total, qint64 lines, qint64 elapsed)
{
    QString result = QString("%1 of %2 projects, %3 lines").arg(done).arg(total).arg(lines);
    if (elapsed > 0)
        result += QString(", %1 lines/s").arg(lines * 1000 / elapsed);
    if (done > 0 && done < total) {
        const qint64 rest = elapsed * (total - done) / done / 1000;
        result += QString(", %1:%2 left").arg(rest / 60).arg(rest % 60, 2, 10, QLatin1Char('0'));
    }
    return result;
}

} // namespace velkmap

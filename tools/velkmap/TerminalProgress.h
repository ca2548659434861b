#pragma once

#include <QElapsedTimer>
#include <QString>

namespace velkmap {

/// One line on the terminal that tells how far the work is: projects, lines, rate and rest time.
/// Writes to the standard error stream, at most ten times a second, and nothing at all if that is
/// no terminal.
class TerminalProgress
{
public:
    TerminalProgress();
    /// Ends the line.
    ~TerminalProgress();
    TerminalProgress(const TerminalProgress &) = delete;
    TerminalProgress &operator=(const TerminalProgress &) = delete;

    void show(int done, int total, qint64 lines);
    /// The same for work that counts no lines.
    void showProjects(int done, int total);

    /// The text of the line; times in milliseconds.
    [[nodiscard]] static QString text(int done, int total, qint64 lines, qint64 elapsed);
    [[nodiscard]] static QString text(int done, int total, qint64 elapsed);

private:
    [[nodiscard]] bool isDue(int done, int total);
    void print(const QString &text);

    bool m_terminal;
    bool m_shown = false;
    qint64 m_lastShown = -1000;
    QElapsedTimer m_clock;
};

} // namespace velkmap

#pragma once

#include "ExitStatus.h"

#include <QList>
#include <QString>
#include <QStringList>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace velkmap {

/// One command of the program: its name, a line that says what it does, and the function that runs
/// it. The function is given the arguments behind the command's name; what it prints is the result
/// (first stream) or says what happened (second).
struct Command
{
    QString name;
    QString summary;
    ExitStatus (*run)(const QStringList &arguments, QTextStream &out, QTextStream &err);
};

/// All commands, in the order of the help text.
[[nodiscard]] const QList<Command> &commands();

/// Runs the program on its arguments without the program's name. Writes nothing but to the streams
/// and the files that the command names.
ExitStatus run(const QStringList &arguments, QTextStream &out, QTextStream &err);

/// Hands on what was printed. Standard output is a result like any other: gives ResultUnwritable if
/// it cannot be written, else \a status.
ExitStatus finish(ExitStatus status, QTextStream &out, QTextStream &err);

} // namespace velkmap

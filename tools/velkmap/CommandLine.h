#pragma once

#include "ExitStatus.h"

#include <QCommandLineParser>

#include <optional>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace velkmap {

/// Arguments of one command. Unlike QCommandLineParser::process nothing here ends the program.
class CommandLine
{
public:
    /// \a name and \a description head the help text.
    CommandLine(const QString &name, const QString &description);

    /// An option that has to be given; \a value names its value in the help text.
    void addRequired(const QString &option, const QString &value, const QString &description);
    void addOptional(const QString &option, const QString &value, const QString &description,
                     const QString &defaultValue = {});
    void addFlag(const QString &option, const QString &description);
    /// Words that stand without an option; without this there may be none. Behind "--" come words
    /// only.
    void addWords(const QString &name, const QString &description);

    /// Reads the arguments. A result means that the command is over: Done after the help text was
    /// printed, WrongUsage after a message that says what is wrong.
    [[nodiscard]] std::optional<ExitStatus> parse(const QStringList &arguments, QTextStream &out,
                                                  QTextStream &err);

    [[nodiscard]] QString value(const QString &option) const { return m_parser.value(option); }
    [[nodiscard]] QStringList values(const QString &option) const
    {
        return m_parser.values(option);
    }
    [[nodiscard]] QStringList words() const { return m_parser.positionalArguments(); }
    [[nodiscard]] bool isSet(const QString &option) const { return m_parser.isSet(option); }

    /// The option for directories that tables may be read from beside the catalogs, and what it
    /// does once the arguments are read.
    void addAllowed();
    void takeAllowed() const;

    /// Says what is wrong with the arguments and how to get help.
    ExitStatus wrongUsage(const QString &what, QTextStream &err) const;

private:
    QString m_name;
    QStringList m_required;
    QString m_words;
    QCommandLineParser m_parser;
};

} // namespace velkmap

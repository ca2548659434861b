#include "CommandLine.h"

#include <geomcore/project/CatalogPlaces.h>

#include <QFileInfo>
#include <QTextStream>

namespace velkmap {

CommandLine::CommandLine(const QString &name, const QString &description)
    : m_name(name)
{
    m_parser.setApplicationDescription(description);
    m_parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsOptions);
    addFlag("help", "Shows this text.");
}

void CommandLine::addRequired(const QString &option, const QString &value,
                              const QString &description)
{
    m_required << option;
    m_parser.addOption({option, description, value});
}

void CommandLine::addOptional(const QString &option, const QString &value,
                              const QString &description, const QString &defaultValue)
{
    m_parser.addOption({option, description, value, defaultValue});
}

void CommandLine::addFlag(const QString &option, const QString &description)
{
    m_parser.addOption({option, description});
}

void CommandLine::addWords(const QString &name, const QString &description)
{
    m_words = " [" + name + "...]";
    m_parser.addPositionalArgument(name, description);
}

std::optional<ExitStatus> CommandLine::parse(const QStringList &arguments, QTextStream &out,
                                             QTextStream &err)
{
    const bool understood = m_parser.parse(QStringList{"velkmap " + m_name} + arguments);
    if (isSet("help")) {
        QString help = m_parser.helpText();
        const qsizetype begin = help.indexOf(' ');
        const qsizetype end = help.indexOf('\n');
        help.replace(begin, end - begin, " velkmap " + m_name + " [options]" + m_words);
        out << help;
        return ExitStatus::Done;
    }
    if (!understood)
        return wrongUsage(m_parser.errorText(), err);
    if (m_words.isEmpty() && !m_parser.positionalArguments().isEmpty())
        return wrongUsage("unexpected argument: " + m_parser.positionalArguments().first(), err);
    for (const QString &option : m_required) {
        if (m_parser.value(option).isEmpty())
            return wrongUsage("--" + option + " is missing", err);
    }
    return std::nullopt;
}

void CommandLine::addAllowed()
{
    addOptional("allow", "DIR",
                "Directory outside of the catalogs that projects and tables may be read from, "
                "where files of a catalog name them; may be repeated.");
}

void CommandLine::takeAllowed() const
{
    QStringList directories;
    for (const QString &directory : values("allow"))
        directories << (directory.startsWith('$') ? directory
                                                  : QFileInfo(directory).absoluteFilePath());
    CatalogPlaces::instance().setAllowed(directories);
}

ExitStatus CommandLine::wrongUsage(const QString &what, QTextStream &err) const
{
    err << "velkmap " << m_name << ": " << what << "\nTry 'velkmap " << m_name << " --help'.\n";
    return ExitStatus::WrongUsage;
}

} // namespace velkmap

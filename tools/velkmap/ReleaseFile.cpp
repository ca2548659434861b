#include "ReleaseFile.h"

#include "CommandLine.h"

#include <QTextStream>

namespace velkmap {

namespace {

// No source date reads so; used to learn a file's dates without making records.
const QString noDate = QStringLiteral("\x01");

} // namespace

void ReleaseFile::addOptions(CommandLine &line)
{
    line.addRequired("mapping", "FILE", "The mapping file.");
    line.addOptional("release", "DATE",
                     "Source date of the release to work on; the last one of the file by default.");
}

std::optional<ExitStatus> ReleaseFile::read(const CommandLine &line, QTextStream &err)
{
    m_path = line.value("mapping");
    const auto unreadable = [&](const QString &error) {
        err << "velkmap: " << error << '\n';
        return ExitStatus::InputUnreadable;
    };
    QString error;
    QString date = line.value("release");
    if (date.isEmpty()) {
        if (!m_file.read(m_path, noDate, &error))
            return unreadable(error);
        if (m_file.sourceDates().isEmpty())
            return unreadable(m_path + ": the file holds no release; make one with velkmap create");
        date = m_file.sourceDates().last();
    }
    if (!m_file.read(m_path, date, &error))
        return unreadable(error);
    if (!m_file.contains(date)) {
        return unreadable(m_path + ": there is no release " + date + "; the file holds " +
                          m_file.sourceDates().join(", "));
    }
    m_release = m_file.release(date);
    return std::nullopt;
}

ExitStatus ReleaseFile::write(const ReleaseMappingC &release, QTextStream &err)
{
    m_file.setRelease(release);
    QString error;
    if (m_file.write(m_path, &error))
        return ExitStatus::Done;
    err << "velkmap: " << error << '\n';
    return ExitStatus::ResultUnwritable;
}

} // namespace velkmap

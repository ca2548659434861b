#include "ReleaseFile.h"

#include "CommandLine.h"

#include <QFileInfo>
#include <QTextStream>

namespace velkmap {

namespace {

// No source date reads so; used to learn a file's dates without making records.
const QString noDate = QStringLiteral("\x01");

QString ownerText(const SessionOwner &owner)
{
    QStringList parts;
    if (!owner.user.isEmpty())
        parts << owner.user;
    if (!owner.host.isEmpty())
        parts << "on " + owner.host;
    if (owner.process > 0)
        parts << QString("(%1, process %2)").arg(owner.program, QString::number(owner.process));
    return parts.isEmpty() ? QString("somebody") : parts.join(' ');
}

} // namespace

std::optional<ExitStatus> takeLock(EditLock &lock, const QString &mappingFile, QTextStream &err)
{
    const EditLock::Result result = lock.take(mappingFile);
    if (result == EditLock::Taken)
        return std::nullopt;
    err << "velkmap: " << mappingFile;
    if (result == EditLock::HeldByOther)
        err << " is being worked on by " << ownerText(lock.owner()) << "; nothing was changed\n";
    else
        err << " cannot be written: its folder takes no file\n";
    return ExitStatus::ResultUnwritable;
}

void ReleaseFile::addOptions(CommandLine &line)
{
    line.addRequired("mapping", "FILE", "The mapping file.");
    line.addOptional("release", "DATE",
                     "Source date of the release to work on; the last one of the file by default.");
}

std::optional<ExitStatus> ReleaseFile::lock(const CommandLine &line, QTextStream &err)
{
    const QString path = line.value("mapping");
    if (QFileInfo::exists(path))
        return takeLock(m_lock, path, err);
    err << "velkmap: " << path << ": there is no such file; make it with velkmap create\n";
    return ExitStatus::InputUnreadable;
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
    for (const QString &note : m_file.notes())
        err << "velkmap: " << m_path << ": " << note << '\n';
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

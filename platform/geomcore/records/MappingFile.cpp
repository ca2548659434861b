#include "MappingFile.h"

#include "KnownRows.h"
#include "recordsText.h"
#include "ReleaseReader.h"
#include "ReleaseWriter.h"

#include <core/files/DurableFile.h>
#include <core/json/JsonWriter.h>
#include <core/text/PString.h>

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>

class MappingFileData : public QSharedData
{
public:
    [[nodiscard]] const MappingFileMember *find(const QString &sourceDate) const
    {
        const auto at = std::find_if(members.begin(), members.end(), [&](const auto &member) {
            return member.sourceDate == sourceDate;
        });
        return at == members.end() ? nullptr : &*at;
    }

    QList<MappingFileMember> members;
    QStringList notes;
};

namespace {

bool report(QString *error, const QString &path, const QString &what)
{
    if (error)
        *error = QStringLiteral("%1: %2").arg(path, what);
    return false;
}

bool openFile(QFile &file, const QString &nativePath, QString *error)
{
    const QFileInfo info(nativePath);
    if (info.exists() && !info.isFile()) // asked first: opening a pipe waits for its other end
        return report(error, nativePath,
                      PString::translate("Das ist keine gewöhnliche Datei.", "VelkCore"));
    file.setFileName(nativePath);
    return file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) ||
           report(error, nativePath, file.errorString());
}

/// \a what is wrong with the content of a file that was opened, unless reading it failed.
bool reportReading(QString *error, const QFile &file, const QString &what)
{
    if (file.error() != QFileDevice::NoError)
        return report(error, file.fileName(), file.errorString());
    if (error)
        *error = QStringLiteral("%1, %2").arg(file.fileName(), what);
    return false;
}

WantedMembers wantedOf(const QString &sourceDate)
{
    return sourceDate.isEmpty() ? WantedMembers::All : WantedMembers::Named;
}

void writeMembers(JsonWriter &writer, const QList<MappingFileMember> &members)
{
    writer.beginObject();
    for (const MappingFileMember &member : members) {
        writer.key(QStringView(member.sourceDate));
        if (member.isRecords)
            writeRelease(writer, member.release, false);
        else
            writer.written(member.text);
    }
    writer.endObject();
    writer.lineFeed();
}

} // namespace

MappingFile::MappingFile()
    : d(new MappingFileData)
{
}

MappingFile::MappingFile(const MappingFile &) = default;

MappingFile &MappingFile::operator=(const MappingFile &) = default;

MappingFile::~MappingFile() = default;

bool MappingFile::read(const QString &nativePath, const QString &sourceDate, QString *error)
{
    QFile file;
    QString what;
    return openFile(file, nativePath, error) &&
           (readMappingFile(file, wantedOf(sourceDate), sourceDate, d->members, d->notes, &what) ||
            reportReading(error, file, what));
}

bool MappingFile::readNoting(const QString &nativePath, KnownRows &rows, QString *error)
{
    QFile file;
    if (!openFile(file, nativePath, error))
        return false;
    rows.begin(file.readAll());
    QBuffer buffer;
    buffer.setData(rows.json());
    QString what;
    return (file.error() == QFileDevice::NoError && buffer.open(QIODevice::ReadOnly) &&
            readMappingFile(buffer, WantedMembers::All, {}, d->members, d->notes, &what,
                            {&rows, nullptr})) ||
           reportReading(error, file, what);
}

bool MappingFile::readBeside(const QString &nativePath, const KnownRows &rows, QString *error)
{
    QFile file;
    QString what;
    return openFile(file, nativePath, error) &&
           (readMappingFile(file, WantedMembers::All, {}, d->members, d->notes, &what,
                            {nullptr, &rows}) ||
            reportReading(error, file, what));
}

bool MappingFile::parse(const QByteArray &json, const QString &sourceDate, QString *error)
{
    QBuffer buffer;
    buffer.setData(json);
    return buffer.open(QIODevice::ReadOnly) &&
           readMappingFile(buffer, wantedOf(sourceDate), sourceDate, d->members, d->notes, error);
}

bool MappingFile::parseLast(const QByteArray &json, QString *error)
{
    QBuffer buffer;
    buffer.setData(json);
    MappingFile found;
    if (!buffer.open(QIODevice::ReadOnly) ||
        !readMappingFile(buffer, WantedMembers::Last, QString(), found.d->members, found.d->notes,
                         error))
        return false;
    if (!found.d->members.isEmpty() && !found.d->members.last().isRecords)
        return report(error, found.d->members.last().sourceDate,
                      recordsText("Er steht zwischen zwei Katalogständen desselben Datums."));
    *this = found;
    return true;
}

QStringList MappingFile::notes() const
{
    return d->notes;
}

QStringList MappingFile::sourceDates() const
{
    QStringList dates;
    for (const MappingFileMember &member : d->members)
        dates += member.sourceDate;
    return dates;
}

bool MappingFile::contains(const QString &sourceDate) const
{
    return d->find(sourceDate) != nullptr;
}

ReleaseMappingC MappingFile::release(const QString &sourceDate) const
{
    const MappingFileMember *member = d->find(sourceDate);
    return member ? member->release : ReleaseMappingC();
}

QList<ReleaseMappingC> MappingFile::releases() const
{
    QList<ReleaseMappingC> list;
    for (const MappingFileMember &member : d->members) {
        if (member.isRecords)
            list += member.release;
    }
    return list;
}

void MappingFile::setRelease(const ReleaseMappingC &release)
{
    const MappingFileMember member{release.getSourceDate(), true, release, {}};
    const MappingFileMember *known = std::as_const(*d).find(member.sourceDate);
    if (known)
        d->members[known - std::as_const(d->members).constData()] = member;
    else
        d->members.append(member);
}

QByteArray MappingFile::toByteArray() const
{
    JsonWriter writer(JsonWriter::Indented);
    writeMembers(writer, d->members);
    return writer.take();
}

bool MappingFile::write(const QString &nativePath, QString *error) const
{
    QSaveFile file(nativePath);
    QString cause;
    if (!DurableFile::open(file, &cause))
        return report(error, nativePath, cause);
    JsonWriter writer(file, JsonWriter::Indented);
    writeMembers(writer, d->members);
    // Without commit() the file beside goes with its object.
    if (!writer.finish())
        return report(error, nativePath, file.errorString());
    return DurableFile::commit(file, &cause) || report(error, nativePath, cause);
}

#pragma once

#include "ReleaseMappingC.h"

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QByteArray>
#include <QList>
#include <QSharedDataPointer>
#include <QString>
#include <QStringList>

class KnownRows;
class MappingFileData;

/// A mapping file: one JSON object with a member for each release, named by its source date. Reads
/// the releases that are wanted into records in one pass over the file; the others stay text and go
/// out again byte for byte. A copy-on-write value.
class VELKGEOMCORE_EXPORT MappingFile
{
public:
    MappingFile();
    MappingFile(const MappingFile &other);
    MappingFile &operator=(const MappingFile &other);
    ~MappingFile();

    /// Reads the file; \a sourceDate chooses the release that becomes records, empty chooses all.
    /// False if the file cannot be read, is no JSON or a wanted release is not as it should be:
    /// then \a error names file, line, column and member, and this object is as before. A date that
    /// the file does not hold is no error.
    [[nodiscard]] bool read(const QString &nativePath, const QString &sourceDate = QString(),
                            QString *error = nullptr);
    /// The same with all releases; \a rows takes what other files are read beside, and the text of
    /// the file.
    [[nodiscard]] bool readNoting(const QString &nativePath, KnownRows &rows,
                                  QString *error = nullptr);
    /// The same beside the rows of another file that says mostly the same.
    [[nodiscard]] bool readBeside(const QString &nativePath, const KnownRows &rows,
                                  QString *error = nullptr);
    /// The same with the bytes of a file; \a error names no file.
    [[nodiscard]] bool parse(const QByteArray &json, const QString &sourceDate = QString(),
                             QString *error = nullptr);

    /// The same for the release that stands last in the file, in one pass where its date is not
    /// known before. False also if another release is not as it should be, or a date stands there
    /// twice with another one between: then its date has to be named.
    [[nodiscard]] bool parseLast(const QByteArray &json, QString *error = nullptr);

    /// What the last reading put right or passed over, a sentence each: a release that stands twice
    /// in the file, a target without path that is not the last one.
    [[nodiscard]] QStringList notes() const;
    /// In the order of the file.
    [[nodiscard]] QStringList sourceDates() const;
    [[nodiscard]] bool contains(const QString &sourceDate) const;
    /// The release as records; a default one if it is not there or was left as text.
    [[nodiscard]] ReleaseMappingC release(const QString &sourceDate) const;
    /// All releases that are there as records, in the order of the file.
    [[nodiscard]] QList<ReleaseMappingC> releases() const;
    /// Replaces the release of the same source date in its place, or appends.
    void setRelease(const ReleaseMappingC &release);

    /// The bytes of the file, the same for the same content.
    [[nodiscard]] QByteArray toByteArray() const;
    /// Writes beside the file, syncs and renames, so the file is the old or the new one at any
    /// time. False if that fails: \a error names file and cause, and the old file is as it was.
    [[nodiscard]] bool write(const QString &nativePath, QString *error = nullptr) const;

private:
    QSharedDataPointer<MappingFileData> d;
};

#pragma once

#include "ReleaseMappingC.h"

#include <QByteArray>
#include <QList>

class KnownRows;
class QIODevice;

/// Reads a text in the layout of the mapping file's releases. False if anything is not as it should
/// be: \a error then tells line, column and member, and \a release is as before.
[[nodiscard]] bool readRelease(const QByteArray &json, ReleaseMappingC &release, QString *error);

/// A member of a mapping file.
struct MappingFileMember
{
    QString sourceDate;
    bool isRecords = false;
    ReleaseMappingC release; ///< if isRecords
    QByteArray text;         ///< unless isRecords: the value as it is written
};

/// Which members of a mapping file become records.
enum class WantedMembers {
    Named,
    All,
    Last, ///< the others are looked at all the same, and have to be as they should
};

/// What reading a file has to do with the rows of another one.
struct RowsOfFiles
{
    KnownRows *noted = nullptr;       ///< takes the rows; it holds the text that is read
    const KnownRows *known = nullptr; ///< of a file that may say the same
};

/// Reads a whole mapping file in one pass, piece by piece; \a file is open and can be read again.
/// \a wanted members become records, with Named that of the name \a sourceDate. False if anything
/// is not as it should be, as above. \a notes says what was put right or passed over.
[[nodiscard]] bool readMappingFile(QIODevice &file, WantedMembers wanted, const QString &sourceDate,
                                   QList<MappingFileMember> &members, QStringList &notes,
                                   QString *error, const RowsOfFiles &rows = {});

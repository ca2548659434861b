#pragma once

#include "refHandle.h"

#include <core/config/PIniFile.h>
#include <core/text/PPathName.h>
#include <geomcore/VelkGeomCoreGlobal.h>

#include <QMap>
#include <QString>

#include <memory>

class QLockFile;

/// A project of a catalog as it was read from its file. One thread at a time may change it.
class VELKGEOMCORE_EXPORT PrjClass : public PRefObject
{
public:
    /// What read() takes from the file.
    enum ReadPart {
        ReadLexems = 1,
        ReadVariables = 2,
        ReadTable = 4,
        ReadAll = 7,
    };

    /// \a keepRelative: the reference to the table stays as the file has it, else it is resolved
    /// while reading. \a create: a file that is not there is an
    /// empty project. \a lock: reading takes the lock file "NAME.prj.lock", kept until the project
    /// goes; without it reading fails.
    PrjClass(bool keepRelative, bool create, bool lock);
    ~PrjClass() override;

    /// Reads the wanted parts of a project file, a sum of ReadPart; the others are empty
    /// afterwards. 1 if it was read, -1 if not: then nothing is there but path() and errorText().
    int read(const QString &nativePath, int parts);

    [[nodiscard]] bool isValid() const { return m_valid; }
    /// Why reading failed, with the file's name; empty if it did not.
    [[nodiscard]] const QString &errorText() const { return m_errorText; }
    /// The lines of the file that made no sense and were passed over.
    [[nodiscard]] const QList<PIniFile::Diagnostic> &warnings() const { return m_warnings; }
    /// Native path of the file given to read().
    [[nodiscard]] const QString &path() const { return m_path; }
    /// Value of a lexeme, empty if there is none.
    [[nodiscard]] QString lexem(const QString &name) const { return m_lexems.value(name); }
    [[nodiscard]] const QMap<QString, QString> &lexems() const { return m_lexems; }
    [[nodiscard]] const QMap<QString, QString> &variables() const { return m_variables; }

    /// Where the table's descriptor is: the lexeme "SACHM", or its resolved path; empty for a
    /// project without a table.
    [[nodiscard]] const QString &tableReference() const { return m_tableReference; }
    void setTableReference(const QString &reference) { m_tableReference = reference; }
    /// Native path of the table's descriptor, see tableFileOf(); empty for a project without a
    /// table.
    [[nodiscard]] QString tableFile() const;

private:
    void clear();
    int fail(const QString &error);
    [[nodiscard]] bool takeLock();

    bool m_keepRelative;
    bool m_create;
    bool m_lock;
    bool m_valid = false;
    QString m_path;
    QString m_errorText;
    QList<PIniFile::Diagnostic> m_warnings;
    QMap<QString, QString> m_lexems;
    QMap<QString, QString> m_variables;
    QString m_tableReference;
    std::unique_ptr<QLockFile> m_lockFile;
};

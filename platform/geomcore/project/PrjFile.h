#pragma once

#include <core/config/PIniFile.h>
#include <geomcore/VelkGeomCoreGlobal.h>

#include <QMap>
#include <QString>
#include <QStringList>

/// A project file: lines of text that a person can read.
///
///     [PROJECT]
///     NAME = DIN 931 Sechskantschraube     lexemes: what the project says of itself
///     DATE = 2026-01-31T12:00:00Z
///     SACHM = din931.json                  descriptor of its table
///     [VARIABLES]
///     L = 20                               values given to variables
///
/// Names of lexemes and variables are compared exactly.
class VELKGEOMCORE_EXPORT PrjFile
{
public:
    /// Reads a file: 1 if it was read, -1 if not; errorText() then tells why. With \a create a file
    /// that is not there counts as an empty one. Lines that cannot be understood are passed over;
    /// warnings() names them.
    int Load(const QString &nativePath, bool create);
    /// Writes beside the file, syncs and renames: 1, or -1 with errorText(). What was not changed
    /// keeps its bytes.
    int Save(const QString &nativePath);

    /// Empty if there is none.
    [[nodiscard]] QString GetLexemValue(const QString &name) const;
    void SetLexemValue(const QString &name, const QString &value);
    [[nodiscard]] QStringList lexemNames() const;
    /// Variables with their values, as texts.
    [[nodiscard]] QMap<QString, QString> variables() const;
    void setVariable(const QString &name, const QString &value);

    [[nodiscard]] const QString &errorText() const { return m_errorText; }
    /// The lines that were passed over.
    [[nodiscard]] const QList<PIniFile::Diagnostic> &diagnostics() const
    {
        return m_file.diagnostics();
    }
    /// The same as "file:line: message".
    [[nodiscard]] QStringList warnings() const { return m_file.diagnosticTexts(); }

private:
    PIniFile m_file;
    QString m_errorText;
};

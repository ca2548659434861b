#pragma once

#include <release/VelkReleaseGlobal.h>

#include <geomcore/csv/TableError.h>

#include <QByteArray>
#include <QFile>
#include <QStringList>

#include <string_view>

namespace VelkRelease {

class TableSource;

/// How a CSV file is written that comes from somewhere else.
struct SourceForm
{
    char separator = 0; ///< 0: comma, semicolon or tab, recognised from the first rows.
    QString encoding;   ///< Empty: UTF-16 by its byte order mark, else UTF-8.
};

/// The text of a CSV file as tables are read: UTF-8 (RFC 4180) with commas. What is written
/// otherwise is written anew in memory; the texts of the cells stay. Files that a TableSource is
/// there for are read by it.
class VELKRELEASE_EXPORT SourceText
{
public:
    SourceText(const QString &file, const SourceForm &form);

    /// Names that SourceForm::encoding may have.
    [[nodiscard]] static QStringList encodings();

    /// False with errors(): the file cannot be opened, or a row ends with a carriage return alone.
    [[nodiscard]] bool read();
    /// Whether the file itself is what csv() gives.
    [[nodiscard]] bool isAsWritten() const { return m_isAsWritten; }
    /// Bytes that live as long as this object.
    [[nodiscard]] const QByteArray &csv() const { return m_csv; }
    /// Takes quotes inside of cells that do not begin with one for characters, as spreadsheets do,
    /// and notes the first. False if there is none, or if quotes are wrong in another way.
    [[nodiscard]] bool acceptBareQuotes();

    [[nodiscard]] const VKTab::TableErrorList &errors() const { return m_errors; }
    [[nodiscard]] const QStringList &notes() const { return m_notes; }

private:
    [[nodiscard]] bool open();
    [[nodiscard]] bool convert(const TableSource &source);
    void decode();
    [[nodiscard]] bool checkLineEnds();
    [[nodiscard]] bool rewrite(char separator);
    bool fail(int row, int column, const QString &text);

    QFile m_file;
    const SourceForm m_form;
    bool m_isAsWritten = true;
    QByteArray m_csv;
    VKTab::TableErrorList m_errors;
    QStringList m_notes;
};

} // namespace VelkRelease

#pragma once

#include <QByteArray>
#include <QString>

#include <string>
#include <string_view>

namespace VelkRelease {

/// The separator that makes rows of equally many cells of a text's first ones: comma, semicolon or
/// tab; the comma if none does.
[[nodiscard]] char separatorOf(std::string_view csv);
/// The first row, from 1, that a carriage return ends without a line feed; 0 if there is none.
/// Quoted cells may hold some.
[[nodiscard]] int rowOfBareReturn(std::string_view csv);

/// Writes CSV text with another separator, or with quotes where there need be none, as RFC 4180
/// wants it. Cells that are right stay byte for byte, line ends too.
class CsvRewriter
{
public:
    struct Place
    {
        int row = 0; ///< From 1; 0 is nowhere.
        int column = 0;
    };

    CsvRewriter(std::string_view csv, char separator);

    /// False with row(), column() and error() if a quoted cell does not end as it should.
    [[nodiscard]] bool run();
    [[nodiscard]] QByteArray take();
    /// The first quote inside of a cell that does not begin with one.
    [[nodiscard]] Place firstBareQuote() const { return m_bareQuote; }

    [[nodiscard]] int row() const { return m_row; }
    [[nodiscard]] int column() const { return m_column; }
    [[nodiscard]] const QString &error() const { return m_error; }

private:
    [[nodiscard]] bool copyCell();
    [[nodiscard]] bool copyQuoted();
    void copyPlain();
    void endCell();

    const std::string_view m_csv;
    const char m_separator;
    size_t m_at = 0;
    int m_row = 1;
    int m_column = 1;
    Place m_bareQuote;
    QString m_error;
    std::string m_out;
};

} // namespace VelkRelease

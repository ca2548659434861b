#pragma once

#include <release/VelkReleaseGlobal.h>

#include <QStringList>

#include <cstddef>
#include <functional>

namespace VelkRelease {

/// A page of HTML 5 that needs no other file, written from top to bottom: headings, paragraphs,
/// lists, and tables whose rows beyond a number are only counted. Simple enough for QTextDocument,
/// which knows few styles and wants most of them as attributes. All texts are plain ones.
class VELKRELEASE_EXPORT HtmlPage
{
public:
    /// What becomes of the rows of long and of empty tables.
    struct Rows
    {
        int most = -1;   ///< -1: all
        QString nothing; ///< instead of rows if there are none
        QString more;    ///< "and %1 more"
        /// A count for people.
        std::function<QString(int)> number = [](int count) {
            return QString::number(count);
        };
    };
    explicit HtmlPage(const Rows &rows);

    /// \a language is a BCP 47 tag.
    void begin(const QString &title, const QString &language);
    /// The whole page.
    [[nodiscard]] QString end();

    void heading(const QString &text);
    void paragraph(const QStringList &rows);
    void strongParagraph(const QString &text);
    void list(const QStringList &entries);

    void beginTable();
    void endTable();
    /// A row of heads, which stands on each page that the table goes on to.
    void beginHead();
    void endHead();
    void beginRow();
    void endRow();
    void heads(const QStringList &texts);
    void numberHeads(const QStringList &texts);
    void cell(const QString &text);
    void number(const QString &text);
    void number(int value);
    void emptyCells(int columns);
    /// Calls \a row with each index that is told, and says what is not.
    void rows(std::size_t count, int columns, const std::function<void(std::size_t)> &row);

private:
    void headCells(const char *begin, const QStringList &texts);

    Rows m_rows;
    QString m_html;
};

} // namespace VelkRelease

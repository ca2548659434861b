#include "HtmlPage.h"

#include <algorithm>

namespace VelkRelease {

namespace {

// Dark text on white and grey, on paper too.
constexpr const char *style =
    "body { font-family: sans-serif; color: #1a1a1a; background: #ffffff; }\n"
    "h1 { font-size: 150%; }\n"
    "h2 { font-size: 120%; }\n"
    "th { background-color: #e4e8ec; text-align: left; }\n"
    "th, td { padding: 2px 6px; vertical-align: top; }\n"
    "td.n, th.n { text-align: right; }\n";

} // namespace

HtmlPage::HtmlPage(const Rows &rows)
    : m_rows(rows)
{
}

void HtmlPage::begin(const QString &title, const QString &language)
{
    const QString escaped = title.toHtmlEscaped();
    m_html = QStringLiteral("<!DOCTYPE html>\n<html lang=\"") + language.toHtmlEscaped() +
             QStringLiteral("\">\n<head>\n<meta charset=\"utf-8\">\n<title>") + escaped +
             QStringLiteral("</title>\n<style>\n") + QLatin1String(style) +
             QStringLiteral("</style>\n</head>\n<body>\n<h1>") + escaped +
             QStringLiteral("</h1>\n");
}

QString HtmlPage::end()
{
    return m_html + QStringLiteral("</body>\n</html>\n");
}

void HtmlPage::heading(const QString &text)
{
    m_html += QStringLiteral("<h2>") + text.toHtmlEscaped() + QStringLiteral("</h2>\n");
}

void HtmlPage::paragraph(const QStringList &rows)
{
    QStringList escaped;
    for (const QString &row : rows)
        escaped << row.toHtmlEscaped();
    m_html +=
        QStringLiteral("<p>") + escaped.join(QStringLiteral("<br>")) + QStringLiteral("</p>\n");
}

void HtmlPage::strongParagraph(const QString &text)
{
    m_html += QStringLiteral("<p><b>") + text.toHtmlEscaped() + QStringLiteral("</b></p>\n");
}

void HtmlPage::list(const QStringList &entries)
{
    m_html += QStringLiteral("<ul>\n");
    for (const QString &entry : entries)
        m_html += QStringLiteral("<li>") + entry.toHtmlEscaped() + QStringLiteral("</li>\n");
    m_html += QStringLiteral("</ul>\n");
}

void HtmlPage::beginTable()
{
    m_html += QStringLiteral("<table border=\"1\" cellspacing=\"0\" cellpadding=\"3\">\n");
}

void HtmlPage::endTable()
{
    m_html += QStringLiteral("</table>\n");
}

void HtmlPage::beginHead()
{
    m_html += QStringLiteral("<thead>");
    beginRow();
}

void HtmlPage::endHead()
{
    m_html += QStringLiteral("</tr></thead>\n");
}

void HtmlPage::beginRow()
{
    m_html += QStringLiteral("<tr>");
}

void HtmlPage::endRow()
{
    m_html += QStringLiteral("</tr>\n");
}

void HtmlPage::headCells(const char *begin, const QStringList &texts)
{
    for (const QString &text : texts)
        m_html += QLatin1String(begin) + text.toHtmlEscaped() + QStringLiteral("</th>");
}

void HtmlPage::heads(const QStringList &texts)
{
    headCells("<th align=\"left\">", texts);
}

void HtmlPage::numberHeads(const QStringList &texts)
{
    headCells("<th class=\"n\" align=\"right\">", texts);
}

void HtmlPage::cell(const QString &text)
{
    m_html += QStringLiteral("<td>") + text.toHtmlEscaped() + QStringLiteral("</td>");
}

void HtmlPage::number(const QString &text)
{
    m_html += QStringLiteral("<td class=\"n\" align=\"right\">") + text.toHtmlEscaped() +
              QStringLiteral("</td>");
}

void HtmlPage::number(int value)
{
    number(m_rows.number(value));
}

void HtmlPage::emptyCells(int columns)
{
    m_html += QStringLiteral("<td colspan=\"%1\"></td>").arg(columns);
}

void HtmlPage::rows(std::size_t count, int columns, const std::function<void(std::size_t)> &row)
{
    const std::size_t most = m_rows.most < 0 ? count : std::size_t(m_rows.most);
    for (std::size_t i = 0; i < std::min(count, most); ++i) {
        beginRow();
        row(i);
        endRow();
    }
    const QString last = count == 0     ? m_rows.nothing
                         : count > most ? m_rows.more.arg(m_rows.number(int(count - most)))
                                        : QString();
    if (!last.isEmpty())
        m_html += QStringLiteral("<tr><td colspan=\"%1\">").arg(columns) + last.toHtmlEscaped() +
                  QStringLiteral("</td></tr>\n");
}

} // namespace VelkRelease

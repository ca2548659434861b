#include "ReportHtml.h"

#include <QTextStream>

#include <algorithm>
#include <cmath>

namespace VelkRelease {

namespace {

constexpr int ExampleCount = 3;

// Dark text on white and grey, on paper too.
constexpr const char *style =
    "body { font-family: sans-serif; color: #1a1a1a; background: #ffffff; }\n"
    "h1 { font-size: 150%; }\n"
    "h2 { font-size: 120%; }\n"
    "th { background-color: #e4e8ec; text-align: left; }\n"
    "th, td { padding: 2px 6px; vertical-align: top; }\n"
    "td.n, th.n { text-align: right; }\n";

/// "cat/a.prj:3, 17; cat/b.prj:2" of places that are told one after the other.
QString placesText(const QStringList &places)
{
    QString text;
    QString project;
    for (const QString &place : places) {
        const qsizetype colon = place.lastIndexOf(u':');
        const QString own = place.left(colon);
        const bool goesOn = !text.isEmpty() && own == project;
        text += goesOn           ? QStringLiteral(", ") + place.mid(colon + 1)
                : text.isEmpty() ? place
                                 : QStringLiteral("; ") + place;
        project = own;
    }
    return text;
}

/// Writes a report piece by piece.
class HtmlWriter
{
public:
    HtmlWriter(const ReleaseReport &report, const ReportForm &form)
        : m_report(report)
        , m_form(form)
        , m_out(&m_html)
    {
    }

    QString write();

private:
    [[nodiscard]] QString text(ReportText text) const { return m_form.text(text); }
    void heading(ReportText text)
    {
        m_out << "<h2>" << m_form.text(text).toHtmlEscaped() << "</h2>\n";
    }
    void beginTable() { m_out << "<table border=\"1\" cellspacing=\"0\" cellpadding=\"3\">\n"; }
    void endTable() { m_out << "</table>\n"; }
    void headCells(std::initializer_list<ReportText> texts, bool numbers = false);
    void cell(const QString &text) { m_out << "<td>" << text.toHtmlEscaped() << "</td>"; }
    void number(const QString &text)
    {
        m_out << "<td class=\"n\" align=\"right\">" << text.toHtmlEscaped() << "</td>";
    }
    void number(int value) { number(QString::number(value)); }
    /// Calls \a row with each index; a section without entries says so.
    template<class Row>
    void rows(std::size_t count, int columns, Row row);

    void writeHead();
    void writeTotal();
    void writeParts(ReportText head, ReportText column,
                    const std::vector<ReleaseReport::Part> &parts);
    void writeNumbers(const ReportNumbers &numbers);
    void writeReasons();
    void writePatterns();
    void writeGoneGroups();
    void writePattern(int pattern);
    void writeExamples(int pattern);
    void writeSum(int lines, int columns);
    void writeSamples();
    void writeCarried();
    void writeDecisions();
    void writeOpenLines();
    void writeGoneLines();
    void writeErrors();
    [[nodiscard]] QString patternText(int pattern) const;

    const ReleaseReport &m_report;
    const ReportForm &m_form;
    QString m_html;
    QTextStream m_out;
};

void HtmlWriter::headCells(std::initializer_list<ReportText> texts, bool numbers)
{
    const char *const begin = numbers ? "<th class=\"n\" align=\"right\">" : "<th align=\"left\">";
    for (const ReportText each : texts)
        m_out << begin << text(each).toHtmlEscaped() << "</th>";
}

template<class Row>
void HtmlWriter::rows(std::size_t count, int columns, Row row)
{
    const std::size_t most = m_form.mostRows < 0 ? count : std::size_t(m_form.mostRows);
    for (std::size_t i = 0; i < std::min(count, most); ++i) {
        m_out << "<tr>";
        row(i);
        m_out << "</tr>\n";
    }
    const QString last = count == 0     ? text(ReportText::Nothing)
                         : count > most ? text(ReportText::More).arg(count - most)
                                        : QString();
    if (!last.isEmpty())
        m_out << "<tr><td colspan=\"" << columns << "\">" << last.toHtmlEscaped() << "</td></tr>\n";
}

void HtmlWriter::writeHead()
{
    const QString title = text(ReportText::Title).arg(m_report.name).toHtmlEscaped();
    m_out
        << "<!DOCTYPE html>\n<html lang=\"" << m_form.language.toHtmlEscaped()
        << "\">\n<head>\n<meta charset=\"utf-8\">\n<title>" << title << "</title>\n<style>\n"
        << style << "</style>\n</head>\n<body>\n<h1>" << title << "</h1>\n<p>"
        << text(ReportText::Releases).arg(m_report.sourceDate, m_report.targetDate).toHtmlEscaped();
    if (m_report.made.isValid())
        m_out << "<br>" << text(ReportText::Made).arg(m_form.time(m_report.made)).toHtmlEscaped();
    const ReportNumbers &numbers = m_report.total.numbers;
    m_out << "</p>\n<p><b>"
          << text(ReportText::Summary)
                 .arg(QString::number(numbers.lines() - numbers.open()),
                      QString::number(numbers.lines()), QString::number(numbers.open()))
                 .toHtmlEscaped()
          << "</b></p>\n";
}

void HtmlWriter::writeTotal()
{
    heading(ReportText::TotalHead);
    beginTable();
    const ReportNumbers &numbers = m_report.total.numbers;
    const std::pair<ReportText, int> all[] = {
        {ReportText::Confirmed, numbers.confirmed},
        {ReportText::Gone, numbers.gone},
        {ReportText::Certain, numbers.certain},
        {ReportText::ToCheck, numbers.toCheck},
        {ReportText::WithoutTarget, numbers.withoutTarget},
        {ReportText::InConflict, numbers.inConflict},
        {ReportText::Lines, numbers.lines()},
    };
    for (const auto &[name, count] : all) {
        m_out << "<tr>";
        cell(text(name));
        number(count);
        m_out << "</tr>\n";
    }
    endTable();
}

void HtmlWriter::writeNumbers(const ReportNumbers &numbers)
{
    for (const int count : {numbers.confirmed, numbers.gone, numbers.certain, numbers.toCheck,
                            numbers.withoutTarget, numbers.inConflict, numbers.lines()})
        number(count);
}

void HtmlWriter::writeParts(ReportText head, ReportText column,
                            const std::vector<ReleaseReport::Part> &parts)
{
    heading(head);
    beginTable();
    m_out << "<tr>";
    headCells({column});
    headCells({ReportText::Confirmed, ReportText::Gone, ReportText::Certain, ReportText::ToCheck,
               ReportText::WithoutTarget, ReportText::InConflict, ReportText::Lines},
              true);
    m_out << "</tr>\n";
    rows(parts.size(), 8, [&](std::size_t i) {
        const ReleaseReport::Part &part = parts[i];
        cell(part.hasTableError && column == ReportText::Project
                 ? part.path + QStringLiteral(" (") + text(ReportText::TableError) + u')'
                 : part.path);
        writeNumbers(part.numbers);
    });
    endTable();
}

void HtmlWriter::writeReasons()
{
    heading(ReportText::ReasonHead);
    beginTable();
    m_out << "<tr>";
    headCells({ReportText::Reason});
    headCells({ReportText::Lines}, true);
    m_out << "</tr>\n";
    std::vector<int> shown;
    for (int i = 0; i < OpenReasonCount; ++i) {
        if (m_report.total.reasons[size_t(i)] > 0)
            shown.push_back(i);
    }
    rows(shown.size(), 2, [&](std::size_t i) {
        cell(m_form.reason(OpenReason(shown[i])));
        number(m_report.total.reasons[size_t(shown[i])]);
    });
    endTable();
}

QString HtmlWriter::patternText(int pattern) const
{
    const DifferencePatterns &patterns = m_report.patterns;
    if (!patterns.isComparable(pattern))
        return text(ReportText::NotComparable);
    QString told;
    if (const std::optional<GoneGroup> &gone = patterns.gone(pattern)) {
        told = gone->text(m_form.goneGroups);
    } else {
        QStringList texts;
        for (const ValueChange &change : patterns.changes(pattern))
            texts << change.text(m_form.changes);
        told = texts.isEmpty() ? text(ReportText::NoDifference) : texts.join(QStringLiteral("; "));
    }
    return patterns.isDoubtful(pattern) ? text(ReportText::InDoubt).arg(told) : told;
}

/// Text, lines, projects and probability.
void HtmlWriter::writePattern(int pattern)
{
    const DifferencePatterns::Numbers numbers = m_report.patterns.numbers(pattern);
    cell(patternText(pattern));
    number(numbers.lines);
    number(numbers.projects);
    number(QString::number(numbers.probability, 'f', 2));
}

void HtmlWriter::writeExamples(int pattern)
{
    QStringList examples;
    for (const DifferencePatterns::Place &place : m_report.patterns.places(pattern, ExampleCount))
        examples << m_report.placeText(place.project, place.line);
    cell(examples.join(QStringLiteral(", ")));
}

/// Below rows whose second column says lines: of all rows, also of those that a long list leaves
/// out.
void HtmlWriter::writeSum(int lines, int columns)
{
    if (lines == 0)
        return;
    m_out << "<tr>";
    cell(text(ReportText::InAll));
    number(lines);
    m_out << "<td colspan=\"" << columns - 2 << "\"></td></tr>\n";
}

void HtmlWriter::writePatterns()
{
    heading(ReportText::PatternHead);
    beginTable();
    m_out << "<tr>";
    headCells({ReportText::Pattern});
    headCells(
        {ReportText::Lines, ReportText::Projects, ReportText::Probability, ReportText::Exceptions},
        true);
    headCells({ReportText::Examples});
    m_out << "</tr>\n";
    const std::vector<int> ranked = m_report.patterns.ranked();
    rows(ranked.size(), 6, [&](std::size_t i) {
        writePattern(ranked[i]);
        number(m_report.patterns.numbers(ranked[i]).exceptions);
        writeExamples(ranked[i]);
    });
    writeSum(m_report.patterns.openLines(), 6);
    endTable();
}

void HtmlWriter::writeGoneGroups()
{
    heading(ReportText::GoneGroupHead);
    beginTable();
    m_out << "<tr>";
    headCells({ReportText::GoneGroup});
    headCells({ReportText::Lines, ReportText::Projects, ReportText::Probability}, true);
    headCells({ReportText::Examples});
    m_out << "</tr>\n";
    const std::vector<int> ranked = m_report.patterns.rankedGone();
    rows(ranked.size(), 5, [&](std::size_t i) {
        writePattern(ranked[i]);
        writeExamples(ranked[i]);
    });
    writeSum(m_report.patterns.goneLines(), 5);
    endTable();
}

void HtmlWriter::writeSamples()
{
    heading(ReportText::SampleHead);
    beginTable();
    m_out << "<tr>";
    headCells({ReportText::Time, ReportText::Who});
    headCells({ReportText::Lines, ReportText::Judged, ReportText::Right, ReportText::Bound}, true);
    headCells({ReportText::Drawn});
    m_out << "</tr>\n";
    rows(m_report.samples.size(), 7, [&](std::size_t i) {
        const ReleaseReport::Sample &sample = m_report.samples[i];
        cell(m_form.time(sample.time));
        cell(sample.judge);
        number(sample.lines);
        number(sample.judged);
        number(sample.right);
        // Rounded up, or it would promise too much.
        number(sample.bound ? QString::number(std::ceil(*sample.bound * 1000) / 10, 'f', 1) +
                                  QStringLiteral(" %")
                            : text(ReportText::Refused));
        cell(placesText(sample.drawn));
    });
    endTable();
}

void HtmlWriter::writeCarried()
{
    heading(ReportText::CarriedHead);
    beginTable();
    m_out << "<tr>";
    headCells({ReportText::Time, ReportText::Who, ReportText::Former});
    headCells({ReportText::Lines, ReportText::Standing}, true);
    m_out << "</tr>\n";
    rows(m_report.carried.size(), 5, [&](std::size_t i) {
        const ReleaseReport::Carried &carried = m_report.carried[i];
        cell(m_form.time(carried.time));
        cell(carried.who);
        cell(QStringLiteral("%1 (%2)").arg(carried.former, carried.formerTarget));
        number(carried.lines);
        number(carried.standing);
    });
    endTable();
}

void HtmlWriter::writeDecisions()
{
    heading(ReportText::DecisionHead);
    beginTable();
    m_out << "<tr>";
    headCells({ReportText::Time, ReportText::Who, ReportText::What, ReportText::Reason});
    headCells({ReportText::Lines}, true);
    m_out << "</tr>\n";
    rows(m_report.decisions.size(), 5, [&](std::size_t i) {
        const ReleaseReport::Decision &decision = m_report.decisions[i];
        cell(m_form.time(decision.time));
        cell(decision.who);
        cell(decision.what);
        cell(decision.reason);
        number(decision.lines);
    });
    endTable();
}

void HtmlWriter::writeOpenLines()
{
    heading(ReportText::OpenHead);
    beginTable();
    m_out << "<tr>";
    headCells({ReportText::Line, ReportText::Designation, ReportText::Reason});
    m_out << "</tr>\n";
    rows(m_report.openLines.size(), 3, [&](std::size_t i) {
        const ReleaseReport::OpenLine &line = m_report.openLines[i];
        cell(m_report.placeText(line.project, line.line));
        cell(line.designation);
        cell(m_form.reason(line.reason));
    });
    endTable();
}

void HtmlWriter::writeGoneLines()
{
    heading(ReportText::GoneHead);
    beginTable();
    m_out << "<tr>";
    headCells({ReportText::Line, ReportText::Designation});
    m_out << "</tr>\n";
    rows(m_report.goneLines.size(), 2, [&](std::size_t i) {
        const ReleaseReport::GoneLine &line = m_report.goneLines[i];
        cell(m_report.placeText(line.project, line.line));
        cell(line.designation);
    });
    endTable();
}

void HtmlWriter::writeErrors()
{
    if (m_report.errors.isEmpty())
        return;
    heading(ReportText::ErrorHead);
    m_out << "<ul>\n";
    for (const QString &error : m_report.errors)
        m_out << "<li>" << error.toHtmlEscaped() << "</li>\n";
    m_out << "</ul>\n";
}

QString HtmlWriter::write()
{
    writeHead();
    writeTotal();
    writeErrors();
    writeReasons();
    writeParts(ReportText::FolderHead, ReportText::Folder, m_report.folders);
    writeParts(ReportText::ProjectHead, ReportText::Project, m_report.projects);
    writePatterns();
    writeGoneGroups();
    writeSamples();
    writeCarried();
    writeDecisions();
    writeOpenLines();
    writeGoneLines();
    m_out << "</body>\n</html>\n";
    m_out.flush();
    return m_html;
}

} // namespace

QString reportHtml(const ReleaseReport &report, const ReportForm &form)
{
    return HtmlWriter(report, form).write();
}

} // namespace VelkRelease

#include "ReportHtml.h"

#include "HtmlPage.h"

#include <core/text/countText.h>

namespace VelkRelease {

namespace {

constexpr int ExampleCount = 3;

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
        , m_page({form.mostRows, form.text(ReportText::Nothing), form.text(ReportText::More),
                  form.number})
    {
    }

    QString write();

private:
    [[nodiscard]] QString text(ReportText text) const { return m_form.text(text); }
    /// A heading and a table's row of heads: of texts first, then of numbers, then of texts again.
    void beginSection(ReportText head, const QList<ReportText> &columns,
                      const QList<ReportText> &numbers = {}, const QList<ReportText> &last = {});
    [[nodiscard]] QStringList texts(const QList<ReportText> &texts) const;

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
    HtmlPage m_page;
};

QStringList HtmlWriter::texts(const QList<ReportText> &texts) const
{
    QStringList told;
    for (const ReportText each : texts)
        told << text(each);
    return told;
}

void HtmlWriter::beginSection(ReportText head, const QList<ReportText> &columns,
                              const QList<ReportText> &numbers, const QList<ReportText> &last)
{
    m_page.heading(text(head));
    m_page.beginTable();
    m_page.beginHead();
    m_page.heads(texts(columns));
    m_page.numberHeads(texts(numbers));
    m_page.heads(texts(last));
    m_page.endHead();
}

void HtmlWriter::writeHead()
{
    m_page.begin(text(ReportText::Title).arg(m_report.name), m_form.language);
    QStringList rows{text(ReportText::Releases).arg(m_report.sourceDate, m_report.targetDate)};
    if (m_report.made.isValid())
        rows << text(ReportText::Made).arg(m_form.time(m_report.made));
    m_page.paragraph(rows);
    const ReportNumbers &numbers = m_report.total.numbers;
    m_page.strongParagraph(text(ReportText::Summary)
                               .arg(m_form.number(numbers.lines() - numbers.open()),
                                    m_form.number(numbers.lines()), m_form.number(numbers.open())));
}

void HtmlWriter::writeTotal()
{
    m_page.heading(text(ReportText::TotalHead));
    m_page.beginTable();
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
        m_page.beginRow();
        m_page.cell(text(name));
        m_page.number(count);
        m_page.endRow();
    }
    m_page.endTable();
}

void HtmlWriter::writeNumbers(const ReportNumbers &numbers)
{
    for (const int count : {numbers.confirmed, numbers.gone, numbers.certain, numbers.toCheck,
                            numbers.withoutTarget, numbers.inConflict, numbers.lines()})
        m_page.number(count);
}

void HtmlWriter::writeParts(ReportText head, ReportText column,
                            const std::vector<ReleaseReport::Part> &parts)
{
    beginSection(head, {column},
                 {ReportText::Confirmed, ReportText::Gone, ReportText::Certain, ReportText::ToCheck,
                  ReportText::WithoutTarget, ReportText::InConflict, ReportText::Lines});
    m_page.rows(parts.size(), 8, [&](std::size_t i) {
        const ReleaseReport::Part &part = parts[i];
        m_page.cell(part.hasTableError && column == ReportText::Project
                        ? part.path + QStringLiteral(" (") + text(ReportText::TableError) + u')'
                        : part.path);
        writeNumbers(part.numbers);
    });
    m_page.endTable();
}

void HtmlWriter::writeReasons()
{
    beginSection(ReportText::ReasonHead, {ReportText::Reason}, {ReportText::Lines});
    std::vector<int> shown;
    for (int i = 0; i < OpenReasonCount; ++i) {
        if (m_report.total.reasons[size_t(i)] > 0)
            shown.push_back(i);
    }
    m_page.rows(shown.size(), 2, [&](std::size_t i) {
        m_page.cell(m_form.reason(OpenReason(shown[i])));
        m_page.number(m_report.total.reasons[size_t(shown[i])]);
    });
    m_page.endTable();
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
    m_page.cell(patternText(pattern));
    m_page.number(numbers.lines);
    m_page.number(numbers.projects);
    m_page.number(percentText(numbers.probability, m_form.locale));
}

void HtmlWriter::writeExamples(int pattern)
{
    QStringList examples;
    for (const DifferencePatterns::Place &place : m_report.patterns.places(pattern, ExampleCount))
        examples << m_report.placeText(place.project, place.line);
    m_page.cell(examples.join(QStringLiteral(", ")));
}

/// Below rows whose second column says lines: of all rows, also of those that a long list leaves
/// out.
void HtmlWriter::writeSum(int lines, int columns)
{
    if (lines == 0)
        return;
    m_page.beginRow();
    m_page.cell(text(ReportText::InAll));
    m_page.number(lines);
    m_page.emptyCells(columns - 2);
    m_page.endRow();
}

void HtmlWriter::writePatterns()
{
    beginSection(
        ReportText::PatternHead, {ReportText::Pattern},
        {ReportText::Lines, ReportText::Projects, ReportText::Probability, ReportText::Exceptions},
        {ReportText::Examples});
    const std::vector<int> ranked = m_report.patterns.ranked();
    m_page.rows(ranked.size(), 6, [&](std::size_t i) {
        writePattern(ranked[i]);
        m_page.number(m_report.patterns.numbers(ranked[i]).exceptions);
        writeExamples(ranked[i]);
    });
    writeSum(m_report.patterns.openLines(), 6);
    m_page.endTable();
}

void HtmlWriter::writeGoneGroups()
{
    beginSection(ReportText::GoneGroupHead, {ReportText::GoneGroup},
                 {ReportText::Lines, ReportText::Projects, ReportText::Probability},
                 {ReportText::Examples});
    const std::vector<int> ranked = m_report.patterns.rankedGone();
    m_page.rows(ranked.size(), 5, [&](std::size_t i) {
        writePattern(ranked[i]);
        writeExamples(ranked[i]);
    });
    writeSum(m_report.patterns.goneLines(), 5);
    m_page.endTable();
}

void HtmlWriter::writeSamples()
{
    beginSection(ReportText::SampleHead, {ReportText::Time, ReportText::Who},
                 {ReportText::Lines, ReportText::Judged, ReportText::Right, ReportText::Bound},
                 {ReportText::Drawn});
    m_page.rows(m_report.samples.size(), 7, [&](std::size_t i) {
        const ReleaseReport::Sample &sample = m_report.samples[i];
        m_page.cell(m_form.time(sample.time));
        m_page.cell(sample.judge);
        m_page.number(sample.lines);
        m_page.number(sample.judged);
        m_page.number(sample.right);
        m_page.number(sample.bound ? boundText(*sample.bound, m_form.locale) + QStringLiteral(" %")
                                   : text(ReportText::Refused));
        m_page.cell(placesText(sample.drawn));
    });
    m_page.endTable();
}

void HtmlWriter::writeCarried()
{
    beginSection(ReportText::CarriedHead, {ReportText::Time, ReportText::Who, ReportText::Former},
                 {ReportText::Lines, ReportText::Standing});
    m_page.rows(m_report.carried.size(), 5, [&](std::size_t i) {
        const ReleaseReport::Carried &carried = m_report.carried[i];
        m_page.cell(m_form.time(carried.time));
        m_page.cell(carried.who);
        m_page.cell(QStringLiteral("%1 (%2)").arg(carried.former, carried.formerTarget));
        m_page.number(carried.lines);
        m_page.number(carried.standing);
    });
    m_page.endTable();
}

void HtmlWriter::writeDecisions()
{
    beginSection(ReportText::DecisionHead,
                 {ReportText::Time, ReportText::Who, ReportText::What, ReportText::Reason},
                 {ReportText::Lines});
    m_page.rows(m_report.decisions.size(), 5, [&](std::size_t i) {
        const ReleaseReport::Decision &decision = m_report.decisions[i];
        m_page.cell(m_form.time(decision.time));
        m_page.cell(decision.who);
        m_page.cell(decision.what);
        m_page.cell(decision.reason);
        m_page.number(decision.lines);
    });
    m_page.endTable();
}

void HtmlWriter::writeOpenLines()
{
    beginSection(ReportText::OpenHead,
                 {ReportText::Line, ReportText::Designation, ReportText::Reason});
    m_page.rows(m_report.openLines.size(), 3, [&](std::size_t i) {
        const ReleaseReport::OpenLine &line = m_report.openLines[i];
        m_page.cell(m_report.placeText(line.project, line.line));
        m_page.cell(line.designation);
        m_page.cell(m_form.reason(line.reason));
    });
    m_page.endTable();
}

void HtmlWriter::writeGoneLines()
{
    beginSection(ReportText::GoneHead, {ReportText::Line, ReportText::Designation});
    m_page.rows(m_report.goneLines.size(), 2, [&](std::size_t i) {
        const ReleaseReport::GoneLine &line = m_report.goneLines[i];
        m_page.cell(m_report.placeText(line.project, line.line));
        m_page.cell(line.designation);
    });
    m_page.endTable();
}

void HtmlWriter::writeErrors()
{
    if (m_report.errors.isEmpty())
        return;
    m_page.heading(text(ReportText::ErrorHead));
    m_page.list(m_report.errors);
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
    return m_page.end();
}

} // namespace

QString reportHtml(const ReleaseReport &report, const ReportForm &form)
{
    return HtmlWriter(report, form).write();
}

} // namespace VelkRelease

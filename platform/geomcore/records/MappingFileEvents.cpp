#include "MappingFileEvents.h"

#include "noObjectText.h"
#include "recordsText.h"

#include <array>
#include <charconv>

namespace {

const char *skipBlanks(const char *at, const char *end)
{
    while (at != end && (*at == ' ' || *at == '\n' || *at == '\r' || *at == '\t'))
        ++at;
    return at;
}

/// Reads ", [a,b,c]" with three integers and goes behind it. False, with nothing changed, if the
/// text is anything else or goes on behind \a end.
bool takeRow(const char *&at, const char *end, std::array<int, 3> &row)
{
    const char *p = skipBlanks(at, end);
    char before = ',';
    for (int i = -1; i < 3; ++i) {
        if (p == end || *p != before)
            return false;
        p = skipBlanks(p + 1, end);
        before = i < 0 ? '[' : ',';
        if (i < 0)
            continue;
        // from_chars takes leading zeros, which JSON does not know.
        const char *digit = p != end && *p == '-' ? p + 1 : p;
        const auto [behind, code] = std::from_chars(p, end, row[std::size_t(i)]);
        if (code != std::errc() || (*digit == '0' && behind != digit + 1))
            return false;
        p = skipBlanks(behind, end);
    }
    if (p == end || *p != ']')
        return false;
    at = p + 1;
    return true;
}

} // namespace

QString MappingFileEvents::error() const
{
    if (!m_message.isEmpty())
        return m_message;
    if (m_reading)
        return QStringLiteral("\"%1\": %2").arg(m_name, m_builder.error());
    return m_depth == 0 ? noObjectText() : recordsText("Werte sind zu tief verschachtelt.");
}

void MappingFileEvents::beginLines()
{
    m_linesBegin = qsizetype(m_stream.Tell());
    m_beside = RowsBeside(m_known ? m_known->find(nameOfTarget()) : nullptr);
}

void MappingFileEvents::endLines()
{
    // Tell() is behind the bracket.
    if (m_noted && m_builder.linesAscend())
        m_noted->add(nameOfTarget(), m_linesBegin, qsizetype(m_stream.Tell()) - 1,
                     m_builder.lines());
}

bool MappingFileEvents::takeRows()
{
    std::array<int, 3> row{};
    const char *at = m_stream.aheadBegin();
    const char *const end = m_stream.aheadEnd();
    bool good = true;
    while (good && end) {
        takeKnownRows(at, end);
        if (!takeRow(at, end, row))
            break;
        good = m_builder.row(row[0], row[1], row[2]);
    }
    if (at != m_stream.aheadBegin())
        m_stream.skipTo(at);
    return good;
}

void MappingFileEvents::takeKnownRows(const char *&at, const char *end)
{
    if (!m_known || !m_builder.linesAscend())
        return;
    if (const int count = m_beside.take(at, end, m_builder.lastLine()))
        m_builder.rows(m_beside.first(), count);
}

void MappingFileEvents::beginMember(const QString &name)
{
    m_name = name;
    if (m_positions.contains(name))
        m_notes += recordsText("„%1“ steht mehr als einmal da; der letzte Eintrag gilt.").arg(name);
    m_reading = m_wanted != WantedMembers::Named || name == m_wantedName;
    m_builder = ReleaseBuilder();
    if (m_wanted == WantedMembers::Last)
        giveUpLast();
    if (!m_reading)
        member().isRecords = false;
    m_extents[name].from = qsizetype(m_stream.Tell());
}

void MappingFileEvents::giveUpLast()
{
    if (m_members.isEmpty() || !m_members.last().isRecords)
        return;
    m_members.last().isRecords = false;
    m_members.last().release = ReleaseMappingC();
    m_lastNotes.clear();
}

bool MappingFileEvents::endOfRelease()
{
    if (!m_builder.endObject())
        return false;
    if (!m_builder.isIdle())
        return true;
    const QString date = m_builder.release().getSourceDate();
    if (date != m_name) {
        m_message =
            QStringLiteral("\"%1\": %2")
                .arg(m_name,
                     recordsText("Der Katalogstand nennt „%1“ als sein sourceDate.").arg(date));
        return false;
    }
    MappingFileMember &entry = member();
    entry.isRecords = true;
    entry.release = m_builder.release();
    QStringList &notes = m_wanted == WantedMembers::Last ? m_lastNotes : m_notes;
    for (const QString &note : m_builder.notes())
        notes += QStringLiteral("\"%1\": %2").arg(m_name, note);
    m_reading = false;
    endOfText();
    return true;
}

MappingFileMember &MappingFileEvents::member()
{
    const auto known = m_positions.constFind(m_name);
    if (known != m_positions.cend())
        return m_members[*known];
    m_positions.insert(m_name, m_members.size());
    return m_members.emplaceBack(MappingFileMember{m_name, false, {}, {}});
}

#include "ReleaseReader.h"

#include "JsonDeviceStream.h"
#include "KnownRows.h"
#include "ReleaseBuilder.h"

#include <core/json/JsonText.h>

#include <QBuffer>
#include <QHash>
#include <QIODevice>

#include <rapidjson/error/en.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <algorithm>
#include <array>
#include <charconv>

namespace {

std::string_view view(const char *text, rapidjson::SizeType size)
{
    return {text, size};
}

/// Hands every event on to a builder.
class ReleaseEvents
{
public:
    using Size = rapidjson::SizeType;

    bool Null() { return m_builder.anythingElse(); }
    bool Bool(bool flag) { return m_builder.boolean(flag); }
    bool Int(int number) { return m_builder.integer(number); }
    bool Uint(unsigned number) { return m_builder.integer(number); }
    bool Int64(int64_t number) { return m_builder.integer(number); }
    bool Uint64(uint64_t) { return m_builder.anythingElse(); }
    bool Double(double) { return m_builder.anythingElse(); }
    bool RawNumber(const char *, Size, bool) { return m_builder.anythingElse(); }
    bool String(const char *text, Size size, bool) { return m_builder.text(view(text, size)); }
    bool StartObject() { return m_builder.startObject(); }
    bool Key(const char *text, Size size, bool) { return m_builder.key(view(text, size)); }
    bool EndObject(Size) { return m_builder.endObject(); }
    bool StartArray() { return m_builder.startArray(); }
    bool EndArray(Size) { return m_builder.endArray(); }

    [[nodiscard]] ReleaseBuilder &builder() { return m_builder; }
    [[nodiscard]] QString error() const { return m_builder.error(); }

private:
    ReleaseBuilder m_builder;
};

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

/// Where the text of a member stands in its file.
struct Extent
{
    qsizetype from = 0;
    qsizetype to = 0;
};

/// Events of a document whose members are releases: those of wanted members go to the builder, of
/// the others it is noted where they stand.
class FileEvents
{
public:
    using Size = rapidjson::SizeType;

    FileEvents(WantedMembers wanted, const QString &sourceDate, JsonDeviceStream &stream)
        : m_wanted(wanted)
        , m_wantedName(sourceDate)
        , m_stream(stream)
    {
    }

    /// Notes where rows stand; the stream is over its text.
    void note(KnownRows &rows) { m_noted = &rows; }
    /// Reads beside these rows.
    void readBeside(const KnownRows &rows) { m_known = &rows; }

    bool Null() { return m_reading ? m_builder.anythingElse() : plainValue(); }
    bool Bool(bool flag) { return m_reading ? m_builder.boolean(flag) : plainValue(); }
    bool Int(int number) { return integer(number); }
    bool Uint(unsigned number) { return integer(number); }
    bool Int64(int64_t number) { return integer(number); }
    bool Uint64(uint64_t) { return Null(); }
    bool Double(double) { return Null(); }
    bool RawNumber(const char *, Size, bool) { return Null(); }
    bool String(const char *text, Size size, bool)
    {
        return m_reading ? m_builder.text(view(text, size)) : plainValue();
    }
    bool StartObject() { return m_reading ? m_builder.startObject() : open(); }
    bool EndObject(Size) { return m_reading ? endOfRelease() : close(); }
    bool StartArray()
    {
        if (!m_reading)
            return m_depth > 0 && open();
        if (!m_builder.startArray())
            return false;
        if (m_builder.isAmongLines())
            beginLines();
        return true;
    }
    bool EndArray(Size)
    {
        if (!m_reading)
            return close();
        if (m_builder.isAmongLines())
            endLines();
        return m_builder.endArray() && (!m_builder.isAmongLines() || takeRows());
    }
    bool Key(const char *text, Size size, bool)
    {
        if (m_reading)
            return m_builder.key(view(text, size));
        if (m_depth == 1)
            beginMember(QString::fromUtf8(text, qsizetype(size)));
        return true;
    }

    [[nodiscard]] QString error() const
    {
        if (!m_message.isEmpty())
            return m_message;
        if (m_reading)
            return QStringLiteral("\"%1\": %2").arg(m_name, m_builder.error());
        return m_depth == 0 ? QStringLiteral("A mapping file must hold an object.")
                            : QStringLiteral("Values are nested too deeply.");
    }
    [[nodiscard]] const QList<MappingFileMember> &members() const { return m_members; }
    [[nodiscard]] QStringList notes() const { return m_notes + m_lastNotes; }
    /// Of each member.
    [[nodiscard]] const QHash<QString, Extent> &extents() const { return m_extents; }

private:
    bool integer(qint64 number) { return m_reading ? m_builder.integer(number) : plainValue(); }
    bool plainValue()
    {
        endOfText();
        return m_depth > 0;
    }
    bool open() { return ++m_depth <= ReleaseBuilder::MaxDepth; }
    bool close()
    {
        --m_depth;
        endOfText();
        return true;
    }
    void endOfText()
    {
        if (m_depth == 1)
            m_extents[m_name].to = qsizetype(m_stream.Tell());
    }

    void beginLines()
    {
        m_linesBegin = qsizetype(m_stream.Tell());
        m_beside = RowsBeside(m_known ? m_known->find(nameOfTarget()) : nullptr);
    }
    void endLines()
    {
        // Tell() is behind the bracket.
        if (m_noted && m_builder.linesAscend())
            m_noted->add(nameOfTarget(), m_linesBegin, qsizetype(m_stream.Tell()) - 1,
                         m_builder.lines());
    }
    [[nodiscard]] QString nameOfTarget() const { return m_name + u'\n' + m_builder.targetName(); }

    /// Behind a row: takes those of the rows that follow which are nothing but three numbers, far
    /// quicker than event by event. All else is left to the reader.
    bool takeRows()
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

    void takeKnownRows(const char *&at, const char *end)
    {
        if (!m_known || !m_builder.linesAscend())
            return;
        if (const int count = m_beside.take(at, end, m_builder.lastLine()))
            m_builder.rows(m_beside.first(), count);
    }

    void beginMember(const QString &name)
    {
        m_name = name;
        if (m_positions.contains(name))
            m_notes += QStringLiteral("\"%1\" stands there more than once; the last one counts.")
                           .arg(name);
        m_reading = m_wanted != WantedMembers::Named || name == m_wantedName;
        m_builder = ReleaseBuilder();
        if (m_wanted == WantedMembers::Last)
            giveUpLast();
        if (!m_reading)
            member().isRecords = false;
        m_extents[name].from = qsizetype(m_stream.Tell());
    }
    /// What was the last one so far is left as text.
    void giveUpLast()
    {
        if (m_members.isEmpty() || !m_members.last().isRecords)
            return;
        m_members.last().isRecords = false;
        m_members.last().release = ReleaseMappingC();
        m_lastNotes.clear();
    }
    bool endOfRelease()
    {
        if (!m_builder.endObject())
            return false;
        if (!m_builder.isIdle())
            return true;
        const QString date = m_builder.release().getSourceDate();
        if (date != m_name) {
            m_message = QStringLiteral("\"%1\": The release says \"%2\" as its sourceDate.")
                            .arg(m_name, date);
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
    MappingFileMember &member()
    {
        const auto known = m_positions.constFind(m_name);
        if (known != m_positions.cend())
            return m_members[*known];
        m_positions.insert(m_name, m_members.size());
        return m_members.emplaceBack(MappingFileMember{m_name, false, {}, {}});
    }

    const WantedMembers m_wanted;
    const QString m_wantedName;
    JsonDeviceStream &m_stream;
    QList<MappingFileMember> m_members;
    QHash<QString, qsizetype> m_positions; ///< in m_members
    QHash<QString, Extent> m_extents;
    QStringList m_notes;
    QStringList m_lastNotes; ///< of the release that may still turn out not to be the last one
    ReleaseBuilder m_builder;
    KnownRows *m_noted = nullptr;
    const KnownRows *m_known = nullptr;
    RowsBeside m_beside;
    qsizetype m_linesBegin = 0; ///< behind the bracket
    QString m_name;
    QString m_message;
    bool m_reading = false;
    int m_depth = 0;
};

/// Reads one document. Gives the offset of the first thing that is wrong and says what it is, or
/// -1.
template<class Stream, class Events>
qsizetype parse(Stream &stream, Events &events, qsizetype size, QString &what)
{
    rapidjson::Reader reader;
    const rapidjson::ParseResult result =
        reader.Parse<rapidjson::kParseValidateEncodingFlag>(stream, events);
    if (!result.IsError() && qsizetype(stream.Tell()) == size)
        return -1;
    if (!result.IsError())
        what = QStringLiteral("A byte of value 0 stands behind the document.");
    else if (result.Code() == rapidjson::kParseErrorTermination)
        what = events.error();
    else
        what = QString::fromLatin1(rapidjson::GetParseError_En(result.Code()));
    return qsizetype(result.IsError() ? result.Offset() : stream.Tell());
}

bool report(QString *error, QByteArrayView json, qsizetype offset, const QString &what)
{
    if (error)
        *error = QStringLiteral("%1: %2").arg(JsonText::place(json, offset), what);
    return false;
}

/// The text of a member's value: what stands between its name and the next member. Empty if the
/// file became shorter since it was read.
QByteArray valueText(QIODevice &file, const Extent &extent)
{
    const qsizetype size = extent.to - extent.from;
    if (!file.seek(extent.from))
        return QByteArray();
    const QByteArray text = file.read(size);
    const QByteArrayView behindName = JsonText::trimmed(text);
    if (text.size() != size || behindName.isEmpty())
        return QByteArray();
    return JsonText::trimmed(behindName.sliced(1)).toByteArray(); // behind the colon
}

/// The text with the values of all members but one blanked out; \a values takes them. Empty if it
/// is no object by grammar.
QByteArray blankedOthers(const QByteArray &json, const QString &kept,
                         QHash<QString, QByteArray> &values)
{
    const QByteArrayView object = JsonText::trimmed(json);
    if (!JsonText::check(json, nullptr) || !object.startsWith('{'))
        return {};
    QByteArray blanked = json;
    for (JsonText::Walker walker(object); walker.next();) {
        const QString name = JsonText::unquoted(walker.quotedName());
        if (name == kept)
            continue;
        const QByteArrayView value = walker.value();
        values.insert(name, value.toByteArray());
        char *const text = blanked.data() + (value.data() - json.constData());
        std::fill_n(text, value.size(), ' ');
        *text = '0';
    }
    return blanked;
}

/// Reads a file in which a release that is not wanted holds what is JSON, but beyond what the
/// reader knows: numbers of any size, halves of surrogate pairs, deep nesting.
bool readWithoutOthers(const QByteArray &json, const QString &sourceDate,
                       QList<MappingFileMember> &members, QStringList &notes)
{
    QHash<QString, QByteArray> values;
    QByteArray blanked = blankedOthers(json, sourceDate, values);
    if (blanked.isEmpty())
        return false;
    QBuffer buffer(&blanked);
    buffer.open(QIODevice::ReadOnly);
    JsonDeviceStream stream(buffer);
    FileEvents events(WantedMembers::Named, sourceDate, stream);
    QString what;
    if (parse(stream, events, blanked.size(), what) >= 0)
        return false;
    members = events.members();
    for (MappingFileMember &member : members) {
        if (!member.isRecords)
            member.text = values.value(member.sourceDate);
    }
    notes = events.notes();
    return true;
}

} // namespace

bool readRelease(const QByteArray &json, ReleaseMappingC &release, QString *error)
{
    ReleaseEvents events;
    rapidjson::MemoryStream stream(json.constData(), std::size_t(json.size()));
    QString what;
    const qsizetype offset = parse(stream, events, json.size(), what);
    if (offset >= 0)
        return report(error, json, offset, what);
    release = events.builder().release();
    return true;
}

bool readMappingFile(QIODevice &file, WantedMembers wanted, const QString &sourceDate,
                     QList<MappingFileMember> &members, QStringList &notes, QString *error,
                     const RowsOfFiles &rows)
{
    JsonDeviceStream stream(file);
    FileEvents events(wanted, sourceDate, stream);
    if (rows.noted)
        events.note(*rows.noted);
    if (rows.known)
        events.readBeside(*rows.known);
    QString what;
    const qsizetype offset = parse(stream, events, file.size(), what);
    if (offset >= 0) {
        file.seek(0);
        const QByteArray json = file.readAll();
        return (wanted == WantedMembers::Named &&
                readWithoutOthers(json, sourceDate, members, notes)) ||
               report(error, QByteArrayView(json).first(std::min(offset, json.size())), offset,
                      what);
    }
    QList<MappingFileMember> found = events.members();
    for (MappingFileMember &member : found) {
        if (member.isRecords)
            continue;
        member.text = valueText(file, events.extents().value(member.sourceDate));
        if (member.text.isEmpty())
            return report(error, {}, 0, QStringLiteral("The file changed while it was read."));
    }
    members = found;
    notes = events.notes();
    return true;
}

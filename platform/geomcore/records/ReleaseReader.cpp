#include "ReleaseReader.h"

#include "ReleaseBuilder.h"

#include <core/json/JsonText.h>
#include <core/json/PJsonValue.h>

#include <rapidjson/error/en.h>
#include <rapidjson/reader.h>

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

/// Events of a document whose members are releases: those of wanted members go to the builder.
class FileEvents
{
public:
    using Size = rapidjson::SizeType;

    FileEvents(const QString &sourceDate, QList<MappingFileMember> &members)
        : m_wanted(sourceDate)
        , m_members(members)
    {
    }

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
    bool StartArray() { return m_reading ? m_builder.startArray() : m_depth > 0 && open(); }
    bool EndArray(Size) { return m_reading ? m_builder.endArray() : close(); }
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

private:
    bool integer(qint64 number) { return m_reading ? m_builder.integer(number) : plainValue(); }
    bool plainValue() const { return m_depth > 0; }
    bool open() { return ++m_depth <= PJsonValue::MaxDepth; }
    bool close() { return --m_depth >= 0; }

    void beginMember(const QString &name)
    {
        m_name = name;
        m_reading = m_wanted.isEmpty() || name == m_wanted;
        m_builder = ReleaseBuilder();
        if (!m_reading)
            member().isRecords = false;
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
        m_reading = false;
        return true;
    }
    MappingFileMember &member()
    {
        for (MappingFileMember &known : m_members) {
            if (known.sourceDate == m_name)
                return known;
        }
        return m_members.emplaceBack(MappingFileMember{m_name, false, {}, {}});
    }

    const QString m_wanted;
    QList<MappingFileMember> &m_members;
    ReleaseBuilder m_builder;
    QString m_name;
    QString m_message;
    bool m_reading = false;
    int m_depth = 0;
};

template<class Events>
bool parse(const QByteArray &json, Events &events, QString *error)
{
    const QByteArrayView inner = JsonText::trimmed(json);
    const qsizetype start = inner.isEmpty() ? 0 : inner.data() - json.constData();
    rapidjson::StringStream stream(json.constData() + start);
    rapidjson::Reader reader;
    const rapidjson::ParseResult result =
        reader.Parse<rapidjson::kParseValidateEncodingFlag>(stream, events);
    const bool complete = qsizetype(stream.Tell()) + start == json.size();
    if (!result.IsError() && complete)
        return true;
    if (error) {
        QString what = QStringLiteral("A byte of value 0 stands behind the document.");
        if (result.Code() == rapidjson::kParseErrorTermination)
            what = events.error();
        else if (result.IsError())
            what = QString::fromLatin1(rapidjson::GetParseError_En(result.Code()));
        const auto offset = qsizetype(result.IsError() ? result.Offset() : stream.Tell());
        *error = QStringLiteral("%1: %2").arg(JsonText::place(json, offset + start), what);
    }
    return false;
}

/// Gives the members that did not become records their text; the document has been read once.
void takeTexts(const QByteArray &json, QList<MappingFileMember> &members)
{
    JsonText::Walker walker(JsonText::trimmed(json));
    while (walker.next()) {
        const QString name = JsonText::unquoted(walker.quotedName());
        for (MappingFileMember &member : members) {
            if (member.sourceDate == name && !member.isRecords)
                member.text = walker.value().toByteArray();
        }
    }
}

} // namespace

bool readRelease(const QByteArray &json, ReleaseMappingC &release, QString *error)
{
    ReleaseEvents events;
    if (!parse(json, events, error))
        return false;
    release = events.builder().release();
    return true;
}

bool readMappingFile(const QByteArray &json, const QString &sourceDate,
                     QList<MappingFileMember> &members, QString *error)
{
    QList<MappingFileMember> found;
    FileEvents events(sourceDate, found);
    if (!parse(json, events, error))
        return false;
    const bool allRead = std::all_of(found.cbegin(), found.cend(),
                                     [](const MappingFileMember &m) { return m.isRecords; });
    if (!allRead)
        takeTexts(json, found);
    members = found;
    return true;
}

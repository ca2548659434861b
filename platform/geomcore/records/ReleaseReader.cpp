#include "ReleaseReader.h"

#include "JsonDeviceStream.h"
#include "MappingFileEvents.h"
#include "recordsText.h"
#include "ReleaseBuilder.h"

#include <core/json/jsonParserFault.h>
#include <core/json/JsonText.h>

#include <QBuffer>
#include <QHash>
#include <QIODevice>

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <algorithm>

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
        what = recordsText("Hinter dem Dokument steht ein Byte mit dem Wert 0.");
    else if (result.Code() == rapidjson::kParseErrorTermination)
        what = events.error();
    else
        what = jsonParserFault(result.Code());
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
QByteArray valueText(QIODevice &file, const MappingFileEvents::Extent &extent)
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
    MappingFileEvents events(WantedMembers::Named, sourceDate, stream);
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
    MappingFileEvents events(wanted, sourceDate, stream);
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
            return report(error, {}, 0,
                          recordsText("Die Datei hat sich geändert, während sie gelesen wurde."));
    }
    members = found;
    notes = events.notes();
    return true;
}

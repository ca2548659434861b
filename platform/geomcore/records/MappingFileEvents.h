#pragma once

#include "JsonDeviceStream.h"
#include "KnownRows.h"
#include "ReleaseBuilder.h"
#include "ReleaseReader.h"

#include <QHash>

#include <rapidjson/rapidjson.h>

/// Events of a document whose members are releases: those of wanted members go to the builder, of
/// the others it is noted where they stand.
class MappingFileEvents
{
public:
    using Size = rapidjson::SizeType;
    /// Where the text of a member stands in its file.
    struct Extent
    {
        qsizetype from = 0;
        qsizetype to = 0;
    };

    MappingFileEvents(WantedMembers wanted, const QString &sourceDate, JsonDeviceStream &stream)
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
        return m_reading ? m_builder.text({text, size}) : plainValue();
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
            return m_builder.key({text, size});
        if (m_depth == 1)
            beginMember(QString::fromUtf8(text, qsizetype(size)));
        return true;
    }

    [[nodiscard]] QString error() const;
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

    void beginLines();
    void endLines();
    [[nodiscard]] QString nameOfTarget() const { return m_name + u'\n' + m_builder.targetName(); }

    /// Behind a row: takes those of the rows that follow which are nothing but three numbers, far
    /// quicker than event by event. All else is left to the reader.
    bool takeRows();

    void takeKnownRows(const char *&at, const char *end);

    void beginMember(const QString &name);
    /// What was the last one so far is left as text.
    void giveUpLast();
    bool endOfRelease();
    MappingFileMember &member();

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

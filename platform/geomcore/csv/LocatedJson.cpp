#include "LocatedJson.h"

#include <core/json/jsonParserFault.h>
#include <core/text/PString.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <QSet>

namespace VKTab {

namespace {

constexpr size_t MaxDepth = 64;

/// Builds the tree from the parser's events.
class TreeBuilder
{
public:
    TreeBuilder(const QByteArray &json, const rapidjson::MemoryStream &stream, LocatedJson &root)
        : m_json(json)
        , m_stream(stream)
        , m_root(root)
    {
    }

    QString problem;
    qsizetype problemAt = 0;

    bool Null() { return add(LocatedJson::Type::Null); }
    bool Bool(bool value)
    {
        LocatedJson *node = add(LocatedJson::Type::Bool);
        node->boolean = value;
        return true;
    }
    bool RawNumber(const char *text, rapidjson::SizeType length, bool)
    {
        add(LocatedJson::Type::Number)->text = QString::fromLatin1(text, length);
        return true;
    }
    bool String(const char *text, rapidjson::SizeType length, bool)
    {
        add(LocatedJson::Type::String)->text = QString::fromUtf8(text, length);
        return true;
    }
    bool Key(const char *text, rapidjson::SizeType length, bool)
    {
        LocatedJson &object = *m_open.back();
        const QString name = QString::fromUtf8(text, length);
        const qsizetype begin = valueBegin();
        m_last = position();
        if (m_names.back().contains(name))
            return fail(
                begin,
                PString::translate("der Eintrag „%1“ steht zweimal da", "VelkGeomCore").arg(name));
        m_names.back().insert(name);
        object.names.append(name);
        return true;
    }
    bool StartObject() { return start(LocatedJson::Type::Object); }
    bool StartArray() { return start(LocatedJson::Type::Array); }
    bool EndObject(rapidjson::SizeType) { return close(); }
    bool EndArray(rapidjson::SizeType) { return close(); }
    // Numbers arrive as texts.
    bool Int(int) { return false; }
    bool Uint(unsigned) { return false; }
    bool Int64(int64_t) { return false; }
    bool Uint64(uint64_t) { return false; }
    bool Double(double) { return false; }

private:
    qsizetype position() const { return qsizetype(m_stream.Tell()); }

    qsizetype valueBegin() const
    {
        qsizetype at = m_last;
        while (at < m_json.size() && strchr(" \t\r\n,:", m_json.at(at)))
            ++at;
        return at;
    }

    LocatedJson *add(LocatedJson::Type type)
    {
        LocatedJson *node = &m_root;
        if (!m_open.empty())
            node = &m_open.back()->items.emplace_back();
        node->type = type;
        node->begin = valueBegin();
        node->end = m_last = position();
        return node;
    }

    bool start(LocatedJson::Type type)
    {
        LocatedJson *node = add(type);
        if (m_open.size() == MaxDepth)
            return fail(node->begin, PString::translate("mehr als 64 Ebenen tief", "VelkGeomCore"));
        m_last = node->begin + 1; // the event comes before the bracket is taken
        m_open.push_back(node);
        m_names.emplace_back();
        return true;
    }

    bool close()
    {
        m_open.back()->end = m_last = position() + 1; // likewise
        m_open.pop_back();
        m_names.pop_back();
        return true;
    }

    bool fail(qsizetype at, const QString &text)
    {
        problem = text;
        problemAt = at;
        return false;
    }

    const QByteArray &m_json;
    const rapidjson::MemoryStream &m_stream;
    LocatedJson &m_root;
    std::vector<LocatedJson *> m_open;  // only the innermost's items grow, so these stay in place
    std::vector<QSet<QString>> m_names; // of each open object or list
    qsizetype m_last = 0;
};

} // namespace

bool LocatedJson::parse(const QByteArray &json, const QString &file, LocatedJson &out,
                        TableErrorList &errors)
{
    static const QByteArray mark("\xEF\xBB\xBF");
    if (json.startsWith(mark)) {
        QByteArray blanked = json; // same offsets
        blanked.replace(0, mark.size(), QByteArray(mark.size(), ' '));
        return parse(blanked, file, out, errors);
    }
    rapidjson::MemoryStream stream(json.constData(), size_t(json.size()));
    TreeBuilder builder(json, stream, out);
    rapidjson::Reader reader;
    constexpr unsigned flags = rapidjson::kParseIterativeFlag |
                               rapidjson::kParseNumbersAsStringsFlag |
                               rapidjson::kParseValidateEncodingFlag;
    const rapidjson::ParseResult result = reader.Parse<flags>(stream, builder);
    if (result)
        return true;
    if (builder.problem.isEmpty())
        errors.append(errorAt(json, file, qsizetype(result.Offset()),
                              PString::translate("kein gültiges JSON: %1", "VelkGeomCore")
                                  .arg(jsonParserFault(result.Code()))));
    else
        errors.append(errorAt(json, file, builder.problemAt, builder.problem));
    return false;
}

TableError LocatedJson::errorAt(const QByteArray &json, const QString &file, qsizetype offset,
                                const QString &text)
{
    const QByteArrayView before = QByteArrayView(json).first(qMin(offset, json.size()));
    const qsizetype lineBegin = before.lastIndexOf('\n') + 1;
    return {file, int(before.count('\n')) + 1,
            int(QString::fromUtf8(before.sliced(lineBegin)).size()) + 1, text};
}

} // namespace VKTab

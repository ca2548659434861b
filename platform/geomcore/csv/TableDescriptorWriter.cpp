#include "TableDescriptor.h"
#include "TableFieldNames.h"

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

namespace VKTab {

namespace {

/// Writes a descriptor: known members in a fixed order, those at their default left out, then the
/// unknown ones as they were.
class DescriptorWriter
{
public:
    DescriptorWriter()
        : m_writer(m_buffer)
    {
        m_writer.SetIndent(' ', 2);
    }

    QByteArray write(const TableDescriptor &table)
    {
        m_writer.StartObject();
        text("name", table.name);
        text("title", table.title);
        text("description", table.description);
        text("path", table.path);
        text("normNumber", table.normNumber);
        text("designation", table.designation);
        text("lineNormNumber", table.lineNormNumber);
        text("lineDesignation", table.lineDesignation);
        text("finalDate", table.finalDate);
        text("lineIdField", table.lineIdField);
        text("lineSubIdField", table.lineSubIdField);
        if (table.nextLineId != 0) {
            m_writer.Key("nextLineId");
            m_writer.Int(table.nextLineId);
        }
        texts("primaryKey", table.primaryKey, {});
        texts("missingValues", table.missingValues, {QString()});
        conditions(table.filterConditions);
        textMap("attributes", table.attributes);
        translations(table.translations);
        fields(table.fields);
        unknown(table.unknown);
        m_writer.EndObject();
        return QByteArray(m_buffer.GetString(), qsizetype(m_buffer.GetSize())) + '\n';
    }

private:
    void put(const QString &value)
    {
        const QByteArray utf8 = value.toUtf8();
        m_writer.String(utf8.constData(), rapidjson::SizeType(utf8.size()));
    }
    void key(const QString &name)
    {
        const QByteArray utf8 = name.toUtf8();
        m_writer.Key(utf8.constData(), rapidjson::SizeType(utf8.size()));
    }
    void text(const char *name, const QString &value)
    {
        if (value.isEmpty())
            return;
        m_writer.Key(name);
        put(value);
    }
    void texts(const char *name, const QStringList &values, const QStringList &standard)
    {
        if (values == standard)
            return;
        m_writer.Key(name);
        m_writer.StartArray();
        for (const QString &value : values)
            put(value);
        m_writer.EndArray();
    }
    void textObject(const QMap<QString, QString> &values)
    {
        m_writer.StartObject();
        for (auto it = values.cbegin(); it != values.cend(); ++it) {
            key(it.key());
            put(it.value());
        }
        m_writer.EndObject();
    }
    void textMap(const char *name, const QMap<QString, QString> &values)
    {
        if (values.isEmpty())
            return;
        m_writer.Key(name);
        textObject(values);
    }
    void translations(const TextTranslations &values)
    {
        if (values.isEmpty())
            return;
        m_writer.Key("translations");
        m_writer.StartObject();
        for (auto it = values.cbegin(); it != values.cend(); ++it) {
            key(it.key());
            textObject(it.value());
        }
        m_writer.EndObject();
    }
    void conditions(const QList<TableFilterCondition> &conditions)
    {
        if (conditions.isEmpty())
            return;
        m_writer.Key("filterConditions");
        m_writer.StartArray();
        for (const TableFilterCondition &condition : conditions) {
            m_writer.StartObject();
            text("name", condition.name);
            text("condition", condition.condition);
            unknown(condition.unknown);
            m_writer.EndObject();
        }
        m_writer.EndArray();
    }
    void fields(const QList<TableField> &fields)
    {
        m_writer.Key("fields");
        m_writer.StartArray();
        for (const TableField &one : fields)
            field(one);
        m_writer.EndArray();
    }
    void field(const TableField &field)
    {
        m_writer.StartObject();
        text("name", field.name);
        text("title", field.title);
        text("description", field.description);
        text("type", QLatin1String(nameOf(FieldTypeNames, field.type)));
        text("kind", QLatin1String(nameOf(FieldKindNames, field.kind)));
        if (field.hidden) {
            m_writer.Key("hidden");
            m_writer.Bool(true);
        }
        if (field.decimalChar != '.')
            text("decimalChar", QString(QLatin1Char(field.decimalChar)));
        text("zType", field.zType);
        text("unit", field.unit);
        text("formula", field.formula);
        translations(field.translations);
        unknown(field.unknown);
        m_writer.EndObject();
    }
    void unknown(const UnknownMembers &members)
    {
        for (const auto &[name, json] : members) {
            key(name);
            m_writer.RawValue(json.constData(), size_t(json.size()), rapidjson::kObjectType);
        }
    }

    rapidjson::StringBuffer m_buffer;
    rapidjson::PrettyWriter<rapidjson::StringBuffer> m_writer;
};

} // namespace

QByteArray TableDescriptor::toJson() const
{
    return DescriptorWriter().write(*this);
}

} // namespace VKTab

#include "TableDescriptorReader.h"

#include "TableFieldNames.h"

#include <core/text/PString.h>
#include <geomcore/project/CipVersionMgmtC.h>

#include <QSet>

namespace VKTab {

namespace {

/// Sets \a out to the value of that name; false, with all names in \a known, if there is none.
template<class Enum, size_t Count>
bool findNamed(const std::array<NamedValue<Enum>, Count> &names, const QString &name, Enum &out,
               QString &known)
{
    QStringList all;
    for (const auto &entry : names) {
        if (name == QLatin1String(entry.name)) {
            out = entry.value;
            return true;
        }
        all.append(QLatin1String(entry.name));
    }
    known = all.join(QStringLiteral(", "));
    return false;
}

QString *textMember(TableDescriptor &out, const QString &name)
{
    static const QHash<QString, QString TableDescriptor::*> members{
        {QStringLiteral("name"), &TableDescriptor::name},
        {QStringLiteral("title"), &TableDescriptor::title},
        {QStringLiteral("description"), &TableDescriptor::description},
        {QStringLiteral("path"), &TableDescriptor::path},
        {QStringLiteral("normNumber"), &TableDescriptor::normNumber},
        {QStringLiteral("designation"), &TableDescriptor::designation},
        {QStringLiteral("lineNormNumber"), &TableDescriptor::lineNormNumber},
        {QStringLiteral("lineDesignation"), &TableDescriptor::lineDesignation},
        {QStringLiteral("lineIdField"), &TableDescriptor::lineIdField},
        {QStringLiteral("lineSubIdField"), &TableDescriptor::lineSubIdField},
    };
    const auto found = members.constFind(name);
    return found == members.constEnd() ? nullptr : &(out.**found);
}

QString *textMember(TableField &out, const QString &name)
{
    static const QHash<QString, QString TableField::*> members{
        {QStringLiteral("name"), &TableField::name},
        {QStringLiteral("title"), &TableField::title},
        {QStringLiteral("description"), &TableField::description},
        {QStringLiteral("zType"), &TableField::zType},
        {QStringLiteral("unit"), &TableField::unit},
        {QStringLiteral("formula"), &TableField::formula},
    };
    const auto found = members.constFind(name);
    return found == members.constEnd() ? nullptr : &(out.**found);
}

} // namespace

TableDescriptorReader::TableDescriptorReader(const QByteArray &json, const QString &file,
                                             TableErrorList &errors)
    : m_json(json)
    , m_file(file)
    , m_errors(errors)
{
}

std::optional<TableDescriptor> TableDescriptorReader::read()
{
    LocatedJson root;
    if (!LocatedJson::parse(m_json, m_file, root, m_errors))
        return {};
    TableDescriptor result;
    if (isOf(LocatedJson::Type::Object, root,
             QT_TRANSLATE_NOOP("VelkGeomCore", "ein Objekt wird erwartet"))) {
        for (qsizetype i = 0; i < root.names.size(); ++i)
            readMember(root.names.at(i), root.items[size_t(i)], result);
    }
    if (m_found.isEmpty())
        return result;
    m_errors += m_found.list();
    return {};
}

void TableDescriptorReader::readMember(const QString &name, const LocatedJson &value,
                                       TableDescriptor &out)
{
    if (QString *text = textMember(out, name))
        readText(value, *text);
    else if (name == QLatin1String("finalDate"))
        readDate(value, out.finalDate);
    else if (name == QLatin1String("nextLineId"))
        readCount(value, out.nextLineId);
    else if (name == QLatin1String("primaryKey"))
        readTexts(value, out.primaryKey);
    else if (name == QLatin1String("missingValues"))
        readTexts(value, out.missingValues);
    else if (name == QLatin1String("filterConditions"))
        readConditions(value, out);
    else if (name == QLatin1String("attributes"))
        readTextMap(value, out.attributes);
    else if (name == QLatin1String("translations"))
        readTranslations(value, out.translations);
    else if (name == QLatin1String("fields"))
        readFields(value, out);
    else
        keep(name, value, out.unknown);
}

void TableDescriptorReader::readFields(const LocatedJson &value, TableDescriptor &out)
{
    if (!isOf(LocatedJson::Type::Array, value,
              QT_TRANSLATE_NOOP("VelkGeomCore", "eine Liste von Feldern wird erwartet")))
        return;
    QSet<QString> names;
    for (const LocatedJson &item : value.items) {
        if (!isOf(LocatedJson::Type::Object, item,
                  QT_TRANSLATE_NOOP("VelkGeomCore", "ein Feld wird erwartet, also ein Objekt")))
            continue;
        TableField field = readField(item);
        if (field.name.isEmpty())
            error(item, PString::translate("das Feld hat keinen Namen", "VelkGeomCore"));
        else if (names.contains(field.name))
            error(item, PString::translate("das Feld „%1“ gibt es zweimal", "VelkGeomCore")
                            .arg(field.name));
        names.insert(field.name);
        out.fields.append(std::move(field));
    }
}

TableField TableDescriptorReader::readField(const LocatedJson &value)
{
    TableField field;
    for (qsizetype i = 0; i < value.names.size(); ++i)
        readFieldMember(value.names.at(i), value.items[size_t(i)], field);
    if (field.kind == FieldKind::Computed && field.formula.isEmpty())
        error(value, PString::translate("das berechnete Feld „%1“ hat keine Formel", "VelkGeomCore")
                         .arg(field.name));
    return field;
}

void TableDescriptorReader::readFieldMember(const QString &name, const LocatedJson &value,
                                            TableField &field)
{
    QString text;
    QString known;
    if (QString *member = textMember(field, name)) {
        readText(value, *member);
    } else if (name == QLatin1String("type")) {
        readText(value, text);
        if (!findNamed(FieldTypeNames, text, field.type, known))
            error(value, PString::translate("unbekannter Typ „%1“; bekannt sind %2", "VelkGeomCore")
                             .arg(text, known));
    } else if (name == QLatin1String("kind")) {
        readText(value, text);
        if (!findNamed(FieldKindNames, text, field.kind, known))
            error(value, PString::translate("unbekannte Art „%1“; bekannt sind %2", "VelkGeomCore")
                             .arg(text, known));
    } else if (name == QLatin1String("hidden")) {
        readBool(value, field.hidden);
    } else if (name == QLatin1String("decimalChar")) {
        readText(value, text);
        if (text != QLatin1String(".") && text != QLatin1String(","))
            error(value, PString::translate("das Dezimalzeichen ist „.“ oder „,“", "VelkGeomCore"));
        else
            field.decimalChar = text.front().toLatin1();
    } else if (name == QLatin1String("translations")) {
        readTranslations(value, field.translations);
    } else {
        keep(name, value, field.unknown);
    }
}

void TableDescriptorReader::readConditions(const LocatedJson &value, TableDescriptor &out)
{
    if (!isOf(LocatedJson::Type::Array, value,
              QT_TRANSLATE_NOOP("VelkGeomCore", "eine Liste von Bedingungen wird erwartet")))
        return;
    for (const LocatedJson &item : value.items) {
        if (!isOf(
                LocatedJson::Type::Object, item,
                QT_TRANSLATE_NOOP("VelkGeomCore", "eine Bedingung wird erwartet, also ein Objekt")))
            continue;
        TableFilterCondition condition;
        for (qsizetype i = 0; i < item.names.size(); ++i) {
            const LocatedJson &member = item.items[size_t(i)];
            if (item.names.at(i) == QLatin1String("name"))
                readText(member, condition.name);
            else if (item.names.at(i) == QLatin1String("condition"))
                readText(member, condition.condition);
            else
                keep(item.names.at(i), member, condition.unknown);
        }
        if (condition.name.isEmpty())
            error(item, PString::translate("die Bedingung hat keinen Namen", "VelkGeomCore"));
        out.filterConditions.append(condition);
    }
}

void TableDescriptorReader::readDate(const LocatedJson &value, QString &out)
{
    readText(value, out);
    if (!out.isEmpty() && CipVersionMgmtC::MakeVersionFromDate(out, {}).isEmpty())
        error(value,
              PString::translate("„%1“ ist kein Datum; schreiben Sie es wie 2026-01-31T12:00:00Z",
                                 "VelkGeomCore")
                  .arg(out));
}

void TableDescriptorReader::readText(const LocatedJson &value, QString &out)
{
    if (isOf(LocatedJson::Type::String, value,
             QT_TRANSLATE_NOOP("VelkGeomCore", "ein Text wird erwartet")))
        out = value.text;
}

void TableDescriptorReader::readTexts(const LocatedJson &value, QStringList &out)
{
    out.clear();
    if (value.type == LocatedJson::Type::String) {
        out.append(value.text);
        return;
    }
    if (!isOf(LocatedJson::Type::Array, value,
              QT_TRANSLATE_NOOP("VelkGeomCore", "eine Liste von Texten wird erwartet")))
        return;
    for (const LocatedJson &item : value.items) {
        QString text;
        readText(item, text);
        out.append(text);
    }
}

void TableDescriptorReader::readBool(const LocatedJson &value, bool &out)
{
    if (isOf(LocatedJson::Type::Bool, value,
             QT_TRANSLATE_NOOP("VelkGeomCore", "true oder false wird erwartet")))
        out = value.boolean;
}

void TableDescriptorReader::readCount(const LocatedJson &value, int &out)
{
    if (!isOf(LocatedJson::Type::Number, value,
              QT_TRANSLATE_NOOP("VelkGeomCore", "eine Zahl wird erwartet")))
        return;
    bool ok = false;
    out = value.text.toInt(&ok);
    if (!ok || out < 0)
        error(value, PString::translate("eine ganze Zahl von 0 bis 2147483647 wird erwartet",
                                        "VelkGeomCore"));
}

void TableDescriptorReader::readTextMap(const LocatedJson &value, QMap<QString, QString> &out)
{
    if (!isOf(LocatedJson::Type::Object, value,
              QT_TRANSLATE_NOOP("VelkGeomCore", "ein Objekt mit Texten wird erwartet")))
        return;
    for (qsizetype i = 0; i < value.names.size(); ++i)
        readText(value.items[size_t(i)], out[value.names.at(i)]);
}

void TableDescriptorReader::readTranslations(const LocatedJson &value, TextTranslations &out)
{
    if (!isOf(LocatedJson::Type::Object, value,
              QT_TRANSLATE_NOOP("VelkGeomCore",
                                "ein Objekt mit einem Eintrag für jede Sprache wird erwartet")))
        return;
    for (qsizetype i = 0; i < value.names.size(); ++i)
        readTextMap(value.items[size_t(i)], out[value.names.at(i)]);
}

void TableDescriptorReader::keep(const QString &name, const LocatedJson &value,
                                 UnknownMembers &out) const
{
    out.append({name, m_json.mid(value.begin, value.end - value.begin)});
}

bool TableDescriptorReader::isOf(LocatedJson::Type type, const LocatedJson &value, const char *what)
{
    if (value.type == type)
        return true;
    error(value, PString::translate(what, "VelkGeomCore"));
    return false;
}

void TableDescriptorReader::error(const LocatedJson &at, const QString &text)
{
    // The place costs a walk over the text.
    m_found.add(m_found.isFull() ? TableError()
                                 : LocatedJson::errorAt(m_json, m_file, at.begin, text));
}

std::optional<TableDescriptor>
TableDescriptor::fromJson(const QByteArray &json, const QString &file, TableErrorList &errors)
{
    return TableDescriptorReader(json, file, errors).read();
}

} // namespace VKTab

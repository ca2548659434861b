#include "PJsonValue.h"

#include "JsonText.h"
#include "JsonWriter.h"
#include "PJsonNode.h"

#include <core/text/PString.h>

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <charconv>
#include <utility>

namespace {

QByteArray writtenText(const auto &value)
{
    JsonWriter writer(JsonWriter::Compact);
    writer.value(value);
    return writer.take();
}

bool isPlain(const PJsonValue &value)
{
    return !value.isArray() && !value.isObject();
}

template<class T>
T numberOr(const PJsonNode *node, T other)
{
    if (!node || node->type() != PJsonValue::Number)
        return other;
    T result = other;
    const char *const end = node->text().end();
    const auto [last, code] = std::from_chars(node->text().begin(), end, result);
    return code == std::errc() && last == end ? result : other;
}

} // namespace

PJsonValue::PJsonValue(Type type)
{
    switch (type) {
    case Null:
        break;
    case Array:
    case Object:
        d = new PJsonNode(type);
        break;
    case Bool:
        *this = fromBool(false);
        break;
    case Number:
        *this = fromInt(0);
        break;
    case Text:
        *this = PJsonValue(QString());
        break;
    }
}

PJsonValue::PJsonValue(const QString &text)
    : PJsonValue(fromWritten(writtenText(QStringView(text))))
{
}

PJsonValue::PJsonValue(PJsonNode *node)
    : d(node)
{
}

PJsonValue::PJsonValue(const PJsonValue &) = default;

PJsonValue::PJsonValue(PJsonValue &&) noexcept = default;

PJsonValue &PJsonValue::operator=(const PJsonValue &) = default;

PJsonValue &PJsonValue::operator=(PJsonValue &&) noexcept = default;

PJsonValue::~PJsonValue() = default;

PJsonValue PJsonValue::fromBool(bool value)
{
    return fromWritten(writtenText(value));
}

PJsonValue PJsonValue::fromInt(qint64 value)
{
    return fromWritten(writtenText(value));
}

PJsonValue PJsonValue::fromDouble(double value)
{
    return fromWritten(writtenText(value));
}

PJsonValue PJsonValue::fromWritten(const QByteArray &json)
{
    const QByteArrayView text = JsonText::trimmed(json);
    return text.isEmpty() ? PJsonValue() : PJsonValue(new PJsonNode(json, text, 0));
}

PJsonValue PJsonValue::fromWriter(Type type, const std::function<void(JsonWriter &)> &write)
{
    return PJsonValue(new PJsonNode(type, write));
}

bool PJsonValue::parseFile(const QString &nativePath, QString *error)
{
    d.reset();
    // A device could be read for ever, and a pipe would wait for its other end.
    const QFileInfo info(nativePath);
    if (info.exists() && !info.isFile()) {
        if (error)
            *error = QStringLiteral("%1: %2").arg(
                nativePath, PString::translate("Das ist keine gewöhnliche Datei.", "VelkCore"));
        return false;
    }
    QFile file(nativePath);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = QStringLiteral("%1: %2").arg(nativePath, file.errorString());
        return false;
    }
    const QByteArray json = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        if (error)
            *error = QStringLiteral("%1: %2").arg(nativePath, file.errorString());
        return false;
    }
    if (adopt(json, error))
        return true;
    if (error)
        *error = QStringLiteral("%1, %2").arg(nativePath, *error);
    return false;
}

bool PJsonValue::parse(const QByteArray &json, QString *error)
{
    // The caller's array may not own its bytes.
    return adopt(QByteArray(json.constData(), json.size()), error);
}

bool PJsonValue::adopt(const QByteArray &json, QString *error)
{
    d.reset();
    if (!JsonText::check(json, error))
        return false;
    d = new PJsonNode(json, JsonText::trimmed(json), -1);
    return true;
}

PJsonValue::Type PJsonValue::type() const
{
    return d ? d->type() : Null;
}

bool PJsonValue::toBool(bool other) const
{
    return type() == Bool ? d->text().front() == 't' : other;
}

qint64 PJsonValue::toInt(qint64 other) const
{
    return numberOr(d.data(), other);
}

double PJsonValue::toDouble(double other) const
{
    return numberOr(d.data(), other);
}

QString PJsonValue::toText(const QString &other) const
{
    return type() == Text ? JsonText::unquoted(d->text()) : other;
}

int PJsonValue::size() const
{
    return d ? int(d->members().values.size()) : 0;
}

PJsonValue PJsonValue::at(int index) const
{
    return index >= 0 && index < size() ? d->members().values[std::size_t(index)] : PJsonValue();
}

void PJsonValue::append(const PJsonValue &value)
{
    // The argument may be part of this value.
    PJsonValue kept = value;
    changeable(Array).changeMembers().values.push_back(std::move(kept));
}

QStringList PJsonValue::keys() const
{
    if (!d)
        return {};
    const std::vector<QString> &names = d->members().names;
    return QStringList(names.begin(), names.end());
}

bool PJsonValue::contains(const QString &key) const
{
    return d && d->members().find(key) >= 0;
}

PJsonValue PJsonValue::value(const QString &key) const
{
    return d ? at(d->members().find(key)) : PJsonValue();
}

PJsonValue &PJsonValue::operator[](const QString &key)
{
    PJsonMembers &members = changeable(Object).changeMembers();
    const int at = members.find(key);
    return at >= 0 ? members.values[std::size_t(at)] : members.set(key, PJsonValue());
}

bool PJsonValue::remove(const QString &key)
{
    if (!contains(key))
        return false;
    PJsonMembers &members = changeable(Object).changeMembers();
    members.removeAt(members.find(key));
    return true;
}

QByteArray PJsonValue::toByteArray(bool compact) const
{
    JsonWriter writer(compact ? JsonWriter::Compact : JsonWriter::Indented);
    write(writer, compact);
    if (!compact)
        writer.lineFeed();
    return writer.take();
}

bool PJsonValue::writeTo(QIODevice &device, bool compact) const
{
    JsonWriter writer(device, compact ? JsonWriter::Compact : JsonWriter::Indented);
    write(writer, compact);
    if (!compact)
        writer.lineFeed();
    return writer.finish();
}

QByteArray PJsonValue::rawText() const
{
    return d && d->hasText() && !d->writer() ? d->text().toByteArray() : toByteArray(true);
}

PJsonNode &PJsonValue::changeable(Type wanted)
{
    if (type() != wanted)
        d = new PJsonNode(wanted);
    else
        d.detach();
    return *d;
}

void PJsonValue::write(JsonWriter &writer, bool compact) const
{
    if (!d) {
        writer.null();
        return;
    }
    if (d->writer()) {
        d->writer()(writer);
        return;
    }
    if (d->hasText()) {
        if (compact)
            writer.written(JsonText::compacted(d->text()));
        else
            writer.written(d->text(),
                           d->writtenLevel() < 0 ? 0 : writer.level() - d->writtenLevel());
        return;
    }
    const PJsonMembers &members = d->members();
    if (type() == Object) {
        writer.beginObject();
        for (std::size_t i = 0; i < members.values.size(); ++i) {
            writer.key(QStringView(members.names[i]));
            members.values[i].write(writer, compact);
        }
        writer.endObject();
        return;
    }
    writer.beginArray(std::all_of(members.values.begin(), members.values.end(), isPlain));
    for (const PJsonValue &value : members.values)
        value.write(writer, compact);
    writer.endArray();
}

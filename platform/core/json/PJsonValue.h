#pragma once

#include <core/VelkCoreGlobal.h>

#include <QByteArray>
#include <QExplicitlySharedDataPointer>
#include <QString>
#include <QStringList>

#include <functional>

class JsonWriter;
class PJsonNode;
class QIODevice;

/// A JSON value. Copies share their content until one of them is changed. Text that was parsed and
/// that nobody changed is kept as it was written and goes out again byte for byte; numbers keep
/// their written form. Looking into one value from several threads is safe, changing it is not.
class VELKCORE_EXPORT PJsonValue
{
public:
    enum Type {
        Null = 0,
        Bool,
        Number,
        Text,
        Array,
        Object,
    };

    explicit PJsonValue(Type type = Null);
    PJsonValue(const QString &text);
    PJsonValue(const PJsonValue &other);
    PJsonValue(PJsonValue &&other) noexcept;
    PJsonValue &operator=(const PJsonValue &other);
    PJsonValue &operator=(PJsonValue &&other) noexcept;
    ~PJsonValue();

    [[nodiscard]] static PJsonValue fromBool(bool value);
    [[nodiscard]] static PJsonValue fromInt(qint64 value);
    /// Not a number and infinities have no JSON form and become null.
    [[nodiscard]] static PJsonValue fromDouble(double value);
    /// Takes over text that JsonWriter wrote at level 0, unchecked. When the document is written
    /// its rows are moved to the depth at which it comes to stand.
    [[nodiscard]] static PJsonValue fromWritten(const QByteArray &json);
    /// A value that is written only when the document is, straight into it, or when somebody looks
    /// into it. \a write writes one value of the type (an object or array), the same every time, on
    /// whatever thread, and owns all that it needs.
    [[nodiscard]] static PJsonValue fromWriter(Type type,
                                               const std::function<void(JsonWriter &)> &write);

    /// Reads a whole document (RFC 8259, UTF-8, with or without byte order mark), all that is JSON
    /// by grammar. Of members of one name the last counts. False if the file cannot be read, is
    /// empty or is no JSON: then this value is null, and \a error names the file, line and column
    /// (in bytes), both from 1.
    bool parseFile(const QString &nativePath, QString *error = nullptr);
    bool parse(const QByteArray &json, QString *error = nullptr);

    [[nodiscard]] Type type() const;
    [[nodiscard]] bool isNull() const { return type() == Null; }
    [[nodiscard]] bool isArray() const { return type() == Array; }
    [[nodiscard]] bool isObject() const { return type() == Object; }

    [[nodiscard]] bool toBool(bool other = false) const;
    /// \a other also for numbers that are not written as an integer, and for too large ones.
    [[nodiscard]] qint64 toInt(qint64 other = 0) const;
    /// \a other also for numbers beyond a double.
    [[nodiscard]] double toDouble(double other = 0) const;
    /// \a other unless it is a text.
    [[nodiscard]] QString toText(const QString &other = QString()) const;

    /// Members of an object or elements of an array; 0 for all else.
    [[nodiscard]] int size() const;
    /// Element or member by its place; null for what is not there.
    [[nodiscard]] PJsonValue at(int index) const;
    /// A value that is no array becomes an empty array first.
    void append(const PJsonValue &value);

    /// Names of the members in their order; empty unless it is an object.
    [[nodiscard]] QStringList keys() const;
    [[nodiscard]] bool contains(const QString &key) const;
    /// Null for what is not there.
    [[nodiscard]] PJsonValue value(const QString &key) const;
    /// The member, made (null, as the last one) if it is missing. A value that is no object becomes
    /// an empty object first. The reference is valid until this value is changed.
    PJsonValue &operator[](const QString &key);
    /// False if it is not there.
    bool remove(const QString &key);

    /// UTF-8. Compact has no blanks; otherwise a row for each member and element, a blank a level,
    /// arrays of plain values on one row, and a final line feed.
    [[nodiscard]] QByteArray toByteArray(bool compact) const;
    /// The same into a device, piece by piece. False if the device did not take everything.
    [[nodiscard]] bool writeTo(QIODevice &device, bool compact) const;
    /// The text as it was parsed or taken over if nobody changed the value, else as
    /// toByteArray(true).
    [[nodiscard]] QByteArray rawText() const;

private:
    friend class PJsonNode;
    explicit PJsonValue(PJsonNode *node);
    bool adopt(const QByteArray &json, QString *error);
    PJsonNode &changeable(Type wanted);
    void write(JsonWriter &writer, bool compact) const;

    QExplicitlySharedDataPointer<PJsonNode> d; ///< null stands for the value null
};

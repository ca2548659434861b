#pragma once

#include <core/VelkCoreGlobal.h>

#include <QByteArray>
#include <QByteArrayView>
#include <QStringView>

#include <functional>
#include <initializer_list>
#include <string_view>

class QIODevice;

/// Writes JSON text by streaming. The caller keeps to the grammar: a key before each member, every
/// begin with its end. The layout is that of PJsonValue::toByteArray.
class VELKCORE_EXPORT JsonWriter
{
public:
    enum Layout {
        Compact,
        Indented, ///< a row for each member and element, a blank a level
    };

    /// Collects the text; \a level is the depth at which it will stand.
    explicit JsonWriter(Layout layout, int level = 0);
    /// Hands the text on to a device in pieces; finish() is wanted at the end.
    JsonWriter(QIODevice &device, Layout layout);
    JsonWriter(const JsonWriter &) = delete;
    JsonWriter &operator=(const JsonWriter &) = delete;

    void beginObject() { open('{', false); }
    void endObject() { close('}'); }
    /// \a onOneRow: only plain values follow, and no line feed comes between them.
    void beginArray(bool onOneRow = false) { open('[', onOneRow); }
    void endArray() { close(']'); }
    /// A whole array of numbers on one row, in one go.
    void row(std::initializer_list<int> numbers);

    /// \a name is UTF-8.
    void key(std::string_view name);
    void key(QStringView name);
    void value(std::string_view utf8);
    void value(QStringView text);
    void value(const char *utf8) { value(std::string_view(utf8)); }
    void value(int number);
    void value(qint64 number);
    void value(bool flag);
    /// Not a number and infinities have no JSON form and become null.
    void value(double number);
    void null();
    /// Already written JSON; \a indentBy blanks are put behind each of its line feeds, or taken
    /// away if it is negative.
    void written(QByteArrayView json, int indentBy = 0);
    /// Of a writer with a device: \a write writes one value, whose text is shown to \a see piece by
    /// piece before the device gets it.
    void seen(const std::function<void(QByteArrayView)> &see, const std::function<void()> &write);
    /// Of a writer with a device: the device has all that was written when \a put is called, which
    /// sees to the text of one value, and gives its size.
    void leaveTo(const std::function<qsizetype()> &put);

    void lineFeed() { *reserve(1) = '\n', ++m_at; }
    [[nodiscard]] int level() const { return m_level; }
    [[nodiscard]] Layout layout() const { return m_layout; }
    [[nodiscard]] bool hasDevice() const { return m_device != nullptr; }
    /// Bytes that came together up to now.
    [[nodiscard]] qsizetype size() const { return m_handedOn + pending(); }
    /// The text that was collected; the writer is empty afterwards.
    [[nodiscard]] QByteArray take();
    /// Hands on what is left. False if the device did not take everything.
    [[nodiscard]] bool finish();

private:
    void beforeValue();
    void startRow();
    char *putLineFeed(char *at);
    void open(char bracket, bool oneRow);
    void close(char bracket);
    void put(std::string_view text);
    void putText(std::string_view utf8);
    void putText(QStringView text);
    void putUnpaired(QStringView text);
    char *reserve(qsizetype size)
    {
        if (m_end - m_at < size)
            grow(size);
        Q_ASSERT(m_at);
        return m_at;
    }
    void grow(qsizetype size);
    void handOn();
    void handOn(std::string_view text);
    [[nodiscard]] qsizetype pending() const { return m_at ? m_at - m_buffer.constData() : 0; }

    QIODevice *const m_device = nullptr;
    const std::function<void(QByteArrayView)> *m_see = nullptr;
    bool m_refused = false;
    qsizetype m_handedOn = 0;
    QByteArray m_buffer; ///< text up to m_at, room up to m_end
    char *m_at = nullptr;
    char *m_end = nullptr;
    Layout m_layout;
    int m_level;
    bool m_first = true; ///< no comma before the next value
    bool m_afterKey = false;
    bool m_oneRow = false;
};

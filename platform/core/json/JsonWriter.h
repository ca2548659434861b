#pragma once

#include <core/VelkCoreGlobal.h>

#include <QByteArray>
#include <QByteArrayView>
#include <QStringView>

#include <string_view>

/// Writes JSON text by streaming. The caller keeps to the grammar: a key before each member, every
/// begin with its end. The layout is that of PJsonValue::toByteArray.
class VELKCORE_EXPORT JsonWriter
{
public:
    enum Layout {
        Compact,
        Indented, ///< a row for each member and element, a blank a level
    };

    /// \a level is the depth at which the text will stand.
    explicit JsonWriter(Layout layout, int level = 0);

    void beginObject() { open('{', false); }
    void endObject() { close('}'); }
    /// \a onOneRow: only plain values follow, and no line feed comes between them.
    void beginArray(bool onOneRow = false) { open('[', onOneRow); }
    void endArray() { close(']'); }

    /// \a name is UTF-8.
    void key(std::string_view name);
    void key(QStringView name);
    void value(std::string_view utf8);
    void value(QStringView text);
    void value(const char *utf8) { value(std::string_view(utf8)); }
    void value(int number) { value(qint64(number)); }
    void value(qint64 number);
    void value(bool flag);
    /// Not a number and infinities have no JSON form and become null.
    void value(double number);
    void null();
    /// Already written JSON; \a indentBy blanks are put behind each of its line feeds.
    void written(QByteArrayView json, int indentBy = 0);

    void lineFeed() { *reserve(1) = '\n', ++m_at; }
    [[nodiscard]] int level() const { return m_level; }
    [[nodiscard]] qsizetype size() const { return m_at ? m_at - m_buffer.constData() : 0; }
    /// The text; the writer is empty afterwards.
    [[nodiscard]] QByteArray take();

private:
    void beforeValue();
    void startRow();
    void open(char bracket, bool oneRow);
    void close(char bracket);
    void put(std::string_view text);
    void putText(std::string_view utf8);
    char *reserve(qsizetype size)
    {
        if (m_end - m_at < size)
            grow(size);
        return m_at;
    }
    void grow(qsizetype size);

    QByteArray m_buffer; ///< text up to m_at, room up to m_end
    char *m_at = nullptr;
    char *m_end = nullptr;
    Layout m_layout;
    int m_level;
    bool m_first = true; ///< no comma before the next value
    bool m_afterKey = false;
    bool m_oneRow = false;
};

#pragma once

#include <core/VelkCoreGlobal.h>

#include <QByteArray>
#include <QStringView>

#include <string_view>

/// Writes JSON text by streaming. The caller keeps to the grammar: a key before each member, every
/// begin with its end. The layout is that of PJsonValue::toByteArray.
class VELKCORE_EXPORT JsonWriter
{
public:
    enum Layout {
        Compact,
        Indented,
    };

    explicit JsonWriter(Layout layout, int level = 0);

    void beginObject();
    void endObject();
    /// \a onOneRow: only plain values follow, and no line feed comes between them.
    void beginArray(bool onOneRow = false);
    void endArray();

    /// \a name is UTF-8 and is escaped.
    void key(std::string_view name);
    void key(QStringView name);
    void value(QStringView text);
    void value(std::string_view utf8);
    void value(int number) { value(qint64(number)); }
    void value(qint64 number);
    void value(bool flag);
    void value(double number);
    void null();
    /// Already written JSON; \a indentBy blanks are put behind each of its line feeds.
    void written(QByteArrayView json, int indentBy = 0);

    void lineFeed() { put('\n'); }
    [[nodiscard]] int level() const { return m_level; }
    [[nodiscard]] qsizetype size() const { return m_at - m_buffer.constData(); }
    /// The text; the writer is empty afterwards.
    [[nodiscard]] QByteArray take();

private:
    void beforeValue();
    void startOfRow();
    void open(char bracket);
    void close(char bracket);
    void put(char c);
    void putEscaped(QStringView text);
    void putEscaped(std::string_view utf8);
    char *reserve(qsizetype size);

    QByteArray m_buffer;
    char *m_at = nullptr;
    char *m_end = nullptr;
    Layout m_layout;
    int m_level;
    bool m_first = true; ///< no comma before the next value
    bool m_afterKey = false;
    bool m_oneRow = false;
};

#pragma once

#include <geomcore/value/LineId.h>

#include <QString>
#include <QVariant>
#include <QVector>

#include <array>
#include <map>
#include <unordered_map>
#include <vector>

namespace VKTab {

/// Status key values of the lines of a table: for each key the values that occur, and for each line
/// the number of its value, in pages of neighbouring lines. A million lines cost four megabytes a
/// key and no allocation each.
class LineStatusTable
{
public:
    /// A null value and an empty text clear. True if that changed something.
    bool set(const LineId &line, const QString &key, const QVariant &value);
    /// set() for many lines; \a numbers has the place of each line's value among \a values.
    bool set(const QVector<LineId> &lines, const QString &key, const QVariantList &values,
             const std::vector<quint8> &numbers);
    /// Numbers of the lines that have one of the values, ascending and each once.
    [[nodiscard]] std::vector<int> linesWith(const QString &key, const QVariantList &values) const;
    /// An empty text when unset.
    [[nodiscard]] QVariant get(const LineId &line, const QString &key) const;
    /// True if the line had a value.
    bool removeLine(const LineId &line);
    /// Gives one line the values of another, unset ones too. True if that changed something.
    bool copyLine(const LineId &from, const LineId &to);
    /// Some line has, or had, a value of that key.
    [[nodiscard]] bool hasKey(const QString &key) const { return find(key) != nullptr; }
    [[nodiscard]] bool isEmpty() const { return m_columns.empty(); }

private:
    static constexpr int PageBits = 8;
    static constexpr int PageSize = 1 << PageBits;
    using Page = std::array<quint32, PageSize>;

    struct Column
    {
        [[nodiscard]] quint32 at(const LineId &line) const;
        /// The place of a line's number, made if need be.
        quint32 &place(const LineId &line);
        bool store(const LineId &line, quint32 number);
        quint32 numberOf(const QVariant &value);

        QString key;
        std::vector<QVariant> values{QVariant(QStringLiteral(""))}; // number 0 = unset
        std::unordered_map<int, Page> pages;                        // lines without second number
        std::map<LineId, quint32> others;
    };

    [[nodiscard]] const Column *find(const QString &key) const;
    [[nodiscard]] Column &column(const QString &key);

    std::vector<Column> m_columns;
};

} // namespace VKTab

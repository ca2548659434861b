#pragma once

#include <geomcore/value/Var.h>

#include <QList>
#include <QString>

#include <functional>

namespace VKTab {

class LineI;

/// Text of a line: a column, or a pattern with names of variables in braces such as
/// "DIN 931 - {Dia} x {L}". A name that is not known stays as it is written.
class LineText
{
public:
    using FindVar = std::function<Var(QStringView)>;

    LineText() = default;
    LineText(const QString &columnOrPattern, const FindVar &findVar);

    /// True if nothing was said.
    [[nodiscard]] bool isEmpty() const { return m_parts.isEmpty(); }
    /// With the values that the line shows, in plain notation, translated as this thread asks.
    [[nodiscard]] QString text(const LineI &line) const;

private:
    struct Part
    {
        QString literal;
        Var var; // not valid for a literal
    };

    void addPattern(const QString &pattern, const FindVar &findVar);

    QList<Part> m_parts;
};

} // namespace VKTab

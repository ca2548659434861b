#include "CatalogSearchCondition.h"

#include <array>

namespace {

struct OpText
{
    QStringView text;
    CatalogSearchCondition::Op op;
};

/// Those of two characters first.
constexpr std::array<OpText, 10> opTexts{{
    {u"!=", CatalogSearchCondition::NotEqual},
    {u"<>", CatalogSearchCondition::NotEqual},
    {u"<=", CatalogSearchCondition::LessEqual},
    {u">=", CatalogSearchCondition::GreaterEqual},
    {u"==", CatalogSearchCondition::Equal},
    {u"=", CatalogSearchCondition::Equal},
    {u"<", CatalogSearchCondition::Less},
    {u">", CatalogSearchCondition::Greater},
    {u"~", CatalogSearchCondition::Contains},
    {u"^", CatalogSearchCondition::StartsWith},
}};

const OpText *opAt(QStringView text)
{
    for (const OpText &known : opTexts) {
        if (text.startsWith(known.text))
            return &known;
    }
    return nullptr;
}

/// Takes the name off the begin of the text; false if a quote is left open.
bool takeName(QStringView &text, QString &name)
{
    if (text.startsWith(u'"')) {
        const qsizetype end = text.indexOf(u'"', 1);
        if (end < 0)
            return false;
        name = text.mid(1, end - 1).toString();
        text = text.mid(end + 1).trimmed();
        return true;
    }
    qsizetype end = 0;
    while (end < text.size() && !opAt(text.mid(end)))
        ++end;
    name = text.left(end).trimmed().toString();
    text = text.mid(end);
    return true;
}

} // namespace

std::optional<CatalogSearchCondition> CatalogSearchCondition::parse(const QString &text,
                                                                    QString *error)
{
    const auto fail = [&](const QString &what) {
        if (error)
            *error = what;
        return std::nullopt;
    };
    CatalogSearchCondition result;
    QStringView rest = QStringView(text).trimmed();
    if (!takeName(rest, result.variable))
        return fail(QStringLiteral("a quote is left open in \"%1\"").arg(text));
    if (result.variable.isEmpty())
        return fail(QStringLiteral("there is no variable in \"%1\"").arg(text));
    const OpText *const op = opAt(rest);
    if (!op)
        return fail(
            QStringLiteral("\"%1\" has none of = != < <= > >= ~ ^ behind the variable").arg(text));
    const QStringView value = rest.mid(op->text.size()).trimmed();
    if (value.isEmpty())
        return fail(QStringLiteral("there is no value in \"%1\"").arg(text));
    result.op = op->op;
    result.low = value.toString();
    const qsizetype dots = value.indexOf(u"..");
    if (result.op == Equal && dots > 0 && dots + 2 < value.size()) {
        result.op = Between;
        result.low = value.left(dots).trimmed().toString();
        result.high = value.mid(dots + 2).trimmed().toString();
    }
    return result;
}

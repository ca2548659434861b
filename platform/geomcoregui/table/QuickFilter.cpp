#include "QuickFilter.h"

#include "TableColumnValues.h"

#include <geomcore/value/CanonicalNumber.h>
#include <geomcore/value/RangeText.h>

#include <QStringList>

#include <algorithm>

namespace {

std::optional<VKTab::CanonicalNumber> numberOf(const QString &text, char decimalChar)
{
    return VKTab::CanonicalNumber::parse(text.toUtf8().toStdString(), decimalChar);
}

QString fromUtf8(std::string_view text)
{
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

bool isOperator(QChar sign)
{
    return sign == u'!' || sign == u'=' || sign == u'<' || sign == u'>';
}

/// The parts between separators, of which those in a quoted text are none.
QStringList parts(const QString &text, QChar separator)
{
    QStringList found{QString()};
    bool atBegin = true; // of a part's text
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar sign = text[i];
        const qsizetype close = atBegin && sign == u'"' ? text.indexOf(u'"', i + 1) : -1;
        if (close > 0) {
            found.last() += QStringView(text).mid(i, close + 1 - i);
            i = close;
        } else if (sign == separator) {
            found += QString();
        } else {
            found.last() += sign;
        }
        const bool begins = sign == u'|' || sign == u'&';
        atBegin = begins || (atBegin && close < 0 && (sign.isSpace() || isOperator(sign)));
    }
    return found;
}

} // namespace

QuickFilter::QuickFilter(const QString &text)
{
    for (const QString &alternative : parts(text, u'|')) {
        std::vector<Test> all;
        for (const QString &part : parts(alternative, u'&')) {
            if (Test test(part); test.says())
                all.push_back(std::move(test));
        }
        if (!all.empty())
            m_any.push_back(std::move(all));
    }
}

QString QuickFilter::ofTexts(const QStringList &texts, bool others)
{
    QStringList tests;
    tests.reserve(texts.size());
    for (const QString &text : texts) {
        const bool plain = !text.contains(u'|') && !text.contains(u'&') && !text.startsWith(u'"') &&
                           text.trimmed() == text;
        tests += (others ? QStringLiteral("!=") : QStringLiteral("=")) +
                 (plain ? text : u'"' + text + u'"');
    }
    return tests.join(others ? QStringLiteral(" & ") : QStringLiteral(" | "));
}

std::vector<char> QuickFilter::passing(const TableColumnValues &values) const
{
    std::vector<char> result;
    result.reserve(values.texts().size());
    for (const std::string_view text : values.texts())
        result.push_back(passes(text, values));
    return result;
}

bool QuickFilter::passes(std::string_view text, const TableColumnValues &values) const
{
    const auto holds = [&](const Test &test) {
        return test.passes(text, values) != test.isNot;
    };
    return m_any.empty() || std::any_of(m_any.begin(), m_any.end(), [&](const auto &all) {
               return std::all_of(all.begin(), all.end(), holds);
           });
}

QuickFilter::Test::Test(const QString &part)
    : text(part.trimmed())
    , search(QString())
{
    // "!" alone is not yet a negation of anything.
    if (text.startsWith(u'!')) {
        isNot = true;
        text = text.mid(1).trimmed();
    }
    takeOperator();
    if (text.size() > 1 && text.startsWith(u'"') && text.endsWith(u'"'))
        text = text.mid(1, text.size() - 2);
    search = TextSearch(text);
}

void QuickFilter::Test::takeOperator()
{
    static const std::pair<const char *, Kind> operators[] = {{"<=", Kind::LessEqual},
                                                              {">=", Kind::GreaterEqual},
                                                              {"<", Kind::Less},
                                                              {">", Kind::Greater},
                                                              {"=", Kind::Equal}};
    for (const auto &[sign, meaning] : operators) {
        const QLatin1String name(sign);
        if (!text.startsWith(name))
            continue;
        kind = meaning;
        text = text.mid(name.size()).trimmed();
        return;
    }
}

bool QuickFilter::Test::passes(std::string_view value, const TableColumnValues &values) const
{
    if (kind == Kind::Equal)
        return equals(value, values);
    return kind == Kind::Contains ? search.isIn(value) : compares(value, values.decimalChar());
}

bool QuickFilter::Test::equals(std::string_view value, const TableColumnValues &values) const
{
    const QString shown = fromUtf8(value);
    if (shown.compare(text, Qt::CaseInsensitive) == 0)
        return true;
    const char decimal = values.decimalChar();
    const auto asked = numberOf(text, decimal);
    if (asked && VKTab::CanonicalNumber::parse(value, decimal) == asked)
        return true;
    if (!values.var().isFW() || text.isEmpty())
        return false;
    const auto range = VKTab::RangeText::parse(shown, decimal);
    return range && range->contains(text, decimal);
}

bool QuickFilter::Test::compares(std::string_view value, char decimalChar) const
{
    const auto asked = numberOf(text, decimalChar);
    const auto number = VKTab::CanonicalNumber::parse(value, decimalChar);
    if (!asked || !number)
        return false;
    const double difference = number->toDouble() - asked->toDouble();
    const bool equal = *number == *asked;
    switch (kind) {
    case Kind::Less:
        return !equal && difference < 0;
    case Kind::LessEqual:
        return equal || difference < 0;
    case Kind::Greater:
        return !equal && difference > 0;
    default:
        return equal || difference > 0;
    }
}

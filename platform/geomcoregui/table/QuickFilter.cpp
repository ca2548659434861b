#include "QuickFilter.h"

#include "TableColumnValues.h"

#include <geomcore/value/CanonicalNumber.h>
#include <geomcore/value/RangeText.h>

namespace {

std::optional<VKTab::CanonicalNumber> numberOf(const QString &text, char decimalChar)
{
    return VKTab::CanonicalNumber::parse(text.toUtf8().toStdString(), decimalChar);
}

QString fromUtf8(std::string_view text)
{
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

} // namespace

QuickFilter::QuickFilter(const QString &text)
    : m_text(text.trimmed())
    , m_search(QString())
{
    takeOperator();
    m_search = TextSearch(m_text);
}

void QuickFilter::takeOperator()
{
    static const std::pair<const char *, Kind> operators[] = {{"<=", Kind::LessEqual},
                                                              {">=", Kind::GreaterEqual},
                                                              {"<", Kind::Less},
                                                              {">", Kind::Greater},
                                                              {"=", Kind::Equal}};
    for (const auto &[sign, kind] : operators) {
        const QLatin1String name(sign);
        if (!m_text.startsWith(name))
            continue;
        m_kind = kind;
        m_text = m_text.mid(name.size()).trimmed();
        return;
    }
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
    if (m_kind == Kind::Equal)
        return equals(text, values);
    if (m_text.isEmpty())
        return true; // an operator without anything behind it yet
    if (m_kind == Kind::Contains)
        return m_search.isIn(text);
    return compares(text, values.decimalChar());
}

bool QuickFilter::equals(std::string_view text, const TableColumnValues &values) const
{
    const QString shown = fromUtf8(text);
    if (shown.compare(m_text, Qt::CaseInsensitive) == 0)
        return true;
    const char decimal = values.decimalChar();
    const auto asked = numberOf(m_text, decimal);
    if (asked && VKTab::CanonicalNumber::parse(text, decimal) == asked)
        return true;
    if (!values.var().isFW() || m_text.isEmpty())
        return false;
    const auto range = VKTab::RangeText::parse(shown, decimal);
    return range && range->contains(m_text, decimal);
}

bool QuickFilter::compares(std::string_view text, char decimalChar) const
{
    const auto asked = numberOf(m_text, decimalChar);
    const auto number = VKTab::CanonicalNumber::parse(text, decimalChar);
    if (!asked || !number)
        return false;
    const double difference = number->toDouble() - asked->toDouble();
    const bool equal = *number == *asked;
    switch (m_kind) {
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

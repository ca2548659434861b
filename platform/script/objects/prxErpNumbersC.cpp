#include "prxErpNumbersC.h"

#include <core/component/proxyMember.h>

prxErpNumbersC::prxErpNumbersC(const ErpNumberSourceI::Numbers &numbers)
{
    for (auto each = numbers.cbegin(); each != numbers.cend(); ++each) {
        QStringList &of = m_numbers[each.key().value(0)];
        of += each.value();
        of.sort();
        of.removeDuplicates();
    }
    m_lines = m_numbers.keys();
}

prxErpNumbersC::~prxErpNumbersC() = default;

int prxErpNumbersC::lineAt(int index) const
{
    return m_lines.value(index, -1);
}

QString prxErpNumbersC::numbersOf(int line) const
{
    return erpNumberText(m_numbers.value(line));
}

const proxyMemberDescListS *prxErpNumbersC::getProxyTypeInfo() const
{
    return getStaticProxyTypeInfo();
}

const proxyMemberDescListS *prxErpNumbersC::getStaticProxyTypeInfo()
{
    static const proxyMemberDescS members[] = {
        proxyPropertyRead<&prxErpNumbersC::lineCount>("lineCount"),
        proxyMethod<&prxErpNumbersC::lineAt>("lineAt"),
        proxyMethod<&prxErpNumbersC::numbersOf>("numbersOf"),
    };
    static const proxyMemberDescListS description{.className = "prxErpNumbersC",
                                                  .base = proxyObjectC::getStaticProxyTypeInfo(),
                                                  .members = members,
                                                  .file = __FILE__,
                                                  .line = __LINE__};
    return &description;
}

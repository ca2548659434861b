#pragma once

#include <core/component/proxyObjectC.h>
#include <geomcore/erp/ErpNumberSourceI.h>

/// The ERP numbers of one project's lines, as they were when the script asked for them. Lines go by
/// their numbers; second numbers of lines count as the same line.
class prxErpNumbersC : public proxyObjectC
{
public:
    explicit prxErpNumbersC(const ErpNumberSourceI::Numbers &numbers);

    [[nodiscard]] const proxyMemberDescListS *getProxyTypeInfo() const override;
    /// Scripts have all of the below.
    [[nodiscard]] static const proxyMemberDescListS *getStaticProxyTypeInfo();

    /// Lines that have a number, in ascending order.
    [[nodiscard]] int lineCount() const { return int(m_numbers.size()); }
    /// -1 beyond the ends.
    [[nodiscard]] int lineAt(int index) const;
    /// With "; " between several; empty without one.
    [[nodiscard]] QString numbersOf(int line) const;

private:
    ~prxErpNumbersC() override;

    QMap<int, QStringList> m_numbers;
    QList<int> m_lines;
};

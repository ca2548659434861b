#include "ErpNumberSourceI.h"

ErpNumberSourceI::~ErpNumberSourceI() = default;

QString erpNumberText(const QStringList &numbers)
{
    return numbers.join(QLatin1StringView("; "));
}

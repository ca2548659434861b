#include "TableText.h"

#include <geomcore/table/TableData.h>

#include <QTest>

std::shared_ptr<const VKTab::TableData> tableOf(const QByteArray &text, const QStringList &key)
{
    VKTab::TableDescriptor descriptor;
    descriptor.primaryKey = key;
    const QByteArray csv = QByteArray(text).replace(';', '\n') + '\n';
    const auto result = VKTab::TableData::fromMemory(descriptor, csv);
    if (!result)
        QTest::qFail(qPrintable(result.errors.first().toString()), __FILE__, __LINE__);
    return result.data;
}

VelkRelease::LineCells cellsOf(const QByteArray &text, VelkRelease::VariableNames &names,
                               const QStringList &key)
{
    return {*tableOf(text, key), names};
}

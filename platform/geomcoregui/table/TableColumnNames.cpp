#include "TableColumnNames.h"

#include "VkTableModel.h"

#include <QUrl>

QString TableColumnNames::ofColumn(const VkTableModel &model, int column)
{
    const QString key =
        model.headerData(column, Qt::Horizontal, VkTableModel::StatusKeyRole).toString();
    return key.isEmpty() ? model.variable(column).getName() : QStringLiteral("*") + key;
}

QString TableColumnNames::ofTable(const VkTableModel &model)
{
    const VKTab::ContentRef table = model.getTable();
    const QString path = table.getKeyValue(VKTab::KeyProjectPath).toString();
    return encoded(path.isEmpty() ? table.getKeyValue(VKTab::KeyNormNumber).toString() : path);
}

QString TableColumnNames::encoded(const QString &text)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

QString TableColumnNames::decoded(const QString &text)
{
    return QUrl::fromPercentEncoding(text.toLatin1());
}

// How DocumentListDialogCPrivate reads the records of its line.

#include "DocumentListDialogC.h"
#include "DocumentListDialogCPrivate.h"
#include "DocumentListItem.h"
#include "Loggers.h"

#include <geomcore/binding/VarsetCreate.h>
#include <geomcore/linkdb/PLinkDbQueryCacheC.h>
#include <geomcore/project/readProjectVersion.h>
#include <geomcore/value/MidentClass.h>

#include <QHeaderView>
#include <QTreeWidget>

void DocumentListDialogCPrivate::setLine(const PString &path, int line, int subLine)
{
    projectPath = path;
    version = readProjectVersion(path);
    relativePath = linkDbIface->getMainModule()->makeRelativePath(path);
    lineId = line;
    lineSubId = subLine;
    poolId = table.isNull() ? QString()
                            : table->getContent().getKeyValue(QStringLiteral("POOLID")).toString();
}

QString DocumentListDialogCPrivate::lineCondition() const
{
    const QString versionLiteral = linkDbIface->codeV(version, true);
    QString path = QStringLiteral("PRJ_PATH = ") + linkDbIface->codeV(relativePath, true);
    const QString condition = linkDbIface->getPlmCondition();
    if (!poolId.isEmpty())
        path = u'(' + path + QStringLiteral(" OR PRJ_PATH = ") + linkDbIface->codeV(poolId, true) +
               u')';
    QString text = path + QStringLiteral(" AND VERSION = ") + versionLiteral +
                   QStringLiteral(" AND LINE_ID = ") + QString::number(lineId) +
                   QStringLiteral(" AND LINE_SUBID = ") + QString::number(lineSubId);
    if (!condition.isEmpty())
        text += QStringLiteral(" AND (") + condition + u')';
    return text;
}

void DocumentListDialogCPrivate::loadRecords()
{
    if (relativePath.isEmpty())
        return;
    tvDocuments->clear();
    const QString statement = QStringLiteral("SELECT * FROM ") + documentTable +
                              QStringLiteral(" WHERE ") + lineCondition();
    LOG_PLM_DOCUMENTS(QStringLiteral("Loading PLM document records: ") + statement);
    PLinkDbQueryCacheC query(linkDbIface->getMainModule()->executeSelectStatement(statement));
    const PStringList names = displayColumns();
    std::shared_ptr<DocumentListColumns> columns;
    QList<QTreeWidgetItem *> items;
    while (query.next()) {
        const PLinkDbRecordC record = query.record();
        if (!columns) { // the same for all rows of a result
            columns = std::make_shared<DocumentListColumns>();
            columns->key = record.indexOf(QStringLiteral("GEO_ID"));
            for (const QString &name : names)
                columns->shown.append(record.indexOf(name.trimmed()));
        }
        items.append(new DocumentListItem(columns, record));
    }
    tvDocuments->addTopLevelItems(items);
    if (!table.isNull())
        selectRecordOfLine();
    // Once for each load: hosts know how often the slot is called.
    QObject::connect(tvDocuments->selectionModel(),
                     SIGNAL(selectionChanged(const QItemSelection &, const QItemSelection &)), q,
                     SLOT(OnSelectionChanged()));
    QMetaObject::invokeMethod(q, "OnSelectionChanged", Qt::DirectConnection);
}

void DocumentListDialogCPrivate::selectRecordOfLine()
{
    const VKTab::ContentRef content = table->getContent();
    const VKTab::VarsetOfLine varset(content.getLine(VKTab::LineId(lineId, lineSubId), false), {});
    const int column = xvarsetColumn();
    for (int row = 0; row < tvDocuments->topLevelItemCount(); ++row) {
        QTreeWidgetItem *const item = tvDocuments->topLevelItem(row);
        if (varset.equals(column < 0 ? QString() : item->text(column))) {
            tvDocuments->setCurrentItem(item);
            return;
        }
    }
}

int DocumentListDialogCPrivate::xvarsetColumn() const
{
    const QTreeWidgetItem *const header = tvDocuments->headerItem();
    for (int column = 0; column < tvDocuments->columnCount(); ++column) {
        if (header->data(column, Qt::UserRole).toString().toLower() == u"xvarset")
            return column;
    }
    return -1;
}

QString DocumentListDialogCPrivate::xvarsetOfRow(int row) const
{
    const int column = xvarsetColumn();
    const QTreeWidgetItem *const item = tvDocuments->topLevelItem(row);
    return column < 0 || !item ? QString() : item->text(column);
}

QString DocumentListDialogCPrivate::lineXVarset() const
{
    return table.isNull() ? QString()
                          : VKTab::VarsetCreate::createXVarset(table->getContent(),
                                                               VKTab::LineId(lineId, lineSubId));
}

void DocumentListDialogCPrivate::showVarset(const QString &text)
{
    const VKTab::ContentRef content = table.isNull() ? VKTab::ContentRef() : table->getContent();
    MidentClass varset;
    if (content.isValid())
        varset.SplitVarValue(text);
    for (int entry = 0; entry < varset.CountVars(); ++entry) {
        const QString name = varset.GetVarName(entry);
        const VKTab::Var var = content.getVar(name);
        if (!var.isValid())
            continue;
        QString description = var.getDescription();
        if (!description.isEmpty())
            description = content.translateText(description, var.getVarId());
        tvVarset->addTopLevelItem(
            new QTreeWidgetItem({name, description, varset.GetVarValue(entry)}));
    }
    tvVarset->header()->resizeSections(QHeaderView::ResizeToContents);
}

PStringList DocumentListDialogCPrivate::distinctValues(const char *column) const
{
    PLinkDbQueryCacheC query(linkDbIface->getMainModule()->executeSelectStatement(
        QStringLiteral("SELECT DISTINCT ") + QLatin1StringView(column) + QStringLiteral(" FROM ") +
        documentTable));
    PStringList values;
    while (query.next())
        values.append(query.value(0).toString());
    return values;
}

ValueMap DocumentListDialogCPrivate::readRecordValues(const QString &geoId,
                                                      const PStringList &columns) const
{
    PLinkDbQueryCacheC query(linkDbIface->getMainModule()->executeSelectStatement(
        QStringLiteral("SELECT * FROM ") + documentTable + QStringLiteral(" WHERE GEO_ID = ") +
        linkDbIface->codeV(geoId, true)));
    ValueMap values;
    if (!query.next())
        return values;
    const PLinkDbRecordC record = query.record();
    for (const QString &column : columns) {
        const int index = record.indexOf(column);
        if (index >= 0)
            values.insert(column, record.value(index).toString());
    }
    return values;
}

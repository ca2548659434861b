// How DocumentListDialogC deletes records. Nothing holds the statements together: the database's
// own commits lie between them, and other users may write meanwhile.

#include "DocumentListDialogC.h"
#include "DocumentListDialogCPrivate.h"
#include "Loggers.h"

#include <core/message/PMessage.h>
#include <geomcore/linkdb/PLinkDbQueryCacheC.h>

#include <QPointer>
#include <QTreeWidget>

namespace {

QString deletionText(const char *text)
{
    return PString::translate(text, "VelkLinkDbGui");
}

void showNotDeleted()
{
    PMessage::Show(deletionText("Der Datensatz konnte nicht gelöscht werden!"), PMsgDlgMode::Error);
}

} // namespace

void DocumentListDialogC::OnDeleteRow()
{
    const QList<QTreeWidgetItem *> selected = d->tvDocuments->selectedItems();
    if (selected.isEmpty())
        return;
    const PString geoId = selected.first()->data(0, Qt::UserRole).toString();
    if (geoId.isEmpty())
        return;
    const QString id = d->linkDbIface->codeV(geoId, true);
    const int children = d->count(QStringLiteral("SELECT COUNT(*) FROM ") + d->hierarchyTable +
                                  QStringLiteral(" WHERE Parent = ") + id);
    if (children <= 0)
        d->deleteLeaf(id);
    else
        d->deleteAssembly(id);
}

void DocumentListDialogCPrivate::deleteLeaf(const QString &id)
{
    const int parents = count(QStringLiteral("SELECT COUNT(*) FROM ") + hierarchyTable +
                              QStringLiteral(" WHERE Child = ") + id);
    if (parents > 1) {
        PMessage::Show(deletionText("Das Teil konnte nicht gelöscht werden, da es von mehreren "
                                    "Assemblies referenziert wird!"),
                       PMsgDlgMode::Warning);
        return;
    }
    if (parents == 1) {
        runDelete(QStringLiteral("DELETE FROM ") + hierarchyTable +
                  QStringLiteral(" WHERE CHILD = ") + id);
        linkDbIface->commit();
    }
    if (!deleteRecord(id)) {
        showNotDeleted();
        return;
    }
    // Not committed here: that comes with the database's next commit.
    modified = true;
    loadRecords();
}

void DocumentListDialogCPrivate::deleteAssembly(const QString &id)
{
    const QPointer<DocumentListDialogC> self(q);
    const PMsgReply reply = PMessage::Show(
        deletionText("Sie sind dabei, eine Assembly zu löschen, die Unterelemente enthält. Sollen "
                     "alle Unterelemente ebenfalls gelöscht werden?"),
        PMsgDlgMode::YesNoCancel);
    if (reply == PMsgReply::Cancel || !self)
        return;
    if (!deleteRecord(id)) {
        showNotDeleted();
        return;
    }
    linkDbIface->commit();
    if (reply == PMsgReply::Yes)
        deleteChildren(id);
    loadRecords();
}

void DocumentListDialogCPrivate::deleteChildren(const QString &id)
{
    const QString children = QStringLiteral("SELECT CHILD FROM ") + hierarchyTable +
                             QStringLiteral(" WHERE Parent = ") + id;
    LOG_PLM_DOCUMENTS(children);
    PLinkDbQueryCacheC query(linkDbIface->getMainModule()->executeSelectStatement(children));
    const QString parentsOf = QStringLiteral("SELECT COUNT(*) FROM ") + hierarchyTable +
                              QStringLiteral(" WHERE Child = %1");
    int kept = 0;
    while (query.next()) {
        const QString child = linkDbIface->codeV(query.value(0).toString(), true);
        const int parents = count(parentsOf.arg(child)); // with the row that goes now
        runDelete(QStringLiteral("DELETE FROM ") + hierarchyTable +
                  QStringLiteral(" WHERE Parent = ") + id + QStringLiteral(" AND Child = ") +
                  child);
        linkDbIface->commit();
        if (parents >= 2) {
            ++kept;
            continue;
        }
        deleteRecord(child);
        linkDbIface->commit();
    }
    if (kept > 0)
        PMessage::Show(
            deletionText("Es konnten nicht alle Unterelemente gelöscht werden, da einige "
                         "Unterelemente auch von anderen Assemblies referenziert "
                         "werden!"),
            PMsgDlgMode::Warning);
}

bool DocumentListDialogCPrivate::runDelete(const QString &statement) const
{
    LOG_PLM_DOCUMENTS(statement);
    return linkDbIface->getMainModule()->executeInsertStatement(statement);
}

bool DocumentListDialogCPrivate::deleteRecord(const QString &id) const
{
    return runDelete(QStringLiteral("DELETE FROM ") + documentTable +
                     QStringLiteral(" WHERE GEO_ID = ") + id);
}

int DocumentListDialogCPrivate::count(const QString &statement) const
{
    return linkDbIface->getMainModule()->executeCountStatement(statement);
}

// How DocumentListDialogC makes and edits records.

#include "DocumentListDialogC.h"
#include "DocumentListDialogCPrivate.h"
#include "Loggers.h"
#include "NewRecordDialogC.h"

#include <core/component/mzComVariantArrayC.h>
#include <core/component/prxDictionaryObjC.h>
#include <core/message/PMessage.h>

#include <QPointer>
#include <QTreeWidget>

namespace {

constexpr const char *writingContext = "VelkLinkDbGui";

} // namespace

std::optional<QString> DocumentListDialogCPrivate::selectedRecord() const
{
    const QModelIndexList selected = tvDocuments->selectionModel()->selectedIndexes();
    const QTreeWidgetItem *const item =
        selected.isEmpty() ? nullptr : tvDocuments->topLevelItem(selected.first().row());
    return item ? std::optional(item->data(0, Qt::UserRole).toString()) : std::nullopt;
}

void DocumentListDialogCPrivate::prepareForm(NewRecordDialogC &form) const
{
    const PStringList pdmSystems = distinctValues("PdmSystem");
    form.setSystemLists(distinctValues("CadSystem"), pdmSystems);
    form.setFields(editColumns());
}

void DocumentListDialogCPrivate::showRecord(NewRecordDialogC &form, const QString &geoId) const
{
    const ValueMap values = readRecordValues(geoId, editColumns());
    if (!values.isEmpty())
        form.setValues(values);
}

mzComVariantC DocumentListDialogCPrivate::invokeCallback(const ScriptCallback &callback,
                                                         const mzComVariantArrayC &arguments) const
{
    mzComVariantC result;
    if (!callback.isValid())
        return result;
    std::optional<PScriptException> exception;
    if (callback.object.invokeAndCheck(callback.method, arguments, result, exception) == 0)
        return result;
    if (exception)
        PMessage::DisplayException(*exception);
    else
        PMessage::Show(PString::translate("Der Aufruf von %1 ist fehlgeschlagen!", writingContext)
                           .arg(callback.method.text()));
    return result;
}

ValueMap DocumentListDialogCPrivate::applyCallback(const ValueMap &values,
                                                   const ScriptCallback &callback) const
{
    if (!callback.isValid())
        return values;
    const ProxyPtrT<prxDictionaryObjC> dictionary(new prxDictionaryObjC);
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        dictionary->addObj(value.key(), value.value());
    mzComVariantC first;
    first.set(dictionary->getIUnknown());
    const mzComVariantC result =
        invokeCallback(callback, {first, static_cast<const proxyObjectC *>(table.get())});
    if (result.isEmpty() || result.getInt() == 1)
        return {};
    const mzComVariantArrayC keys = dictionary->getKeyArray();
    const mzComVariantArrayC items = dictionary->getItemArray();
    ValueMap changed;
    for (int i = 0; i < std::min(keys.size(), items.size()); ++i) {
        mzComStringC key;
        mzComStringC item;
        if (keys[i].getExt(key) == 0 && items[i].getExt(item) == 0)
            changed.insert(key.text(), item.text());
    }
    return changed;
}

PLinkDbRecordC DocumentListDialogCPrivate::recordOf(const ValueMap &values) const
{
    PLinkDbRecordC record = linkDbIface->getMainModule()->createRecord(documentTable);
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        record.setValue(value.key(), value.value());
    return record;
}

void DocumentListDialogCPrivate::write(const QString &statement, const char *failure)
{
    const bool done = linkDbIface->getMainModule()->executeInsertStatement(statement) &&
                      linkDbIface->getMainModule()->commit();
    if (done) {
        modified = true;
        return;
    }
    linkDbIface->getMainModule()->showLastError();
    PMessage::Show(PString::translate(failure, writingContext));
}

void DocumentListDialogC::OnNewRecord()
{
    if (!d->createCallback.isValid())
        return;
    NewRecordDialogC form;
    d->prepareForm(form);
    form.setWindowTitle(PString::translate("Neuen Datensatz anlegen", writingContext));
    form.setXVarset(d->lineXVarset());
    if (const auto geoId = d->selectedRecord())
        d->showRecord(form, *geoId);
    const QPointer<DocumentListDialogC> self(this);
    if (form.exec() != Accepted || !self)
        return;
    ValueMap values = form.values();
    values.insert(QStringLiteral("PRJ_PATH"), d->relativePath);
    values.insert(QStringLiteral("VERSION"), d->version);
    values = d->applyCallback(values, d->createCallback);
    if (!self || values.isEmpty())
        return;
    PLinkDbRecordC record = d->recordOf(values);
    record.setValue(QStringLiteral("LINE_ID"), d->lineId);
    record.setValue(QStringLiteral("LINE_SUBID"), d->lineSubId);
    const QString statement =
        d->linkDbIface->getMainModule()->createSqlStatement(d->documentTable, record, false);
    if (statement.isEmpty())
        return;
    LOG_PLM_DOCUMENTS(QStringLiteral("Creating new PLM document record: ") + statement);
    d->write(statement, QT_TRANSLATE_NOOP("VelkLinkDbGui", "Anlegen des Datensatzes "
                                                           "fehlgeschlagen!"));
    d->loadRecords();
}

void DocumentListDialogC::OnEditRecord()
{
    const auto geoId = d->selectedRecord();
    if (!geoId)
        return;
    NewRecordDialogC form;
    d->prepareForm(form);
    d->showRecord(form, *geoId);
    form.setWindowTitle(PString::translate("Datensatz bearbeiten", writingContext));
    const QPointer<DocumentListDialogC> self(this);
    if (form.exec() != Accepted || !self)
        return;
    const ValueMap values = d->applyCallback(form.values(), d->updateCallback);
    if (!self || values.isEmpty())
        return;
    QString statement = d->linkDbIface->getMainModule()->createSqlStatement(
        d->documentTable, d->recordOf(values), true);
    if (!statement.isEmpty()) {
        statement += QStringLiteral(" WHERE GEO_ID = ") + d->linkDbIface->codeV(*geoId, true);
        LOG_PLM_DOCUMENTS(QStringLiteral("Updating PLM Document record: ") + statement);
        d->write(statement, QT_TRANSLATE_NOOP("VelkLinkDbGui", "Aktualisierung des Datensatzes "
                                                               "fehlgeschlagen!"));
    }
    d->loadRecords();
}

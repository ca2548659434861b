#include "DocumentFixture.h"

#include <geomcore/index/IndexTreeC.h>
#include <geomcore/linkdb/LinkDbSettings.h>
#include <geomcore/linkdb/PLinkDbQueryCacheC.h>

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

namespace {

const QString prefix = QStringLiteral("5000 ");

struct Collected
{
    QStringList statements;
    QStringList lines;
    QStringList places;
    QStringList warnings;
};

Collected &collected()
{
    static Collected all;
    return all;
}

void collect(QtMsgType, const QMessageLogContext &context, const QString &text)
{
    const QString file = QString::fromUtf8(context.file);
    if (qstrcmp(context.category, "velk") != 0) {
        if (text.startsWith(QLatin1String("QObject::")))
            collected().warnings.append(text);
    } else if (file == QLatin1String("linkdbgui\\DocumentListDialog")) {
        collected().lines.append(text.mid(prefix.size()));
        collected().places.append(
            QStringList{file, QString::fromUtf8(context.function), QString::number(context.line)}
                .join(u'|'));
    } else if (text.startsWith(prefix)) {
        collected().statements.append(text.mid(prefix.size()));
    }
}

/// An empty link database in a file; making its tables anew for each test would take its time.
const QString &preparedFile()
{
    static const QTemporaryDir folder;
    static const QString file = [] {
        QString name = folder.filePath(QStringLiteral("link.db"));
        PLinkDbC linkDb;
        (void)linkDb.open(LinkDbSettings::fromText(name));
        return name;
    }();
    return file;
}

/// The server of the test program; ends with it.
PostgresServer &server()
{
    static PostgresServer instance;
    return instance;
}

/// The database of the program on that server, empty; a new one for each test would take its time.
QString emptyDatabase()
{
    static const QString address = server().newDatabase();
    static bool isUsed = false;
    if (std::exchange(isUsed, true)) {
        PLinkDbC linkDb;
        (void)linkDb.open(LinkDbSettings::fromText(address));
        (void)(linkDb.executeInsertStatement(QStringLiteral("DROP SCHEMA public CASCADE")) &&
               linkDb.executeInsertStatement(QStringLiteral("CREATE SCHEMA public")) &&
               linkDb.commit());
    }
    return address;
}

} // namespace

void addDatabases()
{
    QTest::addColumn<bool>("onServer");
    QTest::newRow("SQLite") << false;
    QTest::newRow("PostgreSQL") << true;
}

bool isOnServer()
{
    QFETCH_GLOBAL(bool, onServer);
    return onServer;
}

StatementLog::StatementLog()
{
    collected() = {};
    StaticLogger::setLevels(QStringLiteral(
        "tormeva.libs.VelkGeomCore.linkdb=5000;tormeva.libs.VelkGeomCoreGui.plmdocuments=5000"));
    m_before = qInstallMessageHandler(collect);
}

StatementLog::~StatementLog()
{
    qInstallMessageHandler(m_before);
    StaticLogger::setLevels(QString());
}

QStringList StatementLog::takeStatements()
{
    return std::exchange(collected().statements, {});
}

QStringList StatementLog::takeLines()
{
    return std::exchange(collected().lines, {});
}

QStringList StatementLog::places()
{
    return collected().places;
}

QStringList StatementLog::warnings()
{
    return collected().warnings;
}

const proxyMemberDescListS *CallbackObject::getProxyTypeInfo() const
{
    static const proxyMemberDescS members[] = {proxyMethod<&CallbackObject::run>("run")};
    static const proxyMemberDescListS description{.className = "CallbackObject",
                                                  .base = proxyObjectC::getStaticProxyTypeInfo(),
                                                  .members = members,
                                                  .file = __FILE__,
                                                  .line = __LINE__};
    return &description;
}

mzIDispatchC dispatchOf(proxyObjectC *object)
{
    return mzIDispatchC(object);
}

mzIDispatchC scriptOf(CallbackObject::Run run)
{
    return dispatchOf(new CallbackObject(std::move(run)));
}

QStringList entriesOf(const prxDictionaryObjC &dictionary)
{
    const QStringList keys = dictionary.getKeyArray().toQStringList();
    const QStringList items = dictionary.getItemArray().toQStringList();
    QStringList entries;
    for (int i = 0; i < keys.size(); ++i)
        entries.append(keys[i] + u'=' + items.value(i));
    return entries;
}

void inNextDialog(const std::function<void(QDialog &)> &act)
{
    constexpr int lookMs = 5;
    constexpr int patienceMs = 10'000;
    const QPointer<QWidget> current = QApplication::activeModalWidget();
    auto *const timer = new QTimer(qApp);
    QElapsedTimer elapsed;
    elapsed.start();
    QObject::connect(timer, &QTimer::timeout, qApp, [=] {
        auto *const dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        const bool found = dialog && dialog != current;
        if (!found && elapsed.elapsed() < patienceMs)
            return;
        timer->stop();
        timer->deleteLater();
        if (!found)
            QApplication::closeAllWindows(); // or the test would wait for ever
        QVERIFY(found);
        act(*dialog);
    });
    timer->start(lookMs);
}

void inNextForm(const std::function<void(NewRecordDialogC &)> &fill, bool accept)
{
    inNextDialog([=](QDialog &dialog) {
        auto *const form = qobject_cast<NewRecordDialogC *>(&dialog);
        if (!form)
            dialog.reject();
        QVERIFY(form);
        if (fill)
            fill(*form);
        const auto *const buttons = widgetOf<QDialogButtonBox>(*form, "buttonBox");
        QTest::mouseClick(buttons->button(accept ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel),
                          Qt::LeftButton);
    });
}

QWidget *fieldOf(const QWidget &form, const QString &label)
{
    const auto *const grid = form.findChild<QGridLayout *>(QStringLiteral("gridLayout"));
    for (int row = 0; row < grid->rowCount(); ++row) {
        const QLayoutItem *const item = grid->itemAtPosition(row, 0);
        if (item && qobject_cast<QLabel *>(item->widget())->text() == label)
            return grid->itemAtPosition(row, 1)->widget();
    }
    return nullptr;
}

void typeInto(const QWidget &form, const QString &label, const QString &text)
{
    QWidget *const field = fieldOf(form, label);
    QVERIFY2(field, qPrintable(label));
    field->setFocus();
    auto *edit = qobject_cast<QLineEdit *>(field);
    if (!edit)
        edit = qobject_cast<QComboBox *>(field)->lineEdit();
    edit->selectAll();
    if (text.isEmpty())
        QTest::keyClick(edit, Qt::Key_Delete);
    else
        QTest::keyClicks(edit, text);
}

QString boxTexts(const QWidget &form, const char *label)
{
    const auto *const box = qobject_cast<QComboBox *>(fieldOf(form, label));
    QStringList texts;
    for (int i = 0; i < box->count(); ++i)
        texts.append(box->itemText(i));
    return texts.join(u'|') + u':' + box->currentText();
}

QStringList labelsOf(const QWidget &form)
{
    const auto *const grid = form.findChild<QGridLayout *>(QStringLiteral("gridLayout"));
    QStringList labels;
    for (int row = 0; row < grid->rowCount(); ++row) {
        if (const QLayoutItem *const item = grid->itemAtPosition(row, 0))
            labels.append(qobject_cast<QLabel *>(item->widget())->text());
    }
    return labels;
}

DocumentFixture::DocumentFixture()
    : path(catalog.file(project))
    , linkDb(new PLinkDbC)
    , iface(new prxLinkDbIfaceC(linkDb))
    , m_formerRoot(IndexTreeC::instance()->catalogRoot())
{
    IndexTreeC::instance()->setCatalogRoot(PPathName(catalog.root()));
    writeTable({});
    const QString file = folder.filePath(QStringLiteral("link.db"));
    if (!isOnServer())
        QVERIFY(QFile::copy(preparedFile(), file));
    QVERIFY2(linkDb->open(LinkDbSettings::fromText(isOnServer() ? emptyDatabase() : file)),
             qPrintable(linkDb->lastError().text + server().problem()));
    if (!isOnServer()) // the file goes with the test
        QVERIFY(linkDb->executeSelectStatement("PRAGMA synchronous = OFF")->isValid());
    (void)log.takeStatements();
}

DocumentFixture::~DocumentFixture()
{
    IndexTreeC::instance()->setCatalogRoot(m_formerRoot);
}

void DocumentFixture::writeTable(const QString &pool)
{
    catalog.write(project, "TMVMAT,L:r,M:r,N:r,D:n\nSt,10,1,5,8\nCu,20,2,5,9\n",
                  [&](VKTab::TableDescriptor &descriptor) {
                      if (!pool.isEmpty())
                          descriptor.attributes.insert(QStringLiteral("POOLID"), pool);
                      descriptor.fields[1].zType = QStringLiteral("SM");
                      descriptor.fields[1].description = QStringLiteral("Länge");
                      descriptor.fields[2].zType = QStringLiteral("DM");
                      descriptor.fields[3].zType = QStringLiteral("sm"); // another type
                      descriptor.translations[QStringLiteral("en")].insert(
                          QStringLiteral("Länge"), QStringLiteral("Length"));
                  });
    table = new VKTab::proxyTableC(catalog.read(project));
}

void DocumentFixture::usePool(const QString &pool)
{
    writeTable(pool);
}

void DocumentFixture::insert(const QString &geoId, const Values &values) const
{
    Values all = {{QStringLiteral("GEO_ID"), geoId},
                  {QStringLiteral("PRJ_PATH"), project},
                  {QStringLiteral("VERSION"), QStringLiteral("v1")},
                  {QStringLiteral("LINE_ID"), 1},
                  {QStringLiteral("LINE_SUBID"), 0}};
    for (const auto &value : values) {
        all.removeIf([&](const auto &each) { return each.first == value.first; });
        all.append(value);
    }
    QStringList names;
    QStringList literals;
    for (const auto &[name, value] : std::as_const(all)) {
        names.append(name);
        literals.append(linkDb->literal(value));
    }
    execute(QStringLiteral("INSERT INTO plm_document(") + names.join(u',') +
            QStringLiteral(") VALUES(") + literals.join(u',') + u')');
}

void DocumentFixture::join(const QString &parent, const QString &child) const
{
    execute(QStringLiteral("INSERT INTO plm_hierarchy VALUES(") + linkDb->literal(parent) + u',' +
            linkDb->literal(child) + u')');
}

void DocumentFixture::execute(const QString &sql) const
{
    QVERIFY2(linkDb->executeInsertStatement(sql) && linkDb->commit(),
             qPrintable(linkDb->lastError().text + u'\n' + sql));
    (void)log.takeStatements();
}

void DocumentFixture::refuseDeletion(const QString &geoId) const
{
    refuseDeletes(QStringLiteral("plm_document"), QStringLiteral("OLD.GEO_ID = '%1'").arg(geoId));
}

void DocumentFixture::refuseUnlinking() const
{
    refuseDeletes(QStringLiteral("plm_hierarchy"), QStringLiteral("OLD.CHILD IS NOT NULL"));
}

void DocumentFixture::refuseDeletes(const QString &name, const QString &condition) const
{
    if (!isOnServer()) {
        execute(QStringLiteral("CREATE TRIGGER refuse BEFORE DELETE ON %1 WHEN %2 BEGIN SELECT "
                               "RAISE(ABORT, 'refused'); END")
                    .arg(name, condition));
        return;
    }
    execute(QStringLiteral("CREATE FUNCTION refuse() RETURNS trigger LANGUAGE plpgsql AS $$ BEGIN "
                           "RAISE 'refused'; END $$"));
    execute(QStringLiteral("CREATE TRIGGER refuse BEFORE DELETE ON %1 FOR EACH ROW WHEN (%2) "
                           "EXECUTE FUNCTION refuse()")
                .arg(name, condition));
}

void DocumentFixture::refuseCommits(const QStringList &events) const
{
    execute(QStringLiteral("CREATE TABLE known(id TEXT PRIMARY KEY)"));
    execute(QStringLiteral("CREATE TABLE late(id TEXT REFERENCES known(id) DEFERRABLE INITIALLY "
                           "DEFERRED)"));
    if (!isOnServer()) {
        QVERIFY(linkDb->executeSelectStatement("PRAGMA foreign_keys = ON")->isValid());
        for (const QString &event : events)
            execute(QStringLiteral("CREATE TRIGGER late_%1 AFTER %1 ON plm_document BEGIN INSERT "
                                   "INTO late VALUES('unknown'); END")
                        .arg(event));
        return;
    }
    execute(QStringLiteral("CREATE FUNCTION note() RETURNS trigger LANGUAGE plpgsql AS $$ BEGIN "
                           "INSERT INTO late VALUES('unknown'); RETURN NULL; END $$"));
    execute(QStringLiteral("CREATE TRIGGER late AFTER %1 ON plm_document FOR EACH ROW EXECUTE "
                           "FUNCTION note()")
                .arg(events.join(QLatin1String(" OR "))));
}

void DocumentFixture::setKey(const QString &key, const QString &value) const
{
    QVERIFY(linkDb->setGroupInformation(linkDb->currentGroup(), key, value));
    QVERIFY(linkDb->commit());
    (void)log.takeStatements();
}

QStringList DocumentFixture::column(const QString &sql) const
{
    PLinkDbQueryCacheC query(linkDb->executeSelectStatement(sql));
    QStringList values;
    while (query.next())
        values.append(query.value(0).toString());
    (void)log.takeStatements();
    return values;
}

QStringList DocumentFixture::documents() const
{
    return column(QStringLiteral("SELECT GEO_ID FROM plm_document ORDER BY GEO_ID"));
}

QStringList DocumentFixture::hierarchy() const
{
    return column(QStringLiteral("SELECT Parent || '>' || Child FROM plm_hierarchy ORDER BY 1"));
}

std::unique_ptr<DocumentListDialogC> DocumentFixture::makeDialog(bool withTable) const
{
    auto dialog = std::make_unique<DocumentListDialogC>(nullptr, Qt::WindowFlags());
    dialog->setIndexTree(linkDb->getIndexTree());
    if (withTable)
        dialog->setVelkTab(table);
    dialog->setLinkDbIface(iface);
    return dialog;
}

std::unique_ptr<DocumentListDialogC> DocumentFixture::showDialog(bool withTable) const
{
    auto dialog = makeDialog(withTable);
    dialog->initDialog(path, 1, 0);
    dialog->show();
    (void)log.takeStatements();
    (void)log.takeLines();
    return dialog;
}

QTreeWidget *documentsOf(const DocumentListDialogC &dialog)
{
    return widgetOf<QTreeWidget>(dialog, "tvDocuments");
}

QStringList rowsOf(const QTreeWidget *list)
{
    QStringList rows;
    for (int row = 0; row < list->topLevelItemCount(); ++row) {
        QStringList texts;
        for (int column = 0; column < list->columnCount(); ++column)
            texts.append(list->topLevelItem(row)->text(column));
        rows.append(texts.join(u'|'));
    }
    return rows;
}

QStringList idsOf(const DocumentListDialogC &dialog)
{
    const QTreeWidget *const list = documentsOf(dialog);
    QStringList ids;
    for (int row = 0; row < list->topLevelItemCount(); ++row)
        ids.append(list->topLevelItem(row)->data(0, Qt::UserRole).toString());
    return ids;
}

QStringList selectedIds(const DocumentListDialogC &dialog)
{
    QStringList ids;
    const auto items = documentsOf(dialog)->selectedItems();
    for (const QTreeWidgetItem *item : items)
        ids.append(item->data(0, Qt::UserRole).toString());
    return ids;
}

void clickDocument(const DocumentListDialogC &dialog, int row)
{
    QTreeWidget *const list = documentsOf(dialog);
    QTreeWidgetItem *const item = list->topLevelItem(row);
    QVERIFY(item);
    list->scrollToItem(item);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(item).center());
}

void clickRecord(const DocumentListDialogC &dialog, const QString &geoId)
{
    clickDocument(dialog, int(idsOf(dialog).indexOf(geoId)));
}

void clickButton(const QWidget &dialog, const char *name)
{
    auto *const button = widgetOf<QPushButton>(dialog, name);
    QVERIFY(button && button->isVisible() && button->isEnabled());
    QTest::mouseClick(button, Qt::LeftButton);
}

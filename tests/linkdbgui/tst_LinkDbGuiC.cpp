#include "../support/LeakOnPurpose.h"

#include <core/component/mzComServerC.h>
#include <core/component/mzComServerStateEventC.h>
#include <core/component/proxyFactoryC.h>
#include <core/logging/StaticLogger.h>
#include <core/plugin/PLicence.h>
#include <core/plugin/PPluginRegistry.h>
#include <core/plugin/PTranslateManager.h>
#include <core/text/PString.h>
#include <geomcore/linkdb/PLinkDbC.h>
#include <gui/application/PApplication.h>
#include <gui/application/PApplicationPool.h>
#include <linkdbgui/LinkDbGuiC.h>
#include <linkdbgui/Loggers.h>
#include <mapping/project/ignoreMarker.h>

#include <QAction>
#include <QIcon>
#include <QMetaMethod>
#include <QPixmap>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>

#include <algorithm>

class tst_LinkDbGuiC : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void metaObject();
    void ownMethods();
    void castByName_data();
    void castByName();
    void castOfNothing();
    void isCreatedWithoutAPlaceForIt();
    void connectsNoAction();
    void isRegistered();
    void isCreatedByTheRegistry();
    void initLinkDb_data();
    void initLinkDb();
    void connectsWithoutWarning();
    void asksForTheLicenceOnceTheGuiIsUp();
    void actions_data();
    void actions();
    void orderOfActions();
    void disabledActions();
    void checkableActions();
    void statusTipsAreToolTips();
    void tipsAreTranslatedBeforeTexts();
    void translatedActions();
    void keepsIconOfThePool();
    void icons();
    void scriptClasses();
    void loggers();
    void nothingIsLogged();
    void ignoredVariable();
};

namespace {

const QStringList actionNames{
    QStringLiteral("LinkDbLogin"),           QStringLiteral("LinkDbChangeGroup"),
    QStringLiteral("CallLinkMgr"),           QStringLiteral("LinkDbBackToMgr"),
    QStringLiteral("LinkDbCancelBackToMgr"), QStringLiteral("LinkDbSendMail"),
    QStringLiteral("LinkDbAddToDb"),         QStringLiteral("LinkDbShowLegend"),
    QStringLiteral("LinkDbFilteronoff"),     QStringLiteral("PreferredRanges")};

/// Object names of the pool's actions for which the function holds.
template<class Holds>
QStringList namesOf(const PApplicationPool &pool, const Holds &holds)
{
    QStringList names;
    for (const QAction *action : pool.actions()) {
        if (holds(*action))
            names << action->objectName();
    }
    return names;
}

/// Notes what is to be translated for the plug-in.
class NotingTranslator : public QTranslator
{
public:
    NotingTranslator() { QCoreApplication::installTranslator(this); }
    ~NotingTranslator() override { QCoreApplication::removeTranslator(this); }
    Q_DISABLE_COPY_MOVE(NotingTranslator)

    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *context, const char *text, const char *,
                                    int) const override
    {
        if (qstrcmp(context, "VelkLinkDbGui") == 0)
            texts += QString::fromUtf8(text);
        return {};
    }

    mutable QStringList texts;
};

} // namespace

void tst_LinkDbGuiC::init()
{
    PLicence::setQuery({});
    PTranslateManager::instance().setLanguage({});
}

void tst_LinkDbGuiC::metaObject()
{
    const QMetaObject &meta = LinkDbGuiC::staticMetaObject;
    QCOMPARE(meta.className(), "LinkDbGuiC");
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(meta.classInfoCount() - meta.classInfoOffset(), 1);
    QCOMPARE(meta.classInfo(meta.classInfoOffset()).name(), "Interfaces");
    QCOMPARE(meta.classInfo(meta.classInfoOffset()).value(), "PLinkDbGuiI");
    QCOMPARE(meta.constructorCount(), 1);
    QCOMPARE(meta.constructor(0).methodSignature(), QByteArray("LinkDbGuiC()"));
    QCOMPARE(meta.constructor(0).access(), QMetaMethod::Public);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.enumeratorCount(), meta.enumeratorOffset());
}

void tst_LinkDbGuiC::ownMethods()
{
    const QMetaObject &meta = LinkDbGuiC::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod slot = meta.method(meta.methodOffset());
    QCOMPARE(slot.methodSignature(), QByteArray("onGuiInitialized()"));
    QCOMPARE(slot.methodType(), QMetaMethod::Slot);
    QCOMPARE(slot.access(), QMetaMethod::Private);
}

void tst_LinkDbGuiC::castByName_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("side");
    QTest::newRow("class") << QByteArray("LinkDbGuiC") << "object";
    QTest::newRow("interface") << QByteArray("PLinkDbGuiI") << "interface";
    QTest::newRow("interface id") << QByteArray("velkworkbench.PLinkDbGuiI/1.0") << "interface";
    QTest::newRow("base object") << QByteArray("QObject") << "object";
    QTest::newRow("root of the interfaces") << QByteArray("PBaseInterface") << "none";
    QTest::newRow("another version") << QByteArray("velkworkbench.PLinkDbGuiI/1.1") << "none";
    QTest::newRow("empty") << QByteArray("") << "none";
    QTest::newRow("null") << QByteArray() << "none";
}

void tst_LinkDbGuiC::castByName()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, side);
    LinkDbGuiC plugin;
    void *expected = nullptr;
    if (side == QLatin1String("object"))
        expected = &plugin;
    else if (side == QLatin1String("interface"))
        expected = static_cast<PLinkDbGuiI *>(&plugin);
    QCOMPARE(plugin.qt_metacast(name.isNull() ? nullptr : name.constData()), expected);
}

void tst_LinkDbGuiC::castOfNothing()
{
    QObject *none = nullptr;
    QCOMPARE(qobject_cast<PLinkDbGuiI *>(none), nullptr);
    LinkDbGuiC plugin;
    QCOMPARE(plugin.asQObject(), &plugin);
    QCOMPARE(qobject_cast<PLinkDbGuiI *>(plugin.asQObject()), static_cast<PLinkDbGuiI *>(&plugin));
}

void tst_LinkDbGuiC::isCreatedWithoutAPlaceForIt()
{
    const PApplication host({});
    void *arguments[] = {nullptr};
    {
        const LeakOnPurpose nobodyGetsIt;
        LinkDbGuiC::staticMetaObject.static_metacall(QMetaObject::CreateInstance, 0, arguments);
    }
    QObject *made = nullptr;
    void *place[] = {&made};
    LinkDbGuiC::staticMetaObject.static_metacall(QMetaObject::CreateInstance, 0, place);
    QVERIFY(qobject_cast<LinkDbGuiC *>(made));
    delete made;
}

void tst_LinkDbGuiC::connectsNoAction()
{
    class Action : public QAction
    {
    public:
        using QAction::receivers;
    };
    const PApplication host({});
    LinkDbGuiC plugin;
    PApplicationPool pool;
    plugin.registerActions(pool);
    const auto actions = pool.actions();
    for (const QAction *const action : actions)
        QCOMPARE((action->*(&Action::receivers))(SIGNAL(triggered(bool))), 0);
}

void tst_LinkDbGuiC::isRegistered()
{
    const QList<const QMetaObject *> plugins = PPluginRegistry::instance().plugins();
    QCOMPARE(plugins, QList<const QMetaObject *>{&LinkDbGuiC::staticMetaObject});
    QCOMPARE(PTranslateManager::instance().modules(), QStringList{QStringLiteral("VelkLinkDbGui")});
}

void tst_LinkDbGuiC::isCreatedByTheRegistry()
{
    const auto object = PPluginRegistry::create(LinkDbGuiC::staticMetaObject);
    QVERIFY(qobject_cast<LinkDbGuiC *>(object.get()));
    QVERIFY(qobject_cast<PLinkDbGuiI *>(object.get()));
}

void tst_LinkDbGuiC::initLinkDb_data()
{
    QTest::addColumn<bool>("hasDatabase");
    QTest::addColumn<bool>("isLicensed");
    QTest::addColumn<bool>("expected");
    QTest::newRow("database and licence") << true << true << true;
    QTest::newRow("no licence") << true << false << false;
    QTest::newRow("no database") << false << true << false;
    QTest::newRow("neither") << false << false << false;
}

void tst_LinkDbGuiC::initLinkDb()
{
    QFETCH(bool, hasDatabase);
    QFETCH(bool, isLicensed);
    PLicence::setQuery([isLicensed](const QString &feature) {
        return isLicensed && feature == QLatin1String("LINKDB");
    });
    LinkDbGuiC plugin;
    const PRefPtr<PLinkDbC> database(hasDatabase ? new PLinkDbC : nullptr);
    QTEST(plugin.initLinkDb(database), "expected");
}

void tst_LinkDbGuiC::connectsWithoutWarning()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    PApplication host({});
    int queries = 0;
    PLicence::setQuery([&queries](const QString &) {
        ++queries;
        return true;
    });
    const LinkDbGuiC plugin;
    QCOMPARE(queries, 0);
    host.setInitialized();
    QCOMPARE(queries, 1);
}

void tst_LinkDbGuiC::asksForTheLicenceOnceTheGuiIsUp()
{
    PApplication host({});
    PLicence::setQuery([](const QString &feature) { return feature == QLatin1String("LINKDB"); });
    LinkDbGuiC licensed;
    QVERIFY(!licensed.hasUserDefinedFields());
    host.setInitialized();
    QVERIFY(licensed.hasUserDefinedFields());

    PApplication second({});
    PLicence::setQuery([](const QString &) { return false; });
    LinkDbGuiC unlicensed;
    second.setInitialized();
    QVERIFY(!unlicensed.hasUserDefinedFields());
}

void tst_LinkDbGuiC::actions_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("tip");
    const auto row = [](const char *name, const char *text, const char *tip) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(tip);
    };
    row("LinkDbLogin", "Login", "Benutzer authentifizieren/wechseln");
    row("LinkDbChangeGroup", "Gruppe auswählen", "Gruppe auswählen");
    row("CallLinkMgr", "Linkmanager", "Linkmanager aufrufen");
    row("LinkDbBackToMgr", "Auswahl an Linkmanager", "Auswahl an Linkmanager senden");
    row("LinkDbCancelBackToMgr", "Auswahl abbrechen", "Auswahl abbrechen");
    row("LinkDbSendMail", "ERP-Nummer beantragen", "Beantragen einer ERP-Nummer per Mail");
    row("LinkDbAddToDb", "Datensatz hinzufügen", "Datensatz zur Linkdatenbank hinzufügen");
    row("LinkDbShowLegend", "Legende anzeigen", "Legende anzeigen");
    row("LinkDbFilteronoff", "Baum gefiltert darstellen", "Baum gefiltert darstellen");
    row("PreferredRanges", "Vorzugsreihen  ein und ausschalten", "Vorzugsreihen An/Aus");
}

void tst_LinkDbGuiC::actions()
{
    QFETCH(QString, text);
    QFETCH(QString, tip);
    PApplicationPool pool;
    LinkDbGuiC().registerActions(pool);
    const QAction *action = pool.action(QString::fromUtf8(QTest::currentDataTag()));
    QVERIFY(action);
    QCOMPARE(action->text(), text);
    QCOMPARE(action->toolTip(), tip);
    QCOMPARE(action->statusTip(), tip);
    QVERIFY(action->shortcut().isEmpty());
    QVERIFY(!action->isChecked());
}

void tst_LinkDbGuiC::orderOfActions()
{
    PApplicationPool pool;
    LinkDbGuiC().registerActions(pool);
    QCOMPARE(namesOf(pool, [](const QAction &) { return true; }), actionNames);
}

void tst_LinkDbGuiC::disabledActions()
{
    PApplicationPool pool;
    LinkDbGuiC().registerActions(pool);
    const QStringList expected{QStringLiteral("LinkDbBackToMgr"),
                               QStringLiteral("LinkDbCancelBackToMgr")};
    QCOMPARE(namesOf(pool, [](const QAction &action) { return !action.isEnabled(); }), expected);
}

void tst_LinkDbGuiC::checkableActions()
{
    PApplicationPool pool;
    LinkDbGuiC().registerActions(pool);
    const QStringList expected{QStringLiteral("LinkDbFilteronoff"),
                               QStringLiteral("PreferredRanges")};
    QCOMPARE(namesOf(pool, [](const QAction &action) { return action.isCheckable(); }), expected);
}

void tst_LinkDbGuiC::statusTipsAreToolTips()
{
    PTranslateManager::instance().setLanguage(QStringLiteral("en"));
    PApplicationPool pool;
    LinkDbGuiC().registerActions(pool);
    QCOMPARE(namesOf(pool,
                     [](const QAction &action) {
                         return action.statusTip() == action.toolTip() &&
                                !action.statusTip().isEmpty();
                     }),
             actionNames);
}

void tst_LinkDbGuiC::tipsAreTranslatedBeforeTexts()
{
    PApplicationPool pool;
    QStringList asked;
    {
        const NotingTranslator translator;
        LinkDbGuiC().registerActions(pool);
        asked = translator.texts;
    }
    QStringList expected;
    for (const QAction *action : pool.actions())
        expected << action->toolTip() << action->text();
    QCOMPARE(asked, expected);
}

void tst_LinkDbGuiC::translatedActions()
{
    PTranslateManager::instance().setLanguage(QStringLiteral("en"));
    PApplicationPool pool;
    LinkDbGuiC().registerActions(pool);
    const QAction *action = pool.action(QStringLiteral("LinkDbSendMail"));
    QCOMPARE(action->objectName(), QStringLiteral("LinkDbSendMail"));
    QCOMPARE(action->text(), QStringLiteral("Request ERP number"));
    QCOMPARE(action->toolTip(), QStringLiteral("Request an ERP number by mail"));
}

void tst_LinkDbGuiC::keepsIconOfThePool()
{
    QPixmap pixmap(24, 24);
    pixmap.fill(Qt::magenta);
    const QIcon own(pixmap);
    PApplicationPool pool;
    pool.registerAction(QStringLiteral("LinkDbLogin"), {}, {})->setIcon(own);
    LinkDbGuiC().registerActions(pool);
    QCOMPARE(pool.action(QStringLiteral("LinkDbLogin"))->icon().cacheKey(), own.cacheKey());
    QVERIFY(pool.action(QStringLiteral("CallLinkMgr"))->icon().cacheKey() != own.cacheKey());
}

/// The host's icons, by the names that the plug-in gives.
void tst_LinkDbGuiC::icons()
{
    PApplicationPool pool;
    LinkDbGuiC().registerActions(pool);
    for (const QAction *action : pool.actions()) {
        const QString name = QStringLiteral(":/bitmaps/linkdb/action%1_24.png");
        const QImage expected(name.arg(action->objectName()));
        QCOMPARE(expected.size(), QSize(24, 24));
        const QImage shown = action->icon().pixmap(QSize(24, 24), 1).toImage();
        QCOMPARE(shown.convertToFormat(expected.format()), expected);
    }
}

void tst_LinkDbGuiC::scriptClasses()
{
    mzComServerC &server = mzComServerC::instance();
    // Beside the classes of the platform, which come first.
    const auto members = server.members();
    QVERIFY(members.size() > 2);
    for (const mzComServerStateEventC *member : members)
        QCOMPARE(member->events(), 0x50);
    proxyFactoryC &factory = proxyFactoryC::instance();
    QVERIFY(factory.classes().isEmpty());
    server.start();
    const qsizetype count = factory.classes().size();
    QCOMPARE(count, members.size());
    const proxyMemberDescListS *shell = factory.classes().at(count - 2);
    const proxyMemberDescListS *dialog = factory.classes().at(count - 1);
    QCOMPARE(shell->className, "prxLinkDbGuiC");
    QCOMPARE(dialog->className, "prxDocumentListDialogC");
    QCOMPARE(factory.findComponent(QStringLiteral("tmvtools.linkdbgui")), shell);
    QCOMPARE(dialog->componentId, nullptr);
    server.stop();
    QCOMPARE(factory.classes().size(), count);
}

void tst_LinkDbGuiC::loggers()
{
    QCOMPARE(plmDocumentsLogger().category, "tormeva.libs.VelkGeomCoreGui.plmdocuments");
    QCOMPARE(plmDocumentsLogger().level.load(), -2);
    QCOMPARE(linkDbGuiLogger().category, "tormeva.libs.VelkLinkDbGui.LinkDbGui");
    QCOMPARE(linkDbGuiLogger().level.load(), -2);
}

void tst_LinkDbGuiC::nothingIsLogged()
{
    static int lines = 0;
    StaticLogger::setLevels(QStringLiteral("*=0"));
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &context, const QString &) {
        lines += qstrcmp(context.category, "velk") == 0 ? 1 : 0;
    });
    StaticLogger::log(5000, "f", "g", 1, QStringLiteral("seen"));
    {
        PApplication host({});
        PApplicationPool pool;
        LinkDbGuiC plugin;
        plugin.registerActions(pool);
        plugin.initLinkDb(PRefPtr<PLinkDbC>(new PLinkDbC));
        host.setInitialized();
    }
    qInstallMessageHandler(nullptr);
    StaticLogger::setLevels({});
    QCOMPARE(lines, 1);
    // Whoever logs asks for the level first.
    QCOMPARE(linkDbGuiLogger().level.load(), -2);
}

void tst_LinkDbGuiC::ignoredVariable()
{
    PTranslateManager::instance().setLanguage(QStringLiteral("en"));
    QCOMPARE(PString::translate("Variable ignorieren", "VelkLinkDbGui"),
             QStringLiteral("Ignore variable"));
    QCOMPARE(ignoreMarker(), QStringLiteral("<Variable ignorieren>"));
}

QTEST_MAIN(tst_LinkDbGuiC)
#include "tst_LinkDbGuiC.moc"

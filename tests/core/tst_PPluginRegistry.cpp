#include <core/plugin/PLicence.h>
#include <core/plugin/PLinkDbGuiI.h>
#include <core/plugin/PPluginRegistry.h>

#include <QTest>

/// Stands for a class of the host that only the interface names.
class PLinkDbC : public PRefObject
{
};
class PApplicationPool
{
};

class SamplePlugin : public QObject, public PLinkDbGuiI
{
    Q_OBJECT
    Q_INTERFACES(PLinkDbGuiI)

public:
    Q_INVOKABLE SamplePlugin() { ++count; }
    ~SamplePlugin() override { --count; }

    QObject *asQObject() override { return this; }
    void registerActions(PApplicationPool &) override {}
    bool initLinkDb(PRefPtr<PLinkDbC> linkDb) override { return bool(linkDb); }

    static int count;
};
int SamplePlugin::count = 0;

class WithoutConstructor : public QObject
{
    Q_OBJECT
};

class WithArgument : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit WithArgument(int) {}
};

namespace {

/// Registers while the program loads, as plug-ins do.
struct AtLoad
{
    AtLoad() { PPluginRegistry::instance().registerPlugin(SamplePlugin::staticMetaObject); }
} atLoad;

} // namespace

class tst_PPluginRegistry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void registeredWhileLoading()
    {
        QCOMPARE(PPluginRegistry::instance().plugins(),
                 QList<const QMetaObject *>{&SamplePlugin::staticMetaObject});
    }
    void keepsOrderAndNoDuplicates()
    {
        PPluginRegistry &registry = PPluginRegistry::instance();
        registry.registerPlugin(WithoutConstructor::staticMetaObject);
        registry.registerPlugin(SamplePlugin::staticMetaObject);
        QCOMPARE(registry.plugins(),
                 (QList<const QMetaObject *>{&SamplePlugin::staticMetaObject,
                                             &WithoutConstructor::staticMetaObject}));
        registry.unregisterPlugin(WithoutConstructor::staticMetaObject);
        registry.unregisterPlugin(WithoutConstructor::staticMetaObject);
        registeredWhileLoading();
    }
    void createsByConstructorZero()
    {
        std::unique_ptr<QObject> object = PPluginRegistry::create(SamplePlugin::staticMetaObject);
        QVERIFY(object);
        QCOMPARE(SamplePlugin::count, 1);
        auto *plugin = qobject_cast<PLinkDbGuiI *>(object.get());
        QVERIFY(plugin);
        QCOMPARE(plugin->asQObject(), object.get());
        QCOMPARE(object->qt_metacast("velkworkbench.PLinkDbGuiI/1.0"), static_cast<void *>(plugin));
        QVERIFY(!plugin->initLinkDb(nullptr));
        QVERIFY(plugin->initLinkDb(new PLinkDbC));
        object.reset();
        QCOMPARE(SamplePlugin::count, 0);
    }
    void createsNothingWithoutAFittingConstructor()
    {
        QVERIFY(!PPluginRegistry::create(WithoutConstructor::staticMetaObject));
        QVERIFY(!PPluginRegistry::create(WithArgument::staticMetaObject));
    }

    void licence()
    {
        QVERIFY(PLicence::isLicensed("LINKDB"));
        PLicence::setQuery([](const QString &feature) { return feature != u"LINKDB"; });
        QVERIFY(!PLicence::isLicensed("LINKDB"));
        QVERIFY(PLicence::isLicensed("OTHER"));
        PLicence::setQuery({});
        QVERIFY(PLicence::isLicensed("LINKDB"));
    }
};

QTEST_GUILESS_MAIN(tst_PPluginRegistry)
#include "tst_PPluginRegistry.moc"

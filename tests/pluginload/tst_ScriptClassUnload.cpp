#include <core/component/mzComCreateObject.h>
#include <core/component/mzComServerC.h>
#include <core/component/mzIDispatchC.h>
#include <core/component/proxyFactoryC.h>
#include <core/component/proxyMemberDescListS.h>
#include <core/text/ProxyPtrT.h>
#include <gui/script/prxguiWindowC.h>

#include <QTest>
#include <QWidget>

#include <dlfcn.h>

using Row = proxyMemberDescS;

/// Script classes of a library that is loaded at run time: used by their names, gone with it.
class tst_ScriptClassUnload : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void onlyLoaded();
    void createdOnceTheServerRuns();
    void windowOfTheHost();
    void objectOfTheLibrary();
    void windowIsNoProbe();

private:
    [[nodiscard]] bool isLoaded() const;
    /// An object of the library's class.
    [[nodiscard]] static mzIDispatchC made();
    /// Gives the code of the call.
    int call(const mzIDispatchC &object, const char *member, int kind,
             const mzComVariantArrayC &arguments = {});

    void *m_library = nullptr;
    qsizetype m_members = 0; ///< script classes of the platform
    mzComVariantC m_result;
    std::optional<PScriptException> m_exception;
};

bool tst_ScriptClassUnload::isLoaded() const
{
    void *const library = dlopen(VELK_SCRIPT_PROBE_FILE, RTLD_NOW | RTLD_NOLOAD);
    if (library)
        dlclose(library);
    return library != nullptr;
}

mzIDispatchC tst_ScriptClassUnload::made()
{
    mzComPtrC object;
    return mzComCreateObject("tests.probe", mzIUnknown::iid(), object) == mzComSuccess
               ? mzIDispatchC(object.iface())
               : mzIDispatchC();
}

int tst_ScriptClassUnload::call(const mzIDispatchC &object, const char *member, int kind,
                                const mzComVariantArrayC &arguments)
{
    return object.invoke(member, kind, arguments, m_result, m_exception);
}

void tst_ScriptClassUnload::init()
{
    QVERIFY(!isLoaded());
    m_members = mzComServerC::instance().members().size();
    m_library = dlopen(VELK_SCRIPT_PROBE_FILE, RTLD_NOW | RTLD_LOCAL);
    QVERIFY2(m_library, dlerror());
    QVERIFY(isLoaded());
}

void tst_ScriptClassUnload::cleanup()
{
    mzComServerC::instance().stop();
    m_result = {};
    QCOMPARE(PMemManager::liveObjects(), 0);
    QCOMPARE(dlclose(m_library), 0);
    QVERIFY(!isLoaded());
    QVERIFY(!proxyFactoryC::instance().findClass(QStringLiteral("prxProbeC")));
    QCOMPARE(mzComServerC::instance().members().size(), m_members);
}

void tst_ScriptClassUnload::onlyLoaded()
{
    QCOMPARE(mzComServerC::instance().members().size(), m_members + 1);
}

void tst_ScriptClassUnload::createdOnceTheServerRuns()
{
    QVERIFY(!made().isValid());
    mzComServerC::instance().start();
    QVERIFY(made().isValid());
    QVERIFY(proxyFactoryC::instance().findClass(QStringLiteral("prxProbeC")));
}

void tst_ScriptClassUnload::windowOfTheHost()
{
    mzComServerC::instance().start();
    QWidget widget;
    widget.setWindowTitle(QStringLiteral("Wirtsfenster"));
    const ProxyPtrT<prxguiWindowC> window(new prxguiWindowC(&widget));
    const mzIDispatchC probe = made();
    QCOMPARE(call(probe, "window", Row::PropertyWrite, {window.get()}), 0);
    QCOMPARE(window->refCount(), 2);
    QCOMPARE(call(probe, "title", Row::Method), 0);
    mzComStringC title;
    QCOMPARE(m_result.getExt(title), 0);
    QCOMPARE(title.text(), QStringLiteral("Wirtsfenster"));
    QCOMPARE(call(probe, "window", Row::PropertyRead), 0);
    QCOMPARE(m_result.getIUnknown(), window->getIUnknown());
}

void tst_ScriptClassUnload::objectOfTheLibrary()
{
    mzComServerC::instance().start();
    const mzIDispatchC probe = made();
    const mzIDispatchC peer = made();
    QCOMPARE(call(probe, "peer", Row::Method, {peer.iface()}), 0);
    QCOMPARE(m_result.getInt(), 1);
    QCOMPARE(call(probe, "peer", Row::PropertyRead), 0);
    QCOMPARE(m_result.getIUnknown(), static_cast<mzIUnknown *>(peer.iface()));
}

/// The error is thrown in one library and caught in another.
void tst_ScriptClassUnload::windowIsNoProbe()
{
    mzComServerC::instance().start();
    const ProxyPtrT<prxguiWindowC> window(new prxguiWindowC);
    const mzIDispatchC probe = made();
    QCOMPARE(call(probe, "peer", Row::PropertyWrite, {window.get()}), int(mzComTypeCast));
    QCOMPARE(m_exception->message,
             QStringLiteral("prxProbeC.peer: argument 1 is of the wrong type"));
    QCOMPARE(call(probe, "window", Row::PropertyWrite, {probe.iface()}), int(mzComTypeCast));
    QCOMPARE(window->refCount(), 1);
}

QTEST_MAIN(tst_ScriptClassUnload)
#include "tst_ScriptClassUnload.moc"

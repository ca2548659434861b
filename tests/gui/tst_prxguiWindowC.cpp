#include <core/component/mzComVariantC.h>
#include <core/component/mzIDispatchC.h>
#include <core/component/proxyAutoTypeCastC.h>
#include <gui/script/prxguiWindowC.h>

#include <QTest>

#include <memory>

class tst_prxguiWindowC : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QCOMPARE(PMemManager::liveObjects(), 0); }
    void window();
    void noWindow();
    void windowGoesFirst();
    void proxyGoesFirst();
    void description();
    void asArgument();
};

void tst_prxguiWindowC::window()
{
    QWidget widget;
    widget.setWindowTitle(QStringLiteral("Schrauben %1"));
    const ProxyPtrT<prxguiWindowC> proxy(new prxguiWindowC(&widget));
    QCOMPARE(proxy->getWidget(), &widget);
    QCOMPARE(proxy->refCount(), 1);
    const mzIDispatchC object(proxy->getIUnknown());
    mzComVariantC result;
    std::optional<PScriptException> exception;
    const int kind = proxyMemberDescS::PropertyRead;
    QCOMPARE(object.invoke("title", kind, {}, result, exception), 0);
    QVERIFY(result == "Schrauben %1");
    QCOMPARE(object.invoke("isVisible", kind, {}, result, exception), 0);
    QVERIFY(result == mzComVariantC(false));
    widget.show();
    QVERIFY(proxy->isVisible());
}

void tst_prxguiWindowC::noWindow()
{
    const ProxyPtrT<prxguiWindowC> proxy(new prxguiWindowC);
    QCOMPARE(proxy->getWidget(), nullptr);
}

void tst_prxguiWindowC::windowGoesFirst()
{
    auto widget = std::make_unique<QWidget>();
    const ProxyPtrT<prxguiWindowC> proxy(new prxguiWindowC(widget.get()));
    widget.reset();
    QCOMPARE(proxy->getWidget(), nullptr);
    QVERIFY(proxy->title().isEmpty());
    QVERIFY(!proxy->isVisible());
}

void tst_prxguiWindowC::proxyGoesFirst()
{
    QWidget widget;
    ProxyPtrT<prxguiWindowC> proxy(new prxguiWindowC(&widget));
    proxy = nullptr;
    QCOMPARE(PMemManager::liveObjects(), 0);
    widget.setObjectName(QStringLiteral("still there"));
    QCOMPARE(widget.objectName(), QStringLiteral("still there"));
}

void tst_prxguiWindowC::description()
{
    const ProxyPtrT<prxguiWindowC> proxy(new prxguiWindowC);
    const proxyMemberDescListS *const type = proxy->getProxyTypeInfo();
    QCOMPARE(type, prxguiWindowC::getStaticProxyTypeInfo());
    QCOMPARE(type->className, "prxguiWindowC");
    QCOMPARE(type->base, proxyObjectC::getStaticProxyTypeInfo());
    QCOMPARE(type->componentId, nullptr);
    QVERIFY(!type->creator);
}

void tst_prxguiWindowC::asArgument()
{
    QWidget widget;
    const ProxyPtrT<prxguiWindowC> proxy(new prxguiWindowC(&widget));
    const proxyAutoTypeCastC argument{mzComVariantC(proxy.get())};
    QCOMPARE(argument.get<ProxyPtrT<prxguiWindowC>>(true)->getWidget(), &widget);
    QCOMPARE(proxy->refCount(), 2);
}

QTEST_MAIN(tst_prxguiWindowC)
#include "tst_prxguiWindowC.moc"

#include "DocumentFixture.h"

#include <linkdbgui/prxDocumentListDialogC.h>
#include <linkdbgui/prxLinkDbGuiC.h>

#include <core/component/mzComCreateObject.h>
#include <core/component/mzComPropertyC.h>
#include <core/component/mzComServerC.h>
#include <core/component/mzComVariableC.h>
#include <core/component/proxyFactoryC.h>

#include <QDialogButtonBox>
#include <QPushButton>

using Row = proxyMemberDescS;

namespace {

const QString lineOne = QStringLiteral("{TMVMAT=St}{L=10}{M=1}");

/// "name kind count type" of the rows.
QStringList rowsOf(const proxyMemberDescListS *description)
{
    QStringList rows;
    for (const Row &row : description->members)
        rows.append(QStringLiteral("%1 %2 %3").arg(row.name).arg(row.kind).arg(row.argumentCount));
    return rows;
}

/// Tells its end.
class MortalCallback : public CallbackObject
{
public:
    explicit MortalCallback(std::function<void()> atEnd)
        : CallbackObject([](prxDictionaryObjC &, const mzComVariantC &) { return mzComVariantC(); })
        , m_atEnd(std::move(atEnd))
    {
    }
    ~MortalCallback() override { m_atEnd(); }

private:
    const std::function<void()> m_atEnd;
};

mzComVariantC variantOf(const proxyObjectC *object)
{
    return mzComVariantC(object);
}

} // namespace

/// The plug-in as scripts have it, called by names as they do.
class tst_DocumentScripts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addDatabases(); }
    void init();
    void descriptions();
    void signatures();
    void createdByItsId();
    void dialogHasNoCreator();
    void linkDbIfaceIsReadAndWritten();
    void dialogNeedsADatabase();
    void dialogOfTheDatabase();
    void wrongTypes_data();
    void wrongTypes();
    void propertiesOfTheDialog();
    void beforeItIsShown();
    void shows();
    void secondLine();
    void tableIsKept();
    void callbacks_data();
    void callbacks();
    void callbackBeforeTheFirstShow();
    void parentWindow();
    void parentWindowTakesTheDialogAlong();
    void wrappedArguments();
    void goesInOrder();
    void nothingIsLeft();

private:
    /// Gives the code of a call; result and exception are kept.
    int call(proxyObjectC *object, const char *member, int kind,
             const mzComVariantArrayC &arguments = {});
    /// The same for a method.
    int run(proxyObjectC *object, const char *method, const mzComVariantArrayC &arguments = {});
    /// The dialog as a script gets it.
    ProxyPtrT<prxDocumentListDialogC> dialogOf(const DocumentFixture &fixture);
    /// Shows a line and closes the dialog by that button, after \a act.
    void show(const DocumentFixture &fixture, prxDocumentListDialogC *proxy, int line,
              const std::function<void(DocumentListDialogC &)> &act,
              QDialogButtonBox::StandardButton button = QDialogButtonBox::Ok);

    mzComVariantC m_result;
    std::optional<PScriptException> m_exception;
};

void tst_DocumentScripts::init()
{
    mzComServerC::instance().start();
}

int tst_DocumentScripts::call(proxyObjectC *object, const char *member, int kind,
                              const mzComVariantArrayC &arguments)
{
    return object->invokeByName(member, kind, arguments, m_result, m_exception);
}

int tst_DocumentScripts::run(proxyObjectC *object, const char *method,
                             const mzComVariantArrayC &arguments)
{
    return call(object, method, Row::Method, arguments);
}

ProxyPtrT<prxDocumentListDialogC> tst_DocumentScripts::dialogOf(const DocumentFixture &fixture)
{
    const ProxyPtrT<prxLinkDbGuiC> gui(new prxLinkDbGuiC);
    gui->setLinkDbIface(fixture.iface);
    ProxyPtrT<prxDocumentListDialogC> dialog = gui->createPdmDocViewDialog();
    dialog->setVelkTab(fixture.table);
    return dialog;
}

void tst_DocumentScripts::show(const DocumentFixture &fixture, prxDocumentListDialogC *proxy,
                               int line, const std::function<void(DocumentListDialogC &)> &act,
                               QDialogButtonBox::StandardButton button)
{
    inNextDialog([=](QDialog &dialog) {
        auto *const documents = qobject_cast<DocumentListDialogC *>(&dialog);
        QVERIFY(documents);
        if (act)
            act(*documents);
        QTest::mouseClick(widgetOf<QDialogButtonBox>(dialog, "buttonBox")->button(button),
                          Qt::LeftButton);
    });
    QCOMPARE(run(proxy, "ShowDialog", {QString(fixture.path), line, 0}), 0);
}

void tst_DocumentScripts::descriptions()
{
    const proxyMemberDescListS *const gui = prxLinkDbGuiC::getStaticProxyTypeInfo();
    QCOMPARE(gui->className, "prxLinkDbGuiC");
    QCOMPARE(gui->componentId, "tmvtools.linkdbgui");
    QCOMPARE(gui->base, proxyObjectC::getStaticProxyTypeInfo());
    QCOMPARE(rowsOf(gui), (QStringList{"linkDbIface 2 0", "linkDbIface 4 1", "linkDbIface 1 1",
                                       "createPdmDocViewDialog 1 0"}));
    const proxyMemberDescListS *const dialog = prxDocumentListDialogC::getStaticProxyTypeInfo();
    QCOMPARE(dialog->className, "prxDocumentListDialogC");
    QVERIFY(!dialog->componentId);
    QVERIFY(!dialog->creator);
    QCOMPARE(dialog->base, proxyObjectC::getStaticProxyTypeInfo());
    QCOMPARE(rowsOf(dialog),
             (QStringList{"VelkTab 2 0", "VelkTab 4 1", "VelkTab 1 1", "ParentWindow 2 0",
                          "ParentWindow 4 1", "ParentWindow 1 1", "Modified 2 0",
                          "VarsetModified 2 0", "ShowDialog 1 3", "SetUpdateCallback 1 2",
                          "SetCreateCallback 1 2", "UpdatePLMInfo 1 0", "getXVarset 1 0"}));
    for (const proxyMemberDescListS *each : {gui, dialog}) {
        QVERIFY(QString(each->file).endsWith(QString(each->className) + ".cpp"));
        QVERIFY(each->line > 0);
        for (const Row &row : each->members)
            QVERIFY(QString(row.file).endsWith(QString(each->className) + ".cpp") && row.line > 0);
        QCOMPARE(proxyFactoryC::instance().findClass(each->className), each);
    }
    // In the order of registration.
    const auto classes = proxyFactoryC::instance().classes();
    QVERIFY(classes.indexOf(gui) < classes.indexOf(dialog));
}

void tst_DocumentScripts::signatures()
{
    using Dialog = prxDocumentListDialogC;
    const auto of = [](const char *name, int kind) -> const std::type_info & {
        for (const Row &row : Dialog::getStaticProxyTypeInfo()->members) {
            if (qstrcmp(row.name, name) == 0 && row.kind == kind)
                return row.signature();
        }
        return typeid(void);
    };
    QVERIFY(of("ShowDialog", Row::Method) == typeid(&Dialog::ShowDialog));
    QVERIFY(of("VelkTab", Row::PropertyRead) == typeid(&Dialog::getVelkTab));
    QVERIFY(of("VelkTab", Row::PropertyWrite) == typeid(&Dialog::setVelkTab));
    QVERIFY(of("VelkTab", Row::Method) == typeid(&Dialog::setVelkTab));
}

void tst_DocumentScripts::createdByItsId()
{
    mzComPtrC object;
    QCOMPARE(mzComCreateObject("tmvtools.linkdbgui", mzIUnknown::iid(), object), 0);
    mzComPtrC other;
    QCOMPARE(mzComCreateObject("tmvtools.linkdbgui", mzIUnknown::iid(), other), 0);
    QVERIFY(object.iface() != other.iface());
    auto *const gui = dynamic_cast<prxLinkDbGuiC *>(object.iface());
    QVERIFY(gui);
    QCOMPARE(gui->getProxyTypeInfo(), prxLinkDbGuiC::getStaticProxyTypeInfo());
    QCOMPARE(call(gui, "linkDbIface", Row::PropertyRead), 0);
    QVERIFY(m_result.isEmpty());
}

void tst_DocumentScripts::dialogHasNoCreator()
{
    mzComPtrC object;
    for (const char *id : {"", "prxDocumentListDialogC", "tmvtools.documentlistdialog"})
        QVERIFY(mzComCreateObject(id, mzIUnknown::iid(), object) != 0);
}

void tst_DocumentScripts::linkDbIfaceIsReadAndWritten()
{
    const DocumentFixture fixture;
    const ProxyPtrT<prxLinkDbGuiC> gui(new prxLinkDbGuiC);
    QCOMPARE(call(gui.get(), "linkDbIface", Row::PropertyWrite, {variantOf(fixture.iface.get())}),
             0);
    QCOMPARE(m_result.getInt(), 1);
    QCOMPARE(call(gui.get(), "linkDbIface", Row::PropertyRead), 0);
    QCOMPARE(m_result, variantOf(fixture.iface.get()));
    const ProxyPtrT<prxLinkDbIfaceC> other(new prxLinkDbIfaceC);
    QCOMPARE(run(gui.get(), "linkDbIface", {variantOf(other.get())}), 0);
    QCOMPARE(m_result.getInt(), 1);
    QCOMPARE(gui->getLinkDbIface(), other);
}

void tst_DocumentScripts::dialogNeedsADatabase()
{
    const ProxyPtrT<prxLinkDbGuiC> gui(new prxLinkDbGuiC);
    m_result = 5;
    QCOMPARE(run(gui.get(), "createPdmDocViewDialog"), 0);
    QVERIFY(m_result.isEmpty());
}

void tst_DocumentScripts::dialogOfTheDatabase()
{
    const DocumentFixture fixture;
    const ProxyPtrT<prxLinkDbGuiC> gui(new prxLinkDbGuiC);
    gui->setLinkDbIface(fixture.iface);
    QCOMPARE(run(gui.get(), "createPdmDocViewDialog"), 0);
    auto *const dialog = dynamic_cast<prxDocumentListDialogC *>(m_result.getIUnknown());
    QVERIFY(dialog);
    QCOMPARE(dialog->refCount(), 1);
    const mzComVariantC first = m_result;
    QCOMPARE(run(gui.get(), "createPdmDocViewDialog"), 0);
    QVERIFY(!(m_result == first));
}

void tst_DocumentScripts::wrongTypes_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QList<int>>("arguments"); // 0 a text, 1 a number, 2 an object, 3 nothing
    QTest::newRow("text for a table") << "VelkTab" << 4 << QList<int>{0};
    QTest::newRow("number for a table") << "VelkTab" << 1 << QList<int>{1};
    QTest::newRow("another object for a table") << "VelkTab" << 4 << QList<int>{2};
    QTest::newRow("nothing for a table") << "VelkTab" << 4 << QList<int>{3};
    QTest::newRow("text for a window") << "ParentWindow" << 4 << QList<int>{0};
    QTest::newRow("another object for a window") << "ParentWindow" << 1 << QList<int>{2};
    QTest::newRow("text for an object") << "SetCreateCallback" << 1 << QList<int>{0, 0};
    QTest::newRow("number for a method") << "SetUpdateCallback" << 1 << QList<int>{2, 1};
    QTest::newRow("text for a line") << "ShowDialog" << 1 << QList<int>{0, 0, 1};
    QTest::newRow("number for a path") << "ShowDialog" << 1 << QList<int>{1, 1, 1};
}

void tst_DocumentScripts::wrongTypes()
{
    QFETCH(QString, member);
    QFETCH(int, kind);
    QFETCH(QList<int>, arguments);
    const DocumentFixture fixture;
    const ProxyPtrT<prxDocumentListDialogC> dialog = dialogOf(fixture);
    const QList<mzComVariantC> values = {"text", 7, variantOf(fixture.iface.get()), {}};
    mzComVariantArrayC given;
    for (const int argument : arguments)
        given.append(values[argument]);
    QCOMPARE(call(dialog.get(), member.toUtf8(), kind, given), int(mzComTypeCast));
    QVERIFY(m_exception && m_exception->message.contains("wrong type"));
    QVERIFY(m_result.isEmpty());
    QCOMPARE(dialog->getVelkTab(), fixture.table);
}

void tst_DocumentScripts::propertiesOfTheDialog()
{
    const DocumentFixture fixture;
    const ProxyPtrT<prxDocumentListDialogC> dialog = dialogOf(fixture);
    QWidget window;
    const ProxyPtrT<prxguiWindowC> parent(new prxguiWindowC(&window));
    const QList<std::pair<const char *, const proxyObjectC *>> properties = {
        {"VelkTab", fixture.table.get()}, {"ParentWindow", parent.get()}};
    for (const auto &[name, object] : properties) {
        for (const int kind : {Row::PropertyWrite, Row::Method}) {
            QCOMPARE(call(dialog.get(), name, kind, {variantOf(object)}), 0);
            QCOMPARE(m_result, mzComVariantC(1));
            QCOMPARE(call(dialog.get(), name, Row::PropertyRead), 0);
            QCOMPARE(m_result, variantOf(object));
        }
    }
    QCOMPARE(call(dialog.get(), "Modified", Row::PropertyWrite, {true}), int(mzComUnknownMember));
    QCOMPARE(call(dialog.get(), "velkTab", Row::PropertyRead), int(mzComUnknownMember));
    QCOMPARE(run(dialog.get(), "ShowDialog", {"a"}), int(mzComWrongArgumentCount));
}

void tst_DocumentScripts::beforeItIsShown()
{
    const DocumentFixture fixture;
    const ProxyPtrT<prxDocumentListDialogC> dialog = dialogOf(fixture);
    for (const char *name : {"Modified", "VarsetModified"}) {
        QCOMPARE(call(dialog.get(), name, Row::PropertyRead), 0);
        QCOMPARE(m_result, mzComVariantC(false));
    }
    QCOMPARE(run(dialog.get(), "getXVarset"), 0);
    QCOMPARE(m_result, mzComVariantC(QString()));
    QCOMPARE(run(dialog.get(), "UpdatePLMInfo"), 0);
    QCOMPARE(m_result, mzComVariantC(1));
    QCOMPARE(fixture.log.takeStatements(), QStringList());
}

void tst_DocumentScripts::shows()
{
    const DocumentFixture fixture;
    fixture.insert("g1", {{"XVARSET", "{L=20}"}});
    const ProxyPtrT<prxDocumentListDialogC> dialog = dialogOf(fixture);
    const Qt::WindowFlags flags = Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint;
    show(fixture, dialog.get(), 1, [=](DocumentListDialogC &shown) {
        QCOMPARE(shown.parentWidget(), nullptr);
        QCOMPARE(shown.windowFlags() & (flags | Qt::WindowCloseButtonHint), flags);
        QCOMPARE(idsOf(shown), QStringList{"g1"});
        clickDocument(shown, 0);
    });
    QCOMPARE(m_result, mzComVariantC(1));
    QCOMPARE(run(dialog.get(), "getXVarset"), 0);
    QCOMPARE(m_result, mzComVariantC("{L=20}"));
    QCOMPARE(call(dialog.get(), "VarsetModified", Row::PropertyRead), 0);
    QCOMPARE(m_result, mzComVariantC(true));
    QCOMPARE(call(dialog.get(), "Modified", Row::PropertyRead), 0);
    QCOMPARE(m_result, mzComVariantC(false));
    show(fixture, dialog.get(), 1, {}, QDialogButtonBox::Cancel);
    QCOMPARE(m_result, mzComVariantC(0));
}

void tst_DocumentScripts::secondLine()
{
    const DocumentFixture fixture;
    fixture.insert("g1");
    fixture.insert("g2", {{"LINE_ID", 2}});
    const ProxyPtrT<prxDocumentListDialogC> dialog = dialogOf(fixture);
    DocumentListDialogC *first = nullptr;
    show(fixture, dialog.get(), 1, [&](DocumentListDialogC &shown) {
        first = &shown;
        clickDocument(shown, 0);
        clickButton(shown, "btnDelete");
    });
    show(fixture, dialog.get(), 2, [&](DocumentListDialogC &shown) {
        QCOMPARE(&shown, first);
        QCOMPARE(idsOf(shown), QStringList{"g2"});
    });
    QCOMPARE(call(dialog.get(), "Modified", Row::PropertyRead), 0);
    QCOMPARE(m_result, mzComVariantC(true));
}

void tst_DocumentScripts::tableIsKept()
{
    DocumentFixture fixture;
    fixture.insert("g1", {{"XVARSET", lineOne}});
    const ProxyPtrT<prxDocumentListDialogC> dialog = dialogOf(fixture);
    show(fixture, dialog.get(), 1,
         [](DocumentListDialogC &shown) { QCOMPARE(selectedIds(shown), QStringList{"g1"}); });
    const ProxyPtrT<VKTab::proxyTableC> other(new VKTab::proxyTableC(VKTab::Content()));
    QCOMPARE(call(dialog.get(), "VelkTab", Row::PropertyWrite, {variantOf(other.get())}), 0);
    QCOMPARE(dialog->getVelkTab(), other);
    show(fixture, dialog.get(), 1,
         [](DocumentListDialogC &shown) { QCOMPARE(selectedIds(shown), QStringList{"g1"}); });
}

void tst_DocumentScripts::callbacks_data()
{
    QTest::addColumn<bool>("shownBefore");
    QTest::newRow("before the first show") << false;
    QTest::newRow("after it") << true;
}

void tst_DocumentScripts::callbacks()
{
    QFETCH(bool, shownBefore);
    const DocumentFixture fixture;
    fixture.insert("g1", {{"XVARSET", lineOne}});
    const ProxyPtrT<prxDocumentListDialogC> dialog = dialogOf(fixture);
    if (shownBefore) {
        show(fixture, dialog.get(), 1, [](DocumentListDialogC &shown) {
            QVERIFY(!widgetOf<QPushButton>(shown, "btnCreate")->isEnabled());
        });
    }
    QStringList calls;
    const ProxyPtrT<CallbackObject> create(
        new CallbackObject([&](prxDictionaryObjC &, const mzComVariantC &) {
            calls.append("create");
            return mzComVariantC(1);
        }));
    const ProxyPtrT<CallbackObject> update(
        new CallbackObject([&](prxDictionaryObjC &, const mzComVariantC &) {
            calls.append("update");
            return mzComVariantC(1);
        }));
    QCOMPARE(run(dialog.get(), "SetCreateCallback", {variantOf(create.get()), "run"}), 0);
    QCOMPARE(m_result, mzComVariantC(1));
    QCOMPARE(run(dialog.get(), "SetUpdateCallback", {variantOf(update.get()), "run"}), 0);
    QCOMPARE(m_result, mzComVariantC(1));
    show(fixture, dialog.get(), 1, [](DocumentListDialogC &shown) {
        inNextForm({});
        clickButton(shown, "btnCreate");
        inNextForm({});
        clickButton(shown, "btnEdit");
    });
    QCOMPARE(calls, (QStringList{"create", "update"}));
}

void tst_DocumentScripts::callbackBeforeTheFirstShow()
{
    const DocumentFixture fixture;
    const ProxyPtrT<prxDocumentListDialogC> dialog = dialogOf(fixture);
    dialog->SetCreateCallback(
        scriptOf([](prxDictionaryObjC &, const mzComVariantC &) { return mzComVariantC(); }),
        "run");
    show(fixture, dialog.get(), 1, [](DocumentListDialogC &shown) {
        QVERIFY(widgetOf<QPushButton>(shown, "btnCreate")->isEnabled());
    });
}

void tst_DocumentScripts::parentWindow()
{
    const DocumentFixture fixture;
    QWidget first;
    QWidget second;
    const ProxyPtrT<prxDocumentListDialogC> dialog = dialogOf(fixture);
    dialog->setParentWindow(new prxguiWindowC(&first));
    show(fixture, dialog.get(), 1,
         [&](DocumentListDialogC &shown) { QCOMPARE(shown.parentWidget(), &first); });
    dialog->setParentWindow(new prxguiWindowC(&second));
    show(fixture, dialog.get(), 1, [&](DocumentListDialogC &shown) {
        QCOMPARE(shown.parentWidget(), &second);
        QVERIFY(shown.isWindow());
    });
    dialog->setParentWindow({});
    show(fixture, dialog.get(), 1,
         [&](DocumentListDialogC &shown) { QCOMPARE(shown.parentWidget(), &second); });
}

void tst_DocumentScripts::parentWindowTakesTheDialogAlong()
{
    const DocumentFixture fixture;
    auto window = std::make_unique<QWidget>();
    const ProxyPtrT<prxDocumentListDialogC> dialog = dialogOf(fixture);
    dialog->setParentWindow(new prxguiWindowC(window.get()));
    show(fixture, dialog.get(), 1, {});
    window.reset();
    QVERIFY(!dialog->isModified());
    show(fixture, dialog.get(), 1,
         [](DocumentListDialogC &shown) { QCOMPARE(shown.parentWidget(), nullptr); });
}

void tst_DocumentScripts::wrappedArguments()
{
    const DocumentFixture fixture;
    const ProxyPtrT<prxDocumentListDialogC> dialog = dialogOf(fixture);
    const ProxyPtrT<mzComVariableC> variable(new mzComVariableC(variantOf(fixture.table.get())));
    QCOMPARE(run(dialog.get(), "VelkTab", {mzComVariantC::variable(*variable)}), 0);
    const ProxyPtrT<mzComPropertyC> property(
        new mzComPropertyC(mzIDispatchC(dialog->getIUnknown()), "VelkTab"));
    QCOMPARE(run(dialog.get(), "VelkTab", {mzComVariantC::property(*property)}), 0);
    QCOMPARE(dialog->getVelkTab(), fixture.table);
    // A callback's object may be a variable, and no property.
    QCOMPARE(run(dialog.get(), "SetCreateCallback", {mzComVariantC::variable(*variable), "run"}),
             0);
}

void tst_DocumentScripts::goesInOrder()
{
    const DocumentFixture fixture;
    const ProxyPtrT<prxguiWindowC> window(new prxguiWindowC);
    QStringList gone;
    // With how many hold the window, the table and the database.
    const auto note = [&](const char *name) {
        gone.append(QStringLiteral("%1 %2%3%4")
                        .arg(name)
                        .arg(window->refCount())
                        .arg(fixture.table->refCount())
                        .arg(fixture.iface->refCount()));
    };
    ProxyPtrT<prxDocumentListDialogC> dialog = dialogOf(fixture);
    dialog->SetUpdateCallback(dispatchOf(new MortalCallback([&] { note("update"); })), "run");
    dialog->SetCreateCallback(dispatchOf(new MortalCallback([&] { note("create"); })), "run");
    dialog->setParentWindow(window);
    show(fixture, dialog.get(), 1, [&](DocumentListDialogC &shown) {
        connect(&shown, &QObject::destroyed, this, [&] { note("dialog"); });
    });
    QCOMPARE(gone, QStringList());
    dialog = nullptr;
    // The dialog first, then the window, the callbacks, and what they may need.
    QCOMPARE(gone, (QStringList{"dialog 222", "create 122", "update 122"}));
    QCOMPARE(fixture.table->refCount(), 1);
    QCOMPARE(fixture.iface->refCount(), 1);
}

void tst_DocumentScripts::nothingIsLeft()
{
    const int before = PMemManager::liveObjects();
    {
        const DocumentFixture fixture;
        fixture.insert("g1");
        const ProxyPtrT<prxDocumentListDialogC> dialog = dialogOf(fixture);
        dialog->setParentWindow(new prxguiWindowC);
        dialog->SetCreateCallback(
            scriptOf([](prxDictionaryObjC &, const mzComVariantC &) { return mzComVariantC(); }),
            "run");
        show(fixture, dialog.get(), 1, [](DocumentListDialogC &shown) {
            inNextForm({});
            clickButton(shown, "btnCreate");
        });
        QVERIFY(PMemManager::liveObjects() > before);
        m_result = {};
    }
    QCOMPARE(PMemManager::liveObjects(), before);
}

QTEST_MAIN(tst_DocumentScripts)
#include "tst_DocumentScripts.moc"

#include <core/component/mzIDispatchC.h>
#include <core/component/prxDictionaryObjC.h>
#include <core/text/ProxyPtrT.h>

#include <QTest>

using Row = proxyMemberDescS;

class tst_prxDictionaryObjC : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void keepsTheOrder();
    void replacesInPlace();
    void keys();
    void removes();
    void copiesStay();
    void holdsObjects();
    void changedByAScript();
    void membersOfAScript_data();
    void membersOfAScript();

private:
    ProxyPtrT<prxDictionaryObjC> m_dictionary;
};

void tst_prxDictionaryObjC::init()
{
    m_dictionary = new prxDictionaryObjC;
}

void tst_prxDictionaryObjC::cleanup()
{
    m_dictionary = nullptr;
    QCOMPARE(PMemManager::liveObjects(), 0);
}

void tst_prxDictionaryObjC::keepsTheOrder()
{
    QCOMPARE(m_dictionary->getKeyArray().size(), 0);
    m_dictionary->addObj("NAME", "Schraube");
    m_dictionary->addObj("CADSYSTEM", "");
    m_dictionary->addObj("A", "b");
    const QStringList names{QStringLiteral("NAME"), QStringLiteral("CADSYSTEM"),
                            QStringLiteral("A")};
    const QStringList values{QStringLiteral("Schraube"), QString(), QStringLiteral("b")};
    QCOMPARE(m_dictionary->getKeyArray().toQStringList(), names);
    QCOMPARE(m_dictionary->getItemArray().toQStringList(), values);
    QCOMPARE(m_dictionary->count(), 3);
    QVERIFY(m_dictionary->keyAt(2) == "A");
    QVERIFY(m_dictionary->keyAt(3).isEmpty());
    QVERIFY(m_dictionary->keyAt(-1).isEmpty());
}

void tst_prxDictionaryObjC::replacesInPlace()
{
    m_dictionary->addObj("A", 1);
    m_dictionary->addObj("B", 2);
    m_dictionary->addObj("A", 3);
    QCOMPARE(m_dictionary->count(), 2);
    QVERIFY(m_dictionary->keyAt(0) == "A");
    QCOMPARE(m_dictionary->getItemArray()[0].getInt(), 3);
    QCOMPARE(m_dictionary->getItemArray()[1].getInt(), 2);
}

void tst_prxDictionaryObjC::keys()
{
    m_dictionary->addObj("1", "text");
    m_dictionary->addObj(1, "number");
    QVERIFY(m_dictionary->item("1") == "text");
    QVERIFY(m_dictionary->item(1) == "number");
    QVERIFY(m_dictionary->item(1.0) == "number");
    QVERIFY(!m_dictionary->hasKey(true));
    QVERIFY(!m_dictionary->hasKey({}));
    m_dictionary->addObj("a", 1);
    QVERIFY(!m_dictionary->hasKey("A"));
    QVERIFY(m_dictionary->item("A").isEmpty());
    // A key without a value is there all the same.
    m_dictionary->addObj("B", {});
    QVERIFY(m_dictionary->hasKey("B"));
    QVERIFY(m_dictionary->item("B").isEmpty());
}

void tst_prxDictionaryObjC::removes()
{
    m_dictionary->addObj("A", 1);
    m_dictionary->addObj("B", 2);
    m_dictionary->remove("C");
    QCOMPARE(m_dictionary->count(), 2);
    m_dictionary->remove("A");
    QCOMPARE(m_dictionary->count(), 1);
    QVERIFY(m_dictionary->keyAt(0) == "B");
    QCOMPARE(m_dictionary->getItemArray()[0].getInt(), 2);
    m_dictionary->clear();
    QCOMPARE(m_dictionary->count(), 0);
    QCOMPARE(m_dictionary->getItemArray().size(), 0);
}

void tst_prxDictionaryObjC::copiesStay()
{
    m_dictionary->addObj("A", 1);
    const mzComVariantArrayC values = m_dictionary->getItemArray();
    m_dictionary->addObj("A", 2);
    QCOMPARE(values[0].getInt(), 1);
}

void tst_prxDictionaryObjC::holdsObjects()
{
    const ProxyPtrT<prxDictionaryObjC> inner(new prxDictionaryObjC);
    m_dictionary->addObj("A", inner.get());
    QCOMPARE(inner->refCount(), 2);
    QVERIFY(m_dictionary->hasKey("A"));
    QCOMPARE(m_dictionary->item("A").getIUnknown(), inner->getIUnknown());
    m_dictionary->clear();
    QCOMPARE(inner->refCount(), 1);
}

void tst_prxDictionaryObjC::changedByAScript()
{
    m_dictionary->addObj("NAME", "alt");
    const mzIDispatchC object(m_dictionary->getIUnknown());
    mzComVariantC result;
    std::optional<PScriptException> exception;
    QCOMPARE(object.invokeAndCheck("addObj", {"NAME", "neu"}, result, exception), 0);
    QCOMPARE(result.getInt(), 1);
    QCOMPARE(object.invokeAndCheck("addObj", {"LEER", mzComVariantC()}, result, exception), 0);
    const QStringList values{QStringLiteral("neu"), QString()};
    QCOMPARE(m_dictionary->getItemArray().toQStringList(), values);
    QCOMPARE(object.invokeAndCheck("clear", {}, result, exception), 0);
    QCOMPARE(m_dictionary->count(), 0);
}

void tst_prxDictionaryObjC::membersOfAScript_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QList<int>>("arguments");
    QTest::addColumn<int>("expected");
    QTest::newRow("count") << "count" << int(Row::PropertyRead) << QList<int>() << 2;
    QTest::newRow("keyAt") << "keyAt" << int(Row::Method) << QList<int>{1} << 20;
    QTest::newRow("item") << "item" << int(Row::Method) << QList<int>{20} << 200;
    QTest::newRow("item of none") << "item" << int(Row::Method) << QList<int>{30} << 0;
    QTest::newRow("remove") << "remove" << int(Row::Method) << QList<int>{10} << 1;
}

void tst_prxDictionaryObjC::membersOfAScript()
{
    QFETCH(QString, member);
    QFETCH(int, kind);
    QFETCH(QList<int>, arguments);
    m_dictionary->addObj(10, 100);
    m_dictionary->addObj(20, 200);
    mzComVariantArrayC values;
    for (const int argument : arguments)
        values.append(argument);
    mzComVariantC result;
    std::optional<PScriptException> exception;
    const mzIDispatchC object(m_dictionary->getIUnknown());
    QCOMPARE(object.invoke(member, kind, values, result, exception), 0);
    QTEST(result.getInt(), "expected");
    QCOMPARE(object.invokeAndCheck("hasKey", {10}, result, exception), 0);
    QVERIFY(result == mzComVariantC(member != QStringLiteral("remove")));
}

QTEST_GUILESS_MAIN(tst_prxDictionaryObjC)
#include "tst_prxDictionaryObjC.moc"

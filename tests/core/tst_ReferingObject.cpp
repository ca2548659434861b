#include <core/text/ReferingObject.h>

#include <QTest>

#include <memory>

class tst_ReferingObject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void referenceLivesAsLongAsTheObject();
    void eachObjectHasItsOwn();
};

void tst_ReferingObject::referenceLivesAsLongAsTheObject()
{
    auto object = std::make_unique<ReferingObject>();
    const std::weak_ptr<const void> reference = object->reference();
    const std::weak_ptr<const void> copy = reference;
    QVERIFY(!reference.expired());
    object.reset();
    QVERIFY(reference.expired());
    QVERIFY(copy.expired());
}

void tst_ReferingObject::eachObjectHasItsOwn()
{
    const ReferingObject first;
    auto second = std::make_unique<ReferingObject>();
    const std::weak_ptr<const void> reference = first.reference();
    second.reset();
    QVERIFY(!reference.expired());
}

QTEST_GUILESS_MAIN(tst_ReferingObject)
#include "tst_ReferingObject.moc"

#include "../support/SlotOrder.h"

#include <core/plugin/PLinkDbGuiI.h>

#include <QTest>

class PLinkDbC // of the link database, and nothing but a name here
{
};

class tst_PLinkDbGuiI : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void slotOrder()
    {
        QCOMPARE(slotOf(&PLinkDbGuiI::asQObject), 2);
        QCOMPARE(slotOf(&PLinkDbGuiI::registerActions), 3);
        QCOMPARE(slotOf(&PLinkDbGuiI::initLinkDb), 4);
    }
    void interfaceId()
    {
        QCOMPARE(QByteArray(qobject_interface_iid<PLinkDbGuiI *>()),
                 QByteArray("velkworkbench.PLinkDbGuiI/1.0"));
    }
};

QTEST_GUILESS_MAIN(tst_PLinkDbGuiI)
#include "tst_PLinkDbGuiI.moc"

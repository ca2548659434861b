#include "../support/SlotOrder.h"

#include <mapping/data/ApplicationHandlerI.h>
#include <mapping/data/CatalogMappingHandlerI.h>

#include <QTest>

/// Hosts are built against these classes: each operation keeps its place.
class tst_HostInterfaces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void handler()
    {
        using Handler = CatalogMappingHandlerI;
        QCOMPARE(slotOf(&Handler::getRootStructureNode), 2);
        QCOMPARE(slotOf(&Handler::getCatalogMapping), 3);
        QCOMPARE(slotOf(&Handler::updateMapping), 4);
        QCOMPARE(slotOf(&Handler::commitModifications), 5);
        QCOMPARE(slotOf(&Handler::countLines), 6);
        QCOMPARE(slotOf(&Handler::countNotFound), 7);
        QCOMPARE(slotOf(&Handler::countMapped), 8);
        QCOMPARE(slotOf(&Handler::countToCheck), 9);
        QCOMPARE(slotOf(&Handler::countVerified), 10);
    }

    void node()
    {
        using Node = CatalogStructureNodeI;
        QCOMPARE(slotOf(&Node::getNodeType), 2);
        QCOMPARE(slotOf(&Node::getName), 3);
        QCOMPARE(slotOf(&Node::getPath), 4);
        QCOMPARE(slotOf(&Node::getMappingState), 5);
        QCOMPARE(slotOf(&Node::getMapping), 6);
        QCOMPARE(slotOf(&Node::hasConflicts), 7);
        QCOMPARE(slotOf(&Node::getChildren), 8);
        QCOMPARE(slotOf(&Node::invalidateState), 9);
    }

    void application() { QCOMPARE(slotOf(&ApplicationHandlerI::openTargetProject), 2); }
};

QTEST_GUILESS_MAIN(tst_HostInterfaces)
#include "tst_HostInterfaces.moc"

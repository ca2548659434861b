#include "SessionFixture.h"

#include <workbench/session/document/JournalingHandler.h>
#include <workbench/session/document/MappingDocument.h>

#include <QStringList>
#include <QTest>

#include <boost/make_shared.hpp>

#include <memory>

namespace {

class FakeNode : public CatalogStructureNodeI
{
public:
    int getNodeType() const override { return 0; }
    QString getName() const override { return {}; }
    QString getPath() const override { return {}; }
    QFlags<PRJMAPPING::MappingState_> getMappingState() const override { return {}; }
    PrjMappingC getMapping() const override { return {}; }
    bool hasConflicts() const override { return false; }
    QList<boost::shared_ptr<CatalogStructureNodeI>> getChildren() const override { return {}; }
    void invalidateState() override {}
};

/// Tells what it was asked, and answers what nobody else would.
class FakeHandler : public CatalogMappingHandlerI
{
public:
    boost::shared_ptr<CatalogStructureNodeI> getRootStructureNode() const override
    {
        calls += QStringLiteral("root");
        return node;
    }
    CatalogMappingC getCatalogMapping() const override
    {
        calls += QStringLiteral("catalog");
        return catalog;
    }
    void updateMapping(const PrjMappingC &) override { calls += QStringLiteral("update"); }
    bool commitModifications() override
    {
        calls += QStringLiteral("commit");
        return true;
    }
    int countLines() const override { return 11; }
    int countNotFound() const override { return 12; }
    int countMapped() const override { return 13; }
    int countToCheck() const override { return 14; }
    int countVerified() const override { return 15; }

    mutable QStringList calls;
    boost::shared_ptr<CatalogStructureNodeI> node = boost::make_shared<FakeNode>();
    CatalogMappingC catalog;
};

} // namespace

class tst_JournalingHandler : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void forwardsWhatIsAsked();
    void changesGoByTheDocumentOnly();
    void changesReachTheReleaseHandler();
};

void tst_JournalingHandler::forwardsWhatIsAsked()
{
    const auto inner = std::make_shared<FakeHandler>();
    inner->catalog.addRelease(SessionFixture::sampleRelease());
    const JournalingHandler handler(inner, nullptr);
    QCOMPARE(handler.getRootStructureNode(), inner->node);
    QCOMPARE(SessionFixture::bytes(handler.getCatalogMapping().lastRelease()),
             SessionFixture::bytes(SessionFixture::sampleRelease()));
    QCOMPARE(inner->calls, QStringList({QStringLiteral("root"), QStringLiteral("catalog")}));
    QCOMPARE(handler.countLines(), 11);
    QCOMPARE(handler.countNotFound(), 12);
    QCOMPARE(handler.countMapped(), 13);
    QCOMPARE(handler.countToCheck(), 14);
    QCOMPARE(handler.countVerified(), 15);
}

void tst_JournalingHandler::changesGoByTheDocumentOnly()
{
    // Without its document a handler must neither change nor save anything unguarded.
    const auto inner = std::make_shared<FakeHandler>();
    JournalingHandler handler(inner, nullptr);
    handler.updateMapping(SessionFixture::plainMapping(QStringLiteral("cat/a.prj"), 1));
    QVERIFY(!handler.commitModifications());
    QVERIFY(inner->calls.isEmpty());
}

void tst_JournalingHandler::changesReachTheReleaseHandler()
{
    const SessionFixture files;
    MappingDocument document;
    document.open({files.write(), {}, {}, {}, {}});
    const std::unique_ptr<CatalogMappingHandlerI> handler(document.createHandler());
    const PrjMappingC changed =
        SessionFixture::withState(document.release().mappingAt(0), {1, 2, 3}, 2);
    handler->updateMapping(changed);
    QCOMPARE(document.handler()->countVerified(), 3);
    QCOMPARE(handler->countVerified(), 3);
    QCOMPARE(handler->countToCheck(), 27);
    QCOMPARE(handler->countMapped(), 0);
    QCOMPARE(handler->countNotFound(), 0);
    QCOMPARE(handler->countLines(), 30);
    QCOMPARE(SessionFixture::bytes(document.mapping(ProjectId::of(changed))),
             SessionFixture::bytes(changed));
}

QTEST_GUILESS_MAIN(tst_JournalingHandler)

#include "tst_JournalingHandler.moc"

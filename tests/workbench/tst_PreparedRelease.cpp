#include "SessionFixture.h"

#include <mapping/data/CatalogNodeType.h>
#include <workbench/session/document/PreparedRelease.h>

#include <QTest>
#include <QThread>

#include <atomic>
#include <cstdlib>
#include <memory>
#include <new>

namespace {

std::atomic<int> allocations = 0;

} // namespace

void *operator new(std::size_t size)
{
    ++allocations;
    if (void *memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}
void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace {

constexpr int Projects = 3000;

/// In a tenth as many folders, and as many in one.
ReleaseMappingC manyProjects()
{
    ReleaseMappingC release;
    for (int i = 0; i < Projects; ++i)
        release.addMapping(
            SessionFixture::plainMapping(QStringLiteral("cat/f%1/%2.prj").arg(i / 10).arg(i), 1));
    for (int i = 0; i < Projects; ++i)
        release.addMapping(
            SessionFixture::plainMapping(QStringLiteral("cat/flat/%1.prj").arg(i), 1));
    return release;
}

int countProjects(const CatalogStructureNodeI &node)
{
    int projects = 0;
    for (const boost::shared_ptr<CatalogStructureNodeI> &child : node.getChildren()) {
        (void)child->getMappingState();
        projects += child->getNodeType() == CatalogNodeType::Project ? 1 : countProjects(*child);
    }
    return projects;
}

} // namespace

class tst_PreparedRelease : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasAllNodes();
};

/// So that nothing of the tree is made by the one that shows it.
void tst_PreparedRelease::hasAllNodes()
{
    const ReleaseMappingC release = manyProjects();
    PreparedRelease prepared;
    const std::unique_ptr<QThread> thread(QThread::create(
        [&] { prepared = PreparedRelease::of(release, QStringLiteral("root"), QString()); }));
    thread->start();
    QVERIFY(thread->wait());
    const auto root = prepared.handler->getRootStructureNode();
    const int before = allocations;
    QCOMPARE(countProjects(*root), 2 * Projects);
    const int made = allocations - before;
    QVERIFY2(made < 100, qPrintable(QString::number(made)));
    QCOMPARE(prepared.counts.lines(), 2 * Projects);
}

QTEST_GUILESS_MAIN(tst_PreparedRelease)
#include "tst_PreparedRelease.moc"

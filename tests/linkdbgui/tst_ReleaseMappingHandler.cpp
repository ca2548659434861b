#include "../support/SizeLimit.h"

#include <core/message/PStringMessageImpl.h>
#include <geomcore/records/MappingFile.h>
#include <mapping/data/ApplicationHandlerI.h>
#include <mapping/data/ReleaseMappingHandler.h>

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using Node = boost::shared_ptr<CatalogStructureNodeI>;
using Entry = std::pair<int, int>; ///< target line, state

namespace {

constexpr auto Version = "v220101000000";

/// Writes nothing but what is pure.
class MinimalHandler : public CatalogMappingHandlerI
{
public:
    Node getRootStructureNode() const override { return {}; }
    CatalogMappingC getCatalogMapping() const override { return {}; }
    void updateMapping(const PrjMappingC &) override {}
    bool commitModifications() override { return false; }
};

class NotingApplication : public ApplicationHandlerI
{
public:
    void openTargetProject(const QString &targetPath) override { opened += targetPath; }
    QStringList opened;
};

PrjMappingC mapping(const QString &path, const QList<Entry> &entries = {},
                    const QString &version = Version, const QString &tabVersion = "t1")
{
    PrjMappingC result;
    result.setSourcePath(path);
    result.setSourceVersion(version);
    result.setTabVersion(tabVersion);
    PrjMappingTargetC target;
    target.setTargetPath("cat/target.prj");
    target.setValid(true);
    int id = 0;
    for (const auto &[line, state] : entries)
        target.addLineId(++id, line, PRJMAPPING::CheckState(state), QString());
    result.addTarget(target);
    return result;
}

ReleaseMappingC release(const QList<PrjMappingC> &mappings, const QString &date = "2022")
{
    ReleaseMappingC result;
    result.setSourceDate(date);
    result.setTargetDate("2026");
    for (const PrjMappingC &entry : mappings)
        result.addMapping(entry);
    return result;
}

/// lines, notFound, mapped, toCheck, verified
QList<int> counts(const CatalogMappingHandlerI &handler)
{
    return {handler.countLines(), handler.countNotFound(), handler.countMapped(),
            handler.countToCheck(), handler.countVerified()};
}

/// The counting rule, line by line.
QList<int> recount(const ReleaseMappingC &counted)
{
    QList<int> result{0, 0, 0, 0, 0};
    for (const PrjMappingC &entry : counted.getMappingList()) {
        for (const PrjMappingTargetC &target : entry.getTargets()) {
            for (const PrjMappingTargetLineC &line : target.getMappedLines()) {
                const int state = line.getState();
                const bool none = line.getTargetLineId() == -1;
                ++result[0];
                result[4] += state == 2;
                result[2] += state == 1;
                result[3] += state == 0 && !none;
                result[1] += none;
            }
        }
    }
    return result;
}

/// Names below a node, directories with "/" behind; \a depth is how many levels.
QStringList tree(const Node &node, int depth = 9, const QString &indent = QString())
{
    QStringList rows;
    for (const Node &child : node->getChildren()) {
        rows += indent + child->getName() + (child->getNodeType() == 1 ? "/" : "");
        if (depth > 1)
            rows += tree(child, depth - 1, indent + ' ');
    }
    return rows;
}

/// States and conflicts of a project, or of all projects below another node.
std::pair<int, bool> marksBelow(const Node &node)
{
    if (node->getNodeType() == 2)
        return {node->getMapping().getMappingState().toInt(),
                node->getMapping().getContainsConflicts()};
    std::pair<int, bool> marks{0, false};
    for (const Node &child : node->getChildren()) {
        const auto [state, conflicts] = marksBelow(child);
        marks = {marks.first | state, marks.second || conflicts};
    }
    return marks;
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

} // namespace

class tst_ReleaseMappingHandler : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsOfTheInterfaceAreZero()
    {
        const MinimalHandler handler;
        QCOMPARE(counts(handler), (QList<int>{0, 0, 0, 0, 0}));
        MinimalHandler copy(handler);
        QCOMPARE(&(copy = handler), &copy);
    }

    void applicationHandler()
    {
        NotingApplication application;
        ApplicationHandlerI *handler = &application;
        handler->openTargetProject("cat/a.prj");
        QCOMPARE(application.opened, QStringList{"cat/a.prj"});
    }

    void emptyRelease()
    {
        const ReleaseMappingHandler handler(ReleaseMappingC(), "Katalog", "none.json");
        QCOMPARE(counts(handler), (QList<int>{0, 0, 0, 0, 0}));
        const Node root = handler.getRootStructureNode();
        QCOMPARE(root->getNodeType(), 0);
        QCOMPARE(root->getName(), QString("Katalog"));
        QVERIFY(root->getChildren().isEmpty());
        QVERIFY(root->getChildren().isEmpty());
        QCOMPARE(root->getMappingState().toInt(), 0);
    }

    void counting_data()
    {
        QTest::addColumn<int>("line");
        QTest::addColumn<int>("state");
        QTest::addColumn<QList<int>>("expected");
        QTest::newRow("to check") << 5 << 0 << QList<int>{1, 0, 0, 1, 0};
        QTest::newRow("mapped") << 5 << 1 << QList<int>{1, 0, 1, 0, 0};
        QTest::newRow("verified") << 5 << 2 << QList<int>{1, 0, 0, 0, 1};
        QTest::newRow("state 3") << 5 << 3 << QList<int>{1, 0, 0, 0, 0};
        QTest::newRow("no line, to check") << -1 << 0 << QList<int>{1, 1, 0, 0, 0};
        QTest::newRow("no line, mapped") << -1 << 1 << QList<int>{1, 1, 1, 0, 0};
        QTest::newRow("no line, verified") << -1 << 2 << QList<int>{1, 1, 0, 0, 1};
        QTest::newRow("no line, state 3") << -1 << 3 << QList<int>{1, 1, 0, 0, 0};
    }
    void counting()
    {
        QFETCH(int, line);
        QFETCH(int, state);
        QFETCH(QList<int>, expected);
        const ReleaseMappingC given = release({mapping("a.prj", {{line, state}})});
        const ReleaseMappingHandler handler(given, "", "");
        QCOMPARE(counts(handler), expected);
        QCOMPARE(recount(given), expected);
    }

    void countsOverlap()
    {
        const ReleaseMappingHandler handler(
            release({mapping("a.prj", {{-1, 1}, {-1, 2}}), mapping("b.prj", {{4, 0}})}), "", "");
        QCOMPARE(counts(handler), (QList<int>{3, 2, 1, 1, 1}));
    }

    void updateMappingMovesTheCounters()
    {
        ReleaseMappingHandler handler(
            release({mapping("a.prj", {{1, 0}, {-1, 0}}), mapping("b.prj", {{1, 1}})}), "", "");
        const PrjMappingC changed = mapping("a.prj", {{1, 2}, {2, 1}, {3, 1}});
        handler.updateMapping(changed);
        QCOMPARE(counts(handler), (QList<int>{4, 0, 3, 0, 1}));
        handler.updateMapping(changed);
        QCOMPARE(counts(handler), (QList<int>{4, 0, 3, 0, 1}));
        QCOMPARE(handler.getCatalogMapping().lastRelease().countMappings(), 2);
    }

    void updateMappingOfAnUnknownProject()
    {
        ReleaseMappingHandler handler(release({mapping("cat/a.prj", {{1, 0}})}), "root", "");
        const Node root = handler.getRootStructureNode();
        QCOMPARE(tree(root), (QStringList{"cat/", " a.prj"}));
        handler.updateMapping(mapping("cat/b.prj", {{1, 1}}));
        QCOMPARE(counts(handler), (QList<int>{2, 0, 1, 1, 0}));
        QCOMPARE(handler.getCatalogMapping().lastRelease().countMappings(), 2);
        QCOMPARE(tree(handler.getRootStructureNode()), (QStringList{"cat/", " a.prj"}));
    }

    void emptyTableVersionReplacesTheFirst()
    {
        ReleaseMappingHandler handler(release({mapping("a.prj", {{1, 0}}, Version, "t1"),
                                               mapping("a.prj", {{1, 1}}, Version, "t2")}),
                                      "", "");
        handler.updateMapping(mapping("a.prj", {{1, 2}}, Version, ""));
        QCOMPARE(counts(handler), (QList<int>{2, 0, 1, 0, 1}));
        QCOMPARE(recount(handler.getCatalogMapping().lastRelease()), counts(handler));
    }

    void countersEqualARecountAfterRandomUpdates_data()
    {
        QTest::addColumn<int>("seed");
        for (int seed = 0; seed < 10; ++seed)
            QTest::addRow("%d", seed) << seed;
    }
    void countersEqualARecountAfterRandomUpdates()
    {
        QFETCH(int, seed);
        QRandomGenerator random{quint32(seed)};
        ReleaseMappingHandler handler(release({mapping("0.prj", {{1, 0}})}), "", "");
        for (int step = 0; step < 150; ++step) {
            const QString path = QString::number(random.bounded(4)) + ".prj";
            const QString version = random.bounded(2) == 0 ? "v1" : "v2";
            const QString table = QStringList{"", "t1", "t2"}.at(random.bounded(3));
            PrjMappingC changed =
                handler.getCatalogMapping().lastRelease().findMapping(path, version, table);
            if (!changed.isValid())
                changed = mapping(path, {}, version, table);
            const int index = int(random.bounded(3));
            if (index >= changed.countTargets())
                changed.addTarget("cat/t.prj", "v");
            PrjMappingTargetC target = changed.findTarget(0);
            const int id = int(random.bounded(30));
            switch (random.bounded(8)) {
            case 0:
                target.removeLineId(id);
                break;
            case 1:
                target.clearLines(random.bounded(2) == 0);
                break;
            case 2:
                target.setLineConflicted(id, true);
                break;
            case 3:
                changed.verifyAll();
                target = changed.findTarget(0);
                break;
            case 4:
                changed.removeTarget(int(random.bounded(3)));
                break;
            default:
                target.addLineId(id, int(random.bounded(3)) - 1,
                                 PRJMAPPING::CheckState(random.bounded(4)), QString());
            }
            changed.updateTarget(0, target);
            handler.updateMapping(changed);
            QCOMPARE(counts(handler), recount(handler.getCatalogMapping().lastRelease()));
        }
    }

    void rootIsTheSameEveryTime()
    {
        const ReleaseMappingHandler handler(release({mapping("cat/a.prj")}), "root", "");
        const Node root = handler.getRootStructureNode();
        QCOMPARE(handler.getRootStructureNode(), root);
        QCOMPARE(root->getChildren(), root->getChildren());
        const Node directory = root->getChildren().first();
        QCOMPARE(directory->getChildren(), directory->getChildren());
    }

    void childrenInOrder()
    {
        const ReleaseMappingHandler handler(
            release({mapping("top.prj"), mapping("b/z.prj"), mapping("a/y.prj"), mapping("Z/x.prj"),
                     mapping("a/b/c.prj"), mapping("a/a.prj"), mapping("b/z.prj", {}, "v2"),
                     mapping("\xC3\xA4/u.prj"), mapping("a.prj")}),
            "root", "");
        QCOMPARE(
            tree(handler.getRootStructureNode()),
            (QStringList{"Z/", " x.prj", "a/", " b/", "  c.prj", " y.prj", " a.prj", "b/", " z.prj",
                         " z.prj", QString::fromUtf8("\xC3\xA4/"), " u.prj", "top.prj", "a.prj"}));
    }

    void childrenOfOddPaths_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QStringList>("rows");
        QTest::newRow("no separator") << "a.prj" << QStringList{"a.prj"};
        QTest::newRow("backslashes build directories, the name stays whole")
            << "a\\b\\c.prj" << QStringList{"a/", " b/", "  a\\b\\c.prj"};
        QTest::newRow("mixed") << "a\\b/c.prj" << QStringList{"a/", " b/", "  c.prj"};
        QTest::newRow("leading separator") << "/a.prj" << QStringList{"/", " a.prj"};
        QTest::newRow("doubled separator") << "a//b.prj" << QStringList{"a/", " /", "  b.prj"};
        QTest::newRow("separator at the end") << "a/" << QStringList{"a/", " "};
    }
    void childrenOfOddPaths()
    {
        QFETCH(QString, path);
        QFETCH(QStringList, rows);
        const ReleaseMappingHandler handler(release({mapping(path)}), "root", "");
        QCOMPARE(tree(handler.getRootStructureNode()), rows);
        Node node = handler.getRootStructureNode();
        while (node->getNodeType() != 2)
            node = node->getChildren().first();
        QCOMPARE(node->getPath(), path);
        QVERIFY(node->getMapping().isValid());
        QVERIFY(node->getChildren().isEmpty());
    }

    void nodesOfOtherKindsHaveNeitherMappingNorPath()
    {
        const ReleaseMappingHandler handler(release({mapping("cat/a.prj")}), "root", "");
        const Node root = handler.getRootStructureNode();
        const Node directory = root->getChildren().first();
        for (const Node &node : {root, directory}) {
            QVERIFY(!node->getMapping().isValid());
            QVERIFY(node->getPath().isEmpty());
        }
        QCOMPARE(root->getNodeType(), 0);
        QCOMPARE(directory->getNodeType(), 1);
        QCOMPARE(directory->getName(), QString("cat"));
        const Node project = directory->getChildren().first();
        QCOMPARE(project->getNodeType(), 2);
        QCOMPARE(project->getName(), QString("a.prj"));
        QCOMPARE(project->getPath(), QString("cat/a.prj"));
    }

    void projectNodeSeesChangesAtOnceDirectoryAfterInvalidate()
    {
        ReleaseMappingHandler handler(release({mapping("cat/a.prj", {{1, 0}})}), "root", "");
        const Node root = handler.getRootStructureNode();
        const Node directory = root->getChildren().first();
        const Node project = directory->getChildren().first();
        QCOMPARE(project->getMappingState().toInt(), 0x080);
        QCOMPARE(directory->getMappingState().toInt(), 0x081);
        QCOMPARE(root->getMappingState().toInt(), 0x080);

        handler.updateMapping(mapping("cat/a.prj", {{1, 2}}));
        QCOMPARE(project->getMappingState().toInt(), 0x200);
        QCOMPARE(project->getMapping().findTarget(0).getMappedLine(1).getState(),
                 PRJMAPPING::Verified);
        QCOMPARE(root->getMappingState().toInt(), 0x200);
        QCOMPARE(directory->getMappingState().toInt(), 0x081);
        project->invalidateState();
        root->invalidateState();
        QCOMPARE(directory->getMappingState().toInt(), 0x081);
        directory->invalidateState();
        QCOMPARE(directory->getMappingState().toInt(), 0x201);
    }

    void directoryRollsUp_data()
    {
        QTest::addColumn<QList<int>>("states");
        QTest::addColumn<int>("rolledUp");
        QTest::newRow("usable is its own mark") << QList<int>{0x001} << 0x001;
        QTest::newRow("nothing set") << QList<int>{0} << 0x001;
        QTest::newRow("each bit") << QList<int>{0x002, 0x080, 0x100, 0x200, 0x400, 0x800} << 0xF83;
        QTest::newRow("other bits do not count") << QList<int>{0x07C, 0x1000} << 0x001;
    }
    void directoryRollsUp()
    {
        QFETCH(QList<int>, states);
        QFETCH(int, rolledUp);
        QList<PrjMappingC> mappings;
        for (int i = 0; i < states.size(); ++i) {
            mappings += mapping(QStringLiteral("cat/sub/%1.prj").arg(i));
            mappings.last().setMappingState(PRJMAPPING::MappingState::fromInt(states[i]));
        }
        const ReleaseMappingHandler handler(release(mappings), "root", "");
        const Node directory = handler.getRootStructureNode()->getChildren().first();
        QCOMPARE(directory->getMappingState().toInt(), rolledUp);
        QCOMPARE(directory->getChildren().first()->getMappingState().toInt(), rolledUp);
        QCOMPARE(handler.getRootStructureNode()->getMappingState().toInt(), rolledUp & ~1);
    }

    void conflicts()
    {
        PrjMappingC clashing = mapping("cat/b.prj", {{1, 0}});
        PrjMappingTargetC target = clashing.findTarget(0);
        target.setLineConflicted(1, true);
        clashing.updateTarget(0, target);
        ReleaseMappingHandler handler(
            release({mapping("cat/a.prj", {{1, 0}}), clashing, mapping("dog/a.prj")}), "root", "");
        const Node root = handler.getRootStructureNode();
        const Node cat = root->getChildren().at(0);
        QVERIFY(!root->hasConflicts());
        QVERIFY(cat->hasConflicts());
        QVERIFY(!cat->getChildren().at(0)->hasConflicts());
        QVERIFY(cat->getChildren().at(1)->hasConflicts());
        QVERIFY(!root->getChildren().at(1)->hasConflicts());
        handler.updateMapping(mapping("cat/b.prj", {{1, 2}}));
        QVERIFY(!cat->hasConflicts());
    }

    void directoriesFollowRandomChanges_data()
    {
        QTest::addColumn<int>("seed");
        QTest::addColumn<int>("steps");
        QTest::addColumn<int>("stepsBetweenLooks");
        QTest::newRow("every change seen") << 1 << 300 << 1;
        QTest::newRow("now and then") << 2 << 1000 << 70;
        QTest::newRow("more changes than are kept") << 3 << 50000 << 24000;
    }
    void directoriesFollowRandomChanges()
    {
        QFETCH(int, seed);
        QFETCH(int, steps);
        QFETCH(int, stepsBetweenLooks);
        QRandomGenerator random{quint32(seed)};
        const auto randomMapping = [&random] {
            const QString path = QStringList{"a/b/%1.prj", "a/%1.prj", "c/%1.prj", "%1.prj"}
                                     .at(random.bounded(4))
                                     .arg(random.bounded(3));
            PrjMappingC result = mapping(path, {{1, 0}}, random.bounded(2) == 0 ? "v1" : "v2",
                                         QStringList{"", "t1", "t2"}.at(random.bounded(3)));
            PrjMappingTargetC target = result.findTarget(0);
            target.setLineConflicted(1, random.bounded(8) == 0);
            result.updateTarget(0, target);
            result.setMappingState(PRJMAPPING::MappingState::fromInt(1 << random.bounded(12)));
            return result;
        };
        // Keys recur with other table versions, so that the tree shows a mapping more than once.
        ReleaseMappingC given;
        for (int i = 0; i < 30; ++i)
            given.addMapping(randomMapping());
        ReleaseMappingHandler handler(given, "root", "");
        const Node root = handler.getRootStructureNode();
        for (int step = 1; step <= steps; ++step) {
            handler.updateMapping(randomMapping());
            if (step % stepsBetweenLooks != 0)
                continue;
            for (const Node &top : root->getChildren()) {
                for (const Node &directory : QList<Node>{top} + top->getChildren()) {
                    directory->invalidateState();
                    const auto [state, conflicts] = marksBelow(directory);
                    QCOMPARE(directory->hasConflicts(), conflicts);
                    QCOMPARE(directory->getMappingState().toInt(),
                             directory->getNodeType() == 1 ? (state | 1) & 0xF83 : state);
                }
            }
        }
    }

    void twoTableVersionsShowTheFirst()
    {
        const ReleaseMappingHandler handler(
            release({mapping("a.prj", {}, Version, "t1"), mapping("a.prj", {}, Version, "t2")}),
            "root", "");
        const QList<Node> children = handler.getRootStructureNode()->getChildren();
        QCOMPARE(children.size(), 2);
        for (const Node &child : children)
            QCOMPARE(child->getMapping().getTabVersion(), QString("t1"));
    }

    void nodesOutliveTheHandler()
    {
        Node root;
        {
            const ReleaseMappingHandler handler(release({mapping("cat/a.prj", {{1, 0}})}), "root",
                                                "");
            root = handler.getRootStructureNode();
        }
        QCOMPARE(tree(root), (QStringList{"cat/", " a.prj"}));
        QVERIFY(root->getChildren().first()->getChildren().first()->getMapping().isValid());
    }

    void workingCopyIsItsOwn()
    {
        ReleaseMappingC given = release({mapping("a.prj", {{1, 0}})});
        ReleaseMappingHandler handler(given, "", "");
        handler.updateMapping(mapping("a.prj", {{1, 2}}));
        QCOMPARE(recount(given), (QList<int>{1, 0, 0, 1, 0}));
        CatalogMappingC got = handler.getCatalogMapping();
        QCOMPARE(got.getReleases().size(), 1);
        got.addMapping(mapping("b.prj", {{1, 2}}));
        QCOMPARE(handler.getCatalogMapping().lastRelease().countMappings(), 1);
        handler.updateMapping(mapping("a.prj"));
        QCOMPARE(recount(got.lastRelease()), (QList<int>{2, 0, 0, 0, 2}));
    }

    void commitMakesTheFile()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("m.json");
        ReleaseMappingHandler handler(release({mapping("cat/a.prj", {{1, 0}})}), "", path);
        QVERIFY(handler.commitModifications());
        MappingFile expected;
        expected.setRelease(handler.getCatalogMapping().lastRelease());
        QCOMPARE(readFile(path), expected.toByteArray());
        QVERIFY(readFile(path).contains("\n       [1,1,0]\n"));
        QVERIFY(handler.commitModifications());
        QCOMPARE(readFile(path), expected.toByteArray());
    }

    void commitWritesTheFileItself()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("m.json");
        ReleaseMappingHandler handler(release({mapping("cat/a.prj", {{1, 0}})}), "", path);
        QVERIFY(handler.commitModifications());
        const QString sameFile = dir.filePath("link");
        QCOMPARE(::link(qPrintable(path), qPrintable(sameFile)), 0);
        const QByteArray before = readFile(path);
        handler.updateMapping(mapping("cat/b.prj", {{1, 0}}));
        QCOMPARE(readFile(path), before);
        QVERIFY(handler.commitModifications());
        // Neither renamed over it nor a copy beside it: the host does that.
        QVERIFY(readFile(path) != before);
        QCOMPARE(readFile(sameFile), readFile(path));
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden),
                 (QStringList{"link", "m.json"}));
    }

    void commitKeepsOtherDates()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("m.json");
        const QByteArray other = " \"2020\": {\"sourceDate\":\"2020\", \"x\":[1.0,\r\n2]}";
        writeFile(path, "{\n" + other + ",\n \"2022\": 5, \"2024\": null}");
        ReleaseMappingHandler handler(release({mapping("a.prj", {{1, 0}})}), "", path);
        QVERIFY(handler.commitModifications());
        const QByteArray bytes = readFile(path);
        QVERIFY(bytes.startsWith("{\n" + other + ",\n \"2022\": {\n"));
        QVERIFY(bytes.endsWith("\n },\n \"2024\": null\n}\n"));
        MappingFile file;
        QVERIFY(file.parse(bytes, "2022"));
        QCOMPARE(recount(file.release("2022")), counts(handler));
    }

    void commitKeepsWhateverIsJsonByGrammar_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::newRow("number beyond a double") << QByteArray("[1e999, -1E+9999]");
        QTest::newRow("nested deeply") << QByteArray(600, '[') + QByteArray(600, ']');
        QTest::newRow("half a surrogate pair") << QByteArray(R"({"\ud800": "\udc00"})");
    }
    void commitKeepsWhateverIsJsonByGrammar()
    {
        QFETCH(QByteArray, value);
        QTemporaryDir dir;
        const QString path = dir.filePath("m.json");
        writeFile(path, "{\"2020\": " + value + ", \"2021\": {\"mappings\": []}}");
        ReleaseMappingHandler handler(release({mapping("a.prj", {{1, 0}})}), "", path);
        QVERIFY(handler.commitModifications());
        const QByteArray bytes = readFile(path);
        QVERIFY2(bytes.contains("\"2020\": " + value), bytes.constData());
        QVERIFY(bytes.contains("\"2021\": {\"mappings\": []}"));
    }

    void mappingWithoutSourcePathIsRefused()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("m.json");
        ReleaseMappingHandler handler(release({mapping("a.prj", {{1, 0}})}), "", path);
        const PrjMappingC invalid = mapping(QString(), {{1, 0}, {2, 0}});
#ifdef QT_NO_DEBUG
        handler.updateMapping(invalid);
        QCOMPARE(handler.countLines(), 1);
        QCOMPARE(handler.getCatalogMapping().lastRelease().countMappings(), 1);
#else
        const pid_t child = ::fork();
        if (child == 0) {
            const rlimit none{};
            ::setrlimit(RLIMIT_CORE, &none);
            std::signal(SIGABRT, SIG_DFL);
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
            handler.updateMapping(invalid);
            ::_exit(0);
        }
        int status = 0;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QVERIFY2(WIFSIGNALED(status) && WTERMSIG(status) == SIGABRT, "an assertion");
#endif
    }

    void commitReplacesWhatDoesNotParse_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::newRow("cut off") << QByteArray("{\"2020\": {}");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("no JSON") << QByteArray("nonsense");
        QTest::newRow("an array") << QByteArray("[1]");
        QTest::newRow("longer than what comes") << QByteArray(100000, 'x');
    }
    void commitReplacesWhatDoesNotParse()
    {
        QFETCH(QByteArray, before);
        QTemporaryDir dir;
        const QString path = dir.filePath("m.json");
        writeFile(path, before);
        ReleaseMappingHandler handler(release({mapping("a.prj", {{1, 0}})}), "", path);
        const PStringMessageImpl messages(PMsgReply::Cancel, false);
        QVERIFY(handler.commitModifications());
        QCOMPARE(messages.buffer(), QString());
        MappingFile expected;
        expected.setRelease(handler.getCatalogMapping().lastRelease());
        QCOMPARE(readFile(path), expected.toByteArray());
    }

    void commitResolvesThePath()
    {
        QTemporaryDir dir;
        qputenv("VELK_TEST_DIR", dir.path().toUtf8());
        ReleaseMappingHandler handler(release({mapping("a.prj")}), "", "$VELK_TEST_DIR\\m.json");
        QVERIFY(handler.commitModifications());
        QVERIFY(QFile::exists(dir.filePath("m.json")));
        // Found again and merged with.
        ReleaseMappingHandler later(release({}, "2023"), "", "$VELK_TEST_DIR/m.json");
        QVERIFY(later.commitModifications());
        MappingFile file;
        QVERIFY(file.read(dir.filePath("m.json")));
        QCOMPARE(file.sourceDates(), QStringList({"2022", "2023"}));
    }

    void commitFailsWithoutHarm()
    {
        QTemporaryDir dir;
        ReleaseMappingHandler handler(release({mapping("a.prj", {{1, 0}})}), "",
                                      dir.filePath("missing/m.json"));
        QVERIFY(!handler.commitModifications());
        QCOMPARE(counts(handler), (QList<int>{1, 0, 0, 1, 0}));
        QVERIFY(QDir(dir.path()).mkdir("missing"));
        QVERIFY(handler.commitModifications());
    }

    void commitOnAFullDisk()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("m.json");
        ReleaseMappingHandler small(release({mapping("a.prj", {{1, 0}})}), "", path);
        QList<Entry> entries(20000, Entry{1, 0});
        ReleaseMappingHandler large(release({mapping("a.prj", entries)}), "", path);
        {
            const SizeLimit full(10);
            // Small enough to be taken by the buffer as a whole.
            QVERIFY(!small.commitModifications());
            QVERIFY(!large.commitModifications());
        }
        QCOMPARE(large.countLines(), 20000);
    }
};

QTEST_GUILESS_MAIN(tst_ReleaseMappingHandler)
#include "tst_ReleaseMappingHandler.moc"

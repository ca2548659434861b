#include "ExpressionTesting.h"

#include <geomcore/expression/StatementParser.h>
#include <geomcore/expression/VarCollector.h>

#include <QTest>

using namespace ExpressionTesting;

namespace {

std::unique_ptr<VKTab::NodeBase> parsed(const QString &text)
{
    VKTab::StatementNames anyName;
    return VKTab::StatementParser(text, anyName).parse().node;
}

/// Writes down where it is and stops at a given node.
class Walker : public VKTab::NodeVisitor
{
public:
    int visitNode(const VKTab::NodeBase &node, int depth, int index) override
    {
        steps.append(QString("%1 %2 %3").arg(nodeName(node)).arg(depth).arg(index));
        return nodeName(node) == stopAt ? 0 : 1;
    }

    QString stopAt;
    QStringList steps;
};

} // namespace

class tst_VarCollector : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void names_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("none") << "1 .EQ. 'A'" << QStringList();
        QTest::newRow("one") << "A .EQ. 1" << QStringList{"A"};
        QTest::newRow("in order of appearance")
            << "B .EQ. A .AND. C .LT. 1" << QStringList{"B", "A", "C"};
        QTest::newRow("each once")
            << "A .EQ. 1 .OR. A .EQ. 2 .OR. B .EQ. A" << QStringList{"A", "B"};
        QTest::newRow("letter case tells names apart") << "A .EQ. a" << QStringList{"A", "a"};
        QTest::newRow("with and without prefix")
            << "SOURCE@B .EQ. A .AND. B .EQ. 1" << QStringList{"B", "A"};
        QTest::newRow("in calls and brackets")
            << "(-MAX(A, 2 ** B)) .EQ. IF(C .EQ. 1, D, E)" << QStringList{"A", "B", "C", "D", "E"};
        QTest::newRow("not the assigned one") << "X = A + B" << QStringList{"A", "B"};
    }
    void names()
    {
        QFETCH(QString, text);
        VarCollector collector;
        const auto node = parsed(text);
        QCOMPARE(node->accept(collector, 0, 0), 1);
        QTEST(collector.getNames(), "expected");
    }

    void walksParentsBeforeChildren()
    {
        Walker walker;
        QCOMPARE(parsed("X = A + 2 * B")->accept(walker, 0, 0), 1);
        QCOMPARE(walker.steps,
                 (QStringList{"= X 0 0", "+ 1 0", "A 2 0", "* 2 1", "2 3 0", "B 3 1"}));
    }

    void anyOtherResultEndsTheWalk()
    {
        Walker walker;
        walker.stopAt = "A";
        QCOMPARE(parsed("A * 2 + B")->accept(walker, 0, 0), 0);
        QCOMPARE(walker.steps, (QStringList{"+ 0 0", "* 1 0", "A 2 0"}));
    }
};

QTEST_GUILESS_MAIN(tst_VarCollector)
#include "tst_VarCollector.moc"

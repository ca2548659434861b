#include <mapping/project/AssignmentCollector.h>

#include <geomcore/binding/VarsetParserC.h>

#include <QTest>

#include <memory>

class tst_AssignmentCollector : public QObject
{
    Q_OBJECT

private:
    static QHash<QString, MapVarValueC> names(const QStringList &list)
    {
        QHash<QString, MapVarValueC> result;
        for (const QString &name : list)
            result.insert(name, MapVarValueC());
        return result;
    }

private Q_SLOTS:
    void assignedVariables_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("assignment") << "X = A * 2" << QStringList{"X"};
        QTest::newRow("a name on both sides") << "A = A + 1" << QStringList{"A"};
        QTest::newRow("comparison") << "A .EQ. 2" << QStringList();
        QTest::newRow("value") << "MIN(A, 2)" << QStringList();
    }
    void assignedVariables()
    {
        QFETCH(QString, text);
        VarsetParserC parser(names({"A"}), names({"A", "X"}));
        const std::unique_ptr<VKTab::NodeBase> node(parser.parseStatement(text, "", true));
        AssignmentCollector collector;
        QCOMPARE(node->accept(collector, 0, 0), 1);
        QStringList assigned;
        for (const VKTab::VarId &id : collector.getVarIds())
            assigned.append(parser.getVarName(id));
        QTEST(assigned, "expected");
    }

    /// Each visit lets the walk go on, also at the assignment, and one collector may see several
    /// statements.
    void seesSeveralStatements()
    {
        VarsetParserC parser(names({"A"}), names({"X", "Y"}));
        AssignmentCollector collector;
        for (const char *text : {"X = A", "Y = 1", "X = 2"}) {
            const std::unique_ptr<VKTab::NodeBase> node(parser.parseStatement(text, "", true));
            QCOMPARE(collector.visitNode(*node, 0, 0), 1);
            QCOMPARE(collector.visitNode(*node->children().front(), 1, 0), 1);
        }
        QCOMPARE(collector.getVarIds().size(), 2);
    }
};

QTEST_GUILESS_MAIN(tst_AssignmentCollector)
#include "tst_AssignmentCollector.moc"

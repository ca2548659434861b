#include "IndexTreeFolder.h"

#include <geomcore/search/CatalogSearchQuery.h>
#include <geomcore/search/IndexTreeKeySearchC.h>
#include <geomcore/search/IndexTreeVarSearchC.h>
#include <geomcore/search/RemoteSearchRequestDataC.h>

using Condition = IndexTreeVarSearchConditionC;

class tst_SearchRequest : public QObject
{
    Q_OBJECT

    PRefPtr<IndexTreeC> m_tree = IndexTreeC::instance();

private Q_SLOTS:
    void names()
    {
        QCOMPARE(IndexTreeKeySearchC::searchName(), QString("KeySearch"));
        QCOMPARE(IndexTreeVarSearchC::searchName(), QString("VarSearch"));
    }

    // The numbers that callers pass.
    void numbers()
    {
        QCOMPARE(int(Condition::CompareOp::Contains), 1);
        QCOMPARE(int(Condition::SearchFullText), 3);
        QCOMPARE(int(IndexTreeBaseSearchC::Activated), 1);
        QCOMPARE(int(IndexTreeBaseSearchC::UsedWithAnd), 1);
    }

    void findsItsSearches()
    {
        RemoteSearchRequestDataC request;
        QVERIFY(!request.getSearchClassByName("VarSearch", true));
        const PRefPtr<IndexTreeVarSearchC> search(new IndexTreeVarSearchC(m_tree));
        request.addSearchClass(search);
        request.addSearchClass(nullptr);
        QCOMPARE(request.getSearchClasses().size(), 1);
        QCOMPARE(request.getSearchClassByName("VarSearch", true).get(), search.get());
        QVERIFY(!request.getSearchClassByName("varsearch", true));
        QCOMPARE(request.getSearchClassByName("varsearch", false).get(), search.get());
        request.addSearchClass(new IndexTreeVarSearchC(m_tree));
        QCOMPARE(request.getSearchClasses().size(), 1);
        QVERIFY(request.getSearchClassByName("VarSearch", true).get() != search.get());
    }

    void fullTextCondition()
    {
        IndexTreeVarSearchC search(m_tree);
        QVERIFY(!search.findFullTextCondition());
        search.addCondition(nullptr);
        search.addCondition(new Condition("L", Condition::CompareOp(0), "20", "", ""));
        QVERIFY(!search.findFullTextCondition());
        const PRefPtr<Condition> text(new Condition(" ", Condition::CompareOp(1), "bolt", "", ""));
        text->setSearchType(3);
        search.addCondition(text);
        QCOMPARE(search.findFullTextCondition().get(), text.get());
        text->setCmpOp(99); // no operator
        QCOMPARE(text->getCmpOp(), Condition::CompareOp::Contains);
        text->setCmpOp(7);
        QCOMPARE(text->getCmpOp(), Condition::CompareOp::Between);
        QCOMPARE(search.getConditions().size(), 2);
        search.removeConditions();
        QVERIFY(search.getConditions().isEmpty());
    }

    void copyIsItsOwn()
    {
        RemoteSearchRequestDataC request;
        request.setNodeListType("_siFixedCat");
        const PRefPtr<IndexTreeVarSearchC> search(new IndexTreeVarSearchC(m_tree));
        search->addCondition(new Condition(" ", Condition::CompareOp(1), "bolt", "", ""));
        request.addSearchClass(search);
        const PRefPtr<RemoteSearchRequestDataC> copy = request.clone();
        search->findFullTextCondition()->setValLow("nut");
        search->setActivatedType(0);
        QVERIFY(copy->isNodeListFixed());
        QCOMPARE(CatalogSearchQuery::fromRequest(*copy).text, QString("bolt"));
        QVERIFY(CatalogSearchQuery::fromRequest(request).isEmpty());
    }

    void becomesAQuery()
    {
        const IndexTreeFolder folder({"std/nuts/"});
        RemoteSearchRequestDataC request;
        const PRefPtr<IndexTreeKeySearchC> words(new IndexTreeKeySearchC(m_tree));
        words->setKeyWord("hexagon");
        const PRefPtr<IndexTreeVarSearchC> lines(new IndexTreeVarSearchC(m_tree));
        lines->addCondition(new Condition(" ", Condition::CompareOp(1), "M8", "", ""));
        lines->addCondition(new Condition("L", Condition::CompareOp(7), "10", "20", "mm"));
        lines->addCondition(new Condition("", Condition::CompareOp(0), "10", "", ""));
        request.addSearchClass(words);
        request.addSearchClass(lines);
        const PRefPtr<IndexTreeC> tree = folder.tree();
        request.setNodeList({tree->findNodeByTreePath("cat/std/nuts", "")});
        CatalogSearchQuery query = CatalogSearchQuery::fromRequest(request);
        QCOMPARE(query.text, QString("hexagon M8"));
        QCOMPARE(query.below, QStringList{"std/nuts"});
        const CatalogSearchCondition expected{"L", CatalogSearchCondition::Between, "10", "20",
                                              "mm"};
        QCOMPARE(query.conditions, QList<CatalogSearchCondition>{expected});
        lines->setUsedType(0);
        request.setNodeList({tree->getRoot(), nullptr});
        query = CatalogSearchQuery::fromRequest(request);
        QCOMPARE(query.text, QString("hexagon"));
        QVERIFY(query.conditions.isEmpty());
        QVERIFY(query.below.isEmpty());
        words->setKeyWord("  ");
        QVERIFY(CatalogSearchQuery::fromRequest(request).isEmpty());
    }

    void readsConditions_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("read");
        QTest::newRow("equal") << "L = 20"
                               << "L|0|20|";
        QTest::newRow("two signs") << "L == 20"
                                   << "L|0|20|";
        QTest::newRow("no blanks") << "L>=20"
                                   << "L|6|20|";
        QTest::newRow("contains") << "Name ~ bolt M8"
                                  << "Name|1|bolt M8|";
        QTest::newRow("not") << "L != 20"
                             << "L|2|20|";
        QTest::newRow("not, the other sign") << "L <> 20"
                                             << "L|2|20|";
        QTest::newRow("less") << "L<20"
                              << "L|3|20|";
        QTest::newRow("less or equal") << "L<=20"
                                       << "L|4|20|";
        QTest::newRow("greater") << "L > -2.5"
                                 << "L|5|-2.5|";
        QTest::newRow("range") << "L = 10..20,5"
                               << "L|7|10|20,5";
        QTest::newRow("range with blanks") << "L = 10 .. 20"
                                           << "L|7|10|20";
        QTest::newRow("no range") << "L > 10..20"
                                  << "L|5|10..20|";
        QTest::newRow("begins") << "Name ^ M"
                                << "Name|8|M|";
        QTest::newRow("quoted name") << "\"a=b c\" = 5"
                                     << "a=b c|0|5|";
        QTest::newRow("name with blanks") << "Outer diameter = 5"
                                          << "Outer diameter|0|5|";
        QTest::newRow("operator in the value") << "L = a=b"
                                               << "L|0|a=b|";
        QTest::newRow("nothing") << ""
                                 << "there is no variable in \"\"";
        QTest::newRow("no name") << "= 5"
                                 << "there is no variable in \"= 5\"";
        QTest::newRow("no operator")
            << "L 20"
            << "\"L 20\" has none of = != < <= > >= ~ ^ behind the variable";
        QTest::newRow("no value") << "L ="
                                  << "there is no value in \"L =\"";
        QTest::newRow("open quote") << "\"L = 5"
                                    << "a quote is left open in \"\"L = 5\"";
    }
    void readsConditions()
    {
        QFETCH(QString, text);
        QString read;
        if (const auto condition = CatalogSearchCondition::parse(text, &read))
            read = condition->variable + '|' + QString::number(condition->op) + '|' +
                   condition->low + '|' + condition->high;
        QTEST(read, "read");
    }
};

QTEST_GUILESS_MAIN(tst_SearchRequest)
#include "tst_SearchRequest.moc"

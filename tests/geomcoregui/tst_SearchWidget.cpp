#include "../geomcore/IndexTreeFolder.h"
#include "../support/GermanTexts.h"
#include "SearchFakes.h"

#include <geomcoregui/search/FileTreeGroup.h>
#include <geomcoregui/search/SearchWidget.h>
#include <geomcoregui/search/TileItemView.h>
#include <geomcoregui/search/TopSearchWidget.h>

#include <core/config/PConfigInst.h>
#include <geomcore/index/DisplayIndexC.h>
#include <geomcore/index/IndexTreeDisplayItemC.h>
#include <geomcore/search/IndexTreeKeySearchC.h>
#include <geomcore/search/IndexTreeVarSearchC.h>

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <memory>

class tst_SearchWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void typingSearchesOnceAfterAPause();
    void returnSearchesAtOnce();
    void outdatedResultsAreDropped();
    void emptyFieldsShowNothing();
    void states_data();
    void states();
    void indexMissingStartsTheUpdate();
    void resultsFollowTheIndex();
    void showsWhatTheIndexHasSoFar();
    void updateFails();
    void retry();
    void progress();
    void moreThanTheLimit();

    void conditions();
    void conditionOperators_data();
    void conditionOperators();
    void conditionIsRemoved();
    void requestIsShown();
    void fullTextConditionIsTheWords();
    void requestIsACopy();
    void scope();
    void fixedScope();

    void tiles();
    void tilesUnderModelTester();
    void hostileTexts();
    void selection();
    void selectionOfVanishedProject();
    void clearingAnnouncesTheSelection();
    void keyboardAlone();
    void recentWords();
    void groupGoesFirst();
    void withoutGroup();

private:
    template<class T>
    T *child(const char *name) const
    {
        return widget->findChild<T *>(QString::fromLatin1(name));
    }
    [[nodiscard]] QString status() const { return child<QLabel>("searchStatus")->text(); }
    [[nodiscard]] QStringList titles() const
    {
        QStringList texts;
        for (int row = 0; row < view->model()->rowCount(); ++row)
            texts += view->model()->index(row, 0).data().toString();
        return texts;
    }
    void type(const QString &text)
    {
        child<QLineEdit>("searchWords")->clear();
        QTest::keyClicks(child<QLineEdit>("searchWords"), text);
        QTest::keyClick(child<QLineEdit>("searchWords"), Qt::Key_Return);
    }
    [[nodiscard]] CatalogSearchQuery query() const
    {
        return searcher->queries.value(searcher->queries.size() - 1);
    }

    std::unique_ptr<IndexTreeFolder> folder;
    std::unique_ptr<FileTreeGroup> group;
    std::unique_ptr<SearchWidget> widget;
    FakeSearcher *searcher = nullptr;
    TileItemView *view = nullptr;
    TopSearchWidget *top = nullptr;
};

void tst_SearchWidget::initTestCase()
{
    folder = std::make_unique<IndexTreeFolder>(
        QStringList{"cat/a.prj", "cat/b.prj", "cat/m/c.prj", "dog & co/d.prj"});
    IndexTreeC::instance()->setCatalogRoot(PPathName(folder->root()));
}

void tst_SearchWidget::init()
{
    group = std::make_unique<FileTreeGroup>(0);
    auto made = std::make_unique<FakeSearcher>();
    searcher = made.get();
    group->setSearcher(std::move(made));
    group->Init();
    QCOMPARE(searcher->updates, 1);
    widget = std::make_unique<SearchWidget>(
        QStringList{"KeySearch", IndexTreeVarSearchC::searchName()}, group.get());
    view = widget->getItemView();
    top = widget->getTopSearchWidget();
    widget->resize(500, 500);
    widget->show();
    widget->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(widget.get()));
}

void tst_SearchWidget::cleanup()
{
    widget.reset();
    group.reset();
}

void tst_SearchWidget::typingSearchesOnceAfterAPause()
{
    QVERIFY(child<QLineEdit>("searchWords")->hasFocus()); // typing can begin at once
    QTest::keyClicks(child<QLineEdit>("searchWords"), "din 9");
    QCOMPARE(searcher->queries.size(), 0);
    QTRY_COMPARE(searcher->queries.size(), 1);
    QCOMPARE(query().text, QString("din 9"));
    QCOMPARE(status(), QString("Wird gesucht ..."));
}

void tst_SearchWidget::returnSearchesAtOnce()
{
    type("din");
    QCOMPARE(searcher->queries.size(), 1);
    QTest::qWait(300); // longer than the pause: not once more
    QCOMPARE(searcher->queries.size(), 1);
}

void tst_SearchWidget::outdatedResultsAreDropped()
{
    type("a");
    type("ab");
    searcher->answer(searchResult({searchHit("cat/a.prj", "old")}), 1);
    QCOMPARE(titles(), QStringList());
    searcher->answer(searchResult({searchHit("cat/b.prj", "new")}), 2);
    QCOMPARE(titles(), QStringList{"new"});
    // What comes after a further letter is outdated before the next search begins.
    type("abc");
    QTest::keyClicks(child<QLineEdit>("searchWords"), "d");
    searcher->answer(searchResult({searchHit("cat/a.prj", "older")}), 3);
    QCOMPARE(titles(), QStringList{"new"});
    QCOMPARE(status(), QString("Wird gesucht ..."));
    type("x");
    CatalogSearchResult cancelled;
    cancelled.state = CatalogSearchState::Cancelled;
    searcher->answer(cancelled);
    QCOMPARE(titles(), QStringList{"new"});
}

void tst_SearchWidget::emptyFieldsShowNothing()
{
    const QString hint = "Suchen Sie nach Wörtern, oder fügen Sie Bedingungen hinzu.";
    QCOMPARE(view->emptyText(), hint);
    type("a");
    searcher->answer(searchResult({searchHit("cat/a.prj")}));
    QCOMPARE(titles().size(), 1);
    type("");
    QCOMPARE(titles().size(), 0);
    QCOMPARE(searcher->queries.size(), 1);
    QVERIFY(searcher->cancelled > 0);
    QCOMPARE(status(), hint);
}

void tst_SearchWidget::states_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("hits");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("progress");
    QTest::addColumn<bool>("again");
    const auto row = [](const char *name, CatalogSearchState state, int hits, const char *text,
                        bool progress, bool again) {
        QTest::newRow(name) << int(state) << hits << QString::fromUtf8(text) << progress << again;
    };
    row("one", CatalogSearchState::Found, 1, "1 Projekt gefunden", false, false);
    row("several", CatalogSearchState::Found, 3, "3 Projekte gefunden", false, false);
    row("nothing", CatalogSearchState::NothingFound, 0,
        "Nichts gefunden. Suchen Sie mit anderen Wörtern oder weniger Bedingungen.", false, false);
    row("building", CatalogSearchState::IndexBuilding, 0, "Der Suchindex wird noch aufgebaut.",
        true, false);
    row("building, some", CatalogSearchState::IndexBuilding, 2,
        "Der Suchindex wird noch aufgebaut; bisher: 2 Projekte gefunden", true, false);
    row("missing", CatalogSearchState::IndexMissing, 0, "Der Suchindex wird noch aufgebaut.", true,
        false);
    row("failed", CatalogSearchState::Failed, 0, "Die Suche ist fehlgeschlagen: <b>disk</b> %1",
        false, true);
}

void tst_SearchWidget::states()
{
    QFETCH(int, state);
    QFETCH(int, hits);
    QFETCH(bool, progress);
    QFETCH(bool, again);
    type("a");
    CatalogSearchResult result;
    result.state = CatalogSearchState(state);
    result.errorText = "<b>disk</b> %1";
    for (int i = 0; i < hits; ++i)
        result.hits.append(searchHit(QString("cat/%1.prj").arg(i)));
    searcher->answer(result);
    QTEST(status(), "text");
    QCOMPARE(titles().size(), hits);
    QCOMPARE(view->emptyText(), hits > 0 ? QString() : status());
    QCOMPARE(child<QProgressBar>("searchProgress")->isVisible(), progress);
    QCOMPARE(child<QPushButton>("searchAgain")->isVisible(), again);
    QCOMPARE(child<QLabel>("searchStatus")->textFormat(), Qt::PlainText);
}

void tst_SearchWidget::indexMissingStartsTheUpdate()
{
    type("a");
    CatalogSearchResult missing;
    missing.state = CatalogSearchState::IndexMissing;
    searcher->answer(missing);
    QCOMPARE(searcher->updates, 2);
    searcher->updating = true;
    type("ab");
    searcher->answer(missing);
    QCOMPARE(searcher->updates, 2); // it is under way
    // One that failed while the search was under way is tried once more, and then told.
    searcher->updating = false;
    type("abc");
    Q_EMIT searcher->updateFinished("no space left");
    CatalogSearchResult building;
    building.state = CatalogSearchState::IndexBuilding;
    searcher->answer(building);
    QCOMPARE(searcher->updates, 3);
    Q_EMIT searcher->updateFinished("no space left");
    QCOMPARE(status(), QString("Der Suchindex konnte nicht aufgebaut werden: no space left"));
}

void tst_SearchWidget::resultsFollowTheIndex()
{
    type("a");
    CatalogSearchResult building = searchResult({searchHit("cat/a.prj")});
    building.state = CatalogSearchState::IndexBuilding;
    searcher->answer(building);
    Q_EMIT searcher->updateFinished(QString());
    QVERIFY(!child<QProgressBar>("searchProgress")->isVisible());
    QCOMPARE(searcher->queries.size(), 2);
    QCOMPARE(searcher->queries[0], searcher->queries[1]);
    searcher->answer(searchResult({searchHit("cat/a.prj"), searchHit("cat/b.prj")}));
    QCOMPARE(status(), QString("2 Projekte gefunden"));
}

void tst_SearchWidget::showsWhatTheIndexHasSoFar()
{
    type("a");
    CatalogSearchResult building;
    building.state = CatalogSearchState::IndexBuilding;
    searcher->answer(building);
    Q_EMIT searcher->updateProgress(1, 9);
    QCOMPARE(searcher->queries.size(), 1); // not at each step
    int done = 1;
    const auto goOn = [&] {
        Q_EMIT searcher->updateProgress(++done, 9999);
        return searcher->queries.size() == 2;
    };
    QTRY_VERIFY(goOn());
    QCOMPARE(status(), QString("Der Suchindex wird noch aufgebaut."));
    building.hits = {searchHit("cat/a.prj")};
    searcher->answer(building);
    QCOMPARE(titles().size(), 1);
    Q_EMIT searcher->updateFinished(QString());
    QCOMPARE(searcher->queries.size(), 3);
}

void tst_SearchWidget::updateFails()
{
    type("a");
    CatalogSearchResult building;
    building.state = CatalogSearchState::IndexBuilding;
    searcher->answer(building);
    Q_EMIT searcher->updateFinished("no space left");
    QCOMPARE(status(), QString("Der Suchindex konnte nicht aufgebaut werden: no space left"));
    QVERIFY(child<QPushButton>("searchAgain")->isVisible());
    // An index of former times still answers.
    type("ab");
    searcher->answer(searchResult({searchHit("cat/a.prj")}));
    Q_EMIT searcher->updateFinished("no space left");
    QCOMPARE(status(), QString("1 Projekt gefunden"));
}

void tst_SearchWidget::retry()
{
    type("a");
    CatalogSearchResult failed;
    failed.state = CatalogSearchState::Failed;
    searcher->answer(failed);
    QTest::mouseClick(child<QPushButton>("searchAgain"), Qt::LeftButton);
    QCOMPARE(searcher->updates, 2);
    QCOMPARE(searcher->queries.size(), 2);
    QVERIFY(!child<QPushButton>("searchAgain")->isVisible());
}

void tst_SearchWidget::progress()
{
    auto *const bar = child<QProgressBar>("searchProgress");
    Q_EMIT searcher->updateProgress(12, 195);
    QVERIFY(bar->isVisible());
    QCOMPARE(bar->value(), 12);
    QCOMPARE(bar->maximum(), 195);
    QCOMPARE(bar->text(), QString("12 von 195 Projekten"));
    Q_EMIT searcher->updateProgress(1, 1);
    QCOMPARE(bar->text(), QString("1 von 1 Projekt"));
    Q_EMIT searcher->updateProgress(0, 0); // a number that is not known yet
    QCOMPARE(bar->maximum(), 0);
}

void tst_SearchWidget::moreThanTheLimit()
{
    type("a");
    CatalogSearchResult result = searchResult({searchHit("cat/a.prj"), searchHit("cat/b.prj")});
    result.hasMore = true;
    searcher->answer(result);
    QCOMPARE(status(), QString("Die ersten 2 Projekte; es gibt mehr. Suchen Sie genauer."));
}

void tst_SearchWidget::conditions()
{
    QTest::mouseClick(child<QToolButton>("conditionAdd"), Qt::LeftButton);
    auto *const variable = child<QLineEdit>("conditionVariable");
    QVERIFY(variable->hasFocus());
    QTest::keyClicks(variable, "Dia");
    QTest::qWait(300);
    QCOMPARE(searcher->queries.size(), 0); // not complete
    QTest::keyClicks(child<QLineEdit>("conditionValue"), "12");
    QTRY_COMPARE(searcher->queries.size(), 1);
    QCOMPARE(query().conditions.size(), 1);
    QCOMPARE(query().conditions[0].variable, QString("Dia"));
    QCOMPARE(query().conditions[0].low, QString("12"));
    type("din");
    QCOMPARE(query().text, QString("din"));
    QCOMPARE(query().conditions.size(), 1);
}

void tst_SearchWidget::conditionOperators_data()
{
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("op");
    using Condition = CatalogSearchCondition;
    QTest::newRow("equal") << "=" << int(Condition::Equal);
    QTest::newRow("not equal") << "≠" << int(Condition::NotEqual);
    QTest::newRow("less") << "<" << int(Condition::Less);
    QTest::newRow("less or equal") << "≤" << int(Condition::LessEqual);
    QTest::newRow("greater") << ">" << int(Condition::Greater);
    QTest::newRow("greater or equal") << "≥" << int(Condition::GreaterEqual);
    QTest::newRow("range") << "von–bis" << int(Condition::Between);
    QTest::newRow("contains") << "enthält" << int(Condition::Contains);
    QTest::newRow("begins") << "beginnt mit" << int(Condition::StartsWith);
}

void tst_SearchWidget::conditionOperators()
{
    QFETCH(QString, shown);
    QFETCH(int, op);
    QTest::mouseClick(child<QToolButton>("conditionAdd"), Qt::LeftButton);
    QTest::keyClicks(child<QLineEdit>("conditionVariable"), "L");
    QTest::keyClicks(child<QLineEdit>("conditionValue"), "10");
    child<QComboBox>("conditionOperator")->setCurrentText(shown);
    auto *const high = child<QLineEdit>("conditionHigh");
    const bool isRange = op == CatalogSearchCondition::Between;
    QCOMPARE(high->isVisible(), isRange);
    if (isRange)
        QTest::keyClicks(high, "20");
    QTest::keyClick(child<QLineEdit>("conditionValue"), Qt::Key_Return);
    QCOMPARE(query().conditions.size(), 1);
    QCOMPARE(int(query().conditions[0].op), op);
    QCOMPARE(query().conditions[0].high, isRange ? QString("20") : QString());
}

void tst_SearchWidget::conditionIsRemoved()
{
    conditions();
    QTest::mouseClick(child<QToolButton>("conditionRemove"), Qt::LeftButton);
    QCOMPARE(query().conditions.size(), 0);
    QCOMPARE(query().text, QString("din"));
    QTRY_VERIFY(!child<QLineEdit>("conditionVariable"));
}

void tst_SearchWidget::requestIsShown()
{
    const PRefPtr<RemoteSearchRequestDataC> request(new RemoteSearchRequestDataC);
    const PRefPtr<IndexTreeKeySearchC> words(new IndexTreeKeySearchC(IndexTreeC::instance()));
    words->setKeyWord("iso 4014");
    request->addSearchClass(words);
    const PRefPtr<IndexTreeVarSearchC> lines(new IndexTreeVarSearchC(IndexTreeC::instance()));
    lines->addCondition(
        new IndexTreeVarSearchConditionC("L", CatalogSearchCondition::Between, "5", "9", "mm"));
    request->addSearchClass(lines);
    top->setRequestData(request);
    QCOMPARE(child<QLineEdit>("searchWords")->text(), QString("iso 4014"));
    QCOMPARE(child<QLineEdit>("conditionVariable")->text(), QString("L"));
    QCOMPARE(child<QComboBox>("conditionOperator")->currentText(), QString("von–bis"));
    QCOMPARE(child<QLineEdit>("conditionHigh")->text(), QString("9"));
    QCOMPARE(searcher->queries.size(), 1);
    QCOMPARE(query(), CatalogSearchQuery::fromRequest(*request)); // the unit is not lost
    top->setRequestData(nullptr);
    QCOMPARE(child<QLineEdit>("searchWords")->text(), QString());
    QVERIFY(!child<QLineEdit>("conditionVariable"));
}

void tst_SearchWidget::fullTextConditionIsTheWords()
{
    const PRefPtr<RemoteSearchRequestDataC> request = top->getRequestData();
    const PRefPtr<IndexTreeVarSearchC> lines(new IndexTreeVarSearchC(IndexTreeC::instance()));
    lines->addCondition(
        new IndexTreeVarSearchConditionC(" ", CatalogSearchCondition::Contains, "din", "", ""));
    request->addSearchClass(lines);
    top->setRequestData(request);
    QCOMPARE(child<QLineEdit>("searchWords")->text(), QString("din"));
    QVERIFY(!child<QLineEdit>("conditionVariable"));
    QCOMPARE(query().text, QString("din"));
    type("iso");
    QCOMPARE(query().text, QString("iso")); // not both
    const PRefPtr<IndexTreeKeySearchC> words(new IndexTreeKeySearchC(IndexTreeC::instance()));
    words->setKeyWord("4014");
    request->addSearchClass(words);
    top->setRequestData(request);
    QCOMPARE(child<QLineEdit>("searchWords")->text(), QString("4014 din"));
    QCOMPARE(query().text, QString("4014 din")); // each once
    const auto *const search = dynamic_cast<IndexTreeVarSearchC *>(
        top->getRequestData()->getSearchClassByName(IndexTreeVarSearchC::searchName(), true).get());
    QVERIFY(search);
}

void tst_SearchWidget::requestIsACopy()
{
    const PRefPtr<RemoteSearchRequestDataC> request = top->getRequestData();
    request->setNodeList({IndexTreeC::instance()->findNodeByTreePath("cat/cat", "")});
    QCOMPARE(top->getRequestData()->getNodeList().size(), 0);
    top->setRequestData(request);
    request->setNodeList({});
    QCOMPARE(top->getRequestData()->getNodeList().size(), 1);
}

void tst_SearchWidget::scope()
{
    auto *const box = child<QCheckBox>("searchScope");
    QVERIFY(!box->isVisible());
    const auto item = [](const char *path) {
        return IndexTreeDisplayItemC::createFromNode(
            IndexTreeC::instance()->findNodeByTreePath(path, ""));
    };
    top->onIndexNodeSelected(item("cat/dog & co"));
    QVERIFY(box->isVisible());
    QCOMPARE(box->text(), QString("Nur in dog && co suchen"));
    type("a");
    QCOMPARE(query().below, QStringList{"dog & co"});
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    QCOMPARE(query().below, QStringList());
    top->onIndexNodeSelected(item("cat/cat/m/c.prj")); // of a project its directory
    QCOMPARE(query().below, QStringList{"cat/m"});
    top->onIndexNodeSelected(nullptr);
    QCOMPARE(query().below, QStringList{"cat/m"});
}

void tst_SearchWidget::fixedScope()
{
    const PRefPtr<RemoteSearchRequestDataC> request = top->getRequestData();
    request->setNodeList({IndexTreeC::instance()->findNodeByTreePath("cat/cat", "")});
    request->setNodeListType("_siFixedCat");
    top->setRequestData(request);
    auto *const box = child<QCheckBox>("searchScope");
    QVERIFY(box->isVisible());
    QVERIFY(!box->isEnabled());
    top->onIndexNodeSelected(IndexTreeDisplayItemC::createFromNode(
        IndexTreeC::instance()->findNodeByTreePath("cat/dog & co", "")));
    type("a");
    QCOMPARE(query().below, QStringList{"cat"});
}

void tst_SearchWidget::tiles()
{
    type("a");
    CatalogSearchHit hit = searchHit("cat/m/c.prj", "Schrauben", 190);
    hit.normNumber = "DIN 931";
    hit.matchingLines = 5;
    hit.lines = {{3, "M12 x 40"}, {4, "M12 x 50"}};
    searcher->answer(searchResult({hit, searchHit("cat/a.prj", "", 1), searchHit("cat/b.prj")}));
    QCOMPARE(titles(), (QStringList{"DIN 931 – Schrauben", "a.prj", "b.prj"}));
    const QModelIndex first = view->model()->index(0, 0);
    QCOMPARE(first.data(Qt::UserRole).toString(), QString("cat/m/c.prj"));
    QCOMPARE(first.data(Qt::UserRole + 1).toString(), QString("190 Zeilen"));
    QCOMPARE(first.data(Qt::UserRole + 2).toStringList(),
             (QStringList{"3: M12 x 40", "4: M12 x 50", "und 3 weitere"}));
    QCOMPARE(first.data(Qt::AccessibleTextRole).toString(),
             QString("DIN 931 – Schrauben, cat/m/c.prj, 190 Zeilen, 3: M12 x 40; 4: M12 x 50; und "
                     "3 weitere"));
    QVERIFY(!first.data(Qt::DecorationRole).value<QIcon>().isNull());
    QCOMPARE(view->model()->index(1, 0).data(Qt::UserRole + 1).toString(), QString("1 Zeile"));
    QCOMPARE(view->model()->index(2, 0).data(Qt::UserRole + 1).toString(), QString());
    // A tile is as high as its lines.
    QVERIFY(view->visualRect(first).height() >
            view->visualRect(view->model()->index(1, 0)).height());
}

void tst_SearchWidget::tilesUnderModelTester()
{
    const QAbstractItemModelTester tester(view->model(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    view->showResults(std::make_shared<const CatalogSearchResult>(
        searchResult({searchHit("cat/a.prj"), searchHit("cat/b.prj")})));
    view->showResults(
        std::make_shared<const CatalogSearchResult>(searchResult({searchHit("cat/b.prj")})));
    view->showResults(nullptr);
    QCOMPARE(view->model()->rowCount(), 0);
}

void tst_SearchWidget::hostileTexts()
{
    type("a");
    CatalogSearchHit hit =
        searchHit("cat/<b>x</b>\n.prj", "<img src='file:///x'>\r\n\x07 title " + QString(900, 'x'));
    hit.lines = {{1, "<h1>a\nb</h1>"}};
    searcher->answer(searchResult({hit}));
    const QModelIndex index = view->model()->index(0, 0);
    QVERIFY(index.data().toString().startsWith("<img src='file:///x'> \uFFFD title xxx"));
    QVERIFY(index.data().toString().size() <= 300);
    QCOMPARE(index.data(Qt::UserRole).toString(), QString("cat/<b>x</b> .prj"));
    QCOMPARE(index.data(Qt::UserRole + 2).toStringList(), QStringList{"1: <h1>a b</h1>"});
    QVERIFY(!view->grab().isNull());
    view->setCurrentIndex(index);
    QCOMPARE(view->getSelectedItems().size(), 0); // there is no such project
}

void tst_SearchWidget::selection()
{
    type("a");
    searcher->answer(searchResult({searchHit("cat/a.prj"), searchHit("cat/m/c.prj")}));
    const QSignalSpy doubled(view, &QAbstractItemView::doubleClicked);
    const QPoint place = view->visualRect(view->model()->index(1, 0)).center();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(doubled.size(), 1);
    const auto items = view->getSelectedItems();
    QCOMPARE(items.size(), 1);
    QCOMPARE(items[0]->data(DisplayIndexC(QVariant(35), QVariant(4))).toString(),
             QString("cat/m/c.prj"));
    QVERIFY(items[0]->canSelect());
    // What is selected stays so in further results that have it.
    type("ab");
    searcher->answer(searchResult({searchHit("cat/m/c.prj"), searchHit("cat/b.prj")}));
    QCOMPARE(view->currentIndex().row(), 0);
    QCOMPARE(view->getSelectedItems().size(), 1);
    type("abc");
    searcher->answer(searchResult({searchHit("cat/b.prj")}));
    QCOMPARE(view->getSelectedItems().size(), 0);
}

void tst_SearchWidget::selectionOfVanishedProject()
{
    type("a");
    searcher->answer(searchResult({searchHit("cat/gone.prj")}));
    view->setCurrentIndex(view->model()->index(0, 0));
    QCOMPARE(view->selectionModel()->selectedIndexes().size(), 1);
    QCOMPARE(view->getSelectedItems().size(), 0);
}

void tst_SearchWidget::clearingAnnouncesTheSelection()
{
    type("a");
    searcher->answer(searchResult({searchHit("cat/a.prj")}));
    view->setCurrentIndex(view->model()->index(0, 0));
    const QSignalSpy changed(view->selectionModel(), &QItemSelectionModel::selectionChanged);
    view->showResults(nullptr);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(view->getSelectedItems().size(), 0);
}

void tst_SearchWidget::keyboardAlone()
{
    auto *const words = child<QLineEdit>("searchWords");
    QTest::keyClick(words, Qt::Key_Down); // nothing there yet
    QVERIFY(words->hasFocus());
    type("a");
    searcher->answer(searchResult({searchHit("cat/a.prj"), searchHit("cat/b.prj")}));
    QTest::keyClick(words, Qt::Key_Down);
    QVERIFY(view->hasFocus());
    QCOMPARE(view->currentIndex().row(), 0);
    QCOMPARE(view->getSelectedItems().size(), 1);
    QTest::keyClick(view, Qt::Key_Down);
    QCOMPARE(view->currentIndex().row(), 1);
    QTest::keyClick(view, Qt::Key_Up);
    QCOMPARE(view->currentIndex().row(), 0);
    QTest::keyClick(view, Qt::Key_Up);
    QVERIFY(words->hasFocus());
    // By Tab as well.
    view->clearSelection();
    while (!view->hasFocus())
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(view->getSelectedItems().size(), 1);
    // The mouse selects what it hits, and nothing else.
    words->setFocus();
    view->clearSelection();
    view->setFocus(Qt::MouseFocusReason);
    QCOMPARE(view->getSelectedItems().size(), 0);
}

void tst_SearchWidget::recentWords()
{
    const QTemporaryDir dir;
    const PRefPtr<PConfig> config(new PConfigInst(dir.filePath("app.cfg"), false));
    group->SetAppConfig(config);
    type("  din   931 ");
    searcher->answer(searchResult({searchHit("cat/a.prj")}));
    QCOMPARE(group->recentWords(), QStringList()); // only what led to something
    const QPoint place = view->visualRect(view->model()->index(0, 0)).center();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(group->recentWords(), QStringList{"din 931"});
    QCOMPARE(child<QLineEdit>("searchWords")->completer()->model()->rowCount(), 1);
    for (int i = 0; i < 12; ++i)
        group->addRecentWords(QString::number(i));
    group->addRecentWords("5");
    FileTreeGroup other(0);
    other.setSearcher(std::make_unique<FakeSearcher>());
    other.SetAppConfig(config);
    other.Init();
    QCOMPARE(other.recentWords(),
             (QStringList{"5", "11", "10", "9", "8", "7", "6", "4", "3", "2"}));
    FileTreeGroup second(1);
    second.setSearcher(std::make_unique<FakeSearcher>());
    second.SetAppConfig(config);
    second.Init();
    QCOMPARE(second.recentWords(), QStringList());
}

void tst_SearchWidget::groupGoesFirst()
{
    type("a");
    group.reset();
    type("ab");
    QCOMPARE(status(), QString("Die Suche steht nicht zur Verfügung."));
    const QPoint place = view->viewport()->rect().center();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place);
    widget.reset();
}

void tst_SearchWidget::withoutGroup()
{
    SearchWidget alone({"KeySearch"}, nullptr);
    alone.show();
    QVERIFY(!alone.findChild<QToolButton *>("conditionAdd")->isVisible());
    QCOMPARE(alone.findChild<QLabel *>("searchStatus")->text(),
             QString("Die Suche steht nicht zur Verfügung."));
}

QTEST_MAIN(tst_SearchWidget)
#include "tst_SearchWidget.moc"

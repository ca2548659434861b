// A release settled to its end by keys alone, as a modeller would; what it costs is counted.
#include "ModalScript.h"
#include "WindowFixture.h"

#include <geomcore/records/MappingFile.h>
#include <geomcoregui/table/VkTableView.h>
#include <workbench/review/NeighbourDock.h>
#include <workbench/review/PatternDock.h>
#include <workbench/review/PatternModel.h>
#include <workbench/session/MappingDocument.h>
#include <workbench/window/DocumentDesk.h>
#include <workbench/window/EditorArea.h>
#include <workbench/window/LineCommands.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/NeighbourCommands.h>
#include <workbench/window/ReviewCommands.h>

#include <QTest>
#include <QTreeView>

namespace {

/// Counts what it does.
class Modeller : public WindowFixture
{
public:
    Modeller() { open(mappingFile()); }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        ++m_keys;
        press(key, modifiers);
        // What follows from the decision.
        QCoreApplication::processEvents();
    }
    /// Of a key that a dialog got.
    void countKey() { ++m_keys; }
    /// Presses a key as a decision on lines; false if nothing was decided.
    bool decide(Qt::Key what, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        const int before = openLines();
        key(what, modifiers);
        m_decisions += openLines() < before ? 1 : 0;
        return openLines() < before;
    }

    [[nodiscard]] int keys() const { return m_keys; }
    [[nodiscard]] int decisions() const { return m_decisions; }
    [[nodiscard]] int openLines() const { return window->lines()->openLines().count(); }
    [[nodiscard]] ReviewCommands *review() const { return window->review(); }
    [[nodiscard]] MappingDocument *document() const { return window->desk()->document(); }

private:
    int m_keys = 0;
    int m_decisions = 0;
};

} // namespace

class tst_WholeRelease : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settledByKeys();
    void aHundredDecisions();
};

void tst_WholeRelease::settledByKeys()
{
    Modeller modeller;
    const int open = modeller.openLines();
    QVERIFY(open > 300);
    modeller.key(Qt::Key_F7);
    QVERIFY(QTest::qWaitFor([&] { return modeller.review()->work()->hasPatterns(); }, 20000));
    QCoreApplication::processEvents();
    modeller.key(Qt::Key_Return);
    ModalScript script;
    // Whole patterns; those in doubt are left for a look at each line.
    const ReviewWork *const work = modeller.review()->work();
    for (int chosen = modeller.review()->dock()->chosen(); chosen >= 0;
         chosen = modeller.review()->dock()->chosen()) {
        if (work->patterns().gone(chosen)) {
            // No successor, for the reason that is suggested.
            script.then([&modeller](QWidget *dialog) {
                modeller.countKey();
                QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
            });
            QVERIFY(modeller.decide(Qt::Key_Return, Qt::ControlModifier));
            continue;
        }
        if (!work->patterns().isDoubtful(chosen)) {
            QVERIFY(modeller.decide(Qt::Key_Return, Qt::ControlModifier));
            continue;
        }
        // Each line of it: the proposal is taken, and the next one follows by itself.
        while (modeller.review()->dock()->chosen() == chosen)
            QVERIFY(modeller.decide(Qt::Key_V));
    }
    QVERIFY(script.isDone());
    // Nobody's assignments contradict those of their neighbours.
    modeller.key(Qt::Key_F7, Qt::ControlModifier);
    const NeighbourWork *const neighbours = modeller.window->neighbours()->work();
    QVERIFY(QTest::qWaitFor(
        [&] { return !neighbours->isReading() && neighbours->checkedLines() > 0; }, 20000));
    QCOMPARE(neighbours->places().size(), 0U);
    QCOMPARE(modeller.openLines(), 0);
    qInfo("%d open lines: %d decisions, %d keys", open, modeller.decisions(), modeller.keys());
    QVERIFY(modeller.decisions() < open / 5);
    QVERIFY(modeller.keys() < modeller.decisions() * 2);
    modeller.key(Qt::Key_S, Qt::ControlModifier);
    MappingFile file;
    QVERIFY(file.read(modeller.document()->mappingFile()));
    const ReleaseMappingC saved = file.releases().last();
    for (int i = 0; i < saved.countMappings(); ++i) {
        const PrjMappingC mapping = saved.mappingAt(i);
        for (int target = 0; target < mapping.countTargets(); ++target) {
            for (const LineTable::Iterator &entry : mapping.targetAt(target).lines())
                QVERIFY(entry.state() != PRJMAPPING::ToCheck);
        }
    }
}

void tst_WholeRelease::aHundredDecisions()
{
    Modeller modeller;
    modeller.key(Qt::Key_F8);
    for (int i = 0; modeller.decisions() < 100 && i < 130; ++i) {
        // Every tenth line is left for later.
        if (i % 10 == 9)
            modeller.key(Qt::Key_F8);
        else
            QVERIFY(modeller.decide(i % 25 == 24 ? Qt::Key_X : Qt::Key_V,
                                    i % 25 == 24 ? Qt::ControlModifier : Qt::NoModifier));
    }
    QCOMPARE(modeller.decisions(), 100);
    QVERIFY2(modeller.keys() <= 130, qPrintable(QString::number(modeller.keys())));
}

QTEST_MAIN(tst_WholeRelease)
#include "tst_WholeRelease.moc"

// A release settled to its end by keys alone, as a modeller would; what it costs is counted.
#include "../../support/TestCatalog.h"
#include "ModalScript.h"
#include "WindowFixture.h"

#include <core/message/PScriptedMessageSink.h>
#include <geomcore/records/MappingFile.h>
#include <geomcoregui/table/VkTableView.h>
#include <release/import/FolderImport.h>
#include <workbench/review/NeighbourDock.h>
#include <workbench/review/PatternDock.h>
#include <workbench/review/PatternModel.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/document/MappingMaker.h>
#include <workbench/window/editor/LineCommands.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/review/NeighbourCommands.h>
#include <workbench/window/review/ReviewCommands.h>

#include <QTest>
#include <QTreeView>

#include <algorithm>

namespace {

/// Counts what it does.
class Modeller : public WindowFixture
{
public:
    Modeller() { open(mappingFile()); }
    Modeller(const QString &file, const CatalogRoots &roots)
    {
        window->desk()->open({.file = file, .roots = roots});
        QApplication::processEvents();
    }

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

void importTables(const QString &tables, const QString &root, const QString &date)
{
    VelkRelease::ImportOptions options;
    options.date = date;
    options.root = root + QStringLiteral("/parts");
    VelkRelease::FolderImport import(tables, options, {});
    QCOMPARE(import.run(), VelkRelease::FolderImport::Outcome::Done);
}

void makeMapping(const CatalogRoots &roots, const QString &catalog, const QString &file)
{
    const PMessageSinkScope silence(std::make_shared<PScriptedMessageSink>());
    MappingMaker maker;
    QVERIFY(maker.make({.sourceRoot = roots.source,
                        .targetRoot = roots.target,
                        .sourceCatalog = catalog,
                        .targetCatalog = catalog}));
    MappingFile mapping;
    mapping.setRelease(maker.release());
    QVERIFY(mapping.write(file));
}

/// A catalog in two releases, made by rules: tables of a folder change alike, as they do between
/// two editions of a standard, and what became of each line is known.
class MadeRelease
{
public:
    static constexpr int Tables = 10; ///< of each folder
    static constexpr int Lines = 80;  ///< of each table

    explicit MadeRelease(const QString &directory)
        : m_old(directory + QStringLiteral("/old"))
        , m_now(directory + QStringLiteral("/now"))
    {
        for (int folder = 0; folder < 7; ++folder) {
            for (int table = 0; table < Tables; ++table)
                addTable(folder, table);
        }
        makeMapping(roots(), "parts", file());
    }

    [[nodiscard]] QString file() const { return m_old.root() + QStringLiteral("/../m.json"); }
    [[nodiscard]] CatalogRoots roots() const { return {m_old.root(), m_now.root()}; }
    /// Of the line, -1: it has no successor.
    [[nodiscard]] int successor(const QString &project, int line) const
    {
        return m_successors.value(project).value(line - 1, -1);
    }

private:
    void addTable(int folder, int table)
    {
        const QString path = QStringLiteral("parts/f%1/t%2").arg(folder).arg(table);
        const int number = folder * Tables + table;
        const bool isTableGone = folder == 6 || (folder == 5 && table > 7);
        QByteArray old = "Name,Werkstoff,L,D,Text";
        QByteArray now = old;
        int rows = 0;
        QList<int> &successors = m_successors[path + QStringLiteral(".prj")];
        for (int i = 0; i < Lines; ++i) {
            const QByteArray name = 'T' + QByteArray::number(number) + '-';
            const QByteArray series = QByteArray::number(100 + i);
            const int length = 20 + i * 4 + number % 7;
            const int diameter = (isTableGone ? 600 : 3) + (i + number) % 17;
            const bool isGone = isTableGone || (folder == 5 && i % 2 == 1);
            old += ';' + rowOf(name + (folder == 2 ? "S07B " : "") + series,
                               isGone        ? "Cu"
                               : folder == 1 ? "St37-2"
                                             : "8.8",
                               length, diameter, folder == 4 ? "verzinkt" : "blank");
            successors.append(isGone ? -1 : ++rows);
            if (isGone)
                continue;
            // In each table of the first folder some lines are given another surface.
            const QByteArray surface = folder == 4                 ? "galvanisch Zn"
                                       : folder == 0 && i % 25 < 2 ? "E" + QByteArray::number(table)
                                                                   : "blank";
            now += ';' + rowOf(name + (folder == 2 ? "S7B " : "") + series,
                               folder == 1 ? "S235JR" : "8.8", folder == 3 ? length / 2 : length,
                               diameter, surface);
        }
        m_old.add(path, old, {"Name"}, "2021-05-01T10:00:00Z");
        if (rows > 0)
            m_now.add(path, now, {"Name"}, "2022-05-01T10:00:00Z");
    }
    [[nodiscard]] static QByteArray rowOf(const QByteArray &name, const QByteArray &material,
                                          int length, int diameter, const QByteArray &text)
    {
        return name + ',' + material + ',' + QByteArray::number(length) + ',' +
               QByteArray::number(diameter) + ',' + text;
    }

    const TestCatalog m_old;
    const TestCatalog m_now;
    QHash<QString, QList<int>> m_successors;
};

/// All patterns, the largest first, by keys alone; those in doubt line by line.
void settlePatterns(Modeller &modeller)
{
    modeller.key(Qt::Key_F7);
    QVERIFY(QTest::qWaitFor([&] { return modeller.review()->work()->hasPatterns(); }, 20000));
    QCoreApplication::processEvents();
    modeller.key(Qt::Key_Return);
    ModalScript script;
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
    QCOMPARE(modeller.openLines(), 0);
}

} // namespace

class tst_WholeRelease : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settledByKeys();
    void thousandsOfOpenLines();
    void aHundredDecisions();
    void aHundredDecisionsOnTables_data();
    void aHundredDecisionsOnTables();
};

void tst_WholeRelease::settledByKeys()
{
    Modeller modeller;
    const int open = modeller.openLines();
    QVERIFY(open > 300);
    settlePatterns(modeller);
    // Nobody's assignments contradict those of their neighbours.
    modeller.key(Qt::Key_F7, Qt::ControlModifier);
    const NeighbourWork *const neighbours = modeller.window->neighbours()->work();
    QVERIFY(QTest::qWaitFor(
        [&] { return !neighbours->isReading() && neighbours->checkedLines() > 0; }, 20000));
    QCOMPARE(neighbours->places().size(), 0U);
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

/// A few decisions for thousands of lines, and every one of them right.
void tst_WholeRelease::thousandsOfOpenLines()
{
    const QTemporaryDir directory;
    const MadeRelease made(directory.path());
    int open = 0;
    {
        Modeller modeller(made.file(), made.roots());
        open = modeller.openLines();
        QVERIFY2(open >= 3500, qPrintable(QString::number(open)));
        settlePatterns(modeller);
        qInfo("%d open lines: %d decisions, %d keys", open, modeller.decisions(), modeller.keys());
        QVERIFY(modeller.decisions() < 200);
        QVERIFY(modeller.keys() < 2 * modeller.decisions() + 10);
        modeller.key(Qt::Key_S, Qt::ControlModifier);
    }
    MappingFile file;
    QVERIFY(file.read(made.file()));
    const ReleaseMappingC saved = file.releases().last();
    int lines = 0;
    int confirmed = 0;
    for (int i = 0; i < saved.countMappings(); ++i) {
        const PrjMappingC mapping = saved.mappingAt(i);
        for (int target = 0; target < mapping.countTargets(); ++target) {
            for (const LineTable::Iterator &entry : mapping.targetAt(target).lines()) {
                ++lines;
                confirmed += entry.state() == PRJMAPPING::Verified ? 1 : 0;
                QVERIFY(entry.state() != PRJMAPPING::ToCheck);
                QCOMPARE(entry.targetLine(),
                         made.successor(mapping.getSourcePath(), entry.sourceLine()));
            }
        }
    }
    QCOMPARE(lines, 7 * MadeRelease::Tables * MadeRelease::Lines);
    QCOMPARE(confirmed, open);
}

/// VELK_SAMPLE_OLD and VELK_SAMPLE_NEW name folders of CSV tables for one more row.
void tst_WholeRelease::aHundredDecisionsOnTables_data()
{
    QTest::addColumn<QString>("oldTables");
    QTest::addColumn<QString>("newTables");
    QTest::newRow("made by rules") << QString() << QString();
    const QString oldTables = qEnvironmentVariable("VELK_SAMPLE_OLD");
    const QString newTables = qEnvironmentVariable("VELK_SAMPLE_NEW");
    if (!oldTables.isEmpty() && !newTables.isEmpty())
        QTest::newRow("given tables") << oldTables << newTables;
}

/// One key for both: what has a proposal is confirmed, a line without one as discontinued.
void tst_WholeRelease::aHundredDecisionsOnTables()
{
    QFETCH(QString, oldTables);
    QFETCH(QString, newTables);
    const QTemporaryDir directory;
    std::unique_ptr<Modeller> modeller;
    if (oldTables.isEmpty()) {
        const MadeRelease made(directory.path());
        modeller = std::make_unique<Modeller>(made.file(), made.roots());
    } else {
        const CatalogRoots roots{directory.filePath("old"), directory.filePath("new")};
        importTables(oldTables, roots.source, "2021-12-31T12:00:00Z");
        importTables(newTables, roots.target, "2026-06-30T12:00:00Z");
        makeMapping(roots, "parts", directory.filePath("m.json"));
        modeller = std::make_unique<Modeller>(directory.filePath("m.json"), roots);
    }
    const int wanted = std::min(100, modeller->openLines());
    modeller->key(Qt::Key_F8);
    while (modeller->decisions() < wanted && modeller->keys() < 2 * wanted) {
        QVERIFY(modeller->decide(Qt::Key_V));
        // Every tenth line is left for later.
        if (modeller->decisions() % 10 == 9)
            modeller->key(Qt::Key_F8);
    }
    qInfo("%d decisions, %d keys", modeller->decisions(), modeller->keys());
    QCOMPARE(modeller->decisions(), wanted);
    QVERIFY2(modeller->keys() * 10 <= wanted * 13, qPrintable(QString::number(modeller->keys())));
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

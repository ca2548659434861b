#include "../support/TestTables.h"

#include <geomcore/erp/ErpNumberColumn.h>
#include <geomcore/erp/ErpNumberLayer.h>
#include <geomcore/erp/LinkDbErpNumbers.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/linkdb/PLinkDbC.h>
#include <geomcore/table/LayerType.h>
#include <geomcore/table/SignalConnect.h>

#include <QSemaphore>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <thread>

using VKTab::LineId;

namespace {

/// Numbers of a hash, read as slowly as the test wants.
class SlowSource : public ErpNumberSourceI
{
public:
    std::optional<Numbers> numbersOf(const QString &catalogPath, const QList<LineId> &lines,
                                     QString *error) override
    {
        gate.acquire();
        const std::lock_guard guard(lock);
        asked << catalogPath + QStringLiteral(" %1").arg(lines.size());
        onThread = std::this_thread::get_id();
        if (!problem.isEmpty()) {
            *error = problem;
            return std::nullopt;
        }
        return numbers;
    }
    std::optional<QSet<QString>> projectsWithNumbers(const QStringList &, QString *) override
    {
        return std::nullopt;
    }

    QSemaphore gate;
    std::mutex lock;
    QStringList asked;
    Numbers numbers;
    QString problem;
    std::thread::id onThread;
};

} // namespace

class tst_ErpNumbers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void linkDatabase();
    void conditionOfTheGroup();
    void withoutDatabase();
    void manyLinesAndProjects();
    void marksOfTheTree();
    void columnFillsItself();
    void whatIsNotLookedAtIsNotRead();
    void manyLinesAreOneQuestion();
    void failuresAreToldOnce();
    void refreshes();
    void anotherTable();
    void endsWhileReading();
    void singleLine();

private:
    void insert(const QString &path, int line, int sub, const QVariant &number);
    [[nodiscard]] static QString shown(const VKTab::Content &table, int line);

    QTemporaryDir m_dir;
    PRefPtr<PLinkDbC> m_linkDb;
};

void tst_ErpNumbers::initTestCase()
{
    m_linkDb = new PLinkDbC;
    LinkDbSettings settings;
    settings.kind = LinkDbSettings::Kind::SQLite;
    settings.file = m_dir.filePath("links.db");
    QVERIFY2(m_linkDb->open(settings), qPrintable(m_linkDb->lastError().text));
    const QString hostile = QStringLiteral("cat/o'Brien %1 \"x\".prj");
    insert("cat/a.prj", 1, 0, "4711");
    insert("cat/a.prj", 1, 0, "0815");
    insert("cat/a.prj", 1, 0, "0815");
    insert("cat/a.prj", 1, 2, "sub");
    insert("cat/a.prj", 2, 0, "");
    insert("cat/a.prj", 3, 0, QVariant());
    insert("cat/a.prj", 4, 0, "it's %1");
    insert("cat/b.prj", 1, 0, "other");
    insert("cat/empty.prj", 1, 0, "");
    insert(hostile, 7, 0, "h");
    QVERIFY(m_linkDb->commit());
}

void tst_ErpNumbers::cleanup()
{
    PLinkDbC::setInstance({});
}

void tst_ErpNumbers::insert(const QString &path, int line, int sub, const QVariant &number)
{
    PLinkDbRecordC record = m_linkDb->createRecord(QStringLiteral("plm_document"));
    record.setValue("PRJ_PATH", path);
    record.setValue("LINE_ID", line);
    record.setValue("LINE_SUBID", sub);
    if (number.isValid())
        record.setValue("PDMID1", number);
    QVERIFY(m_linkDb->executeInsertStatement(
        m_linkDb->createSqlStatement(QStringLiteral("plm_document"), record, false)));
}

void tst_ErpNumbers::linkDatabase()
{
    LinkDbErpNumbers source(m_linkDb);
    QString error;
    const auto all = source.numbersOf("cat/a.prj", {}, &error);
    QVERIFY2(all, qPrintable(error));
    const ErpNumberSourceI::Numbers expected{
        {LineId(1), {"0815", "4711"}}, {LineId(1, 2), {"sub"}}, {LineId(4), {"it's %1"}}};
    QCOMPARE(*all, expected);
    const ErpNumberSourceI::Numbers one{{LineId(1, 2), {"sub"}}};
    QCOMPARE(source.numbersOf("cat/a.prj", {LineId(1, 2), LineId(3)}, nullptr).value(), one);
    QCOMPARE(source.numbersOf("cat/o'Brien %1 \"x\".prj", {}, nullptr).value().size(), 1);
    QCOMPARE(source.numbersOf("none", {}, nullptr).value().size(), 0);
    QCOMPARE(erpNumberText(all->value(LineId(1))), QStringLiteral("0815; 4711"));
}

void tst_ErpNumbers::conditionOfTheGroup()
{
    LinkDbErpNumbers source(m_linkDb);
    QVERIFY(m_linkDb->setGroupInformation("standard", "PDM_CONDITION",
                                          "PDMID1 = '4711' OR PDMID1 = 'h'"));
    QVERIFY(m_linkDb->changeGroup("standard"));
    const ErpNumberSourceI::Numbers expected{{LineId(1), {"4711"}}};
    QCOMPARE(source.numbersOf("cat/a.prj", {}, nullptr).value(), expected);
    QCOMPARE(source.numbersOf("cat/b.prj", {}, nullptr).value().size(), 0);
    QVERIFY(m_linkDb->setGroupInformation("standard", "PDM_CONDITION", "no such column"));
    QVERIFY(m_linkDb->changeGroup("standard"));
    QString error;
    QVERIFY(!source.numbersOf("cat/a.prj", {}, &error));
    QVERIFY(!error.isEmpty());
    QVERIFY(!source.projectsWithNumbers({"cat/a.prj"}, &error));
    QVERIFY(m_linkDb->setGroupInformation("standard", "PDM_CONDITION", ""));
    QVERIFY(m_linkDb->changeGroup("standard"));
    QVERIFY(m_linkDb->commit());
}

void tst_ErpNumbers::withoutDatabase()
{
    LinkDbErpNumbers source;
    QString error;
    QVERIFY(!source.numbersOf("cat/a.prj", {}, &error));
    QCOMPARE(error, QStringLiteral("Es ist keine Linkdatenbank verbunden."));
    QVERIFY(source.markedProjects({"cat/a.prj"}).isEmpty());
    PLinkDbC::setInstance(m_linkDb);
    QCOMPARE(source.numbersOf("cat/b.prj", {}, &error).value().size(), 1);
}

void tst_ErpNumbers::manyLinesAndProjects()
{
    LinkDbErpNumbers source(m_linkDb);
    QList<LineId> lines;
    QStringList paths;
    for (int i = 4; i < 2000; ++i) {
        lines << LineId(i);
        paths << QStringLiteral("cat/%1.prj").arg(i);
    }
    QCOMPARE(source.numbersOf("cat/a.prj", lines, nullptr).value().keys(), QList{LineId(4)});
    paths << "cat/a.prj"
          << "cat/b.prj"
          << "cat/empty.prj";
    const QSet<QString> expected{"cat/a.prj", "cat/b.prj"};
    QCOMPARE(source.projectsWithNumbers(paths, nullptr).value(), expected);
    QCOMPARE(source.projectsWithNumbers({}, nullptr).value(), QSet<QString>());
}

void tst_ErpNumbers::marksOfTheTree()
{
    const auto source = std::make_shared<LinkDbErpNumbers>(m_linkDb);
    IndexTreeC::instance()->setErpSource(source);
    QCOMPARE(IndexTreeC::instance()->erpSource()->markedProjects({"cat/a.prj", "cat/empty.prj"}),
             QSet<QString>{"cat/a.prj"});
    IndexTreeC::instance()->setErpSource({});
}

QString tst_ErpNumbers::shown(const VKTab::Content &table, int line)
{
    const VKTab::Var var = table.getVar(QString::fromLatin1(ErpNumberLayer::columnName));
    return table.getLine(line, false).getValue(var, {}).toString();
}

void tst_ErpNumbers::columnFillsItself()
{
    const auto source = std::make_shared<SlowSource>();
    source->numbers = {{LineId(1), {"a", "b"}}, {LineId(3), {"c"}}};
    VKTab::ContentRef table = TestTables::screws();
    int changes = 0;
    const boost::signals2::scoped_connection connection =
        table.signalConnect().connectSignalInvalidated(
            [&](const VKTab::Content &, VKTab::Content::InvalidateFlags flags) {
                changes += flags.testFlag(VKTab::Content::InvalidateValues) ? 1 : 0;
            });
    ErpNumberColumn column(source);
    column.attach(table, "cat/a.prj");
    const VKTab::Var var = table.getVar(QString::fromLatin1(ErpNumberLayer::columnName));
    QVERIFY(var.isValid());
    QCOMPARE(var.getDescription(), QStringLiteral("ERP-Nummer"));
    QCOMPARE(var.getVarSource(), VKTab::erpLayerType());
    changes = 0;
    QCOMPARE(shown(table, 1), QString());
    QCOMPARE(shown(table, 2), QString());
    QTRY_VERIFY(column.isReading());
    // Looked at meanwhile: for the next question.
    QCOMPARE(shown(table, 3), QString());
    source->gate.release(2);
    QTRY_COMPARE(shown(table, 3), QStringLiteral("c"));
    QCOMPARE(shown(table, 1), QStringLiteral("a; b"));
    QCOMPARE(shown(table, 2), QString());
    const QStringList asked{"cat/a.prj 2", "cat/a.prj 1"};
    QCOMPARE(source->asked, asked);
    QCOMPARE(changes, 2);
    QVERIFY(source->onThread != std::this_thread::get_id());
    QVERIFY(table.isPlain());
    QTest::qWait(20);
    QCOMPARE(source->asked, asked);
}

void tst_ErpNumbers::whatIsNotLookedAtIsNotRead()
{
    const auto source = std::make_shared<SlowSource>();
    source->gate.release(10);
    const VKTab::ContentRef table = TestTables::screws();
    ErpNumberColumn column(source);
    column.attach(table, "cat/a.prj");
    static_cast<void>(table.getLine(1, false).getValue(table.getVar(u"Dia"), {}));
    QTest::qWait(20);
    QCOMPARE(source->asked, QStringList());
}

void tst_ErpNumbers::manyLinesAreOneQuestion()
{
    const auto source = std::make_shared<SlowSource>();
    source->gate.release(10);
    QString lines = "Dia,L,Note,Weight\n";
    for (int i = 0; i < 1000; ++i)
        lines += "1,2,a,0\n";
    const VKTab::ContentRef table = TestTables::table(TestTables::screwDescriptor(), lines);
    ErpNumberColumn column(source);
    column.attach(table, "cat/a.prj");
    for (int line = 1; line <= 1000; ++line)
        static_cast<void>(shown(table, line));
    QTRY_COMPARE(source->asked, QStringList{"cat/a.prj 0"});
}

void tst_ErpNumbers::failuresAreToldOnce()
{
    const auto source = std::make_shared<SlowSource>();
    source->problem = "gone";
    source->gate.release(10);
    const VKTab::ContentRef table = TestTables::screws();
    ErpNumberColumn column(source);
    const QSignalSpy failed(&column, &ErpNumberColumn::failed);
    column.attach(table, "cat/a.prj");
    static_cast<void>(shown(table, 1));
    QTRY_COMPARE(failed.size(), 1);
    QCOMPARE(failed.at(0).at(0).toString(), QStringLiteral("gone"));
    static_cast<void>(shown(table, 2));
    QTRY_COMPARE(source->asked.size(), 2);
    QTRY_VERIFY(!column.isReading());
    static_cast<void>(shown(table, 1)); // not again
    QTest::qWait(20);
    QCOMPARE(source->asked.size(), 2);
    QCOMPARE(failed.size(), 1);
}

void tst_ErpNumbers::refreshes()
{
    const auto source = std::make_shared<SlowSource>();
    source->numbers = {{LineId(1), {"a"}}};
    source->gate.release(10);
    const VKTab::ContentRef table = TestTables::screws();
    ErpNumberColumn column(source);
    column.refresh(); // of nothing
    column.attach(table, "cat/a.prj");
    QTRY_COMPARE(shown(table, 1), QStringLiteral("a"));
    {
        const std::lock_guard guard(source->lock);
        source->numbers.clear();
    }
    column.refresh();
    QTRY_COMPARE(shown(table, 1), QString());
    column.attach({}, {});
}

void tst_ErpNumbers::anotherTable()
{
    const auto source = std::make_shared<SlowSource>();
    source->numbers = {{LineId(1), {"a"}}};
    const VKTab::ContentRef first = TestTables::screws();
    const VKTab::ContentRef second = TestTables::screws();
    ErpNumberColumn column(source);
    column.attach(first, "cat/a.prj");
    static_cast<void>(shown(first, 1));
    QTRY_VERIFY(column.isReading());
    column.attach(second, "cat/b.prj");
    static_cast<void>(shown(second, 1));
    source->gate.release(2);
    QTRY_COMPARE(shown(second, 1), QStringLiteral("a"));
    QCOMPARE(shown(first, 1), QString());
    const QStringList asked{"cat/a.prj 1", "cat/b.prj 1"};
    QCOMPARE(source->asked, asked);
}

void tst_ErpNumbers::endsWhileReading()
{
    const auto source = std::make_shared<SlowSource>();
    source->numbers = {{LineId(1), {"a"}}};
    const VKTab::ContentRef table = TestTables::screws();
    {
        ErpNumberColumn column(source);
        column.attach(table, "cat/a.prj");
        static_cast<void>(shown(table, 1));
        QTRY_VERIFY(column.isReading());
        source->gate.release();
    }
    static_cast<void>(shown(table, 2)); // nobody reads any more
    QCoreApplication::processEvents();
    QCOMPARE(shown(table, 1), QString());
}

/// As the document dialog asks for it.
void tst_ErpNumbers::singleLine()
{
    const VKTab::ContentRef table = TestTables::screws();
    ErpNumberColumn column(std::make_shared<LinkDbErpNumbers>(m_linkDb));
    column.attach(table, "cat/a.prj");
    const auto layer =
        boost::dynamic_pointer_cast<VKTab::ErpLayer>(table.getLayer(VKTab::erpLayerType()));
    QVERIFY(layer);
    QCOMPARE(layer->updatePLMInfo(4), 1);
    QCOMPARE(shown(table, 4), QStringLiteral("it's %1"));
    QCOMPARE(layer->updatePLMInfo(2), 0);
}

QTEST_GUILESS_MAIN(tst_ErpNumbers)
#include "tst_ErpNumbers.moc"

// The document dialog over one line with many records: from the result of the query to the filled
// list, and one page of scrolling in it. Goals for 100 000 records: 1 s, and no page longer than a
// frame of the screen (16 ms). The select alone stands beside it.
//
// VELK_DOCUMENTS tells how many records, else 100 000.

#include <core/text/PPathName.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/linkdb/LinkDbSettings.h>
#include <geomcore/linkdb/prxLinkDbIfaceC.h>
#include <geomcore/table/proxyTableC.h>
#include <geomcore/table/readProjectTable.h>
#include <linkdbgui/DocumentListDialogC.h>

#include <QApplication>
#include <QFile>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTreeWidget>

#include <benchmark/benchmark.h>

#include <memory>

namespace velkbench {

namespace {

constexpr int RowsPerStatement = 500;

int documentCount()
{
    const int count = qEnvironmentVariableIntValue("VELK_DOCUMENTS");
    return count > 0 ? count : 100'000;
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("a file cannot be written");
}

/// A project with one table, and a database in which each record belongs to its line 1; none of
/// them is the line's own, so that all are compared.
class Documents
{
public:
    Documents()
        : linkDb(new PLinkDbC)
        , iface(new prxLinkDbIfaceC(linkDb))
    {
        write(path(), "[PROJECT]\nSACHM=a.json\n");
        write(m_folder.filePath("a.json"),
              R"({"fields":[{"name":"D","type":"number"},)"
              R"({"name":"L","type":"number","kind":"range","zType":"SM"}]})");
        write(m_folder.filePath("a.csv"), "D,L\n8,10;20\n");
        IndexTreeC::instance()->setCatalogRoot(PPathName(m_folder.path()));
        VKTab::Content content;
        (void)VKTab::readProjectTable(path(), content, {.tells = false});
        if (!content.isValid())
            qFatal("the table cannot be read");
        table = new VKTab::proxyTableC(content);
        if (!linkDb->open(LinkDbSettings::fromText(m_folder.filePath("link.db"))))
            qFatal("%s", qPrintable(linkDb->lastError().text));
        fill();
    }

    [[nodiscard]] QString path() const { return m_folder.filePath("a.prj"); }
    [[nodiscard]] QString select() const
    {
        return QStringLiteral("SELECT * FROM plm_document WHERE PRJ_PATH = 'a.prj' AND VERSION = "
                              "'v1' AND LINE_ID = 1 AND LINE_SUBID = 0");
    }
    [[nodiscard]] std::unique_ptr<DocumentListDialogC> dialog() const
    {
        auto result = std::make_unique<DocumentListDialogC>(nullptr, Qt::WindowFlags());
        result->setIndexTree(IndexTreeC::instance());
        result->setVelkTab(table);
        result->setLinkDbIface(iface);
        result->show();
        return result;
    }

    PRefPtr<PLinkDbC> linkDb;
    ProxyPtrT<prxLinkDbIfaceC> iface;
    ProxyPtrT<VKTab::proxyTableC> table;

private:
    void fill()
    {
        for (int first = 0; first < documentCount(); first += RowsPerStatement) {
            QStringList rows;
            for (int i = first; i < std::min(first + RowsPerStatement, documentCount()); ++i) {
                rows += QStringLiteral("('g%1','a.prj','v1',1,0,'{L=%2}','cad','pdm','100-%1','A',"
                                       "'released','4711','x','solid','Hexagon bolt %1')")
                            .arg(QString::number(i), QString::number(i % 1000));
            }
            if (!linkDb->executeInsertStatement(QStringLiteral("INSERT INTO plm_document VALUES ") +
                                                rows.join(u',')))
                qFatal("%s", qPrintable(linkDb->lastError().text));
        }
        if (!linkDb->commit())
            qFatal("not committed");
    }

    QTemporaryDir m_folder;
};

const Documents &documents()
{
    static const Documents all;
    return all;
}

} // namespace

void selectAlone(benchmark::State &state)
{
    const QString sql = documents().select();
    for ([[maybe_unused]] const auto _ : state)
        benchmark::DoNotOptimize(documents().linkDb->executeSelectStatement(sql)->rowCount());
}

void selectAndFill(benchmark::State &state)
{
    const auto dialog = documents().dialog();
    const auto *const list = dialog->findChild<QTreeWidget *>("tvDocuments");
    for ([[maybe_unused]] const auto _ : state) {
        dialog->initDialog(documents().path(), 1, 0);
        QApplication::processEvents();
    }
    if (list->topLevelItemCount() != documentCount())
        state.SkipWithError("records are missing");
}

void scrollAPage(benchmark::State &state)
{
    const auto dialog = documents().dialog();
    dialog->initDialog(documents().path(), 1, 0);
    auto *const list = dialog->findChild<QTreeWidget *>("tvDocuments");
    QApplication::processEvents();
    QScrollBar *const bar = list->verticalScrollBar();
    int place = 0;
    for ([[maybe_unused]] const auto _ : state) {
        place = (place + bar->pageStep()) % bar->maximum();
        bar->setValue(place);
        list->viewport()->repaint();
    }
    if (bar->maximum() <= 0)
        state.SkipWithError("nothing to scroll");
}

BENCHMARK(selectAlone)->Unit(benchmark::kMillisecond);
BENCHMARK(selectAndFill)->Unit(benchmark::kMillisecond);
BENCHMARK(scrollAPage)->Unit(benchmark::kMillisecond);

} // namespace velkbench

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

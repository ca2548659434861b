// Writing 100 000 links of a release into a link database on PostgreSQL, 50 projects in as many
// transactions, beside the server's own bulk insert: COPY of the same rows into a table of the same
// form, in one transaction. Goal: at most 3 times as long by the wall clock, for the work is done
// in the server. A second run, which finds everything there, stands beside it.
//
// The cluster is made here; VELK_LINKS tells how many links, else 100 000.

#include "Comparison.h"

#include "../tests/support/PostgresServer.h"

#include <geomcore/linkdb/PLinkDbC.h>
#include <release/link/ReleaseLinker.h>

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryFile>

#include <unistd.h>

namespace velkbench {

namespace {

constexpr int projects = 50;

int linkCount()
{
    const int count = qEnvironmentVariableIntValue("VELK_LINKS");
    return count > 0 ? count : 100'000;
}

QString projectPath(int project)
{
    return QStringLiteral("standardparts/screws/%1.prj").arg(project);
}

ReleaseMappingC confirmedRelease()
{
    ReleaseMappingC release;
    release.setSourceDate("20220101");
    release.setTargetDate("20230101");
    for (int i = 0; i < projects; ++i) {
        PrjMappingC mapping;
        mapping.setSourcePath(projectPath(i));
        mapping.setSourceVersion(QStringLiteral("v1"));
        mapping.addTarget(projectPath(i), QString());
        mapping.changeTarget(0, [](PrjMappingTargetC &target) {
            for (int line = 0; line < linkCount() / projects; ++line)
                target.addLineId(line, line, PRJMAPPING::Verified, {});
        });
        release.appendMapping(mapping);
    }
    return release;
}

/// A server with a database, and the rows as COPY reads them.
class Links
{
public:
    Links()
        : m_release(confirmedRelease())
        , m_address(m_server.newDatabase())
        , m_rows(QStringLiteral("/tmp/velk_links_XXXXXX"))
    {
        if (!m_server.isRunning())
            qFatal("%s", qPrintable(m_server.problem()));
        if (!m_linkDb.open(LinkDbSettings::fromText(m_address)))
            qFatal("%s", qPrintable(m_linkDb.lastError().text));
        execute("CREATE TABLE copied(project_id BIGINT, source_line INTEGER, target_id BIGINT, "
                "target_line INTEGER, extended_text TEXT, PRIMARY KEY(project_id, source_line))");
        if (!m_rows.open())
            qFatal("a file cannot be written");
        for (int i = 0; i < projects; ++i) {
            for (int line = 0; line < linkCount() / projects; ++line) {
                const QByteArray number = QByteArray::number(line);
                // Numbers as long as those of projects and targets.
                const QByteArray project = QByteArray::number(8'000'000'000'000'000'000 + i);
                m_rows.write(project + '\t' + number + '\t' + project + '\t' + number + "\t\\N\n");
            }
        }
        m_rows.flush();
        // The server is another user.
        m_rows.setPermissions(m_rows.permissions() | QFile::ReadOther);
    }

    void execute(const QString &sql)
    {
        if (!m_linkDb.executeInsertStatement(sql) || !m_linkDb.commit())
            qFatal("%s", qPrintable(m_linkDb.lastError().text));
    }
    void empty()
    {
        execute("TRUNCATE linkdb_line_link, linkdb_link_project, linkdb_link_target, copied");
    }
    void copy() { execute("COPY copied FROM " + m_linkDb.literal(m_rows.fileName())); }
    void link(int writers)
    {
        VelkRelease::ReleaseLinker linker(LinkDbSettings::fromText(m_address));
        linker.setWriters(writers);
        const std::atomic<bool> interrupted = false;
        if (!linker.run(m_release, interrupted))
            qFatal("%s", qPrintable(linker.problem()));
    }
    /// Processor time of all processes of the server until now, the ended ones included.
    [[nodiscard]] double serverSeconds()
    {
        if (m_serverId == 0)
            m_serverId = numbersOf(m_linkDb.executeCountStatement("SELECT pg_backend_pid()"))[1];
        qint64 ticks = 0;
        for (const QString &name : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
            const QList<qint64> numbers = numbersOf(name.toInt());
            if (numbers.size() > 14 && name.toInt() == m_serverId)
                ticks += numbers[11] + numbers[12] + numbers[13] + numbers[14];
            else if (numbers.size() > 14 && numbers[1] == m_serverId)
                ticks += numbers[11] + numbers[12];
        }
        return double(ticks) / double(::sysconf(_SC_CLK_TCK));
    }
    [[nodiscard]] int written()
    {
        return m_linkDb.executeCountStatement("SELECT COUNT(*) FROM linkdb_links");
    }

private:
    /// What the kernel tells of a process behind its name: state, parent, ...
    static QList<qint64> numbersOf(int process)
    {
        QFile file(QStringLiteral("/proc/%1/stat").arg(process));
        QList<qint64> numbers;
        if (process > 0 && file.open(QIODevice::ReadOnly)) {
            const QByteArray text = file.readAll();
            for (const QByteArray &each : text.mid(text.lastIndexOf(')') + 2).split(' '))
                numbers.append(each.toLongLong());
        }
        return numbers;
    }

    PostgresServer m_server;
    qint64 m_serverId = 0;
    const ReleaseMappingC m_release;
    const QString m_address;
    PLinkDbC m_linkDb;
    QTemporaryFile m_rows;
};

Links *links = nullptr; // of main()

} // namespace

void write(benchmark::State &state)
{
    // By processor time of this program and the server together it does not matter who else works.
    const auto measured = [](double &sum, const std::function<void()> &work) {
        const double before = links->serverSeconds();
        const double own = measure(work).cpu;
        sum += own + links->serverSeconds() - before;
    };
    double copied = 0;
    double linked = 0;
    Comparison comparison;
    comparison.addReference("copy", [&] { measured(copied, [] { links->copy(); }); });
    comparison.run(
        state, [&] { measured(linked, [&] { links->link(int(state.range(0))); }); },
        [] { links->empty(); });
    state.counters["both_vs_copy"] = linked / copied;
    if (links->written() != linkCount() / projects * projects)
        state.SkipWithError("links are missing");
}

void writeAgain(benchmark::State &state)
{
    links->link(1);
    for ([[maybe_unused]] const auto _ : state)
        links->link(1);
}

// The best of several: a server's single runs differ by much.
BENCHMARK(write)->ArgName("writers")->Arg(1)->Arg(2)->Iterations(10)->UseManualTime()->Unit(
    benchmark::kMillisecond);
BENCHMARK(writeAgain)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace velkbench

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    velkbench::Links links;
    velkbench::links = &links;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

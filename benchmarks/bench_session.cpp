// What the host's document adds to a change: journal, undo step, counts and notices. Beside it the
// same change through the plain handler.

#include "Comparison.h"
#include "MappingRecords.h"

#include <workbench/session/document/MappingDocument.h>
#include <workbench/session/tasks/BulkOperation.h>

#include <geomcore/records/MappingFile.h>
#include <mapping/data/ReleaseMappingHandler.h>

#include <QCoreApplication>
#include <QTemporaryDir>

#include <memory>
#include <numeric>

namespace velkbench {

namespace {

constexpr int BulkLines = 10000;
constexpr int ConfirmationsPerRound = 1000;

/// A mapping file of one project, and a document that edits it.
class Session
{
public:
    explicit Session(int lines)
    {
        const QString path = m_folder.filePath(QStringLiteral("release.json"));
        MappingFile file;
        file.setRelease(bigRelease(lines));
        if (!file.write(path) ||
            document.open({path, {}, {}, {}, {}}) != MappingDocument::OpenResult::Opened)
            qFatal("no session");
        document.setAutosaveInterval(0);
        project = ProjectId::of(document.release().mappingAt(0));
    }

    [[nodiscard]] QString path() const { return m_folder.filePath(QStringLiteral("release.json")); }

private:
    QTemporaryDir m_folder;

public:
    MappingDocument document;
    ProjectId project;
};

PrjMappingC confirmed(const PrjMappingC &mapping, int line)
{
    PrjMappingC result = mapping;
    PrjMappingTargetC target = result.findTarget(0);
    const PrjMappingTargetLineC entry = target.getMappedLine(line);
    // A confirmed line goes back, so that every call changes something.
    const bool isConfirmed = entry.getState() == PRJMAPPING::Verified;
    target.addLineId(line, entry.getTargetLineId(),
                     isConfirmed ? PRJMAPPING::Mapped : PRJMAPPING::Verified, entry.getExtended());
    result.updateTarget(0, target);
    return result;
}

/// Ten thousand lines in one action: update, journal, undo step; then undone, which is not
/// measured.
void bulkConfirm(benchmark::State &state)
{
    Session session(int(state.range(0)));
    QList<int> lines(BulkLines);
    std::iota(lines.begin(), lines.end(), 1);
    int changed = 0;
    for ([[maybe_unused]] const auto _ : state) {
        changed = BulkOperation(session.document, session.project, lines)
                      .run(BulkOperation::Confirm)
                      .lines;
        state.PauseTiming();
        session.document.undo();
        state.ResumeTiming();
    }
    state.counters["changed"] = changed;
}

/// The same lines published one by one in one turn of the event loop, as the editor's actions do.
void publishEach(benchmark::State &state)
{
    Session session(int(state.range(0)));
    const std::unique_ptr<CatalogMappingHandlerI> handler(session.document.createHandler());
    for ([[maybe_unused]] const auto _ : state) {
        for (int line = 1; line <= BulkLines; ++line)
            handler->updateMapping(confirmed(session.document.mapping(session.project), line));
        QCoreApplication::processEvents();
    }
    state.counters["us_line"] = benchmark::Counter(
        BulkLines, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

/// One line, one turn of the event loop, one step, its record in the journal.
void confirmOne(benchmark::State &state)
{
    const int lines = int(state.range(0));
    Session session(lines);
    const std::unique_ptr<CatalogMappingHandlerI> handler(session.document.createHandler());
    ReleaseMappingHandler plain(bigRelease(lines), QStringLiteral("bench"), QString());
    const auto round = [lines](CatalogMappingHandlerI &target, bool turns) {
        int line = 0;
        for (int i = 0; i < ConfirmationsPerRound; ++i) {
            line = (line + 7919) % lines;
            target.updateMapping(
                confirmed(target.getCatalogMapping().lastRelease().mappingAt(0), line + 1));
            if (turns)
                QCoreApplication::processEvents();
        }
    };
    Comparison comparison;
    comparison.addReference("handler", [&] { round(plain, false); });
    comparison.run(state, [&] { round(*handler, true); });
    state.counters["us_confirm"] = comparison.product().cpu / ConfirmationsPerRound * 1e6;
}

/// Opening a mapping file, with lock, search for unsaved work and journal, beside reading it.
void openFile(benchmark::State &state)
{
    Session session(int(state.range(0)));
    Comparison comparison;
    comparison.addReference("read", [&] {
        MappingFile file;
        if (!file.read(session.path()))
            qFatal("not read");
    });
    comparison.run(
        state,
        [&] {
            if (session.document.open({session.path(), {}, {}, {}, {}}) !=
                MappingDocument::OpenResult::Opened)
                qFatal("not opened");
        },
        [&] { session.document.close(); });
}

/// Saving one change, with lock, check of what was written and backup, beside writing the file.
void saveFile(benchmark::State &state)
{
    Session session(int(state.range(0)));
    const std::unique_ptr<CatalogMappingHandlerI> handler(session.document.createHandler());
    const QTemporaryDir folder;
    const ReleaseMappingC release = session.document.release();
    Comparison comparison;
    comparison.addReference("write", [&] {
        MappingFile file;
        file.setRelease(release);
        if (!file.write(folder.filePath(QStringLiteral("m.json"))))
            qFatal("not written");
    });
    comparison.run(
        state,
        [&] {
            if (session.document.save({}).result != SaveResult::Saved)
                qFatal("not saved");
        },
        [&] {
            handler->updateMapping(confirmed(session.document.mapping(session.project), 1));
            QCoreApplication::processEvents();
        });
}

BENCHMARK(openFile)
    ->ArgName("lines")
    ->Arg(100000)
    ->Arg(1000000)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(10)
    ->UseManualTime();
BENCHMARK(saveFile)
    ->ArgName("lines")
    ->Arg(100000)
    ->Arg(1000000)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(10)
    ->UseManualTime();
BENCHMARK(bulkConfirm)
    ->ArgName("lines")
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5);
BENCHMARK(publishEach)->ArgName("lines")->Arg(100000)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(confirmOne)
    ->ArgName("lines")
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(5);

} // namespace

} // namespace velkbench

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

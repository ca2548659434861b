#include "ModalScript.h"
#include "WindowFixture.h"

#include <geomcore/records/MappingFile.h>
#include <TestPaths.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/editor/LineCommands.h>
#include <workbench/window/MainWindow.h>

#include <QAction>
#include <QCoreApplication>
#include <QLabel>
#include <QProcess>

#include <csignal>

namespace {

/// What a command of the batch program prints.
QString commandOutput(const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QStringLiteral(VELK_BINARY_DIR "/bin/velkmap"), arguments);
    process.waitForFinished(60000);
    return QString::fromUtf8(process.readAll());
}

QByteArray bytesOf(const QString &file)
{
    QFile input(file);
    return input.open(QIODevice::ReadOnly) ? input.readAll() : QByteArray();
}

/// Rows of the export, keyed by source path and line.
QMap<QPair<QString, int>, QStringList> exported(const QString &mapping, const QString &csv)
{
    commandOutput({"export", "--mapping", mapping, "--csv", csv});
    QMap<QPair<QString, int>, QStringList> rows;
    const QStringList lines = QString::fromUtf8(bytesOf(csv)).split('\n').mid(1);
    for (const QString &line : lines) {
        const QStringList cells = line.split(',');
        if (cells.size() > 5)
            rows.insert({cells.at(0), cells.at(2).toInt()}, cells);
    }
    return rows;
}

/// Goes to the next open line that has a target and confirms it; gives where that was.
LineRef confirmNext(WindowFixture &fixture)
{
    fixture.press(Qt::Key_F8);
    const EditorArea *const editor = fixture.window->editor();
    const LineRef at{editor->currentProject(), editor->currentLine()};
    fixture.press(Qt::Key_V);
    return at;
}

/// The other process: confirms three lines and dies without a word.
int dieInTheMiddle(const QString &file)
{
    WindowFixture fixture;
    fixture.open(file);
    for (int i = 0; i < 3; ++i) {
        confirmNext(fixture);
        QTest::qWait(1);
    }
    std::raise(SIGKILL);
    return 0;
}

} // namespace

class tst_WorkbenchRoad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void confirmsTwentyLinesByKeyboardAlone()
    {
        WindowFixture fixture;
        ModalScript script;
        fixture.action("fileExample")->trigger();
        MappingDocument &document = *fixture.window->desk()->document();
        QVERIFY(document.isOpen());
        const QString file = document.mappingFile();
        const auto before = exported(file, fixture.directory.filePath("before.csv"));
        QVERIFY(before.size() > 1900);

        QList<LineRef> confirmed;
        for (int i = 1; i <= 20; ++i) {
            confirmed << confirmNext(fixture);
            QTRY_COMPARE(document.counts().verified(), i);
        }
        QTRY_COMPARE(document.undoTexts().size(), 20);

        // Remove the assignment of a line that has one, and think better of it.
        const QString path = "standardparts/screws/iso4762.prj";
        QVERIFY(fixture.window->editor()->selectProject(path));
        QVERIFY(fixture.window->editor()->selectLine(3));
        const int notFound = document.counts().notFound();
        fixture.press(Qt::Key_X);
        QTRY_COMPARE(document.counts().notFound(), notFound + 1);
        QTRY_COMPARE(document.undoTexts().size(), 21);
        fixture.press(Qt::Key_Z, Qt::ControlModifier);
        QTRY_COMPARE(document.counts().notFound(), notFound);

        fixture.press(Qt::Key_S, Qt::ControlModifier);
        QTRY_VERIFY(!document.isModified());
        const LineCounts counts = document.counts();
        QVERIFY(fixture.window->close());

        // What the batch program says of the file.
        const auto after = exported(file, fixture.directory.filePath("after.csv"));
        QCOMPARE(after.size(), before.size());
        int changed = 0;
        for (auto row = after.cbegin(); row != after.cend(); ++row) {
            const QStringList former = before.value(row.key());
            const bool wanted =
                std::any_of(confirmed.begin(), confirmed.end(), [&](const auto &at) {
                    return at.project.path == row.key().first && at.line == row.key().second;
                });
            if (*row == former) {
                QVERIFY2(!wanted, qPrintable(row->join(',')));
                continue;
            }
            ++changed;
            QVERIFY2(wanted, qPrintable(row->join(',')));
            QCOMPARE(row->mid(0, 5), former.mid(0, 5));
            QCOMPARE(row->at(5), QStringLiteral("2"));
        }
        QCOMPARE(changed, 20);
        const QString stats = commandOutput({"stats", "--mapping", file}).simplified();
        const QString total = QStringLiteral("%1 %2 %3 %4 %5")
                                  .arg(counts.lines())
                                  .arg(counts.notFound())
                                  .arg(counts.mapped())
                                  .arg(counts.toCheck())
                                  .arg(counts.verified());
        QVERIFY2(stats.contains(total), qPrintable(stats.right(200) + " | " + total));
    }

    void recoversAfterACrash_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("verified");
        QTest::newRow("recover") << "recover" << 3;
        QTest::newRow("use saved") << "useSaved" << 0;
    }
    void recoversAfterACrash()
    {
        QFETCH(QString, button);
        QFETCH(int, verified);
        WindowFixture fixture;
        const QString file = fixture.mappingFile();
        const QByteArray saved = bytesOf(file);
        QProcess other;
        other.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        other.start(QCoreApplication::applicationFilePath(), {"--die-in-the-middle", file});
        QVERIFY(other.waitForFinished(60000));
        QCOMPARE(other.exitStatus(), QProcess::CrashExit);
        QCOMPARE(bytesOf(file), saved);

        ModalScript script;
        script.then([&](QWidget *dialog) {
            script.note(dialog);
            const auto text = [dialog](const char *name) {
                auto *label = dialog->findChild<QLabel *>(QLatin1String(name));
                return label ? label->text() : QString();
            };
            QCOMPARE(text("verifiedSaved"), QStringLiteral("0"));
            QCOMPARE(text("verifiedRecovered"), QStringLiteral("3"));
            QVERIFY2(text("intro").contains("3 Schritte mit 3 Zeilen"), qPrintable(text("intro")));
            QTest::mouseClick(dialog->findChild<QPushButton *>(button), Qt::LeftButton);
        });
        fixture.open(file);
        QCOMPARE(script.seen, QStringList{"RecoveryDialog"});
        MappingDocument &document = *fixture.window->desk()->document();
        QVERIFY(document.isOpen());
        QCOMPARE(document.counts().verified(), verified);
        QCOMPARE(document.isModified(), verified > 0);
        if (document.isModified())
            QVERIFY(fixture.window->desk()->save());
        QVERIFY(fixture.window->desk()->close());
        // It is offered once.
        fixture.open(file);
        QCOMPARE(document.counts().verified(), verified);
        QCOMPARE(script.seen.size(), 1);
    }
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--die-in-the-middle") == 0)
        return dieInTheMiddle(QString::fromLocal8Bit(argv[2]));
    tst_WorkbenchRoad test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_WorkbenchRoad.moc"

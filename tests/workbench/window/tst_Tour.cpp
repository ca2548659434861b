// The tour of docs/manual/tour.md, played as it is written, by keys alone.
#include "ModalScript.h"
#include "WindowFixture.h"

#include <core/files/EditLock.h>
#include <geomcoregui/table/VkTableView.h>
#include <TestPaths.h>
#include <workbench/locator/LocatorDialog.h>
#include <workbench/locator/LocatorModel.h>
#include <workbench/review/PatternModel.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/help/HelpWindow.h>
#include <workbench/window/history/HistoryDialog.h>
#include <workbench/window/history/HistoryModel.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/message/StatusArea.h>
#include <workbench/window/review/ReviewCommands.h>

#include <geomcore/records/ReleaseMappingC.h>

#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTableView>
#include <QToolTip>
#include <QTreeView>

namespace {

const QString din933 = QStringLiteral("standardparts/screws/din933.prj");
const QString iso1207 = QStringLiteral("standardparts/screws/iso1207.prj");
const QString din125 = QStringLiteral("standardparts/washers/din125.prj");

/// The time of the tour at a calm pace: a key takes 0.3 s and a new thought 1.4 s, as
/// keystroke-level models of typing have it for a person who does not know the program; the text is
/// read at 180 words a minute; whoever looks at a new picture before he goes on takes 4 s.
struct Pace
{
    int keys = 0;
    int thoughts = 0;
    int looks = 0;

    [[nodiscard]] double minutes(int words) const
    {
        return (keys * 0.3 + thoughts * 1.4 + looks * 4.0) / 60 + words / 180.0;
    }
};

class TourFixture : public WindowFixture
{
public:
    TourFixture() { open(mappingFile()); }

    Pace pace;

    /// One key after a thought, and a look at what it did.
    void key(int key, Qt::KeyboardModifiers modifiers = {})
    {
        ++pace.keys;
        ++pace.thoughts;
        ++pace.looks;
        press(key, modifiers);
    }
    void type(QWidget *field, const QString &text)
    {
        pace.keys += int(text.size());
        QTest::keyClicks(field, text);
    }
    void goTo(const QString &words)
    {
        key(Qt::Key_K, Qt::ControlModifier);
        auto *const dialog = window->findChild<LocatorDialog *>();
        QVERIFY(dialog);
        const QSignalSpy found(dialog->findChild<LocatorModel *>(),
                               &QAbstractItemModel::modelReset);
        auto *const input = dialog->findChild<QLineEdit *>("locatorInput");
        type(input, words);
        QTRY_VERIFY(!found.isEmpty() &&
                    !dialog->findChild<QLabel *>("locatorNote")->text().isEmpty());
        QTest::qWait(50);
        ++pace.keys;
        QTest::keyClick(input, Qt::Key_Return);
        QTRY_VERIFY(!window->findChild<LocatorDialog *>());
    }
    [[nodiscard]] MappingDocument *document() const { return window->desk()->document(); }
    [[nodiscard]] int undone() const { return int(document()->undoTexts().size()); }
    [[nodiscard]] VkTableView *targetView() const
    {
        return window->editor()->findChild<VkTableView *>("targetView");
    }
    [[nodiscard]] QTreeView *patterns() const
    {
        return window->findChild<QTreeView *>("PatternList");
    }
    /// The number of lines of the pattern whose text holds that; -1 without one.
    [[nodiscard]] int linesOf(const QString &text) const
    {
        const QAbstractItemModel *const model = patterns()->model();
        for (int row = 0; row < model->rowCount(); ++row) {
            if (model->index(row, 0).data().toString() == text)
                return model->index(row, PatternModel::Lines).data(PatternModel::ValueRole).toInt();
        }
        return -1;
    }
    /// Tab leads there, in whatever order.
    [[nodiscard]] bool reachByTab(const QWidget *wanted)
    {
        // Without a window manager nobody activates it after a dialog.
        window->activateWindow();
        if (!wanted || !QTest::qWaitForWindowActive(window.get()) || !QApplication::focusWidget())
            return false;
        for (int i = 0;
             i < 60 && QApplication::focusWidget() && QApplication::focusWidget() != wanted; ++i) {
            ++pace.keys;
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        return QApplication::focusWidget() == wanted;
    }
};

QString tourText()
{
    QFile file(QStringLiteral(VELK_SOURCE_DIR "/docs/manual/tour.md"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

class tst_Tour : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void byKeysAlone();
};

void tst_Tour::byKeysAlone()
{
    TourFixture tour;
    ModalScript script;
    // Look around.
    QVERIFY(tourText().contains("type `1207 scr` and Enter"));
    tour.goTo("1207 scr");
    QCOMPARE(tour.window->editor()->currentPath(), iso1207);

    // Decide lines: right, another one, none, not sure, and back. The first one has a proposal.
    QCOMPARE(tour.window->editor()->currentLine(), 1);
    QCOMPARE(tour.document()
                 ->mapping(tour.window->editor()->currentProject())
                 .findTarget(0)
                 .getMappedLine(1)
                 .getTargetLineId(),
             1);
    tour.key(Qt::Key_F8);
    QCOMPARE(tour.window->editor()->currentLine(), 2);
    tour.key(Qt::Key_F8, Qt::ShiftModifier);
    const int first = tour.window->editor()->currentLine();
    QCOMPARE(first, 1);
    tour.key(Qt::Key_V);
    QCOMPARE(tour.undone(), 1);
    QVERIFY(tour.window->editor()->currentLine() != first);
    const int second = tour.window->editor()->currentLine();
    tour.key(Qt::Key_F1, Qt::ShiftModifier);
    QVERIFY(!QToolTip::text().isEmpty());
    QToolTip::hideText();
    tour.key(Qt::Key_F4);
    QCOMPARE(QApplication::focusWidget(), tour.targetView()->grid());
    tour.key(Qt::Key_Down);
    const auto *const button = tour.window->editor()->findChild<QPushButton *>("btnMapLine");
    QVERIFY2(button->text().startsWith(QString::number(second) + " → "),
             qPrintable(button->text()));
    tour.key(Qt::Key_V);
    QCOMPARE(tour.undone(), 2);
    QVERIFY(tour.window->editor()->currentLine() != second);
    tour.key(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(tour.undone(), 3);
    const int unsure = tour.window->editor()->currentLine();
    tour.key(Qt::Key_F8);
    QVERIFY(tour.window->editor()->currentLine() != unsure);
    QCOMPARE(tour.undone(), 3);
    for (int i = 2; i >= 0; --i) {
        tour.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(tour.undone(), i);
    }

    // Many at once.
    tour.key(Qt::Key_F7);
    QVERIFY(QTest::qWaitFor([&] { return tour.window->review()->work()->hasPatterns(); }, 20'000));
    QApplication::processEvents();
    const QString text = tourText();
    QVERIFY(text.contains("`Werkstoff: FP → FKM` stands for 69 lines"));
    QCOMPARE(tour.linesOf("Werkstoff: FP → FKM"), 69);
    QVERIFY(text.contains("`s: − 1; e: − 1.13` for 30 lines"));
    QCOMPARE(tour.linesOf("s: − 1; e: − 1.13"), 30);
    while (tour.patterns()
               ->currentIndex()
               .sibling(tour.patterns()->currentIndex().row(), 0)
               .data()
               .toString() != "s: − 1; e: − 1.13") {
        const int row = tour.patterns()->currentIndex().row();
        tour.key(Qt::Key_Down);
        QVERIFY(tour.patterns()->currentIndex().row() > row);
    }
    tour.key(Qt::Key_Return);
    tour.key(Qt::Key_F9);
    QCOMPARE(tour.window->editor()->currentPath(), din933);
    tour.key(Qt::Key_F7, Qt::ShiftModifier);
    auto *const candidates = tour.window->findChild<QTreeView *>("CandidateList");
    QTRY_VERIFY_WITH_TIMEOUT(candidates->isVisible() && candidates->model()->rowCount() > 0,
                             10'000);
    const int before = tour.confirmedLines();
    tour.key(Qt::Key_Return, Qt::ControlModifier);
    QTRY_COMPARE(tour.confirmedLines(), before + 30);
    QCOMPARE(tour.undone(), 1);

    // A project that became two: each target has a proposed condition, which counts once a line of
    // the target is confirmed.
    tour.goTo("din125");
    QCOMPARE(tour.window->editor()->currentPath(), din125);
    const auto lists = tour.window->editor()->findChildren<QTableView *>("conditionView");
    QCOMPARE(lists.size(), 2);
    QStringList conditions;
    for (const QTableView *const list : lists) {
        QCOMPARE(list->model()->rowCount(), 1);
        conditions += list->model()->index(0, 1).data().toString();
        QVERIFY(tour.reachByTab(list->horizontalHeader()));
    }
    QCOMPARE(conditions, QStringList({"Form .EQ. 'A'", "Form .EQ. 'B'"}));
    QVERIFY(text.contains("`17` go to the first one of form B"));
    const auto confirm = [&](const QString &line) {
        script.then([&](QWidget *dialog) {
            tour.type(dialog->findChild<QLineEdit *>(), line);
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        tour.key(Qt::Key_G, Qt::ControlModifier);
        QTRY_VERIFY(script.isDone());
        tour.key(Qt::Key_V);
    };
    confirm("1");
    confirm("17");
    const int assigned = tour.document()->counts().assigned();
    QVERIFY(tour.reachByTab(tour.window->editor()->findChild<QPushButton *>("remapLinesButton")));
    tour.key(Qt::Key_Space);
    QVERIFY(text.contains("the other 27 lines pass the check"));
    QTRY_COMPARE(tour.document()->counts().assigned(), assigned + 27);

    // Save, and hand on.
    tour.key(Qt::Key_S, Qt::ControlModifier);
    QTRY_VERIFY(!tour.document()->isModified());
    tour.action("showHistory")->trigger();
    auto *const history = tour.window->findChild<HistoryDialog *>();
    QVERIFY(history && history->isVisible());
    history->findChild<QComboBox *>("scope")->setCurrentIndex(HistoryDialog::OfAll);
    // The thirty lines of the pattern, and who decided on them.
    const QAbstractItemModel *const decisions =
        history->findChild<QTreeView *>("decisions")->model();
    QVERIFY2(decisions->rowCount() >= 30, qPrintable(QString::number(decisions->rowCount())));
    QCOMPARE(decisions->index(0, HistoryModel::Author).data().toString(), EditLock::self().user);
    history->close();
    tour.action("helpContents")->trigger();
    QTRY_VERIFY(tour.window->findChild<HelpWindow *>());

    const int words = int(text.split(QRegularExpression("\\s+"), Qt::SkipEmptyParts).size());
    const double minutes = tour.pace.minutes(words);
    qInfo("%d keys, %d thoughts, %d looks, %d words: %.1f minutes", tour.pace.keys,
          tour.pace.thoughts, tour.pace.looks, words, minutes);
    QVERIFY2(minutes <= 15, qPrintable(QString::number(minutes)));
}

QTEST_MAIN(tst_Tour)
#include "tst_Tour.moc"

#include "ModalScript.h"
#include "WindowFixture.h"

#include <geomcore/table/Content.h>
#include <geomcore/value/MidentClass.h>
#include <geomcore/value/RangeText.h>
#include <workbench/review/RangeDock.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/MainWindow.h>

#include <QLabel>

namespace {

const QString Pins = QStringLiteral("standardparts/pins/iso2338.prj");

/// A workbench at the first line of a project with ranges of lengths.
class RangeFixture : public WindowFixture
{
public:
    RangeFixture()
    {
        open(mappingFile());
        if (!window->editor()->selectProject(Pins) || !window->editor()->selectLine(1))
            QTest::qFail("no such line", __FILE__, __LINE__);
        pins = window->editor()->currentProject();
    }

    ModalScript script;
    /// Stays where the work began, though the editor goes on.
    ProjectId pins;

    [[nodiscard]] MappingDocument *document() const { return window->desk()->document(); }
    [[nodiscard]] QString text() const { return window->findChild<QLabel *>("RangeText")->text(); }
    [[nodiscard]] PrjMappingC mapping() const { return document()->mapping(pins); }
    /// Range variable of the project.
    [[nodiscard]] QString variable() const
    {
        for (const VKTab::Var &var : window->editor()->sourceTable().getVarList()) {
            if (var.isFW())
                return var.getName();
        }
        return {};
    }
    [[nodiscard]] QStringList values() const
    {
        const VKTab::ContentRef table = window->editor()->sourceTable();
        const VKTab::Var var = table.getVar(variable());
        return VKTab::RangeText::parse(table.getRangeText(var.getVarId(), VKTab::LineId(1)))
            .value_or(VKTab::RangeText())
            .values();
    }
    /// Gives the line a text for these values, in a state.
    void give(const QStringList &values, PRJMAPPING::CheckState state) const
    {
        QStringList rows;
        for (const QString &value : values) {
            MidentClass ident;
            ident.AddVarValue(variable(), value);
            rows << ident.MakeVarvalueString() + " -> 1";
        }
        PrjMappingC changed = mapping();
        changed.changeTarget(
            0, [&](PrjMappingTargetC &target) { target.addLineId(1, 1, state, rows.join('\n')); });
        changed.updateMappingState();
        document()->updateMapping(changed);
        document()->finishStep();
        QCoreApplication::processEvents();
    }
    [[nodiscard]] PRJMAPPING::CheckState state() const
    {
        return mapping().findTarget(0).getMappedLine(1).getState();
    }
};

} // namespace

/// The bar of a range line that becomes several lines, and the question at a gap.
class tst_RangeCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bar();
    void confirmingWithAGapAsks_data();
    void confirmingWithAGapAsks();
    void confirmingWithoutAGap();
};

void tst_RangeCommands::bar()
{
    RangeFixture fixture;
    QStringList values = fixture.values();
    QVERIFY(values.size() > 3);
    fixture.press(Qt::Key_W, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(fixture.text(), "Die Zeile hat keine Wertebereichszuordnung.");
    auto *const bar = fixture.window->findChild<RangeBar *>("RangeBar");
    QVERIFY(!bar->isVisible());
    QStringList given = values.mid(2);
    given << values.at(2) << "7777";
    fixture.give(given, PRJMAPPING::ToCheck);
    const QString expected =
        QString("%1: %2 von %3 Werten zugeordnet · fehlend: %4, %5 · mehrfach: "
                "%6 · nicht im alten Bereich: {%1=7777}")
            .arg(fixture.variable())
            .arg(values.size() - 2)
            .arg(values.size())
            .arg(values.at(0), values.at(1), values.at(2));
    QTRY_COMPARE(fixture.text(), expected);
    VelkRelease::RangeCoverage many;
    many.variables = QStringList{"D"};
    many.values.resize(1234);
    QVERIFY2(RangeDock::text(many).startsWith("D: 0 von 1.234 Werten zugeordnet"),
             qPrintable(RangeDock::text(many)));
    QVERIFY(bar->isVisible());
    QCOMPARE(bar->accessibleDescription(), expected);
    // The first value is missing, the last one is covered: two colours.
    const QImage image = bar->grab().toImage();
    QVERIFY(image.pixelColor(1, 1) != image.pixelColor(image.width() - 3, 1));
    fixture.window->editor()->selectLine(2);
    QTRY_COMPARE(fixture.text(), "Die Zeile hat keine Wertebereichszuordnung.");
}

void tst_RangeCommands::confirmingWithAGapAsks_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("confirmed");
    QTest::newRow("taken back") << "answerCancel" << false;
    QTest::newRow("all the same") << "answerAccept" << true;
}

void tst_RangeCommands::confirmingWithAGapAsks()
{
    QFETCH(QString, answer);
    QFETCH(bool, confirmed);
    RangeFixture fixture;
    const QStringList values = fixture.values();
    fixture.give(values.mid(1), PRJMAPPING::ToCheck);
    QString details;
    fixture.script.then([&](QWidget *dialog) {
        fixture.script.note(dialog);
        details = dialog->property("informativeText").toString();
        dialog->findChild<QPushButton *>(answer)->click();
    });
    fixture.press(Qt::Key_V);
    QTRY_VERIFY(fixture.script.isDone());
    QCOMPARE(fixture.script.texts,
             QStringList{"1 Zeile ist bestätigt, obwohl Werte ihres Bereichs keine neue Zeile "
                         "haben."});
    QVERIFY2(details.startsWith("Zeile 1: ") && details.endsWith("fehlend: " + values.first()),
             qPrintable(details));
    QTRY_COMPARE(fixture.state() == PRJMAPPING::Verified, confirmed);
}

void tst_RangeCommands::confirmingWithoutAGap()
{
    RangeFixture fixture;
    fixture.give(fixture.values(), PRJMAPPING::ToCheck);
    bool asked = false;
    fixture.script.then([&](QWidget *dialog) {
        asked = true;
        dialog->close();
    });
    fixture.press(Qt::Key_V);
    QTest::qWait(50);
    QVERIFY(!asked);
    QCOMPARE(fixture.state(), PRJMAPPING::Verified);
}

QTEST_MAIN(tst_RangeCommands)
#include "tst_RangeCommands.moc"

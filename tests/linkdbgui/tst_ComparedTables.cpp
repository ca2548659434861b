#include "TableEditorFixture.h"

#include <QApplication>
#include <QScrollBar>
#include <QTableView>
#include <QWheelEvent>

namespace {

QByteArray wideTable(int lines, const QByteArray &material, const QByteArray &columns)
{
    QByteArray table = "D," + columns + ",W\n";
    for (int line = 1; line <= lines; ++line) {
        table += "M8";
        for (int column = 0; column <= columns.count(','); ++column)
            table += ",a rather long value " + QByteArray::number(column);
        table += ',' + material + '\n';
    }
    return table;
}

QColor groundOf(VkTableView *view, int line, const QString &variable)
{
    const int column = view->model()->columnOf(view->getTable().getVar(variable).getVarId());
    const QRect cell = view->grid()->visualRect(
        view->model()->index(view->model()->rowOf(VKTab::LineId(line)), column));
    const QImage image = view->grid()->viewport()->grab().toImage();
    return image.pixelColor(cell.right() - 3, cell.top() + 3);
}

const QColor mark(255, 224, 130);

} // namespace

class tst_ComparedTables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void offAtFirst();
    void oneHeight();
    void linesStayInSight();
    void endOfTheTable();
    void firstDifferenceInSight();
    void marks();
    void marksNoUnits();
    void scrollTogether();
    void severalLines();
    void zoomTogether();

private:
    [[nodiscard]] static int heightOf(VkTableView *view, int line);
    [[nodiscard]] static int leftOf(VkTableView *view, const QString &variable);
    [[nodiscard]] static bool isInSight(VkTableView *view, int line, const QString &variable);
    void select(int line) const;

    std::unique_ptr<TableEditorFixture> m_editor;
};

void tst_ComparedTables::init()
{
    m_editor = std::make_unique<TableEditorFixture>();
    m_editor->catalog.write("old/a.prj", wideTable(100, "St37", "A,B,C,E,F,G,H"));
    m_editor->catalog.write("new/a.prj", wideTable(160, "S235", "A,B,C,E,F,G,H"));
    for (int line = 1; line <= 100; ++line)
        enter(m_editor->mapping, 0, line, line == 100 ? 160 : line + 40, PRJMAPPING::ToCheck);
    m_editor->widget->setComparing(true);
    m_editor->load();
}

int tst_ComparedTables::heightOf(VkTableView *view, int line)
{
    const auto *const grid = qobject_cast<QTableView *>(view->grid());
    const int row = view->model()->rowOf(VKTab::LineId(line));
    return grid->viewport()->mapToGlobal(QPoint(0, grid->rowViewportPosition(row))).y();
}

int tst_ComparedTables::leftOf(VkTableView *view, const QString &variable)
{
    const int column = view->model()->columnOf(view->getTable().getVar(variable).getVarId());
    return view->grid()->visualRect(view->model()->index(0, column)).left();
}

bool tst_ComparedTables::isInSight(VkTableView *view, int line, const QString &variable)
{
    const int column = view->model()->columnOf(view->getTable().getVar(variable).getVarId());
    const QModelIndex index =
        view->model()->index(view->model()->rowOf(VKTab::LineId(line)), column);
    return view->grid()->viewport()->rect().contains(view->grid()->visualRect(index).center());
}

void tst_ComparedTables::select(int line) const
{
    m_editor->select(line);
    QTest::qWait(200); // the columns of a table that is new get their widths
}

void tst_ComparedTables::offAtFirst()
{
    TableEditorFixture editor;
    editor.catalog.write("old/a.prj", wideTable(20, "St37", "A,B,C,E,F,G,H"));
    editor.catalog.write("new/a.prj", wideTable(60, "S235", "A,B,C,E,F,G,H"));
    enter(editor.mapping, 0, 3, 50, PRJMAPPING::ToCheck);
    editor.load();
    editor.select(3);
    QCoreApplication::processEvents();
    QCOMPARE(editor.target->getHorizontalScrollPos(), 0);
    editor.target->setHorizontalScrollPos(50);
    QCOMPARE(editor.source->getHorizontalScrollPos(), 0);
}

void tst_ComparedTables::oneHeight()
{
    for (const int line : {5, 30, 29, 60}) {
        select(line);
        QCOMPARE(heightOf(m_editor->target, line + 40), heightOf(m_editor->source, line));
    }
}

/// The target moves to show its line, and the source with it: by as many lines as the target had to
/// go. Nothing differs, so no difference is brought into sight.
void tst_ComparedTables::linesStayInSight()
{
    m_editor->catalog.write("new/a.prj", wideTable(160, "St37", "A,B,C,E,F,G,H"));
    m_editor->load();
    m_editor->widget->resize(600, m_editor->widget->minimumSizeHint().height());
    for (const int line : {3, 90, 12, 60, 100, 40}) {
        select(line);
        QVERIFY2(isInSight(m_editor->source, line, "D"), qPrintable(QString::number(line)));
        QVERIFY2(isInSight(m_editor->target, line == 100 ? 160 : line + 40, "D"),
                 qPrintable(QString::number(line)));
    }
}

void tst_ComparedTables::endOfTheTable()
{
    // There is nothing below the last line, so the source gives way.
    select(100);
    QVERIFY(isInSight(m_editor->target, 160, "W"));
    QVERIFY(isInSight(m_editor->source, 100, "W"));
    QCOMPARE(heightOf(m_editor->target, 160), heightOf(m_editor->source, 100));
}

void tst_ComparedTables::firstDifferenceInSight()
{
    QVERIFY(!isInSight(m_editor->source, 1, "W"));
    select(5);
    QVERIFY(isInSight(m_editor->source, 5, "W"));
    QVERIFY(isInSight(m_editor->target, 45, "W"));
}

void tst_ComparedTables::marks()
{
    select(5);
    QCOMPARE(groundOf(m_editor->source, 5, "W"), mark);
    QCOMPARE(groundOf(m_editor->target, 45, "W"), mark);
    QVERIFY(groundOf(m_editor->target, 46, "W") != mark);
    QVERIFY(groundOf(m_editor->source, 5, "H") != mark);
    // Another line of the same tables.
    select(6);
    QVERIFY(groundOf(m_editor->target, 45, "W") != mark);
    QCOMPARE(groundOf(m_editor->target, 46, "W"), mark);
}

/// Numbers are shown with their unit and in the user's notation; both tables have the same.
void tst_ComparedTables::marksNoUnits()
{
    TableEditorFixture editor;
    const auto millimetres = [](VKTab::TableDescriptor &descriptor) {
        descriptor.fields[1].unit = "mm";
    };
    editor.catalog.write("old/a.prj", "D,P:n,W\nM8,0.5,St37\n", millimetres);
    editor.catalog.write("new/a.prj", "D,P:n,W\nM8,0.5,S235\n", millimetres);
    enter(editor.mapping, 0, 1, 1, PRJMAPPING::ToCheck);
    editor.widget->setComparing(true);
    editor.load();
    editor.select(1);
    QCOMPARE(groundOf(editor.source, 1, "W"), mark);
    QCOMPARE(groundOf(editor.target, 1, "W"), mark);
    QVERIFY(groundOf(editor.source, 1, "P") != mark);
    QVERIFY(groundOf(editor.target, 1, "P") != mark);
}

void tst_ComparedTables::scrollTogether()
{
    select(50);
    const int height = heightOf(m_editor->source, 50);
    m_editor->source->setVerticalScrollPos(m_editor->source->getVerticalScrollPos() + 60);
    QCOMPARE(heightOf(m_editor->source, 50), height - 60);
    QCOMPARE(heightOf(m_editor->target, 90), height - 60);
    m_editor->target->setVerticalScrollPos(m_editor->target->getVerticalScrollPos() - 25);
    QCOMPARE(heightOf(m_editor->source, 50), height - 35);
    m_editor->source->setHorizontalScrollPos(0);
    QVERIFY(leftOf(m_editor->target, "A") >= 0);
    m_editor->target->setHorizontalScrollPos(leftOf(m_editor->target, "B") +
                                             m_editor->target->getHorizontalScrollPos());
    QCOMPARE(leftOf(m_editor->target, "B"), 0);
    QCOMPARE(leftOf(m_editor->source, "B"), 0);
}

void tst_ComparedTables::severalLines()
{
    select(5);
    m_editor->click(m_editor->source, 6, Qt::ControlModifier);
    QCoreApplication::processEvents();
    // No pair: each table goes its own way, and nothing is marked.
    m_editor->source->setVerticalScrollPos(0);
    m_editor->source->setVerticalScrollPos(100);
    QVERIFY(!m_editor->targetTable().isValid());
}

/// By the keys and by the wheel, in either table.
void tst_ComparedTables::zoomTogether()
{
    select(5);
    VkTableView *const source = m_editor->source;
    VkTableView *const target = m_editor->target;
    const double before = source->getZoomFactor();
    QTest::keyClick(source->grid(), Qt::Key_Plus, Qt::ControlModifier);
    QVERIFY(source->getZoomFactor() > before);
    QCOMPARE(target->getZoomFactor(), source->getZoomFactor());
    const auto heightOfText = [](VkTableView *view) {
        return view->grid()->fontMetrics().height();
    };
    QCOMPARE(heightOfText(target), heightOfText(source));
    QWheelEvent wheel(QPointF(5, 5), target->grid()->viewport()->mapToGlobal(QPointF(5, 5)), {},
                      {0, -2 * QWheelEvent::DefaultDeltasPerStep}, Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(target->grid()->viewport(), &wheel);
    QVERIFY(target->getZoomFactor() < before);
    QCOMPARE(source->getZoomFactor(), target->getZoomFactor());
    m_editor->widget->setComparing(false);
    QTest::keyClick(source->grid(), Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(source->getZoomFactor(), 1.0);
    QVERIFY(target->getZoomFactor() < 1.0);
}

QTEST_MAIN(tst_ComparedTables)
#include "tst_ComparedTables.moc"

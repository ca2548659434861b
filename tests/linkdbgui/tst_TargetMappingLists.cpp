// What the lists of a target show and what they store.
#include "TargetLists.h"

#include <gui/views/ButtonBarDelegate.h>

#include <QPainter>
#include <QScopeGuard>

namespace {

QTableView *listOf(const Editor &editor, const char *name)
{
    return editor.panel(0)->findChild<QTableView *>(QLatin1String(name));
}

/// Counts events of an object.
class EventCounter : public QObject
{
public:
    EventCounter(QObject *watched, QEvent::Type type)
        : m_type(type)
    {
        watched->installEventFilter(this);
    }
    [[nodiscard]] int count() const { return m_count; }
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        m_count += event->type() == m_type ? 1 : 0;
        return false;
    }

private:
    const QEvent::Type m_type;
    int m_count = 0;
};

} // namespace

class tst_TargetMappingLists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void roles();
    void ignoredRowIsStoredAsIgnored();
    void orderIsStored();
    void brokenConditionStaysARow();
    void hiddenFormulaIsGone();
    void emptyListsTakeNoRoom();
    void removeButtonHasAnIcon();
    void deleteButtonsShowTheirState();
    void proposedRulesAreMarked();
};

void tst_TargetMappingLists::roles()
{
    QCOMPARE(int(RowRole), 32);
    QCOMPARE(int(VariableNameRole), 33);
    QCOMPARE(int(FormulaRole), 34);
    QCOMPARE(int(IgnoredRole), 35);
}

void tst_TargetMappingLists::ignoredRowIsStoredAsIgnored()
{
    Editor editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addRename(mapping, 0, "k", "D");
    addRename(mapping, 0, "", "k");
    editor.load(mapping);
    const QAbstractItemModel *const model = listOf(editor, "variableView")->model();
    QCOMPARE(model->index(1, 2).data(IgnoredRole).toBool(), true);
    QCOMPARE(model->index(0, 2).data(IgnoredRole).toBool(), false);
    clickDelete(listOf(editor, "variableView"), 0);
    QCOMPARE(modifiersOf(editor.announced().findTarget(0)), QStringLiteral("k="));
}

void tst_TargetMappingLists::orderIsStored()
{
    Editor editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addRename(mapping, 0, "k", "D");
    addFormula(mapping, 0, "k = k + 1");
    addRename(mapping, 0, "D", "k");
    addRename(mapping, 0, "", "D");
    editor.load(mapping);
    QCOMPARE(listOf(editor, "variableView")->model()->index(1, 2).data(FormulaRole).toBool(), true);
    clickDelete(listOf(editor, "variableView"), 0);
    QCOMPARE(modifiersOf(editor.announced().findTarget(0)), QStringLiteral("k = k + 1; k=D; D="));
}

void tst_TargetMappingLists::brokenConditionStaysARow()
{
    Editor editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addCondition(mapping, 0, "D .EQ. 'M8'");
    addCondition(mapping, 0, "gone .EQ. 1");
    addCondition(mapping, 0, "k .LT. 9");
    editor.load(mapping);
    clickDelete(listOf(editor, "conditionView"), 0);
    const QAbstractItemModel *const model = listOf(editor, "conditionView")->model();
    QCOMPARE(model->rowCount(), 2);
    QCOMPARE(model->index(0, 1).data().toString(), QStringLiteral("gone .EQ. 1"));
    const auto stored = editor.announced().findTarget(0).getConditions();
    QCOMPARE(stored.size(), 1);
    QCOMPARE(stored.first()->getCondition(), QStringLiteral("k .LT. 9"));
    QCOMPARE(editor.panel(0)->conditionVariables, QStringList("k"));
}

void tst_TargetMappingLists::hiddenFormulaIsGone()
{
    Editor editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addRename(mapping, 0, "k", "D");
    addFormula(mapping, 0, "gone = k + 1");
    addRename(mapping, 0, "D", "k");
    editor.load(mapping);
    QCOMPARE(listOf(editor, "variableView")->model()->rowCount(), 2);
    clickDelete(listOf(editor, "variableView"), 0);
    QCOMPARE(modifiersOf(editor.announced().findTarget(0)), QStringLiteral("k=D"));
}

void tst_TargetMappingLists::emptyListsTakeNoRoom()
{
    Editor editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"});
    addCondition(mapping, 0, "k .LT. 9");
    editor.load(mapping, CatalogMappingC());
    const auto overhead = [&](int place) {
        auto *const view = editor.panel(place)->findChild<QTableView *>("conditionView");
        return view->height() - view->horizontalHeader()->height() - 2 * view->frameWidth();
    };
    // The header with the buttons stays.
    QVERIFY(editor.panel(1)->findChild<QTableView *>("conditionView")->isVisible());
    QCOMPARE(overhead(1), 0);
    QCOMPARE(overhead(0), listOf(editor, "conditionView")->rowHeight(0));
    clickDelete(listOf(editor, "conditionView"), 0);
    QTRY_COMPARE(overhead(0), 0);
    QCOMPARE(editor.panel(0)->height(), editor.panel(1)->height());
    // In a narrow panel a bar does not lie over the header, whose texts end in dots.
    auto *const variables = editor.panel(1)->findChild<QTableView *>("variableView");
    QCOMPARE(variables->horizontalHeader()->textElideMode(), Qt::ElideRight);
    QCOMPARE(variables->model()->headerData(2, Qt::Horizontal, Qt::ToolTipRole).toString(),
             variables->model()->headerData(2, Qt::Horizontal).toString());
    variables->setFixedWidth(80);
    QTRY_VERIFY(variables->horizontalScrollBar()->isVisible());
    QTRY_VERIFY(!variables->horizontalHeader()->geometry().intersects(
        variables->horizontalScrollBar()->parentWidget()->geometry()));
    QTRY_VERIFY(variables->height() >= variables->horizontalHeader()->height() +
                                           variables->horizontalScrollBar()->height());
}

void tst_TargetMappingLists::removeButtonHasAnIcon()
{
    // The host's pictures, where it says that they are.
    const QStringList before = QDir::searchPaths("bitmaps");
    QDir::addSearchPath("bitmaps", ":/hostbitmaps");
    const auto restore = qScopeGuard([&] { QDir::setSearchPaths("bitmaps", before); });
    Editor editor;
    editor.load(mappingOf("old/a.prj", {"new/a.prj"}));
    QVERIFY(!editor.button(0, "removeButton")->icon().pixmap(16, 16).isNull());
}

void tst_TargetMappingLists::deleteButtonsShowTheirState()
{
    const QStringList before = QDir::searchPaths("bitmaps");
    QDir::addSearchPath("bitmaps", ":/hostbitmaps");
    const auto restore = qScopeGuard([&] { QDir::setSearchPaths("bitmaps", before); });
    TargetLists editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addCondition(mapping, 0, "k .GT. 1");
    addRename(mapping, 0, "D", "k");
    editor.load(mapping);
    for (QTableView *const list : {editor.conditions(), editor.variables()}) {
        auto *const bar = qobject_cast<ButtonBarDelegate *>(list->itemDelegateForColumn(0));
        QVERIFY(bar);
        const QModelIndex cell = list->model()->index(0, 0);
        const auto drawn = [&](const ButtonBarDelegate &delegate) {
            QStyleOptionViewItem option;
            option.rect = QRect(0, 0, 32, 32);
            QImage image(option.rect.size(), QImage::Format_ARGB32);
            image.fill(Qt::white);
            QPainter painter(&image);
            delegate.paint(&painter, option, cell);
            return image;
        };
        ButtonBarDelegate expected(nullptr);
        expected.addButton({}, {}, QIcon("bitmaps:indextree/state_deleted.png"));
        ButtonBarDelegate empty(nullptr);
        empty.addButton({}, {}, QIcon());
        QVERIFY(drawn(expected) != drawn(empty));
        QCOMPARE(drawn(*bar), drawn(expected));
        // What the delegate asks for is painted.
        QTRY_VERIFY(list->isVisible());
        QTest::qWait(0);
        EventCounter paints(list->viewport(), QEvent::Paint);
        Q_EMIT bar->indexNeedsUpdate(cell);
        QTRY_VERIFY(paints.count() > 0);
    }
}

void tst_TargetMappingLists::proposedRulesAreMarked()
{
    Editor editor;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addCondition(mapping, 0, "k .LT. 9");
    addCondition(mapping, 0, "k .LT. 8");
    addRename(mapping, 0, "k", "k");
    mapping.changeTarget(0, [](PrjMappingTargetC &target) { target.setProposedRules(true); });
    editor.load(mapping, CatalogMappingC());
    const auto isItalic = [&](const char *list, int column) {
        const QModelIndex cell = listOf(editor, list)->model()->index(0, column);
        return cell.data(Qt::FontRole).value<QFont>().italic();
    };
    const auto toolTip = [&] {
        return editor.panel(0)->findChild<QLabel *>("pathLabel")->toolTip();
    };
    const QString text = "Bedingungen und Variablenzuordnungen sind vorgeschlagen. Sie gelten, "
                         "sobald eine Zeile des Ziels bestätigt ist.";
    QVERIFY(isItalic("conditionView", 1) && isItalic("variableView", 1) &&
            isItalic("variableView", 2));
    QCOMPARE(toolTip(), "new/a.prj<br />" + text);
    // Whoever changes them stands for them.
    clickDelete(listOf(editor, "conditionView"), 0);
    QVERIFY(!isItalic("conditionView", 1) && !isItalic("variableView", 2));
    QCOMPARE(toolTip(), QStringLiteral("new/a.prj"));
    QVERIFY(!editor.announced().findTarget(0).hasProposedRules());
    enter(mapping, 0, 1, 1, PRJMAPPING::Verified);
    editor.load(mapping, CatalogMappingC());
    QVERIFY(!isItalic("conditionView", 1));
}

QTEST_MAIN(tst_TargetMappingLists)
#include "tst_TargetMappingLists.moc"

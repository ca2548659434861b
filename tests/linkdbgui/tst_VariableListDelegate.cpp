#include "../support/TestCatalog.h"

#include <mapping/project/ignoreMarker.h>
#include <mapping/project/TargetItemRole.h>
#include <mapping/project/VariableListDelegate.h>
#include <mapping/table/LineIdColumnLayer.h>

#include <QComboBox>
#include <QHelpEvent>
#include <QPainter>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTest>
#include <QToolTip>

namespace {

/// A list of one row with the delegate in its column 2.
struct List
{
    List()
    {
        catalog.write("new/a.prj", "D,k:n\nM8,5\n");
        model.appendRow({new QStandardItem, new QStandardItem("k"), new QStandardItem("D")});
        view.setModel(&model);
        view.setItemDelegateForColumn(2, &delegate);
        delegate.content = catalog.read("new/a.prj");
        delegate.showIgnoreItem = true;
        delegate.model = &model;
        delegate.valueColumn = 2;
        delegate.targetColumn = 1;
        delegate.onChanged = [this] {
            ++changes;
        };
        view.resize(600, 200);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
    }
    [[nodiscard]] QModelIndex cell() const { return model.index(0, 2); }
    std::unique_ptr<QComboBox> box()
    {
        return std::unique_ptr<QComboBox>(qobject_cast<QComboBox *>(
            delegate.createEditor(view.viewport(), QStyleOptionViewItem(), cell())));
    }
    [[nodiscard]] QImage painted(const QStyledItemDelegate &with) const
    {
        QImage image(view.visualRect(cell()).size(), QImage::Format_ARGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        QStyleOptionViewItem option;
        option.initFrom(&view);
        option.widget = &view;
        option.rect = image.rect();
        with.paint(&painter, option, cell());
        return image;
    }
    bool help()
    {
        const QPoint pos = view.visualRect(cell()).center();
        QHelpEvent event(QEvent::ToolTip, pos, view.viewport()->mapToGlobal(pos));
        QStyleOptionViewItem option;
        option.initFrom(&view);
        option.widget = &view;
        option.rect = view.visualRect(cell());
        return delegate.helpEvent(&event, &view, option, cell());
    }

    TestCatalog catalog;
    QStandardItemModel model{0, 3};
    VariableListDelegate delegate{VKTab::ContentRef(), true, nullptr};
    QTableView view;
    int changes = 0;
};

} // namespace

class tst_VariableListDelegate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void slotOrder();
    void entries();
    void entriesWithoutSpecials();
    void entriesWithoutTable();
    void addedColumnsAreNotOffered();
    void connectionIsQueued();
    void editorData_data();
    void editorData();
    void modelData();
    void modelDataOfTheFirstVariable();
    void modelDataOfASpecialEntry();
    void ignoreIsNotTold();
    void activatedWithoutSender();
    void formulaOnlyHasNoBox();
    void plainCellAsAlways();
    void formulaInColour();
    void formulaTip();
    void plainTip();
};

void tst_VariableListDelegate::defaults()
{
    const VariableListDelegate delegate(VKTab::ContentRef(), true, nullptr);
    QVERIFY(delegate.showFormulaItem);
    QVERIFY(!delegate.showIgnoreItem);
    QVERIFY(!delegate.formulaOnly);
    QVERIFY(!delegate.model);
    QCOMPARE(delegate.valueColumn, -1);
    QCOMPARE(delegate.targetColumn, -1);
    QVERIFY(!delegate.onChanged);
    QVERIFY(delegate.sourceVariables.isEmpty());
    QVERIFY(delegate.targetVariables.isEmpty());
}

void tst_VariableListDelegate::slotOrder()
{
    QStringList names;
    const QMetaObject &meta = VariableListDelegate::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        names += meta.method(i).typeName() + QStringLiteral(" ") + meta.method(i).methodSignature();
    QCOMPARE(names, QStringList({"void onItemActivated(int)",
                                 "bool helpEvent(QHelpEvent*,QAbstractItemView*,"
                                 "QStyleOptionViewItem,QModelIndex)"}));
}

void tst_VariableListDelegate::entries()
{
    List list;
    const auto box = list.box();
    QCOMPARE(box->count(), 5);
    QCOMPARE(box->itemText(0), QStringLiteral("Formel..."));
    QVERIFY(!box->itemIcon(0).isNull());
    QCOMPARE(box->itemText(1), ignoreMarker());
    QCOMPARE(box->itemData(2, Qt::AccessibleDescriptionRole).toString(),
             QStringLiteral("separator"));
    for (const int special : {0, 1}) {
        QCOMPARE(box->itemData(special, RowRole), QVariant(0));
        QCOMPARE(box->itemData(special, VariableNameRole), QVariant(QString()));
    }
    QCOMPARE(box->itemText(3), QStringLiteral("D"));
    QCOMPARE(box->itemData(4, VariableNameRole), QVariant(QStringLiteral("k")));
    QVERIFY(!box->itemData(4, RowRole).isValid());
}

void tst_VariableListDelegate::entriesWithoutSpecials()
{
    List list;
    list.delegate.showFormulaItem = false;
    list.delegate.showIgnoreItem = false;
    const auto box = list.box();
    QCOMPARE(box->count(), 2);
    QCOMPARE(box->itemText(0), QStringLiteral("D"));
}

void tst_VariableListDelegate::entriesWithoutTable()
{
    List list;
    list.delegate.content = VKTab::ContentRef();
    QCOMPARE(list.box()->count(), 0);
}

void tst_VariableListDelegate::addedColumnsAreNotOffered()
{
    // A line's values have no column that was added to be looked at.
    List list;
    list.delegate.content.addLayer(LineIdColumnLayer());
    QVERIFY(list.delegate.content.getVar(u"LINE_ID").isValid());
    QCOMPARE(list.box()->findText("LINE_ID"), -1);
}

void tst_VariableListDelegate::connectionIsQueued()
{
    List list;
    const auto box = list.box();
    QMetaObject::invokeMethod(box.get(), "activated", Q_ARG(int, 1));
    QCOMPARE(list.cell().data().toString(), QStringLiteral("D"));
    QCoreApplication::processEvents();
    QCOMPARE(list.cell().data().toString(), ignoreMarker());
}

void tst_VariableListDelegate::editorData_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("index");
    QTest::newRow("variable") << "k" << 4;
    QTest::newRow("empty") << "" << 0;
    QTest::newRow("unknown") << "gone" << -1;
    QTest::newRow("other case") << "K" << -1;
    QTest::newRow("marker") << "<Variable ignorieren>" << -1;
}

void tst_VariableListDelegate::editorData()
{
    QFETCH(QString, text);
    QFETCH(int, index);
    List list;
    list.model.setData(list.cell(), text);
    const auto box = list.box();
    list.delegate.setEditorData(box.get(), list.cell());
    QCOMPARE(box->currentIndex(), index);
}

void tst_VariableListDelegate::modelData()
{
    List list;
    list.model.setData(list.cell(), true, FormulaRole);
    list.model.setData(list.cell(), true, IgnoredRole);
    const auto box = list.box();
    box->setCurrentIndex(4);
    list.delegate.setModelData(box.get(), &list.model, list.cell());
    QCOMPARE(list.cell().data().toString(), QStringLiteral("k"));
    QCOMPARE(list.cell().data(FormulaRole), QVariant(false));
    QCOMPARE(list.cell().data(IgnoredRole), QVariant(true)); // stays
    QCOMPARE(list.changes, 1);
}

void tst_VariableListDelegate::modelDataOfTheFirstVariable()
{
    List list;
    list.delegate.showFormulaItem = false;
    list.delegate.showIgnoreItem = false;
    list.model.setData(list.cell(), "k");
    const auto box = list.box();
    box->setCurrentIndex(0);
    list.delegate.setModelData(box.get(), &list.model, list.cell());
    QCOMPARE(list.cell().data().toString(), QStringLiteral("D"));
}

void tst_VariableListDelegate::modelDataOfASpecialEntry()
{
    List list;
    const auto box = list.box();
    for (const int index : {-1, 0, 1}) {
        box->setCurrentIndex(index);
        list.delegate.setModelData(box.get(), &list.model, list.cell());
    }
    QCOMPARE(list.cell().data().toString(), QStringLiteral("D"));
    QVERIFY(!list.cell().data(FormulaRole).isValid());
    QCOMPARE(list.changes, 3); // told all the same
}

void tst_VariableListDelegate::ignoreIsNotTold()
{
    List list;
    list.model.setData(list.cell(), true, FormulaRole);
    const auto box = list.box();
    QMetaObject::invokeMethod(box.get(), "activated", Q_ARG(int, 1));
    QCoreApplication::processEvents();
    QCOMPARE(list.cell().data().toString(), ignoreMarker());
    QCOMPARE(list.cell().data(IgnoredRole), QVariant(true));
    QCOMPARE(list.cell().data(FormulaRole), QVariant(false));
    QCOMPARE(list.changes, 0);
}

void tst_VariableListDelegate::activatedWithoutSender()
{
    List list;
    auto box = list.box();
    QMetaObject::invokeMethod(box.get(), "activated", Q_ARG(int, 1));
    box.reset();
    QCoreApplication::processEvents();
    list.delegate.onItemActivated(1);
    QCOMPARE(list.cell().data().toString(), QStringLiteral("D"));
}

void tst_VariableListDelegate::formulaOnlyHasNoBox()
{
    List list;
    list.delegate.formulaOnly = true;
    QVERIFY(!list.box());
}

void tst_VariableListDelegate::plainCellAsAlways()
{
    List list;
    const QStyledItemDelegate plain;
    QCOMPARE(list.painted(list.delegate), list.painted(plain));
}

void tst_VariableListDelegate::formulaInColour()
{
    List list;
    list.model.setData(list.cell(), "k .GT. 123 .AND. D .EQ. 'xyz'");
    const QImage plain = list.painted(QStyledItemDelegate());
    const auto colours = [](const QImage &image) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += image.pixelColor(x, y).saturation() > 128 ? 1 : 0;
        return count;
    };
    for (const TargetItemRole role : {FormulaRole, IgnoredRole}) {
        list.model.setData(list.cell(), true, role);
        QVERIFY(colours(list.painted(list.delegate)) > colours(plain) + 50);
        list.model.setData(list.cell(), false, role);
        QCOMPARE(list.painted(list.delegate), plain);
    }
}

void tst_VariableListDelegate::formulaTip()
{
    List list;
    list.model.setData(list.cell(), "k .GT. 1 .AND. D .EQ. '<b>'");
    list.model.setData(list.cell(), true, FormulaRole);
    QVERIFY(list.help());
    QVERIFY(QToolTip::text().contains("&lt;b&gt;"));
    QVERIFY(QToolTip::text().contains("color:"));
    // It stays: nobody puts the item's own, empty one in its place.
    QTest::qWait(500);
    QVERIFY(QToolTip::isVisible());
    QToolTip::hideText();
}

void tst_VariableListDelegate::plainTip()
{
    List list;
    list.model.setData(list.cell(), "own tip", Qt::ToolTipRole);
    QVERIFY(list.help());
    QCOMPARE(QToolTip::text(), QStringLiteral("own tip"));
    // The item's own one comes after that of the formula.
    list.model.setData(list.cell(), true, FormulaRole);
    QVERIFY(list.help());
    QCOMPARE(QToolTip::text(), QStringLiteral("own tip"));
    QToolTip::hideText();
}

QTEST_MAIN(tst_VariableListDelegate)
#include "tst_VariableListDelegate.moc"

#include "TableEditorFixture.h"

#include <QTest>

class tst_LineMappingActions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { f.reset(); }
    void confirmByKey();

private:
    std::unique_ptr<TableEditorFixture> f;
};

void tst_LineMappingActions::init()
{
    f = std::make_unique<TableEditorFixture>();
    f->catalog.write("old/a.prj", "D,k:n\nM8,5\nM9,6\nM10,7\n");
    f->catalog.write("new/a.prj", "D,k:n\nM10,7\nM9,66\nM8,5\n");
    enter(f->mapping, 0, 1, 3, PRJMAPPING::Mapped);
    enter(f->mapping, 0, 2, 2, PRJMAPPING::ToCheck);
}

void tst_LineMappingActions::confirmByKey()
{
    f->load();
    QCOMPARE(f->states(), "- C N");
    f->select(2);
    QCOMPARE(f->targetTable().getSelection(), VKTab::LineId(2));
    f->press(Qt::Key_V);
    QCOMPARE(f->published.size(), 1);
    QCOMPARE(entriesOf(f->current()), "0:1>3/1 0:2>2/2");
    QCOMPARE(f->states(), "- M N");
    f->widget->grab().save("/tmp/table_shot.png");
}

QTEST_MAIN(tst_LineMappingActions)
#include "tst_LineMappingActions.moc"

#include "../support/TestCatalog.h"

#include <mapping/table/LineStates.h>

#include <QRandomGenerator>
#include <QTest>

using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
using PRJMAPPING::Verified;
using VKTab::LineId;

class tst_LineStates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts();
    void allEqualEach_data();
    void allEqualEach();
    void someLines();

private:
    void compare(const PrjMappingC &mapping, const VKTab::Content &table) const;
};

void tst_LineStates::texts()
{
    QStringList texts;
    for (const QVariant &text : LineStates::texts())
        texts.append(text.toString());
    QCOMPARE(texts, QStringList({"", "M", "C", "N", "NC", "Conflicted"}));
}

void tst_LineStates::compare(const PrjMappingC &mapping, const VKTab::Content &table) const
{
    const QVector<LineId> lines = table.getLineIdList();
    const std::vector<quint8> states = LineStates::ofAll(lines, table, mapping);
    QCOMPARE(states.size(), size_t(lines.size()));
    for (qsizetype i = 0; i < lines.size(); ++i)
        QCOMPARE(int(states[size_t(i)]), int(LineStates::of(lines[i], table, mapping)));
}

void tst_LineStates::allEqualEach_data()
{
    QTest::addColumn<int>("step");
    QTest::newRow("numbers that follow one another") << 1;
    QTest::newRow("numbers apart") << 7;
    QTest::newRow("numbers too far apart for a place each") << 5000;
}

void tst_LineStates::allEqualEach()
{
    QFETCH(int, step);
    TestCatalog catalog;
    QByteArray text = "Id:i,k:n\n";
    for (int i = 1; i <= 200; ++i)
        text += QByteArray::number(i * step) + "," + QByteArray::number(i % 7) + "\n";
    catalog.write("old/a.prj", text, [](auto &table) { table.lineIdField = "Id"; });
    const VKTab::ContentRef table = catalog.read("old/a.prj");
    QCOMPARE(table.getLineCount(), 200);
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj", ""});
    addCondition(mapping, 0, "k .LT. 4");
    compare(mapping, table);
    QRandomGenerator random(4711);
    for (int change = 0; change < 600; ++change) {
        const int target = random.bounded(3);
        const int line = random.bounded(1, 220) * step;
        PrjMappingTargetC edited = mapping.findTarget(target);
        edited.addLineId(line, random.bounded(-1, 3), PRJMAPPING::CheckState(random.bounded(3)),
                         QString());
        edited.setLineConflicted(line, random.bounded(5) == 0);
        mapping.updateTarget(target, edited);
        if (change % 60 == 0)
            compare(mapping, table);
    }
    compare(mapping, table);
}

void tst_LineStates::someLines()
{
    TestCatalog catalog;
    catalog.write("old/a.prj", "k:n\n5\n6\n7\n8\n");
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
    enter(mapping, 0, 2, 1, ToCheck);
    enter(mapping, 0, 3, 1, Mapped);
    enter(mapping, 0, 4, 1, Verified);
    enter(mapping, 0, 400000, 1, Verified); // a line that the table has not
    const VKTab::ContentRef table = catalog.read("old/a.prj");
    using States = std::vector<quint8>;
    QCOMPARE(LineStates::ofAll({LineId(4), LineId(2)}, table, mapping),
             States({LineStates::Confirmed, LineStates::ToCheck}));
    QCOMPARE(LineStates::ofAll({LineId(1), LineId(3)}, table, mapping),
             States({LineStates::NotFound, LineStates::Assigned}));
    QCOMPARE(LineStates::ofAll({}, table, mapping), States());
}

QTEST_GUILESS_MAIN(tst_LineStates)
#include "tst_LineStates.moc"

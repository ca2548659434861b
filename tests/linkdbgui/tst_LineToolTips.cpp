#include <mapping/table/lineToolTips.h>

#include <QTest>

class tst_LineToolTips : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void proposal_data();
    void proposal();
    void conflict();
};

void tst_LineToolTips::proposal_data()
{
    QTest::addColumn<QStringList>("messages");
    QTest::addColumn<QString>("expected");

    QTest::newRow("no message: the sentence alone") << QStringList() << "";
    QTest::newRow("rows") << QStringList("a\nb") << "<br />a<br />b<br />";
    QTest::newRow("several messages")
        << QStringList({"a", "b\nc"}) << "<br />a<br />b<br />c<br />";
    QTest::newRow("empty rows are left out")
        << QStringList("\na\n\n\nb\n") << "<br />a<br />b<br />";
    QTest::newRow("empty message") << QStringList("") << "<br />";
    QTest::newRow("the first of three blanks") << QStringList("   a") << "<br />&nbsp;  a<br />";
    QTest::newRow("blanks elsewhere") << QStringList("a  b ") << "<br />a  b <br />";
    QTest::newRow("signs of HTML") << QStringList("  Alter Wert: <rechts> & \"links\"")
                                   << "<br />&nbsp; Alter Wert: &lt;rechts&gt; &amp; "
                                      "&quot;links&quot;<br />";
    QTest::newRow("place holders") << QStringList("%1 %2") << "<br />%1 %2<br />";
}

void tst_LineToolTips::proposal()
{
    QFETCH(QStringList, messages);
    QFETCH(QString, expected);
    QCOMPARE(proposalToolTip(messages),
             QString("<b>Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt "
                     "oder korrigiert werden</b>") +
                 expected);
}

void tst_LineToolTips::conflict()
{
    const QString heading = "<b>Für diese Zeile besteht ein Konflikt. Die Zuordnung muss bestätigt "
                            "oder korrigiert werden</b><br />";
    QCOMPARE(conflictToolTip(QString()), heading);
    QCOMPARE(conflictToolTip("a<br />b"), heading + "a<br />b"); // HTML already
}

QTEST_GUILESS_MAIN(tst_LineToolTips)
#include "tst_LineToolTips.moc"

#include <mapping/table/DesignationLabels.h>

#include <QLabel>
#include <QTest>
#include <QTextDocumentFragment>

class tst_DesignationLabels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data();
    void texts();
    void withoutBothLabels();
    void everyChangeShows();
    void lightGroundInADarkWindow();
};

namespace {

/// What a reader sees of a text that may be HTML.
QString shownBy(const QString &text)
{
    return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

} // namespace

void tst_DesignationLabels::texts_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("sourceShown");
    QTest::addColumn<QString>("targetShown");

    const QString green = "<span style=\"color:#008000;\">%1</span>";
    const QString red = "<span style=\"color:#ff0000;\">%1</span>";
    QTest::newRow("both empty: plain") << ""
                                       << ""
                                       << ""
                                       << "";
    QTest::newRow("equal: green") << "M8"
                                  << "M8" << green.arg("M8") << green.arg("M8");
    QTest::newRow("different: red") << "M8"
                                    << "M9" << red.arg("M8") << red.arg("M9");
    QTest::newRow("source only: red") << "M8"
                                      << "" << red.arg("M8") << red.arg("");
    QTest::newRow("target only: red") << ""
                                      << "M9" << red.arg("") << red.arg("M9");
    QTest::newRow("case counts") << "m8"
                                 << "M8" << red.arg("m8") << red.arg("M8");
    QTest::newRow("signs of HTML")
        << "M8 <rechts> & \"x\""
        << "M8 <links>" << red.arg("M8 &lt;rechts&gt; &amp; &quot;x&quot;")
        << red.arg("M8 &lt;links&gt;");
    QTest::newRow("a tag") << "<b>M8</b>"
                           << "" << red.arg("&lt;b&gt;M8&lt;/b&gt;") << red.arg("");
    QTest::newRow("place holders stay") << "%1"
                                        << "%1" << green.arg("%1") << green.arg("%1");
}

void tst_DesignationLabels::texts()
{
    QFETCH(QString, source);
    QFETCH(QString, target);
    QLabel sourceLabel("before");
    QLabel targetLabel("before");
    DesignationLabels labels;
    labels.sourceLabel = &sourceLabel;
    labels.targetLabel = &targetLabel;
    labels.setSourceText(source);
    labels.setTargetText(target);
    QTEST(sourceLabel.text(), "sourceShown");
    QTEST(targetLabel.text(), "targetShown");
    QCOMPARE(shownBy(sourceLabel.toolTip()), source);
    QCOMPARE(shownBy(targetLabel.toolTip()), target);
    QCOMPARE(shownBy(sourceLabel.text()), source);
    QCOMPARE(labels.sourceText, source);
    QCOMPARE(labels.targetText, target);
}

void tst_DesignationLabels::withoutBothLabels()
{
    QLabel label("before");
    DesignationLabels labels;
    labels.sourceLabel = &label;
    labels.setSourceText("a");
    labels.setTargetText("a");
    QCOMPARE(label.text(), QString("before"));
}

void tst_DesignationLabels::everyChangeShows()
{
    QLabel sourceLabel;
    QLabel targetLabel;
    DesignationLabels labels;
    labels.sourceLabel = &sourceLabel;
    labels.targetLabel = &targetLabel;
    labels.setSourceText("a");
    QVERIFY(sourceLabel.text().contains("#ff0000"));
    labels.setTargetText("a");
    QVERIFY(sourceLabel.text().contains("#008000"));
    labels.setSourceText("");
    labels.setTargetText("");
    QCOMPARE(sourceLabel.text() + targetLabel.text(), QString());
}

void tst_DesignationLabels::lightGroundInADarkWindow()
{
    QWidget window;
    QLabel sourceLabel(&window);
    QLabel targetLabel(&window);
    DesignationLabels labels;
    labels.sourceLabel = &sourceLabel;
    labels.targetLabel = &targetLabel;
    labels.setSourceText("a");
    QVERIFY(!sourceLabel.autoFillBackground());
    window.setPalette(QPalette(QColor(40, 40, 40)));
    labels.setSourceText("b");
    QVERIFY(sourceLabel.autoFillBackground());
    QVERIFY(sourceLabel.palette().color(QPalette::Window).lightness() > 200);
    QVERIFY(!targetLabel.autoFillBackground());
    labels.setSourceText("");
    QVERIFY(!sourceLabel.autoFillBackground());
    labels.setSourceText("c");
    window.setPalette(QPalette(QColor(240, 240, 240)));
    labels.show();
    QVERIFY(!sourceLabel.autoFillBackground());
}

QTEST_MAIN(tst_DesignationLabels)
#include "tst_DesignationLabels.moc"

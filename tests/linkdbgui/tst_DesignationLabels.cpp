#include "../support/ControlCheck.h"

#include <mapping/table/DesignationLabel.h>
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
    void differenceIsTold_data();
    void differenceIsTold();
    void longTextIsCut();
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

/// By a sign besides the colour, and legible on every ground.
void tst_DesignationLabels::differenceIsTold_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("shown");
    QTest::newRow("equal") << "M8"
                           << "M8"
                           << "= M8";
    QTest::newRow("different") << "M8 <b>"
                               << "M9"
                               << "≠ M8 <b>";
    QTest::newRow("source only") << "M8"
                                 << ""
                                 << "≠ M8";
    QTest::newRow("nothing") << ""
                             << ""
                             << "";
}

void tst_DesignationLabels::differenceIsTold()
{
    QFETCH(QString, source);
    QFETCH(QString, target);
    DesignationLabel sourceLabel(nullptr);
    DesignationLabel targetLabel(nullptr);
    DesignationLabels labels;
    labels.sourceLabel = &sourceLabel;
    labels.targetLabel = &targetLabel;
    labels.setSourceText(source);
    labels.setTargetText(target);
    QTEST(sourceLabel.shownText(), "shown");
    QTEST(sourceLabel.accessibleDescription(), "shown");
    QVERIFY(sourceLabel.sizeHint().width() >=
            sourceLabel.fontMetrics().horizontalAdvance(sourceLabel.shownText()));
    for (const QColor &window :
         {QColor(0xf3, 0xf4, 0xf6), QColor(0x2b, 0x2d, 0x31), QColor(Qt::black)}) {
        const QColor ink = DesignationLabel::ink(sourceLabel.comparison(), QPalette(window));
        const double contrast = ControlCheck::contrast(ink, window);
        QVERIFY2(contrast >= 4.5, qPrintable(window.name() + QString(": %1").arg(contrast)));
    }
}

void tst_DesignationLabels::longTextIsCut()
{
    DesignationLabel label(nullptr);
    label.setText("<span style=\"color:#ff0000;\">" + QString(40, 'x') + "</span>");
    label.setComparison(DesignationLabel::Different);
    label.resize(label.sizeHint());
    const QImage whole = label.grab().toImage();
    label.resize(60, label.height());
    const QImage cut = label.grab().toImage();
    QVERIFY(whole.copy(0, 0, 60, whole.height()) != cut); // it ends in dots
    QVERIFY(whole.copy(0, 0, 20, whole.height()) == cut.copy(0, 0, 20, cut.height()));
}

QTEST_MAIN(tst_DesignationLabels)
#include "tst_DesignationLabels.moc"

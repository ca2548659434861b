#include <geomcore/expression/Tokenizer.h>
#include <geomcoregui/text/VkTableHighlighter.h>

#include <QPointer>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

class tst_VkTableHighlighter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void coloursTokens_data();
    void coloursTokens();
    void textsGoOverLineEnds();
    void namesAreChecked_data();
    void namesAreChecked();
    void textSetAfterwardsIsColouredAtOnce();
    void textSetBeforeIsColouredByTheEventLoop();
    void htmlHoldsTextAndColours();
    void htmlOfSeveralLinesKeepsThem();
    void goesWithItsDocument();
};

namespace {

QList<QTextLayout::FormatRange> formats(const QTextDocument &document)
{
    return document.begin().layout()->formats();
}

} // namespace

void tst_VkTableHighlighter::coloursTokens_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("length");
    QTest::newRow("number") << "A, 12.5" << 3 << 4;
    QTest::newRow("text") << "A, 'b'" << 3 << 3;
    QTest::newRow("arithmetic") << "A + B" << 2 << 1;
    QTest::newRow("assignment") << "A = B" << 2 << 1;
    QTest::newRow("function") << "ABS(A)" << 0 << 3;
    QTest::newRow("comparison") << "A .EQ. B" << 2 << 4;
    QTest::newRow("logic") << "A .AND. B" << 2 << 5;
    QTest::newRow("open text") << "A, 'b" << 3 << 2;
    QTest::newRow("unknown sign") << "A ? B" << 2 << 1;
}

void tst_VkTableHighlighter::coloursTokens()
{
    QFETCH(QString, text);
    QFETCH(int, start);
    QFETCH(int, length);
    QTextDocument document;
    new VkTableHighlighter(VKTab::Tokenizer(), &document);
    document.setPlainText(text);
    const auto found = formats(document);
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.at(0).start, start);
    QCOMPARE(found.at(0).length, length);
    QVERIFY(found.at(0).format.hasProperty(QTextFormat::ForegroundBrush));
}

void tst_VkTableHighlighter::textsGoOverLineEnds()
{
    QTextDocument document;
    new VkTableHighlighter(VKTab::Tokenizer(), &document);
    document.setPlainText("'a\nb' + 1\n'c");
    const auto shown = [&](int block) {
        QStringList ranges;
        for (const auto &range : document.findBlockByNumber(block).layout()->formats()) {
            const bool isWrong = range.format.underlineStyle() == QTextCharFormat::WaveUnderline;
            ranges += QString("%1+%2%3").arg(range.start).arg(range.length).arg(isWrong ? "!" : "");
        }
        return ranges;
    };
    QCOMPARE(shown(0), QStringList{"0+2"});
    QCOMPARE(shown(1), (QStringList{"0+2", "3+1", "5+1"}));
    QCOMPARE(shown(2), QStringList{"0+2!"});
}

void tst_VkTableHighlighter::namesAreChecked_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("asked");
    QTest::newRow("read") << "A + B" << QStringList{"A 0", "B 0"};
    QTest::newRow("prefixed") << "SOURCE@A" << QStringList{"A 1"};
    QTest::newRow("assigned") << "A = B" << QStringList{"A 2", "B 0"};
    QTest::newRow("assignment in a later line") << "A +\nB = C" << QStringList{"A 0", "B 0", "C 0"};
    QTest::newRow("function") << "MAX(A, 1)" << QStringList{"MAX 3", "A 0"};
    QTest::newRow("none") << "1 + 'A'" << QStringList();
}

void tst_VkTableHighlighter::namesAreChecked()
{
    QFETCH(QString, text);
    QTextDocument document;
    auto *const highlighter = new VkTableHighlighter(VKTab::Tokenizer(), &document);
    QStringList asked;
    highlighter->setNameCheck([&](const QString &name, VkTableHighlighter::NamePlace place) {
        asked += QString("%1 %2").arg(name).arg(int(place));
        return name != "A";
    });
    document.setPlainText(text);
    QTEST(asked, "asked");
    const bool hasA = asked.join(' ').contains('A') && asked != QStringList{"MAX 3"};
    QCOMPARE(highlighter->toHtml().contains("underline"), hasA);
    highlighter->setNameCheck({});
    QVERIFY(!highlighter->toHtml().contains("underline"));
}

void tst_VkTableHighlighter::textSetAfterwardsIsColouredAtOnce()
{
    QTextDocument document;
    new VkTableHighlighter(VKTab::Tokenizer(), &document);
    document.setPlainText("1");
    QCOMPARE(formats(document).size(), 1);
}

void tst_VkTableHighlighter::textSetBeforeIsColouredByTheEventLoop()
{
    QTextDocument document;
    document.setPlainText("1");
    new VkTableHighlighter(VKTab::Tokenizer(), &document);
    QCOMPARE(formats(document).size(), 0);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    QCOMPARE(formats(document).size(), 1);
}

void tst_VkTableHighlighter::htmlHoldsTextAndColours()
{
    QTextDocument document;
    auto *const highlighter = new VkTableHighlighter(VKTab::Tokenizer(), &document);
    document.setPlainText("Dia < 5 .AND. Note = 'a&b'");
    const QString html = highlighter->toHtml();
    QVERIFY2(html.contains("'a&amp;b'</span>"), qPrintable(html));
    QVERIFY(html.contains("font-weight:bold;\">.AND.</span>"));
    QVERIFY(html.contains("color:#"));
    QTextDocument read;
    read.setHtml(html);
    QCOMPARE(read.toPlainText(), document.toPlainText());
}

void tst_VkTableHighlighter::htmlOfSeveralLinesKeepsThem()
{
    QTextDocument document;
    auto *const highlighter = new VkTableHighlighter(VKTab::Tokenizer(), &document);
    document.setPlainText("A = 1\nB = 2");
    QTextDocument read;
    read.setHtml(highlighter->toHtml());
    QCOMPARE(read.toPlainText(), QString("A = 1\nB = 2"));
}

void tst_VkTableHighlighter::goesWithItsDocument()
{
    QPointer<VkTableHighlighter> highlighter;
    {
        QTextDocument document;
        highlighter = new VkTableHighlighter(VKTab::Tokenizer(), &document);
        QVERIFY(highlighter);
    }
    QVERIFY(!highlighter);
}

QTEST_MAIN(tst_VkTableHighlighter)
#include "tst_VkTableHighlighter.moc"

#include "ModalScript.h"
#include "WindowFixture.h"

#include <gui/application/PCommandKeys.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/help/HelpDesk.h>
#include <workbench/window/help/HelpWindow.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/settings/SettingsDialog.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <QAction>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSet>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTreeWidget>

#include <algorithm>

/// The manual in the program.
class tst_Help : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTopicIsThere();
    void everyLinkLeadsSomewhere_data();
    void everyLinkLeadsSomewhere();
    void opensWhereOneIs();
    void opensAboveADialog();
    void linksAndBack();
    void contentsAndFind();
    void glossaryHasBothLanguages();
    void menusAreThoseOfTheProgram();
    void keysAreThoseOfTheProgram();

private:
    [[nodiscard]] static QString textOf(const QString &page)
    {
        QFile file(":/manual/" + page);
        if (!file.open(QIODevice::ReadOnly))
            QTest::qFail("no such page", __FILE__, __LINE__);
        return QString::fromUtf8(file.readAll());
    }
    [[nodiscard]] static QString textAtTop(const HelpWindow *help)
    {
        auto *const text = help->findChild<QTextBrowser *>("helpText");
        return text->cursorForPosition({5, 12}).block().text();
    }
};

void tst_Help::everyTopicIsThere()
{
    for (const QString &topic : HelpDesk::topics()) {
        HelpWindow help(nullptr);
        QVERIFY2(help.showTopic(topic), qPrintable(topic));
    }
    HelpWindow help(nullptr);
    QVERIFY(!help.showTopic("manual.md#no-such-heading"));
    QVERIFY(!help.showTopic("none.md"));
    for (const QString &page : HelpWindow::pages())
        QVERIFY2(HelpWindow::headingsOf(page).size() > 0, qPrintable(page));
    QCOMPARE(HelpWindow::headingsOf("manual.md").at(2).first,
             QString("manual.md#make-catalogs-of-tables-velkmap-import"));
}

void tst_Help::everyLinkLeadsSomewhere_data()
{
    QTest::addColumn<QString>("page");
    for (const QString &page : HelpWindow::pages())
        QTest::newRow(qPrintable(page)) << page;
}

/// Links and pictures as they stand in the text.
void tst_Help::everyLinkLeadsSomewhere()
{
    QFETCH(QString, page);
    QFile file(":/manual/" + page);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    static const QRegularExpression link("\\]\\(([^)\\s]+)\\)");
    const QUrl base("qrc:/manual/" + page);
    HelpWindow help(nullptr);
    for (auto each = link.globalMatch(text); each.hasNext();) {
        const QUrl url = base.resolved(QUrl(each.next().captured(1)));
        if (url.scheme() != "qrc")
            continue;
        const QString name = url.path().mid(8);
        if (!name.endsWith(".md")) {
            // What is no page lies beside the manual in the sources.
            if (name.endsWith(".png"))
                QVERIFY2(QFile::exists(":/manual/" + name), qPrintable(name));
            continue;
        }
        if (url.path().startsWith("/manual/"))
            QVERIFY2(help.showTopic(name + (url.hasFragment() ? '#' + url.fragment() : QString())),
                     qPrintable(url.toString()));
    }
}

void tst_Help::opensWhereOneIs()
{
    WindowFixture fixture;
    const auto shown = [&fixture] {
        return fixture.window->findChild<HelpWindow *>();
    };
    fixture.press(Qt::Key_F1);
    QTRY_VERIFY(shown() && shown()->isVisible());
    QCOMPARE(shown()->topic(), QString("manual/tour.md"));
    shown()->close();
    fixture.open(fixture.mappingFile());
    QVERIFY(fixture.window->editor()->goTo({{"standardparts/screws/din933.prj", {}, {}}, 3}));
    fixture.press(Qt::Key_F1);
    QTRY_COMPARE(shown()->topic(), QString("manual.md#decide-line-by-line"));
    QTRY_COMPARE(textAtTop(shown()), QString("Decide line by line"));
}

void tst_Help::opensAboveADialog()
{
    WindowFixture fixture;
    ModalScript user;
    QString topic;
    user.then([&topic](QWidget *dialog) {
        auto *const box = dialog->findChild<QGroupBox *>("linkDb");
        box->setFocus();
        QTest::keyClick(box, Qt::Key_F1);
        auto *const help = dialog->findChild<HelpWindow *>();
        topic = help ? help->topic() : QString();
        if (help)
            help->close();
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    fixture.action("settings")->trigger();
    QVERIFY(user.isDone());
    QCOMPARE(topic, QString("manual/database.md"));
}

void tst_Help::linksAndBack()
{
    HelpWindow help(nullptr);
    help.show();
    QVERIFY(help.showTopic("manual/tour.md"));
    auto *const back = help.findChild<QPushButton *>("helpBack");
    auto *const text = help.findChild<QTextBrowser *>("helpText");
    QVERIFY(!back->isEnabled());
    Q_EMIT text->anchorClicked(QUrl("../manual.md#the-editor"));
    QCOMPARE(help.topic(), QString("manual.md#the-editor"));
    QCOMPARE(text->textCursor().block().text(), QString("The editor"));
    QTest::mouseClick(back, Qt::LeftButton);
    QCOMPARE(help.topic(), QString("manual/tour.md"));
    QVERIFY(!back->isEnabled());
}

void tst_Help::contentsAndFind()
{
    HelpWindow help(nullptr);
    help.show();
    auto *const contents = help.findChild<QTreeWidget *>("helpContents");
    QCOMPARE(contents->topLevelItemCount(), int(HelpWindow::pages().size()));
    QCOMPARE(contents->topLevelItem(0)->text(0), QString("A tour of 15 minutes"));
    contents->expandItem(contents->topLevelItem(1));
    contents->setCurrentItem(contents->topLevelItem(1)->child(0));
    contents->setFocus();
    QTest::keyClick(contents, Qt::Key_Return);
    QCOMPARE(help.topic(), QString("manual.md#the-batch-program"));
    // The contents show where one is, also if something else led there.
    QVERIFY(help.showTopic("manual.md#the-editor"));
    QCOMPARE(contents->currentItem()->text(0), QString("The editor"));
    QVERIFY(help.showTopic("glossary.md"));
    QCOMPARE(contents->currentItem()->text(0), QString("Glossary"));
    QVERIFY(help.showTopic("manual.md#the-batch-program"));
    auto *const find = help.findChild<QLineEdit *>("helpFind");
    auto *const text = help.findChild<QTextBrowser *>("helpText");
    QTest::keyClicks(find, "Ctrl+F7");
    QTest::keyClick(find, Qt::Key_Return);
    QCOMPARE(text->textCursor().selectedText(), QString("Ctrl+F7"));
    const int place = text->textCursor().position();
    QTest::keyClick(find, Qt::Key_Return);
    QCOMPARE(text->textCursor().position(), place); // round and back
    // Side by side.
    QVERIFY(contents->isVisible() && text->isVisible());
    const QRect left(contents->mapTo(&help, QPoint()), contents->size());
    const QRect right(text->mapTo(&help, QPoint()), text->size());
    QVERIFY(left.width() > 50 && right.width() > 50 && left.right() < right.left());
}

/// A row has a word in both languages and says what it is; the words are in order.
void tst_Help::glossaryHasBothLanguages()
{
    QFile file(":/manual/glossary.md");
    QVERIFY(file.open(QIODevice::ReadOnly));
    QStringList words;
    const QStringList rows = QString::fromUtf8(file.readAll()).split('\n');
    for (const QString &row : rows) {
        if (!row.startsWith("| ") || row.startsWith("| English") || row.startsWith("| ---"))
            continue;
        const QStringList cells = row.split(" | ");
        QVERIFY2(cells.size() == 3, qPrintable(row));
        words << cells.at(0).mid(2).toLower();
    }
    QVERIFY(words.size() > 50);
    QStringList sorted = words;
    sorted.sort();
    QCOMPARE(words, sorted);
}

namespace {

/// As the manual writes it.
QString nameOf(QString text)
{
    return text.remove('&').remove(QRegularExpression("(\\.\\.\\.|…|:)$"));
}

/// Names below a menu, a submenu or the settings, as they are shown.
QStringList namesBelow(const QMenuBar &bar, const QWidget &settings, const QStringList &path)
{
    QStringList names;
    if (path.last() == "Settings") {
        for (const QLabel *const label : settings.findChildren<QLabel *>())
            names << nameOf(label->text());
        for (const QAbstractButton *const button : settings.findChildren<QAbstractButton *>())
            names << nameOf(button->text());
        for (const QGroupBox *const box : settings.findChildren<QGroupBox *>())
            names << nameOf(box->title());
        return names;
    }
    QList<QAction *> actions = bar.actions();
    for (const QString &step : path) {
        const auto found = std::find_if(actions.begin(), actions.end(), [&](const QAction *action) {
            return nameOf(action->text()) == step;
        });
        if (found == actions.end() || !(*found)->menu())
            return {};
        actions = (*found)->menu()->actions();
    }
    for (const QAction *const action : std::as_const(actions))
        names << nameOf(action->text());
    return names;
}

} // namespace

/// "*File > Share > Shared copy*": each such path of the manual is in the English window.
void tst_Help::menusAreThoseOfTheProgram()
{
    WindowFixture fixture;
    WorkbenchSettings::Values values = fixture.settings->values();
    values.language = "en";
    fixture.settings->setValues(values);
    QTRY_COMPARE(nameOf(fixture.window->menuBar()->actions().first()->text()), "File");
    const SettingsDialog settings(values, {}, nullptr);
    static const QRegularExpression path("\\*([A-Z][^*]* > [^*]*)\\*");
    QStringList missing;
    int found = 0;
    for (const QString &page : HelpWindow::pages()) {
        for (const QRegularExpressionMatch &match : path.globalMatch(textOf(page))) {
            QStringList steps = match.captured(1).simplified().split(" > ");
            const QString name = nameOf(steps.takeLast());
            ++found;
            if (!namesBelow(*fixture.window->menuBar(), settings, steps).contains(name))
                missing << page + ": " + match.captured(1);
        }
    }
    QVERIFY2(found > 25, qPrintable(QString::number(found)));
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join('\n')));
}

/// Those with Ctrl, Shift or Alt and the function keys.
void tst_Help::keysAreThoseOfTheProgram()
{
    const WindowFixture fixture;
    QSet<QString> known{"Ctrl+C", "F2"}; // the terminal's, a list's
    for (const PCommandKeys::Command &command : PCommandKeys::instance().commands()) {
        for (const QKeySequence &key : command.standard)
            known += key.toString(QKeySequence::PortableText);
    }
    static const QRegularExpression keys(
        "\\b(?:(?:Ctrl\\+|Shift\\+|Alt\\+)+(?:F\\d+|[A-Z0-9,](?![a-z]))|F\\d+)");
    QStringList missing;
    int found = 0;
    for (const QString &page : {QString("manual.md"), QString("manual/tour.md"),
                                QString("manual/sharing.md"), QString("manual/scripts.md")}) {
        for (const QRegularExpressionMatch &match : keys.globalMatch(textOf(page))) {
            ++found;
            if (!known.contains(match.captured()))
                missing << page + ": " + match.captured();
        }
    }
    QVERIFY2(found > 60, qPrintable(QString::number(found)));
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join('\n')));
}

QTEST_MAIN(tst_Help)
#include "tst_Help.moc"

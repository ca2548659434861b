// Every window of the workbench: can it be used by keyboard and with a screen reader?
#include "../../support/ControlCheck.h"
#include "EveryWindow.h"
#include "WindowFixture.h"

#include <workbench/window/MainWindow.h>

#include <QAccessible>
#include <QDirIterator>
#include <QDockWidget>
#include <QMessageBox>
#include <QRegularExpression>
#include <QSet>
#include <TestPaths.h>

class tst_EveryDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QAccessible::setActive(true); }

    void keysLeadToOnePlace_data() { EveryWindow::addRows(); }
    void keysLeadToOnePlace() { check(&ControlCheck::keys); }
    void controlsHaveNameRoleAndFocus_data() { EveryWindow::addRows(true); }
    void controlsHaveNameRoleAndFocus() { check(&ControlCheck::access); }
    void fitsASmallScreen_data() { EveryWindow::addRows(); }
    void fitsASmallScreen();
    void noneIsMissing();
    void noQuestionIsMissing();

private:
    static void check(QStringList (*faultsOf)(const QWidget &))
    {
        QFETCH(EveryWindow::Show, show);
        WindowFixture fixture;
        bool looked = false;
        show(fixture, [&](const QWidget *window) {
            looked = true;
            const QStringList faults = faultsOf(*window);
            ControlCheck::picture(const_cast<QWidget *>(window), QTest::currentDataTag());
            QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        });
        QVERIFY(looked);
    }
};

/// 1024 x 768, and 1920 x 1200 at 200 %; title, frame and a bar of the desktop need room too.
void tst_EveryDialog::fitsASmallScreen()
{
    QFETCH(EveryWindow::Show, show);
    WindowFixture fixture;
    show(fixture, [](QWidget *window) {
        const QSize withDocks = window->minimumSizeHint().expandedTo(window->minimumSize());
        QVERIFY2(withDocks.width() <= 1024 && withDocks.height() <= 730,
                 qPrintable(QStringLiteral("%1 x %2, with all parts")
                                .arg(withDocks.width())
                                .arg(withDocks.height())));
        for (QDockWidget *const dock : window->findChildren<QDockWidget *>())
            dock->hide(); // not all of them at 200 %
        QApplication::processEvents();
        const QSize least = window->minimumSizeHint().expandedTo(window->minimumSize());
        QVERIFY2(least.width() <= 950 && least.height() <= 560,
                 qPrintable(QStringLiteral("%1 x %2").arg(least.width()).arg(least.height())));
    });
}

/// Every class of a dialog and every name of one that the sources have.
void tst_EveryDialog::noneIsMissing()
{
    QSet<QString> shown;
    WindowFixture fixture;
    for (const EveryWindow::Window &window : EveryWindow::all()) {
        if (window.isMainWindow)
            continue;
        window.show(fixture, [&shown](const QWidget *widget) {
            shown += widget->objectName();
            for (const QMetaObject *meta = widget->metaObject(); meta; meta = meta->superClass())
                shown += QLatin1String(meta->className());
        });
    }
    static const QRegularExpression dialog(
        QStringLiteral("class (\\w+) : public \\w*Dialog\\b|"
                       "\\bdialog\\.setObjectName\\((?:QStringLiteral\\()?\"(\\w+)\""));
    QSet<QString> missing;
    int found = 0;
    QDirIterator sources(QStringLiteral(VELK_SOURCE_DIR "/workbench"), {"*.h", "*.cpp"},
                         QDir::Files, QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        QFile file(sources.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        for (const QRegularExpressionMatch &match : dialog.globalMatch(text)) {
            const QString name = match.captured(1) + match.captured(2);
            ++found;
            if (!shown.contains(name))
                missing += name;
        }
    }
    QVERIFY2(found > 20, qPrintable(QString::number(found)));
    QVERIFY2(missing.isEmpty(), qPrintable(QStringList(missing.values()).join(u' ')));
}

/// Every text of a question or a message that the sources have, but those for which a disk, a
/// printer or somebody else's program has to fail.
void tst_EveryDialog::noQuestionIsMissing()
{
    static const QStringList faults{
        QStringLiteral("Die Datei ist nur zum Lesen geöffnet."),
        QStringLiteral("Die Sperre konnte nicht aufgehoben werden."),
        QStringLiteral("Die Datei wurde nicht gespeichert."),
        QStringLiteral("Die Datei kann nicht geschrieben werden."),
        QStringLiteral("Die Mapping-Datei kann nicht angelegt werden."),
        QStringLiteral("%1 konnte nicht gedruckt werden."),
        QStringLiteral("Etwas Abgebrochenes wurde in Ordnung gebracht."),
        QStringLiteral("In der Linkdatenbank gibt es keine Gruppe, zu der Sie gehören."),
        QStringLiteral("Änderungen in der Linkdatenbank sind vielleicht verloren."),
        QStringLiteral("Die Nummern konnten nicht geprüft werden."),
    };
    QStringList shown;
    WindowFixture fixture;
    for (const EveryWindow::Window &window : EveryWindow::all()) {
        if (!window.isMainWindow)
            window.show(fixture, [&shown](const QWidget *widget) {
                if (const auto *const box = qobject_cast<const QMessageBox *>(widget))
                    shown += box->text();
            });
    }
    static const QRegularExpression question(
        QStringLiteral("(?:\\bquestion\\.setText\\(|Question::tell\\(\\s*[\\w>()-]+,)\\s*"
                       "tr\\(((?:\\s*\"[^\"]*\")+)"));
    static const QRegularExpression joint(QStringLiteral("\"\\s*\""));
    static const QRegularExpression place(QStringLiteral("%L?\\d|%Ln|\\w+\\(\\w+\\)|\\bsind\\b"));
    QStringList missing;
    int found = 0;
    QDirIterator sources(QStringLiteral(VELK_SOURCE_DIR "/workbench"), {"*.cpp"}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        QFile file(sources.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString code = QString::fromUtf8(file.readAll());
        for (const QRegularExpressionMatch &match : question.globalMatch(code)) {
            const QString text = match.captured(1).trimmed().remove(joint).remove(u'"');
            ++found;
            QStringList parts = QString(text).replace(place, QStringLiteral("\n")).split(u'\n');
            for (QString &part : parts)
                part = QRegularExpression::escape(part);
            const QRegularExpression wanted(parts.join(QStringLiteral(".*")));
            if (!faults.contains(text) && shown.filter(wanted).isEmpty())
                missing += text;
        }
    }
    QVERIFY2(found > 20, qPrintable(QString::number(found)));
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(u'\n')));
}

QTEST_MAIN(tst_EveryDialog)
#include "tst_EveryDialog.moc"

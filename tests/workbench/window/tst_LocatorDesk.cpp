#include "WindowFixture.h"

#include <geomcore/value/LangThreadSettings.h>
#include <workbench/locator/LocatorDialog.h>
#include <workbench/locator/LocatorModel.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/MainWindow.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QLineEdit>
#include <QTest>

namespace {

const QString din933 = QStringLiteral("standardparts/screws/din933.prj");

/// A copy of a catalog whose lines of DIN 933 have the title of their table as designation.
bool copyWithTitles(const QString &from, const QString &to)
{
    for (QDirIterator at(from, QDir::Files, QDirIterator::Subdirectories); at.hasNext();) {
        const QString copy = to + at.next().mid(from.size());
        if (!QDir().mkpath(QFileInfo(copy).path()) || !QFile::copy(at.filePath(), copy) ||
            !QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner))
            return false;
    }
    QFile table(to + "/standardparts/screws/din933.json");
    if (!table.open(QIODevice::ReadWrite))
        return false;
    const QByteArray text = table.readAll().replace("\"lineDesignation\"", "\"unknown\"");
    return table.resize(0) && table.seek(0) && table.write(text) == text.size();
}

} // namespace

/// What the locator finds, and that it is in the language of the window that asks.
class tst_LocatorDesk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linesAreInTheLanguageOfTheWindow_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("designation");
        QTest::newRow("as stored") << QString() << "Sechskantschraube mit Gewinde bis Kopf";
        QTest::newRow("translated") << "en"
                                    << "Hexagon head screw, full thread";
    }
    /// They are read on a thread that has a language of its own.
    void linesAreInTheLanguageOfTheWindow()
    {
        QFETCH(QString, language);
        WindowFixture fixture;
        CatalogRoots roots = WindowFixture::roots();
        const QString copy = fixture.directory.filePath("catalogs");
        QVERIFY(copyWithTitles(roots.source, copy));
        roots.source = copy;
        QVERIFY(fixture.window->desk()->open({.file = fixture.mappingFile(), .roots = roots}));
        QVERIFY(fixture.window->editor()->selectProject(din933));
        VKTab::LangThreadSettings ofWindow;
        ofWindow.setLanguage(language);
        fixture.press(Qt::Key_K, Qt::ControlModifier);
        const auto *const dialog = fixture.window->findChild<LocatorDialog *>();
        QVERIFY(dialog);
        const auto *const model = dialog->findChild<LocatorModel *>();
        QTest::keyClicks(dialog->findChild<QLineEdit *>("locatorInput"), "7");
        QTRY_VERIFY(model->index(0, 0).data().toString().startsWith("Zeile 7"));
        QTEST(model->index(0, 0).data().toString().section(' ', 2), "designation");
    }

    /// It has lines to decide on, of which none can be shown.
    void goesToAProjectThatIsGone()
    {
        WindowFixture fixture;
        CatalogRoots roots = WindowFixture::roots();
        const QString copy = fixture.directory.filePath("catalogs");
        QVERIFY(copyWithTitles(roots.source, copy));
        roots.source = copy;
        QDir screws(copy + "/standardparts/screws");
        for (const QString &file : screws.entryList({"din933.*"}, QDir::Files))
            QVERIFY(screws.remove(file));
        QVERIFY(fixture.window->desk()->open({.file = fixture.mappingFile(), .roots = roots}));
        fixture.press(Qt::Key_K, Qt::ControlModifier);
        auto *const dialog = fixture.window->findChild<LocatorDialog *>();
        QVERIFY(dialog);
        QTest::keyClicks(dialog->findChild<QLineEdit *>("locatorInput"), "din933 scr");
        const auto *const model = dialog->findChild<LocatorModel *>();
        QTRY_COMPARE(model->index(0, 0).data().toString(), QString("din933.prj"));
        QTest::keyClick(dialog->findChild<QLineEdit *>("locatorInput"), Qt::Key_Return);
        const EditorArea *const editor = fixture.window->editor();
        QTRY_COMPARE(editor->currentPath(), din933);
        QVERIFY(!editor->sourceTable().isValid());
        QTRY_COMPARE(fixture.window->focusWidget()->objectName(), QString("treeView"));
    }
};

QTEST_MAIN(tst_LocatorDesk)
#include "tst_LocatorDesk.moc"

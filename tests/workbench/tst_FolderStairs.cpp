#include <TestPaths.h>

#include <QDirIterator>
#include <QRegularExpression>
#include <QTest>

/// Which folder may include which: layers and stairs, each step knows those before it alone.
class tst_FolderStairs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stepsKnowThoseBefore_data();
    void stepsKnowThoseBefore();
    void everyFolderHasAStep_data();
    void everyFolderHasAStep();
};

namespace {

QDir root()
{
    return QDir(QStringLiteral(VELK_SOURCE_DIR));
}

/// The folder as includes write it: "geomcore/plan" of "platform/geomcore/plan".
QString includedAs(const QString &folder)
{
    const QString platform = QStringLiteral("platform/");
    return folder.startsWith(platform) ? folder.mid(platform.size()) : folder;
}

QStringList layers()
{
    return {"platform/core", "platform/geomcore", "platform/release", "platform/script"};
}

QStringList editorSteps()
{
    return {"mapping/data", "mapping/project", "mapping/table", "mapping/view"};
}

QStringList sessionSteps()
{
    return {"workbench/session/common",  "workbench/session/file",    "workbench/session/change",
            "workbench/session/journal", "workbench/session/history", "workbench/session/document",
            "workbench/session/tasks"};
}

QStringList windowSteps()
{
    return {"workbench/window/help",     "workbench/window/message",  "workbench/window/look",
            "workbench/window/settings", "workbench/window/document", "workbench/window/editor",
            "workbench/window/history",  "workbench/window/linkdb",   "workbench/window/review"};
}

/// Of a file, the folders below \a subject that it includes.
QStringList includesOf(const QString &path, const QString &subject)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    static const QRegularExpression include(
        QStringLiteral("#include [<\"]([\\w/]+/)\\w+\\.h[>\"]"));
    QStringList folders;
    const QString text = QString::fromUtf8(file.readAll());
    for (const QRegularExpressionMatch &match : include.globalMatch(text)) {
        if (match.captured(1).startsWith(subject))
            folders += match.captured(1);
    }
    return folders;
}

void addStair(const QStringList &steps, const QString &subject, const QStringList &above)
{
    QStringList known;
    for (const QString &step : steps) {
        known += includedAs(step) + u'/';
        QStringList forbidden = above;
        for (const QString &other : steps) {
            if (!known.contains(includedAs(other) + u'/'))
                forbidden += includedAs(other) + u'/';
        }
        QTest::newRow(qPrintable(step)) << step << subject << forbidden;
    }
}

} // namespace

void tst_FolderStairs::stepsKnowThoseBefore_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("subject");
    QTest::addColumn<QStringList>("forbidden");

    const QStringList above{"gui/",     "geomcoregui/", "linkdbgui/", "mapping/",
                            "formula/", "selection/",   "tools/",     "workbench/"};
    addStair(layers(), QString(), above);
    addStair(editorSteps(), QStringLiteral("mapping/"), {});
    addStair(sessionSteps(), QStringLiteral("workbench/session/"), {});
    addStair(windowSteps(), QStringLiteral("workbench/window/"), {});

    const QStringList host{"tools/", "workbench/"};
    for (const char *folder :
         {"platform/gui", "platform/geomcoregui", "linkdbgui", "mapping", "formula", "selection"})
        QTest::newRow(folder) << folder << QString() << host;
    for (const char *folder : {"workbench/start", "workbench/session", "workbench/review",
                               "workbench/script", "workbench/locator"})
        QTest::newRow(folder) << folder << QString() << QStringList{"tools/", "workbench/window/"};
    QTest::newRow("workbench/window")
        << "workbench/window" << QString() << QStringList{"tools/", "workbench/program/"};
    QTest::newRow("tools/velkmap")
        << "tools/velkmap" << QString()
        << QStringList{"gui/",     "geomcoregui/", "linkdbgui/", "mapping/",
                       "formula/", "selection/",   "workbench/"};
}

void tst_FolderStairs::stepsKnowThoseBefore()
{
    QFETCH(const QString, folder);
    QFETCH(const QString, subject);
    QFETCH(const QStringList, forbidden);

    QStringList wrong;
    int files = 0;
    QDirIterator sources(root().filePath(folder), {"*.h", "*.cpp"}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        const QString path = sources.next();
        ++files;
        for (const QString &included : includesOf(path, subject)) {
            for (const QString &other : forbidden) {
                if (included.startsWith(other))
                    wrong += root().relativeFilePath(path) + " -> " + included;
            }
        }
    }
    QCOMPARE_GT(files, 0);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(u'\n')));
}

void tst_FolderStairs::everyFolderHasAStep_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QStringList>("steps");

    QTest::newRow("editor") << "mapping" << editorSteps();
    QTest::newRow("session") << "workbench/session" << sessionSteps();
    QTest::newRow("window") << "workbench/window" << windowSteps();
}

void tst_FolderStairs::everyFolderHasAStep()
{
    QFETCH(const QString, folder);
    QFETCH(QStringList, steps);

    QStringList found;
    for (const QString &name :
         QDir(root().filePath(folder)).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        found += folder + u'/' + name;
    steps.sort();
    QCOMPARE(found, steps);
}

QTEST_GUILESS_MAIN(tst_FolderStairs)
#include "tst_FolderStairs.moc"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

namespace {

/// The nine classes that hosts and scripts of hosts use, and the one operation beside them.
const QString exported = QStringLiteral(
    "CatalogMappingWidget|ReleaseMappingHandler|CatalogMappingHandlerI|CatalogStructureNodeI|"
    "ApplicationHandlerI|DocumentListDialogC|DlgFormulaEditor|dlgSearchSelect|dlgSelect");

/// What "nm" says of the symbols that a program can bind to: kind and name each.
QStringList symbols()
{
    QProcess nm;
    nm.start(QStandardPaths::findExecutable("nm"), {"-DC", "--defined-only", VELK_PLUGIN_FILE});
    if (!nm.waitForFinished() || nm.exitCode() != 0)
        return {};
    QStringList all;
    const auto lines =
        QString::fromUtf8(nm.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
    for (const QString &line : lines)
        all += line.mid(line.indexOf(' ') + 1);
    return all;
}

} // namespace

class tst_PluginExports : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingBesideTheClasses()
    {
        static const QRegularExpression allowed(
            "^(?:vtable for |typeinfo for |typeinfo name for |(?:non-)?virtual thunk to )?(?:(?:" +
            exported + ")(?:::|$)|remapProjectLines\\()");
        QStringList others;
        const QStringList all = symbols();
        for (const QString &symbol : all) {
            // Weak ones are copies of what other libraries' headers define.
            if (QStringLiteral("WVu").contains(symbol.front()))
                continue;
            if (!allowed.match(symbol.mid(2)).hasMatch())
                others += symbol;
        }
        QVERIFY(!all.isEmpty());
        QVERIFY2(others.isEmpty(), qPrintable(others.join('\n')));
    }

    void theClasses_data()
    {
        QTest::addColumn<QString>("symbol");
        for (const char *name :
             {"CatalogMappingWidget", "ReleaseMappingHandler", "CatalogMappingHandlerI",
              "CatalogStructureNodeI", "ApplicationHandlerI", "DocumentListDialogC",
              "DlgFormulaEditor", "dlgSearchSelect", "dlgSelect"})
            QTest::newRow(name) << QStringLiteral("D vtable for ") + name;
        QTest::newRow("meta object") << "D CatalogMappingWidget::staticMetaObject";
        QTest::newRow("path of a target")
            << "T CatalogMappingWidget::buildTargetPath(bool, QString const&)";
    }
    void theClasses()
    {
        QFETCH(QString, symbol);
        QVERIFY(symbols().contains(symbol));
    }
};

QTEST_GUILESS_MAIN(tst_PluginExports)
#include "tst_PluginExports.moc"

#include <QFile>
#include <QImage>
#include <QTest>

class tst_PluginResources : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fileIsThere_data();
    void fileIsThere();
};

void tst_PluginResources::fileIsThere_data()
{
    QTest::addColumn<QString>("path");
    for (const char *form :
         {"DocumentListDialog.ui", "NewRecordDialog.ui", "ClassificationDialog.ui"})
        QTest::newRow(form) << QStringLiteral(":/forms/linkdbgui/") + QString::fromUtf8(form);
    for (const char *name :
         {"state_check", "state_confirmed", "state_deleted", "state_deleted_confirmed",
          "state_conflict", "error", "add", "arrow_refresh", "line", "double_check",
          "remove_verify", "confirm_mapping", "assistant/arrow_up", "assistant/arrow_down"})
        QTest::newRow(name) << QStringLiteral(":/bitmaps/%1.png").arg(QString::fromUtf8(name));
    for (const char *language :
         {"cs", "da", "de", "en", "es", "fi", "fr", "hu", "id", "it",    "ja",
          "ko", "nb", "pl", "pt", "ru", "sl", "sv", "tr", "zh", "zh_CHT"})
        QTest::newRow(language) << QStringLiteral(":/translations/VelkLinkDbGui_%1.qm")
                                       .arg(QString::fromUtf8(language));
}

void tst_PluginResources::fileIsThere()
{
    QFETCH(QString, path);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(!file.readAll().isEmpty());
}

QTEST_MAIN(tst_PluginResources)
#include "tst_PluginResources.moc"

#include <core/plugin/PPluginRegistry.h>
#include <linkdbgui/LinkDbGuiC.h>

#include <QTest>

class tst_LinkDbGuiC : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void castByName();
};

void tst_LinkDbGuiC::castByName()
{
    LinkDbGuiC plugin;
    QCOMPARE(plugin.qt_metacast("LinkDbGuiC"), static_cast<void *>(&plugin));
    void *const side = static_cast<PLinkDbGuiI *>(&plugin);
    QCOMPARE(plugin.qt_metacast("PLinkDbGuiI"), side);
    QCOMPARE(plugin.qt_metacast("velkworkbench.PLinkDbGuiI/1.0"), side);
    QCOMPARE(plugin.qt_metacast("QObject"), static_cast<void *>(static_cast<QObject *>(&plugin)));
    QCOMPARE(plugin.qt_metacast("LinkDbGui"), nullptr);
    QCOMPARE(plugin.qt_metacast(nullptr), nullptr);
}

QTEST_MAIN(tst_LinkDbGuiC)
#include "tst_LinkDbGuiC.moc"

#include "WindowFixture.h"

#include <core/config/PConfigInst.h>
#include <core/message/PScriptedMessageSink.h>
#include <core/plugin/PTranslateManager.h>
#include <geomcore/records/MappingFile.h>
#include <geomcoregui/table/VkTableView.h>
#include <gui/application/PApplication.h>
#include <TestPaths.h>
#include <workbench/start/PluginLibrary.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/document/MappingMaker.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <QAction>
#include <QDir>
#include <QTest>

namespace {

/// Bytes of the example's mapping.
const QByteArray &exampleMapping()
{
    static const QByteArray bytes = [] {
        // A window that is there already would show what is found on the way.
        const PMessageSinkScope silence(std::make_shared<PScriptedMessageSink>());
        const CatalogRoots roots = WindowFixture::roots();
        MappingMaker maker;
        const bool made = maker.make({.sourceRoot = roots.source,
                                      .targetRoot = roots.target,
                                      .sourceCatalog = "standardparts",
                                      .targetCatalog = "standardparts"});
        MappingFile file;
        if (made)
            file.setRelease(maker.release());
        return file.toByteArray();
    }();
    return bytes;
}

void fail(const QString &what)
{
    QTest::qFail(qPrintable(what), __FILE__, __LINE__);
}

} // namespace

WindowFixture::WindowFixture()
    : application(std::make_unique<PApplication>(
          PRefPtr<PConfig>(new PConfigInst(directory.filePath("windows.cfg"), false))))
    , plugin(std::make_unique<PluginLibrary>())
    , settings(std::make_unique<WorkbenchSettings>(directory.filePath("workbench.ini")))
{
    if (!QDir::searchPaths("bitmaps").contains(":/hostbitmaps"))
        QDir::addSearchPath("bitmaps", ":/hostbitmaps");
    WorkbenchSettings::Values values = settings->values();
    values.language = "de"; // whatever the desktop has
    settings->setValues(values);
    PTranslateManager::registerModule("velkworkbench");
    PTranslateManager::registerLibraries();
    PTranslateManager::instance().setLanguage("de");
    QLocale::setDefault(QLocale(QLocale::German));
    if (!plugin->load(QStringLiteral(VELK_BINARY_DIR "/lib/libVelkLinkDbGui.so")))
        fail(plugin->error());
    makeWindow();
}

WindowFixture::~WindowFixture() = default;

CatalogRoots WindowFixture::roots()
{
    return {QStringLiteral(VELK_SOURCE_DIR "/examples/release-1"),
            QStringLiteral(VELK_SOURCE_DIR "/examples/release-2")};
}

QString WindowFixture::mappingFile(const QString &name) const
{
    QFile file(directory.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(exampleMapping()) < 0)
        fail("cannot write " + file.fileName());
    return file.fileName();
}

void WindowFixture::makeWindow()
{
    window = std::make_unique<MainWindow>(settings.get(), plugin->plugin());
    window->show();
    activate();
}

void WindowFixture::activate() const
{
    window->activateWindow();
    if (!QTest::qWaitForWindowActive(window.get()))
        fail("the window does not become active");
}

void WindowFixture::closeWindow()
{
    window.reset();
}

void WindowFixture::open(const QString &file)
{
    window->desk()->open({.file = file, .roots = roots()});
    QApplication::processEvents();
}

void WindowFixture::press(int key, Qt::KeyboardModifiers modifiers)
{
    // Without a window manager nobody activates it after a dialog.
    if (!window->isActiveWindow())
        activate();
    QWidget *const focus = QApplication::focusWidget();
    QTest::keyClick(focus ? focus : window.get(), Qt::Key(key), modifiers);
    QApplication::processEvents();
}

QAction *WindowFixture::action(const char *name) const
{
    if (auto *const found = window->findChild<QAction *>(QLatin1String(name)))
        return found;
    fail(QStringLiteral("there is no action ") + QLatin1String(name));
    return window->findChild<QAction *>();
}

VkTableView *WindowFixture::sourceView() const
{
    return window->editor()->findChild<VkTableView *>("sourceView");
}

int WindowFixture::confirmedLines() const
{
    return window->desk()->document()->counts().verified();
}

namespace {

QtMessageHandler formerHandler = nullptr;

void noteWarning(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (type == QtWarningMsg && text.contains(QStringLiteral("connect")))
        ConnectionWarnings::list() += text;
    formerHandler(type, context, text);
}

} // namespace

ConnectionWarnings::ConnectionWarnings()
{
    list().clear();
    formerHandler = qInstallMessageHandler(noteWarning);
}

ConnectionWarnings::~ConnectionWarnings()
{
    qInstallMessageHandler(formerHandler);
}

QStringList &ConnectionWarnings::list()
{
    static QStringList texts;
    return texts;
}

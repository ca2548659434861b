#include "WorkbenchRun.h"

#include "MainWindow.h"
#include "Screenshot.h"
#include "ScriptDesk.h"

#include <core/config/PConfigService.h>
#include <core/plugin/PTranslateManager.h>
#include <geomcore/linkdb/PLinkDbC.h>
#include <gui/application/PApplication.h>
#include <workbench/start/SettingsPlace.h>
#include <workbench/start/StartOptions.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/look/useLanguage.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

void prepareWorkbench(WorkbenchSettings &settings, const SettingsPlace &place,
                      const StartOptions &options)
{
    PConfigService::setDirectories({"$TORMEVA_SETUP", place.directory()});
    WorkbenchSettings::Values values = settings.values();
    if (!options.language.isEmpty())
        values.language = options.language;
    if (!options.theme.isEmpty())
        values.theme = options.theme;
    settings.setValuesForNow(values);
    if (!QDir::searchPaths("bitmaps").contains(":/hostbitmaps"))
        QDir::addSearchPath("bitmaps", ":/hostbitmaps");
    QApplication::setWindowIcon(QIcon(":/workbench/velkworkbench_64.png"));
    PTranslateManager::registerModule("velkworkbench");
    PTranslateManager::registerLibraries();
    useLanguage(values.language);
}

namespace {

DocumentDesk::Wish wishOf(const StartOptions &options)
{
    DocumentDesk::Wish wish;
    wish.file = options.mappingFile;
    wish.release = options.release;
    wish.roots = {options.sourceRoot, options.targetRoot};
    wish.readOnly = options.readOnly;
    return wish;
}

int statusOf(const ScriptOutcome &outcome)
{
    if (outcome.state != ScriptOutcome::Done)
        std::fputs(("velkworkbench: " + outcome.error.text() + '\n').toUtf8().constData(), stderr);
    switch (outcome.state) {
    case ScriptOutcome::Done:
        return outcome.status & 0xff;
    case ScriptOutcome::Unreadable:
        return 2;
    case ScriptOutcome::NotWritten:
        return 3;
    case ScriptOutcome::Stopped:
        return 130;
    case ScriptOutcome::Failed:
        break;
    }
    return 6;
}

/// Opens the mapping first if there is one; the window goes without a question.
int runScript(MainWindow &window, const StartOptions &options)
{
    int status = 2;
    QTimer::singleShot(0, &window, [&] {
        if (options.mappingFile.isEmpty() || window.desk()->open(wishOf(options)))
            status = statusOf(window.scripts()->runFile(options.script, options.scriptArguments,
                                                        options.scriptOutput));
        QCoreApplication::exit(status);
    });
    return QApplication::exec();
}

} // namespace

namespace {

int runWindow(PLinkDbGuiI *plugin, const StartOptions &options)
{
    const SettingsPlace place(options.settingsDirectory);
    WorkbenchSettings settings(place.workbenchSettings());
    prepareWorkbench(settings, place, options);
    MainWindow window(&settings, plugin);
    if (options.size.isValid())
        window.resize(options.size);
    if (options.screenshot.isEmpty())
        window.showOnScreen();
    else
        window.show();
    VelkApp()->setInitialized();
    if (!options.screenshot.isEmpty())
        return Screenshot(window, options).take(wishOf(options), settings.store());

    if (!options.script.isEmpty())
        return runScript(window, options);

    QTimer::singleShot(0, &window, [&] {
        if (options.mappingFile.isEmpty())
            return window.restoreSession();
        if (window.desk()->open(wishOf(options)) &&
            window.editor()->selectProject(options.selectedPath) && options.selectedLine >= 0)
            window.editor()->selectLine(options.selectedLine);
    });
    return QApplication::exec();
}

} // namespace

int runWorkbench(PLinkDbGuiI *plugin, const StartOptions &options)
{
    const int status = runWindow(plugin, options);
    // Window and settings are gone in good order. A thread that still waits for a server would
    // have the libraries unloaded below it.
    if (PLinkDbC::isThreadLeft())
        std::_Exit(status);
    return status;
}

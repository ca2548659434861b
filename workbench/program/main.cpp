#include <core/config/PConfigInst.h>
#include <core/plugin/Extensions.h>
#include <core/plugin/PTranslateManager.h>
#include <core/text/PString.h>
#include <gui/application/PApplication.h>
#include <workbench/start/PluginLibrary.h>
#include <workbench/start/SettingsPlace.h>
#include <workbench/start/StartOptions.h>

#include <QApplication>
#include <QLibrary>
#include <QMessageBox>
#include <QTemporaryDir>

#include <cstdio>

namespace {

/// Exit status of the program.
enum Status { Done = 0, WrongUsage = 1, NotInstalled = 4 };

using Run = int (*)(PLinkDbGuiI *, const StartOptions *);

void print(std::FILE *stream, const QString &text)
{
    std::fputs(text.toUtf8().constData(), stream);
}

QtMessageHandler formerHandler = nullptr;

/// The platform without a display complains of each window that it cannot tell its size to.
void dropPlatformChatter(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (!text.endsWith(QLatin1String("does not support propagateSizeHints()")))
        formerHandler(type, context, text);
}

StartOptions optionsOf(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    return StartOptions::parse(arguments);
}

/// A library of the installation is missing: nothing can be done without it.
int notInstalled(const StartOptions &options, const QString &error)
{
    print(stderr, "velkworkbench: " + error + '\n');
    if (options.screenshot.isEmpty()) {
        QMessageBox::critical(nullptr, QStringLiteral("velkworkbench"),
                              "Das Programm ist unvollständig installiert.\n" + error);
    }
    return NotInstalled;
}

} // namespace

int main(int argc, char **argv)
{
    StartOptions options = optionsOf(argc, argv);
    if (options.outcome == StartOptions::Outcome::Over) {
        print(stdout, options.text);
        return Done;
    }
    if (options.outcome == StartOptions::Outcome::Wrong) {
        print(stderr, "velkworkbench: " + options.text + "\nTry 'velkworkbench --help'.\n");
        return WrongUsage;
    }
    options.prepareEnvironment();
    if (!options.screenshot.isEmpty())
        formerHandler = qInstallMessageHandler(dropPlatformChatter);
    QApplication application(argc, argv);
    QApplication::setApplicationName("velkworkbench");
    QApplication::setApplicationDisplayName("Velkworkbench");
    QApplication::setQuitOnLastWindowClosed(true);
    // A picture shows what anybody would see, and leaves no trace.
    QTemporaryDir nothingKept;
    if (!options.screenshot.isEmpty() && options.settingsDirectory.isEmpty())
        options.settingsDirectory = nothingKept.path();
    const SettingsPlace place(options.settingsDirectory);
    const PRefPtr<PConfig> configuration(new PConfigInst(place.applicationConfig(), false));
    PApplication host(configuration);

    // What goes to the terminal is English; windows get their language later.
    PTranslateManager::registerLibraries();
    PTranslateManager::instance().setLanguage(QStringLiteral("en"));
    const QStringList faults = Extensions::load(Extensions::folders());
    for (const QString &fault : faults)
        print(stderr, "velkworkbench: " + fault + '\n');
    PluginLibrary plugin;
    if (!plugin.load(PluginLibrary::pathOf("VelkLinkDbGui")))
        return notInstalled(options, plugin.error());
    QLibrary windows(PluginLibrary::pathOf("VelkWorkbench"));
    const auto run = reinterpret_cast<Run>(windows.resolve("velkWorkbenchRun"));
    if (!run)
        return notInstalled(options, windows.errorString());
    return run(plugin.plugin(), &options);
}

#pragma once

class PLinkDbGuiI;
struct StartOptions;

class SettingsPlace;
class WorkbenchSettings;

/// What windows find there: language and colours as set or wished, the host's icons, and set-up
/// files in the directory of the settings besides "$TORMEVA_SETUP".
void prepareWorkbench(WorkbenchSettings &settings, const SettingsPlace &place,
                      const StartOptions &options);

/// Runs the workbench until its window closes, or renders a screenshot; gives the program's exit
/// status: 0 done, 2 the mapping or script could not be read, 3 the picture or output could not be
/// written, 6 the script failed, 130 it was stopped, or what it gave to exit(). Needs the
/// QApplication and the PApplication.
[[nodiscard]] int runWorkbench(PLinkDbGuiI *plugin, const StartOptions &options);

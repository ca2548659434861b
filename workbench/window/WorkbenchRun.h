#pragma once

class PLinkDbGuiI;
struct StartOptions;

/// Runs the workbench until its window closes, or renders a screenshot; gives the program's exit
/// status: 0 done, 2 the mapping could not be read, 3 the picture could not be written. Needs the
/// QApplication and the PApplication.
[[nodiscard]] int runWorkbench(PLinkDbGuiI *plugin, const StartOptions &options);

#pragma once

#include <QMetaType>

#include <functional>

class QWidget;
class WindowFixture;

/// Test rows for every window of the workbench.
namespace EveryWindow {

/// Shows a window and hands it over; modal ones are closed again.
using Show = std::function<void(WindowFixture &, const std::function<void(QWidget *)> &look)>;

/// A row each, with the column "show".
void addRows();

} // namespace EveryWindow

Q_DECLARE_METATYPE(EveryWindow::Show)

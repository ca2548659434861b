#pragma once

#include <QList>
#include <QMetaType>

#include <functional>

class QWidget;
class WindowFixture;

/// Test rows for every window of the workbench.
namespace EveryWindow {

/// Shows a window and hands it over; modal ones are closed again.
using Show = std::function<void(WindowFixture &, const std::function<void(QWidget *)> &look)>;

struct Window
{
    QByteArray name;
    Show show;
    bool isMainWindow = false; ///< the one of the fixture, in some state
    bool isOfQt = false;       ///< only what it is given is ours: its title and names of files
    bool isTitledByFile = false;
};

/// All of them. A mapping that is open already is not opened again, so that one fixture can show
/// them one after another.
[[nodiscard]] QList<Window> all();
/// A row each, with the column "show".
void addRows(bool withThoseOfQt = false);

} // namespace EveryWindow

Q_DECLARE_METATYPE(EveryWindow::Show)

#pragma once

#include <workbench/window/document/DocumentDesk.h>

class MainWindow;
class QSettings;
struct StartOptions;

/// Renders the window with an open mapping into a picture.
class Screenshot
{
public:
    /// Both must live as long.
    Screenshot(MainWindow &window, const StartOptions &options);

    /// Opens a copy of the file, which itself stays untouched and free for others. \a store tells
    /// its catalogs if the wish does not. Gives the exit status of the program; errors go to the
    /// standard error stream.
    [[nodiscard]] int take(DocumentDesk::Wish wish, QSettings *store);

private:
    [[nodiscard]] bool show();
    void settle() const;

    MainWindow &m_window;
    const StartOptions &m_options;
};

#pragma once

#include <QList>
#include <QObject>

QT_BEGIN_NAMESPACE
class QDockWidget;
class QMainWindow;
QT_END_NAMESPACE

/// How much room of its window a dock at the lower edge takes when it comes into sight for the
/// first time. Left alone it takes half the height, and the tables keep two lines; beside another
/// dock it gets what that leaves, and where that would be too narrow for either it lies over it.
/// From then on its size is the user's.
class DockRoom : public QObject
{
public:
    explicit DockRoom(QMainWindow *window);

    /// \a part is the share of the window's height. A dock that can be seen already, as it comes
    /// with the window's kept state, stays as it is. Does not own the dock, which has to live as
    /// long.
    void add(QDockWidget *dock, double part);

private:
    struct Kept
    {
        QDockWidget *dock;
        double part;
        bool isNew; ///< not yet in sight
    };

    void giveRoom(QDockWidget *shown);
    [[nodiscard]] bool isBelow(QDockWidget *dock) const;

    QMainWindow *const m_window;
    QList<Kept> m_docks;
};

#include "DockRoom.h"

#include <QAction>
#include <QDockWidget>
#include <QMainWindow>

#include <algorithm>
#include <utility>

DockRoom::DockRoom(QMainWindow *window)
    : QObject(window)
    , m_window(window)
{
}

void DockRoom::add(QDockWidget *dock, double part)
{
    m_docks.append({dock, part, dock->isHidden()});
    // The layout makes room for it before it comes back here.
    connect(
        dock, &QDockWidget::visibilityChanged, this,
        [this, dock](bool isVisible) {
            if (isVisible)
                giveRoom(dock);
        },
        Qt::QueuedConnection);
    connect(dock->toggleViewAction(), &QAction::triggered, dock, [dock](bool isShown) {
        if (isShown)
            dock->raise(); // not behind the others of its tabs
    });
}

void DockRoom::giveRoom(QDockWidget *shown)
{
    const auto found = std::find_if(m_docks.begin(), m_docks.end(),
                                    [shown](const Kept &kept) { return kept.dock == shown; });
    if (!found->isNew || !isBelow(shown))
        return;
    found->isNew = false;
    double part = found->part;
    // They stand beside each other: what is there already keeps its height.
    QList<QDockWidget *> others;
    for (const Kept &kept : std::as_const(m_docks)) {
        if (!isBelow(kept.dock))
            continue;
        part = std::max(part, kept.part);
        if (kept.dock->x() != shown->x())
            others << kept.dock;
    }
    m_window->resizeDocks({shown}, {int(m_window->height() * part)}, Qt::Vertical);
    if (others.isEmpty())
        return;
    constexpr int LeastLetters = 55;
    int room = shown->width();
    for (const QDockWidget *const other : std::as_const(others))
        room += other->width();
    if (room < 2 * LeastLetters * m_window->fontMetrics().averageCharWidth()) {
        m_window->tabifyDockWidget(others.last(), shown);
        shown->raise();
        return;
    }
    const int half = m_window->width() / 2;
    QList<int> widths(others.size(), half / int(others.size()));
    m_window->resizeDocks(others << shown, widths << half, Qt::Horizontal);
}

bool DockRoom::isBelow(QDockWidget *dock) const
{
    return dock->isVisible() && !dock->isFloating() &&
           m_window->dockWidgetArea(dock) == Qt::BottomDockWidgetArea;
}

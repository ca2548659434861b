#include "TableRoom.h"

#include <QEvent>
#include <QSplitter>

#include <algorithm>
#include <utility>

namespace {

constexpr int MoreLines = 8; ///< than the tables keep in any case

}

TableRoom::TableRoom(QSplitter *splitter)
    : QObject(splitter)
    , m_splitter(splitter)
{
    splitter->installEventFilter(this);
    connect(splitter, &QSplitter::splitterMoved, this, [this] {
        m_enough = m_splitter->sizes().value(1);
        setTaken(0);
    });
}

TableRoom *TableRoom::of(const QSplitter &splitter)
{
    return splitter.findChild<TableRoom *>(QString(), Qt::FindDirectChildrenOnly);
}

void TableRoom::setTaken(int pixels)
{
    m_taken = pixels;
    m_former = 0;
    if (m_taken > 0)
        QMetaObject::invokeMethod(this, &TableRoom::divide, Qt::QueuedConnection);
}

/// Before the splitter divides the new height by its own rule.
bool TableRoom::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize) {
        m_former = std::max(m_former, m_splitter->sizes().value(0));
        QMetaObject::invokeMethod(this, &TableRoom::divide, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void TableRoom::divide()
{
    const QList<int> sizes = m_splitter->sizes();
    const QWidget *const above = m_splitter->widget(0);
    const QWidget *const tables = m_splitter->widget(1);
    const int former = std::exchange(m_former, 0);
    if (sizes.value(0) == 0 || sizes.value(1) == 0) // folded away by the user
        return;
    m_taken += std::max(former - sizes[0], 0);
    const int wanted = std::min(m_enough, tables->minimumSizeHint().height() +
                                              MoreLines * tables->fontMetrics().height());
    const int least = above->minimumSizeHint().height();
    // Below 0: there is room to give back.
    const int lacking = std::max(wanted - sizes[1], -m_taken);
    const int more = std::min(lacking, std::max(sizes[0] - least, 0));
    if (more == 0)
        return;
    m_taken += more;
    m_splitter->setSizes({sizes[0] - more, sizes[1] + more});
}

#include "ProgressWindow.h"

#include "ProgressRow.h"

#include <core/text/PString.h>

#include <QApplication>
#include <QVBoxLayout>
#include <QWindow>

namespace {

constexpr int LargestRowCount = 8;
constexpr int Width = 420;

} // namespace

ProgressWindow::ProgressWindow()
    : QWidget(nullptr, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
    , m_layout(new QVBoxLayout(this))
{
    setObjectName("ProgressWindow");
    setWindowTitle(PString::translate("Bitte warten", "VelkGui"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setMinimumWidth(Width);
}

void ProgressWindow::showProgress(const QList<PProgressInfo> &running)
{
    const qsizetype count = qMin(running.size(), qsizetype(LargestRowCount));
    while (m_rows.size() < count) {
        m_rows.append(new ProgressRow(this));
        m_layout->addWidget(m_rows.constLast());
    }
    for (qsizetype i = 0; i < m_rows.size(); ++i) {
        m_rows[i]->setVisible(i < count);
        if (i < count)
            m_rows[i]->setInfo(running[i]);
    }
    if (!isVisible())
        appear();
}

/// A dialog that is open must not bar the button to cancel: its transient windows take input.
void ProgressWindow::appear()
{
    adjustSize();
    QWidget *const modal = QApplication::activeModalWidget();
    QWidget *const below = modal ? modal : QApplication::activeWindow();
    if (below) {
        winId(); // makes the window handle
        windowHandle()->setTransientParent(below->window()->windowHandle());
        move(below->window()->frameGeometry().center() - rect().center());
    }
    show();
}

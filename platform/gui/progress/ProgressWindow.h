#pragma once

#include <core/progress/PProgressInfo.h>

#include <QList>
#include <QWidget>

class ProgressRow;
class QVBoxLayout;

/// Window with a row for each running progress, the first ones if there are very many. Belongs to
/// the window that is active when it appears, without taking the focus from it.
class ProgressWindow : public QWidget
{
    Q_OBJECT

public:
    ProgressWindow();
    void showProgress(const QList<PProgressInfo> &running);

private:
    void appear();

    QVBoxLayout *const m_layout;
    QList<ProgressRow *> m_rows;
};

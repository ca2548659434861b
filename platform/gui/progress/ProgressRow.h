#pragma once

#include <core/progress/PProgressInfo.h>

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

/// One progress with its text, bar, details and button to cancel.
class ProgressRow : public QWidget
{
    Q_OBJECT

public:
    explicit ProgressRow(QWidget *parent);
    void setInfo(const PProgressInfo &info);

private:
    void showBar(const PProgressInfo &info);
    void showButton();
    void cancel();

    QLabel *const m_text;
    QProgressBar *const m_bar;
    QLabel *const m_details;
    QPushButton *const m_cancel;
    PProgressInfo m_info;
};

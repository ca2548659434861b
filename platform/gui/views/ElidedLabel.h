#pragma once

#include <gui/VelkGuiGlobal.h>

#include <QLabel>

/// A plain text that may get less room than it needs: then it is cut with dots. Give it a tool tip
/// that has all of it. A text of another format is shown as by any label.
class VELKGUI_EXPORT ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(Qt::TextElideMode mode, QWidget *parent = nullptr);
    ~ElidedLabel() override;

    /// What of the text is shown now.
    [[nodiscard]] QString shownText() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const Qt::TextElideMode m_mode;
};

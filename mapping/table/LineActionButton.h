#pragma once

#include <QPushButton>

/// A button whose shortcut acts at once. A plain one acts a tenth of a second after its key, and
/// the arrow key that a quick hand presses meanwhile would move the action to another line.
class LineActionButton : public QPushButton
{
    Q_OBJECT

public:
    using QPushButton::QPushButton;
    ~LineActionButton() override;

protected:
    bool event(QEvent *event) override;
};

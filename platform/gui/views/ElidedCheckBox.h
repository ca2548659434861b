#pragma once

#include <gui/VelkGuiGlobal.h>

#include <QCheckBox>

/// A check box that may get narrower than its text: then the text is cut with dots, and stands in
/// the tool tip.
class VELKGUI_EXPORT ElidedCheckBox : public QCheckBox
{
    Q_OBJECT

public:
    explicit ElidedCheckBox(const QString &text, QWidget *parent = nullptr);
    ~ElidedCheckBox() override;

    [[nodiscard]] QSize minimumSizeHint() const override;
    /// What of the text is shown now.
    [[nodiscard]] QString shownText() const;

protected:
    void paintEvent(QPaintEvent *event) override;
};

#pragma once

#include <QLabel>

/// Shows a line's designation beside the one of the other table: whether both are equal is told by
/// a sign too, "=" or "≠", in colours that are legible on the window's ground. Its text may name
/// another colour; only its characters are shown, cut where the label is too narrow.
class DesignationLabel : public QLabel
{
    Q_OBJECT

public:
    enum Comparison { NotCompared, Equal, Different };

    explicit DesignationLabel(QWidget *parent);
    ~DesignationLabel() override;

    void setComparison(Comparison comparison);
    [[nodiscard]] Comparison comparison() const { return m_comparison; }
    /// What is painted, with the sign.
    [[nodiscard]] QString shownText() const;
    /// What it is painted in on this ground.
    [[nodiscard]] static QColor ink(Comparison comparison, const QPalette &palette);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Comparison m_comparison = NotCompared;
};

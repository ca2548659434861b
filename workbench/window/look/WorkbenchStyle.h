#pragma once

#include <QProxyStyle>

/// The style of the program over that of the desktop, or over its own one where it brings its own
/// colours. What has the keys is to be seen at once, in tables too: an edge round the control, a
/// frame round the cell.
class WorkbenchStyle : public QProxyStyle
{
    Q_OBJECT

public:
    enum Look {
        Desktop,     ///< of the desktop
        Own,         ///< what would be too dark to be seen on a dark ground has an outline
        HighContrast ///< everything has an outline
    };

    explicit WorkbenchStyle(Look look);
    ~WorkbenchStyle() override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override;
    /// No icons in the buttons of dialogs: only those of Qt's own would have some.
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption *option,
                                  const QWidget *widget) const override;

private:
    void outline(QPainter *painter, const QStyleOption &option, const QRect &rect) const;

    const Look m_look;
};

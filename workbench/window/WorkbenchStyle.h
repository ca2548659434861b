#pragma once

#include <QProxyStyle>

/// The style of the program's own colours: what the base style draws too dark to be seen on a dark
/// ground gets an outline.
class WorkbenchStyle : public QProxyStyle
{
    Q_OBJECT

public:
    WorkbenchStyle();
    ~WorkbenchStyle() override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
};

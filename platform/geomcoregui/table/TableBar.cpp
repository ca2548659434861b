#include "TableBar.h"

#include <core/text/countText.h>
#include <core/text/PString.h>

#include <QToolButton>

QString tableText(const char *text)
{
    return PString::translate(text, "VelkGeomCoreGui");
}

QString tableText(const char *text, qsizetype count)
{
    return translateCount(text, "VelkGeomCoreGui", int(count));
}

QToolButton *makeBarButton(const QString &objectName, const QString &sign, const QString &meaning,
                           QWidget *parent)
{
    auto *const button = new QToolButton(parent);
    button->setObjectName(objectName);
    button->setAutoRaise(true);
    button->setText(sign);
    button->setToolTip(meaning);
    button->setAccessibleName(meaning);
    return button;
}

#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QPushButton;
QT_END_NAMESPACE

class SelectWidget;

/// State of dlgSelect; the widgets are children of the dialog.
class dlgSelectPrivate
{
public:
    SelectWidget *selectWidget = nullptr;
    QPushButton *selectButton = nullptr;
    QString preselectName;
    QCheckBox *overrideBox = nullptr;
};

#pragma once

#include <core/text/PRefPtr.h>
#include <geomcore/index/IndexTreeDisplayItemI.h>

#include <QString>

QT_BEGIN_NAMESPACE
class QPushButton;
class QTabWidget;
QT_END_NAMESPACE

class FileTreeGroup;
class SearchWidget;
class SelectWidget;

/// State of dlgSearchSelect; the widgets are children of the dialog, the group is its own.
class dlgSearchSelectPrivate
{
public:
    enum Tab { SearchTab, TreeTab };

    FileTreeGroup *fileTreeGroup = nullptr;
    QTabWidget *tabWidget = nullptr;
    SearchWidget *searchWidget = nullptr;
    QPushButton *selectButton = nullptr;
    SelectWidget *selectWidget = nullptr;
    bool closeAfterSelect = false;
    PRefPtr<IndexTreeDisplayItemI> selectedItem;
    QString preselectName;
};

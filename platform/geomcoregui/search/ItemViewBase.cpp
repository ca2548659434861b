#include "ItemViewBase.h"

ItemViewBase::ItemViewBase(QWidget *parent)
    : QListView(parent)
{
}

ItemViewBase::~ItemViewBase() = default;

#include "PrjMappingWidgetBase.h"

PrjMappingWidgetBase::PrjMappingWidgetBase(QWidget *parent)
    : QWidget(parent)
{
}

PrjMappingWidgetBase::~PrjMappingWidgetBase() = default;

void PrjMappingWidgetBase::onProjectMappingUpdated(const PrjMappingC & /*mapping*/) {}

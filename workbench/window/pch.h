#pragma once

#include <QtCore/QtCore>
#include <QtWidgets/QtWidgets>

#pragma once

#include <QtGui/QtGui>

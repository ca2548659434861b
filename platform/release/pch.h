#pragma once

#include <QtCore/QtCore>

#pragma once

#include <QtCore/QtCore>
#include <QtQml/QJSEngine>

#pragma once

#include <QtCore/QtCore>
#include <QtTest/QtTest>

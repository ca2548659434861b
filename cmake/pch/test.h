#pragma once

#include <QtTest/QtTest>

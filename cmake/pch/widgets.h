#pragma once

#include <QtWidgets/QtWidgets>

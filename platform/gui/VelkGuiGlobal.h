#pragma once

#include <QtCore/qglobal.h>

#if defined(VELKGUI_LIBRARY)
#define VELKGUI_EXPORT Q_DECL_EXPORT
#else
#define VELKGUI_EXPORT Q_DECL_IMPORT
#endif

#pragma once

#include <QtCore/qglobal.h>

#if defined(VELKGEOMCOREGUI_LIBRARY)
#define VELKGEOMCOREGUI_EXPORT Q_DECL_EXPORT
#else
#define VELKGEOMCOREGUI_EXPORT Q_DECL_IMPORT
#endif

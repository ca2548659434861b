#pragma once

#include <QtCore/qglobal.h>

#if defined(VELKGEOMCORE_LIBRARY)
#define VELKGEOMCORE_EXPORT Q_DECL_EXPORT
#else
#define VELKGEOMCORE_EXPORT Q_DECL_IMPORT
#endif

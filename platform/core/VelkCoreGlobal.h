#pragma once

#include <QtCore/qglobal.h>

#if defined(VELKCORE_LIBRARY)
#define VELKCORE_EXPORT Q_DECL_EXPORT
#else
#define VELKCORE_EXPORT Q_DECL_IMPORT
#endif

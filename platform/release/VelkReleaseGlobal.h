#pragma once

#include <QtCore/qglobal.h>

#if defined(VELKRELEASE_LIBRARY)
#define VELKRELEASE_EXPORT Q_DECL_EXPORT
#else
#define VELKRELEASE_EXPORT Q_DECL_IMPORT
#endif

#pragma once

#include <QtCore/qglobal.h>

#if defined(VELKLINKDBGUI_LIBRARY)
#define VELKLINKDBGUI_EXPORT Q_DECL_EXPORT
#else
#define VELKLINKDBGUI_EXPORT Q_DECL_IMPORT
#endif

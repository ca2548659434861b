#pragma once

#include "VelkLinkDbGuiGlobal.h"

#include <core/logging/StaticLogger.h>

/// Of the document dialog.
[[nodiscard]] VELKLINKDBGUI_EXPORT StaticLoggerRecord &plmDocumentsLogger();
/// Of the plug-in; nothing is written to it.
[[nodiscard]] VELKLINKDBGUI_EXPORT StaticLoggerRecord &linkDbGuiLogger();

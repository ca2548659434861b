#pragma once

#include <core/logging/StaticLogger.h>

/// Of the document dialog.
[[nodiscard]] StaticLoggerRecord &plmDocumentsLogger();
/// Of the plug-in; nothing is written to it.
[[nodiscard]] StaticLoggerRecord &linkDbGuiLogger();

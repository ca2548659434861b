#pragma once

#include <core/logging/StaticLogger.h>

/// Of the document dialog.
[[nodiscard]] StaticLoggerRecord &plmDocumentsLogger();
/// Of the plug-in; nothing is written to it.
[[nodiscard]] StaticLoggerRecord &linkDbGuiLogger();

/// Writes a line for the document dialog; see LOG_PLM_DOCUMENTS.
void logPlmDocuments(const char *function, int line, const QString &message);

/// Writes a line for the document dialog, with the place where this stands.
#define LOG_PLM_DOCUMENTS(message) logPlmDocuments(Q_FUNC_INFO, __LINE__, message)

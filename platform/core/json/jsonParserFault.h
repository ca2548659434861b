#pragma once

#include <core/VelkCoreGlobal.h>

#include <QString>

/// What is wrong with a text that the parser refused, by its code (rapidjson::ParseErrorCode), in
/// the language of the user.
[[nodiscard]] VELKCORE_EXPORT QString jsonParserFault(int code);

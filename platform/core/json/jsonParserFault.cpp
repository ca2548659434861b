#include "jsonParserFault.h"

#include <core/text/PString.h>

#include <rapidjson/error/error.h>

namespace {

const char *faultOf(int code)
{
    switch (code) {
    case rapidjson::kParseErrorDocumentEmpty:
        return QT_TRANSLATE_NOOP("VelkCore", "Das Dokument hat keinen Wert.");
    case rapidjson::kParseErrorDocumentRootNotSingular:
        return QT_TRANSLATE_NOOP("VelkCore", "Hinter dem Dokument steht noch etwas.");
    case rapidjson::kParseErrorValueInvalid:
        return QT_TRANSLATE_NOOP("VelkCore", "Ein Wert fehlt.");
    case rapidjson::kParseErrorObjectMissName:
        return QT_TRANSLATE_NOOP("VelkCore", "Der Name eines Eintrags fehlt.");
    case rapidjson::kParseErrorObjectMissColon:
        return QT_TRANSLATE_NOOP("VelkCore",
                                 "Hinter dem Namen eines Eintrags fehlt ein Doppelpunkt.");
    case rapidjson::kParseErrorObjectMissCommaOrCurlyBracket:
        return QT_TRANSLATE_NOOP("VelkCore", "Hinter einem Eintrag fehlt ein Komma oder }.");
    case rapidjson::kParseErrorArrayMissCommaOrSquareBracket:
        return QT_TRANSLATE_NOOP("VelkCore", "Hinter einem Listenwert fehlt ein Komma oder ].");
    case rapidjson::kParseErrorStringUnicodeEscapeInvalidHex:
        return QT_TRANSLATE_NOOP("VelkCore", "Hinter \\u müssen vier hexadezimale Ziffern stehen.");
    case rapidjson::kParseErrorStringUnicodeSurrogateInvalid:
        return QT_TRANSLATE_NOOP("VelkCore", "Ein Text enthält ein halbes Surrogatpaar.");
    case rapidjson::kParseErrorStringEscapeInvalid:
        return QT_TRANSLATE_NOOP("VelkCore", "Ein Text enthält eine unbekannte Escape-Folge.");
    case rapidjson::kParseErrorStringMissQuotationMark:
        return QT_TRANSLATE_NOOP("VelkCore",
                                 "Das schließende Anführungszeichen eines Textes fehlt.");
    case rapidjson::kParseErrorStringInvalidEncoding:
        return QT_TRANSLATE_NOOP("VelkCore", "Ein Text ist kein UTF-8.");
    case rapidjson::kParseErrorNumberTooBig:
        return QT_TRANSLATE_NOOP("VelkCore", "Eine Zahl ist zu groß.");
    case rapidjson::kParseErrorNumberMissFraction:
        return QT_TRANSLATE_NOOP("VelkCore", "Eine Zahl hat keine Ziffern hinter ihrem Punkt.");
    case rapidjson::kParseErrorNumberMissExponent:
        return QT_TRANSLATE_NOOP("VelkCore", "Eine Zahl hat keine Ziffern in ihrem Exponenten.");
    default:
        return QT_TRANSLATE_NOOP("VelkCore", "Das ist kein JSON.");
    }
}

} // namespace

QString jsonParserFault(int code)
{
    return PString::translate(faultOf(code), "VelkCore");
}

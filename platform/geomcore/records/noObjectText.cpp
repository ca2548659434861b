#include "noObjectText.h"

#include "recordsText.h"

QString noObjectText()
{
    return recordsText("Eine Mapping-Datei muss ein Objekt enthalten.");
}

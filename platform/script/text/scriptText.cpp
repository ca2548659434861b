#include "scriptText.h"

#include <core/text/PString.h>

QString scriptText(const char *text)
{
    return PString::translate(text, "VelkGeomCore");
}

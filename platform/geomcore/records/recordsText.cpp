#include "recordsText.h"

#include <core/text/PString.h>

QString recordsText(const char *text)
{
    return PString::translate(text, "VelkGeomCore");
}

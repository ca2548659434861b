#include "searchText.h"

#include <core/text/PString.h>

QString searchText(const char *text)
{
    return PString::translate(text, "VelkGeomCoreGui");
}

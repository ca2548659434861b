#include "searchText.h"

#include <core/text/countText.h>
#include <core/text/PString.h>

QString searchText(const char *text)
{
    return PString::translate(text, "VelkGeomCoreGui");
}

QString searchText(const char *text, qsizetype count)
{
    return translateCount(text, "VelkGeomCoreGui", int(count));
}

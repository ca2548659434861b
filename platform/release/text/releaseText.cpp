#include "releaseText.h"

#include <core/text/countText.h>
#include <core/text/PString.h>

QString releaseText(const char *text)
{
    return PString::translate(text, "VelkRelease");
}

QString releaseText(const char *text, qsizetype count)
{
    return translateCount(text, "VelkRelease", int(count));
}

#include "IndexTreeIconTableItemC.h"

IndexTreeIconTableItemC::IndexTreeIconTableItemC(const PString &type, const QIcon &icon)
    : m_type(type)
    , m_icon(icon)
{
}

#include "mzComCreateObject.h"

#include "proxyFactoryC.h"
#include "proxyObjectC.h"

int mzComCreateObject(const char *id, const mzIIDS &interfaceId, mzComPtrC &result)
{
    result = {};
    const proxyMemberDescListS *type =
        proxyFactoryC::instance().findComponent(QString::fromUtf8(id));
    if (!type)
        return mzComUnknownComponent;
    const mzComPtrC object(type->creator ? type->creator() : nullptr);
    return object.isValid() ? object->queryInterface(interfaceId, result) : mzComNotCreatable;
}

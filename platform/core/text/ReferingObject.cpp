#include "ReferingObject.h"

ReferingObject::ReferingObject()
    : m_alive(std::make_shared<char>())
{
}

ReferingObject::~ReferingObject() = default;

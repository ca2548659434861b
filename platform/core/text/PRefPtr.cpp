#include "PRefPtr.h"

PRefObject::~PRefObject() = default;

#include "mzComServerStateEventC.h"

#include "mzComServerC.h"

mzComServerStateEventC::mzComServerStateEventC(int events)
    : m_events(events)
{
}

mzComServerStateEventC::~mzComServerStateEventC()
{
    mzComServerC::instance().leave(*this);
}

int mzComServerStateEventC::serverStart()
{
    return 0;
}

void mzComServerStateEventC::serverDone() {}

void mzComServerStateEventC::init()
{
    mzComServerC::instance().join(*this);
}

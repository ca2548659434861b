#include <tools/velkmap/ExitStatus.h>

int main()
{
    return int(velkmap::ExitStatus::Done);
}

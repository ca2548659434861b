#include "ExitStatus.h"

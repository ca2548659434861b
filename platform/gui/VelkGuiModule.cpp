#include <gui/VelkGuiGlobal.h>

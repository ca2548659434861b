#include <linkdbgui/VelkLinkDbGuiGlobal.h>

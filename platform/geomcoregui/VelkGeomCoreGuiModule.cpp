#include <geomcoregui/VelkGeomCoreGuiGlobal.h>

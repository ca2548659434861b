// The catalogs of the mapper's tests serve here as well.
#include "../geomcore/TestCatalog.cpp"

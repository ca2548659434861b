#pragma once

#include <QtCore/QtCore>

#include <boost/container/flat_map.hpp>
#include <boost/shared_ptr.hpp>
#include <boost/signals2.hpp>

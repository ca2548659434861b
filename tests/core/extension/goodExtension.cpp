#include <core/plugin/Extensions.h>

#include <QCoreApplication>

VELK_EXTENSION
{
    const int times = QCoreApplication::instance()->property("registrations").toInt();
    QCoreApplication::instance()->setProperty("registrations", times + 1);
}

#include <tools/velkmap/Commands.h>

#include <QCoreApplication>
#include <QTextStream>

#include <clocale>
#include <cstdio>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    // Numbers are read and written alike on every desk.
    std::setlocale(LC_NUMERIC, "C");
    QTextStream out(stdout);
    QTextStream err(stderr);
    return int(velkmap::run(QCoreApplication::arguments().mid(1), out, err));
}

#include <tools/velkmap/Commands.h>

#include <core/plugin/Extensions.h>
#include <core/plugin/PTranslateManager.h>
#include <geomcore/linkdb/PLinkDbC.h>

#include <QCoreApplication>
#include <QLocale>
#include <QTextStream>

#include <clocale>
#include <cstdio>
#include <cstdlib>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    // Numbers are read and written alike on every desk.
    std::setlocale(LC_NUMERIC, "C");
    QLocale::setDefault(QLocale::c());
    // The libraries' source texts are German, this program speaks English.
    PTranslateManager::registerLibraries();
    PTranslateManager::instance().setLanguage(QStringLiteral("en"));
    QTextStream out(stdout);
    QTextStream err(stderr);
    const QStringList faults = Extensions::load(Extensions::folders());
    for (const QString &fault : faults)
        err << "velkmap: " << fault << '\n';
    const auto status = velkmap::run(QCoreApplication::arguments().mid(1), out, err);
    const int finished = int(velkmap::finish(status, out, err));
    // A thread that still waits for a server would have the libraries taken down below it.
    if (PLinkDbC::isThreadLeft())
        std::_Exit(finished);
    return finished;
}

#include <tools/velkmap/Commands.h>

#include <core/plugin/Extensions.h>
#include <core/plugin/PTranslateManager.h>

#include <QCoreApplication>
#include <QTextStream>

#include <clocale>
#include <cstdio>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    // Numbers are read and written alike on every desk.
    std::setlocale(LC_NUMERIC, "C");
    // The libraries' source texts are German, this program speaks English.
    PTranslateManager::registerLibraries();
    PTranslateManager::instance().setLanguage(QStringLiteral("en"));
    QTextStream out(stdout);
    QTextStream err(stderr);
    const QStringList faults = Extensions::load(Extensions::folders());
    for (const QString &fault : faults)
        err << "velkmap: " << fault << '\n';
    const auto status = velkmap::run(QCoreApplication::arguments().mid(1), out, err);
    return int(velkmap::finish(status, out, err));
}

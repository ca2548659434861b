#include "repositoryProblems.h"

#include "RepositoryClient.h"

#include <core/text/PString.h>

QString repositoryNoAnswer(const QString &url, const QString &text)
{
    return PString::translate("Das Repository %1 antwortet nicht: %2", "VelkGeomCore")
        .arg(url, text);
}

QString repositoryNoServer(const QString &catalog)
{
    return PString::translate("Für den Katalog \"%1\" ist kein Repository eingestellt; aus seinem "
                              "Namen wird keine Adresse",
                              "VelkGeomCore")
        .arg(catalog);
}

QString repositoryProblem(const RepositoryAnswer &answer, const QString &url, qint64 revision)
{
    switch (answer.kind) {
    case RepositoryAnswer::NotThere:
        return PString::translate("%1 gibt es in Revision %2 nicht", "VelkGeomCore")
            .arg(url, QString::number(revision));
    case RepositoryAnswer::NoServer:
        return repositoryNoAnswer(url, answer.text);
    case RepositoryAnswer::LoginNeeded:
        return PString::translate("Das Repository %1 verlangt eine Anmeldung: %2", "VelkGeomCore")
            .arg(url, answer.text);
    case RepositoryAnswer::Done:
    case RepositoryAnswer::Cancelled:
    case RepositoryAnswer::OutOfDate:
    case RepositoryAnswer::InUse:
    case RepositoryAnswer::Damaged:
    case RepositoryAnswer::Failed:
        break;
    }
    return answer.text;
}

#pragma once

#include <QString>

struct RepositoryAnswer;

/// What users are told about repositories.

/// That a server does not answer, with what the client says.
[[nodiscard]] QString repositoryNoAnswer(const QString &url, const QString &text);
/// That a catalog has no address.
[[nodiscard]] QString repositoryNoServer(const QString &catalog);
/// What stands against having a URL in a revision.
[[nodiscard]] QString repositoryProblem(const RepositoryAnswer &answer, const QString &url,
                                        qint64 revision);

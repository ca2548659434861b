#pragma once

#include <QByteArray>
#include <QString>
#include <QTranslator>

#include <memory>

/// A catalog with its bytes, which are copied: the library that brought them may go.
struct TranslationCatalog
{
    QByteArray bytes;
    QTranslator translator;

    /// The catalog ":/translations/MODULE_LANGUAGE.qm"; null if there is none.
    [[nodiscard]] static std::unique_ptr<TranslationCatalog> load(const QString &module,
                                                                  const QString &language);
};

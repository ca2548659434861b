#include "TranslationCatalog.h"

#include <QFile>

std::unique_ptr<TranslationCatalog> TranslationCatalog::load(const QString &module,
                                                             const QString &language)
{
    QFile file(QStringLiteral(":/translations/%1_%2.qm").arg(module, language));
    if (language.isEmpty() || !file.open(QIODevice::ReadOnly))
        return nullptr;
    auto catalog = std::make_unique<TranslationCatalog>();
    catalog->bytes = file.readAll();
    const auto *data = reinterpret_cast<const uchar *>(catalog->bytes.constData());
    if (!catalog->translator.load(data, int(catalog->bytes.size())))
        return nullptr;
    return catalog;
}

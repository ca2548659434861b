#pragma once

#include "IndexTreeBaseSearchC.h"

/// The search for words, see CatalogSearchQuery::text.
class VELKGEOMCORE_EXPORT IndexTreeKeySearchC : public IndexTreeBaseSearchC
{
public:
    /// "KeySearch".
    [[nodiscard]] static QString searchName();

    explicit IndexTreeKeySearchC(const PRefPtr<IndexTreeC> &tree);
    ~IndexTreeKeySearchC() override;

    [[nodiscard]] QString getName() const override;
    [[nodiscard]] PRefPtr<IndexTreeBaseSearchC> clone() const override;

    void setKeyWord(const QString &keyWord) { m_keyWord = keyWord; }
    [[nodiscard]] const QString &getKeyWord() const { return m_keyWord; }

private:
    QString m_keyWord;
};

#pragma once

#include <geomcoregui/VelkGeomCoreGuiGlobal.h>

#include <geomcore/expression/Token.h>

#include <QList>
#include <QString>
#include <QSyntaxHighlighter>

#include <functional>

/// Colours statements of the formula language by their tokens. The document owns it. A text in
/// quotes may go over line ends. Colours follow the application's palette, light or dark, of the
/// moment at which a line is coloured.
class VELKGEOMCOREGUI_EXPORT VkTableHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    /// What a name stands for.
    enum class NamePlace { Read, Prefixed, Assigned, Function };
    using NameCheck = std::function<bool(const QString &name, NamePlace place)>;

    /// A text that the document has already is coloured when the event loop runs, one that is set
    /// later at once.
    VkTableHighlighter(const std::function<QList<VKTab::Token>(const QString &)> &tokenizer,
                       QTextDocument *document);
    ~VkTableHighlighter() override;

    /// Tells which names are known: these get a colour of their own, all others the one of errors.
    /// Without a check names of variables have no colour.
    void setNameCheck(const NameCheck &check);

    /// The document as HTML with the colours of the moment, for a tool tip.
    [[nodiscard]] QString toHtml() const;

protected:
    void highlightBlock(const QString &text) override;

private:
    [[nodiscard]] QTextCharFormat formatOf(const QList<VKTab::Token> &tokens, qsizetype index,
                                           bool isFirstBlock) const;

    std::function<QList<VKTab::Token>(const QString &)> m_tokenizer;
    NameCheck m_isKnown;
};

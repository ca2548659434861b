#pragma once

#include <geomcoregui/VelkGeomCoreGuiGlobal.h>

#include <geomcore/expression/Token.h>

#include <QList>
#include <QString>
#include <QSyntaxHighlighter>

#include <functional>

/// Colours statements of the formula language by their tokens. The document owns it. Each block is
/// split on its own, so a text that goes over a line end is coloured to the end of its line.
/// Colours follow the application's palette, light or dark.
class VELKGEOMCOREGUI_EXPORT VkTableHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    /// A text that the document has already is coloured when the event loop runs, one that is set
    /// later at once.
    VkTableHighlighter(const std::function<QList<VKTab::Token>(const QString &)> &tokenizer,
                       QTextDocument *document);
    ~VkTableHighlighter() override;

    /// The document as HTML with the colours of the moment, for a tool tip.
    [[nodiscard]] QString toHtml() const;

protected:
    void highlightBlock(const QString &text) override;

private:
    std::function<QList<VKTab::Token>(const QString &)> m_tokenizer;
};

#pragma once

#include <QTextBrowser>

/// A page of the manual; its pictures are no wider than a comfortable page.
class HelpText : public QTextBrowser
{
    Q_OBJECT

public:
    using QTextBrowser::QTextBrowser;
    ~HelpText() override;

    [[nodiscard]] QVariant loadResource(int type, const QUrl &name) override;
};

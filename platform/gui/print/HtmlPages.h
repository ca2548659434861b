#pragma once

#include "PrintedPages.h"

#include <memory>

QT_BEGIN_NAMESPACE
class QTextDocument;
QT_END_NAMESPACE

/// A page of HTML on pages of paper. Of HTML and CSS what QTextDocument knows; pictures that it
/// names are read from their files. Dark on white in every theme. Costs much for long tables: a
/// second for some thousand rows. Any thread whose timers are Qt's.
class VELKGUI_EXPORT HtmlPages : public PrintedPages
{
public:
    HtmlPages(QPagedPaintDevice &device, const QString &html, const PageHead &head);
    ~HtmlPages() override;
    Q_DISABLE_COPY_MOVE(HtmlPages)

    [[nodiscard]] int count() const override;

protected:
    void paintBody(QPainter &painter, int page) const override;

private:
    std::unique_ptr<QTextDocument> m_document;
};

#include "HtmlPages.h"

#include <QAbstractTextDocumentLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QTextDocument>

HtmlPages::HtmlPages(QPagedPaintDevice &device, const QString &html, const PageHead &head)
    : PrintedPages(device, head)
    , m_document(std::make_unique<QTextDocument>())
{
    m_document->setDefaultFont(font());
    m_document->setDocumentMargin(0);
    m_document->documentLayout()->setPaintDevice(&device);
    m_document->setHtml(html);
    m_document->setPageSize(body().size());
}

HtmlPages::~HtmlPages() = default;

int HtmlPages::count() const
{
    return m_document->pageCount();
}

void HtmlPages::paintBody(QPainter &painter, int page) const
{
    const qreal top = page * body().height();
    painter.translate(body().left(), body().top() - top);
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = QPalette(Qt::black, Qt::white);
    context.clip = QRectF(0, top, body().width(), body().height());
    m_document->documentLayout()->draw(&painter, context);
}

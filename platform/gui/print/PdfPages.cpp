#include "PdfPages.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QTextDocument>
#include <QThread>

#include <memory>

namespace {

constexpr int dotsPerInch = 300;
constexpr qreal fontPoints = 8;

QByteArray makePages(const QString &html, const QString &title)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(title);
    writer.setResolution(dotsPerInch);
    writer.setPageSize(QPageSize(QPageSize::A4));
    // The document keeps a margin of its own and puts the page number into it.
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    QTextDocument document;
    QFont font = document.defaultFont();
    font.setPointSizeF(fontPoints);
    document.setDefaultFont(font);
    document.setHtml(html);
    document.print(&writer);
    return bytes;
}

} // namespace

/// The layout of a document starts timers, which other threads than Qt's own do not have.
QByteArray PdfPages::ofHtml(const QString &html, const QString &title)
{
    QByteArray bytes;
    const std::unique_ptr<QThread> thread(QThread::create([&] { bytes = makePages(html, title); }));
    thread->start();
    thread->wait();
    return bytes;
}

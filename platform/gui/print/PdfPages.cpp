#include "PdfPages.h"

#include "HtmlPages.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QThread>

#include <memory>

namespace {

constexpr int dotsPerInch = 300;
constexpr qreal marginMillimeters = 15;

QByteArray makePages(const QString &html, const QString &title, const PageHead &head)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(title);
    writer.setResolution(dotsPerInch);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(
        QMarginsF(marginMillimeters, marginMillimeters, marginMillimeters, marginMillimeters),
        QPageLayout::Millimeter);
    return HtmlPages(writer, html, head).print() ? bytes : QByteArray();
}

} // namespace

/// The layout of a document starts timers, which other threads than Qt's own do not have.
QByteArray PdfPages::ofHtml(const QString &html, const QString &title, const PageHead &head)
{
    QByteArray bytes;
    const std::unique_ptr<QThread> thread(
        QThread::create([&] { bytes = makePages(html, title, head); }));
    thread->start();
    thread->wait();
    return bytes;
}

#pragma once

#include "PrintedPages.h"

#include <QByteArray>

/// Puts a page of HTML onto pages of a PDF file.
namespace PdfPages {

/// A PDF file of A4 pages in portrait. What HtmlPages says holds, but for: any thread of an
/// application with a GUI.
[[nodiscard]] VELKGUI_EXPORT QByteArray ofHtml(const QString &html, const QString &title,
                                               const PageHead &head);

} // namespace PdfPages

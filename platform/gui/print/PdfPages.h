#pragma once

#include <gui/VelkGuiGlobal.h>

#include <QByteArray>
#include <QString>

/// Puts a page of HTML onto pages of paper.
namespace PdfPages {

/// A PDF file of A4 pages in portrait, with page numbers. Of HTML and CSS what QTextDocument knows;
/// pictures that it names are read from their files. Costs much more for long tables than HTML: a
/// second for some thousand rows. Any thread of an application with a GUI.
[[nodiscard]] VELKGUI_EXPORT QByteArray ofHtml(const QString &html, const QString &title);

} // namespace PdfPages

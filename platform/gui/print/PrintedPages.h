#pragma once

#include <gui/VelkGuiGlobal.h>

#include <QRectF>
#include <QString>

QT_BEGIN_NAMESPACE
class QFont;
class QPagedPaintDevice;
class QPainter;
QT_END_NAMESPACE

/// What stands above each page.
struct PageHead
{
    QString text;   ///< at the left, cut in its middle where there is no room for it
    QString number; ///< at the right: "Page %1 of %2"; empty: no number
};

/// Contents on pages of a device, each below the same head. All lengths are in dots of the device,
/// from the corner of what its margins leave.
class VELKGUI_EXPORT PrintedPages
{
public:
    virtual ~PrintedPages() = default;
    Q_DISABLE_COPY_MOVE(PrintedPages)

    /// Of everything on paper.
    [[nodiscard]] static QFont font();
    [[nodiscard]] virtual int count() const = 0;
    /// The pages that the device's ranges ask for. False if the device cannot be painted on.
    [[nodiscard]] bool print() const;
    /// One page, from 0, with its head; on another device of the same resolution, too.
    void paintPage(QPainter &painter, int page) const;

protected:
    /// \a device must live as long; another layout of its pages needs another object.
    PrintedPages(QPagedPaintDevice &device, const PageHead &head);

    /// What a page has for its contents.
    [[nodiscard]] QRectF body() const { return m_body; }
    /// The painter has the font and is clipped to the body.
    virtual void paintBody(QPainter &painter, int page) const = 0;

private:
    void paintHead(QPainter &painter, int page) const;

    QPagedPaintDevice &m_device;
    const PageHead m_head;
    qreal m_headHeight;
    QRectF m_body;
};

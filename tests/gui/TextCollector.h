#pragma once

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPointF>
#include <QStringList>

#include <algorithm>

/// Which texts a page has, and where.
struct PageTexts
{
    struct Text
    {
        QString text;
        QPointF place; ///< where its line begins
        qreal points;  ///< size of its font
    };

    [[nodiscard]] QStringList all() const
    {
        QStringList result;
        for (const Text &each : texts)
            result << each.text;
        return result;
    }
    [[nodiscard]] const Text *find(const QString &text) const
    {
        const auto found =
            std::ranges::find_if(texts, [&](const Text &each) { return each.text == text; });
        return found == texts.end() ? nullptr : &*found;
    }

    QList<Text> texts;
    int pixmaps = 0;
};

/// Stands for a page and writes down what is painted.
class TextCollector : public QPaintDevice
{
public:
    TextCollector(const QSize &size, int dotsPerInch)
        : m_size(size)
        , m_dotsPerInch(dotsPerInch)
        , m_engine(*this)
    {
    }

    [[nodiscard]] QPaintEngine *paintEngine() const override { return &m_engine; }
    [[nodiscard]] const PageTexts &page() const { return m_page; }

protected:
    [[nodiscard]] int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return m_size.width();
        case PdmHeight:
            return m_size.height();
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return m_dotsPerInch;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        case PdmDepth:
            return 32;
        default:
            return QPaintDevice::metric(metric);
        }
    }

private:
    class Engine : public QPaintEngine
    {
    public:
        explicit Engine(TextCollector &owner)
            : QPaintEngine(AllFeatures)
            , m_owner(owner)
        {
        }
        bool begin(QPaintDevice *) override { return true; }
        bool end() override { return true; }
        void updateState(const QPaintEngineState &state) override
        {
            if ((state.state() & DirtyTransform) != 0)
                m_transform = state.transform();
        }
        void drawTextItem(const QPointF &place, const QTextItem &item) override
        {
            m_owner.m_page.texts.append({item.text(), m_transform.map(place),
                                         item.font().pointSizeF() * m_transform.m11()});
        }
        void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override
        {
            ++m_owner.m_page.pixmaps;
        }
        void drawPath(const QPainterPath &) override {}
        void drawPolygon(const QPointF *, int, PolygonDrawMode) override {}
        [[nodiscard]] Type type() const override { return User; }

    private:
        TextCollector &m_owner;
        QTransform m_transform;
    };

    QSize m_size;
    int m_dotsPerInch;
    PageTexts m_page;
    mutable Engine m_engine;
};

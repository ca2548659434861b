#pragma once

#include <QIconEngine>

/// Draws the icon of a kind of node at any size from lines on a grid of 16 units.
class NodeIconEngine : public QIconEngine
{
public:
    enum Kind { Directory, Project, ErpProject };

    explicit NodeIconEngine(Kind kind);
    ~NodeIconEngine() override;

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    [[nodiscard]] QIconEngine *clone() const override;
    [[nodiscard]] QString key() const override;

private:
    Kind m_kind;
};

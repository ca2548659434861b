#include "Inks.h"

#include <QLabel>

bool Inks::isDark(const QPalette &palette, QPalette::ColorRole ground)
{
    return palette.color(ground).lightness() < 128;
}

QColor Inks::ink(Ink ink, const QPalette &palette, QPalette::ColorRole ground)
{
    const bool dark = isDark(palette, ground);
    switch (ink) {
    case Ink::Good:
        return dark ? QColor(0x85, 0xd9, 0x96) : QColor(0x1b, 0x6e, 0x1f);
    case Ink::Bad:
        return dark ? QColor(0xff, 0x8a, 0x80) : QColor(0xb3, 0x26, 0x1e);
    case Ink::Warning:
        return dark ? QColor(0xf2, 0xb8, 0x57) : QColor(0x8a, 0x50, 0x00);
    case Ink::Value:
        return dark ? QColor(0x8a, 0xb4, 0xf8) : QColor(0x1a, 0x56, 0xb0);
    case Ink::Quiet:
        return palette.color(QPalette::PlaceholderText);
    case Ink::Plain:
        break;
    }
    const bool onWindow = ground == QPalette::Window;
    return palette.color(onWindow ? QPalette::WindowText : QPalette::Text);
}

QColor Inks::differenceGround(const QPalette &palette)
{
    return isDark(palette) ? QColor(128, 92, 0) : QColor(255, 224, 130);
}

QColor Inks::differenceText(const QPalette &palette)
{
    return isDark(palette) ? Qt::white : Qt::black;
}

void Inks::rewriteLinks(const QWidget *parent)
{
    for (QLabel *const label : parent->findChildren<QLabel *>()) {
        const QString text = label->text();
        if (!text.contains(QLatin1String("<a ")))
            continue;
        label->setText(QString()); // the same one again changes nothing
        label->setText(text);
    }
}

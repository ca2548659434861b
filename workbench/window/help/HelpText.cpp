#include "HelpText.h"

#include <QImage>

namespace {

constexpr int WidestPicture = 680;

} // namespace

HelpText::~HelpText() = default;

QVariant HelpText::loadResource(int type, const QUrl &name)
{
    const QVariant resource = QTextBrowser::loadResource(type, name);
    if (type != QTextDocument::ImageResource)
        return resource;
    const QImage picture = resource.canConvert<QImage>() && !resource.value<QImage>().isNull()
                               ? resource.value<QImage>()
                               : QImage::fromData(resource.toByteArray());
    return picture.width() <= WidestPicture
               ? picture
               : picture.scaledToWidth(WidestPicture, Qt::SmoothTransformation);
}

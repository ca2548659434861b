// Renders the drawings of a folder to bitmaps, in single and double resolution; part of the build.
// A name that ends with _16, _24 and so on gives the size, others are 16 by 16.

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>

#include <cstdio>

namespace {

int sizeFromName(const QString &name)
{
    static const QRegularExpression suffix(QStringLiteral("_(\\d+)$"));
    const QRegularExpressionMatch match = suffix.match(name);
    return match.hasMatch() ? match.captured(1).toInt() : 16;
}

bool render(QSvgRenderer &drawing, int size, const QString &file)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing.render(&painter);
    painter.end();
    return image.save(file, "PNG");
}

/// \a relative is the drawing's path below the input folder.
bool renderDrawing(const QDir &input, const QDir &output, const QString &relative)
{
    QSvgRenderer drawing(input.filePath(relative));
    const QFileInfo info(relative);
    const QString base = output.filePath(info.path() + u'/' + info.completeBaseName());
    const int size = sizeFromName(info.completeBaseName());
    return drawing.isValid() && output.mkpath(info.path()) &&
           render(drawing, size, base + QStringLiteral(".png")) &&
           render(drawing, 2 * size, base + QStringLiteral("@2x.png"));
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 4) {
        std::fputs("usage: velkbitmaps INPUT_FOLDER OUTPUT_FOLDER DRAWING...\n", stderr);
        return 1;
    }
    const QDir input(QString::fromLocal8Bit(argv[1]));
    const QDir output(QString::fromLocal8Bit(argv[2]));
    for (int i = 3; i < argc; ++i) {
        if (!renderDrawing(input, output, QString::fromLocal8Bit(argv[i]))) {
            std::fprintf(stderr, "velkbitmaps: cannot render %s\n", argv[i]);
            return 1;
        }
    }
    return 0;
}

// Build-time tool: draws the app's SVG icon as one square PNG of the given size, so the hicolor
// sizes and the macOS .icns all come from the one drawing.
//   dustlark-icon-render ICON.svg SIZE OUT.png

#include <QCoreApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

namespace {

int fail(const QString& sentence)
{
    std::fprintf(stderr, "dustlark-icon-render: %s\n", qPrintable(sentence));
    return 1;
}

}  // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4)
        return fail(QStringLiteral("usage: dustlark-icon-render ICON.svg SIZE OUT.png"));
    bool isNumber = false;
    const int size = arguments[2].toInt(&isNumber);
    if (!isNumber || size < 1 || size > 4096)
        return fail(QStringLiteral("the size must be a whole number of pixels from 1 to 4096, not \"%1\".").arg(arguments[2]));
    QSvgRenderer renderer(arguments[1]);
    if (!renderer.isValid())
        return fail(QStringLiteral("%1 is not a readable SVG drawing.").arg(arguments[1]));

    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    painter.end();
    if (!image.save(arguments[3], "PNG"))
        return fail(QStringLiteral("could not write %1.").arg(arguments[3]));
    return 0;
}

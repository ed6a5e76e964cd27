#include "App/StatusIcon.h"
#include "Platform/Linux/Tray/IconPainting.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>

#include <cstdlib>

namespace tocca::platform::linux {
namespace {

constexpr int kPixels = 72;

QString installedIcon()
{
    QFile file(QStringLiteral(TOCCA_SYMBOLIC_ICON));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// GTK fills every shape with its own colour and draws no strokes.
QString asGtkColoursIt(QString svg, const QString& colour)
{
    svg.remove(QRegularExpression(QStringLiteral("\\s(fill|class|style|stroke[a-z-]*)=\"[^\"]*\"")));
    svg.replace(QStringLiteral("<path"), QStringLiteral("<path fill=\"%1\"").arg(colour));
    return svg.replace(QStringLiteral("<rect"), QStringLiteral("<rect fill=\"%1\"").arg(colour));
}

/// Plasma puts its colours into the style sheet of that name, and knows no other way.
QString asPlasmaColoursIt(QString svg, const QString& colour)
{
    static const QRegularExpression sheet(
        QStringLiteral("(<style[^>]*id=\"current-color-scheme\"[^>]*>)[^<]*"));
    return svg.replace(sheet, QStringLiteral("\\1.ColorScheme-Text { color: %1; }").arg(colour));
}

QImage rendered(const QString& svg)
{
    QImage image(kPixels, kPixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(svg.toUtf8()).render(&painter);
    return image;
}

/// The share of the pixels that are of the colour in just one of two pictures, in those of either.
double difference(const QImage& one, const QImage& other, const QColor& colour)
{
    const auto isOf = [&colour](const QColor& pixel) {
        constexpr int kNear = 40;
        return pixel.alpha() > 255 / 2 && std::abs(pixel.red() - colour.red()) < kNear &&
               std::abs(pixel.green() - colour.green()) < kNear &&
               std::abs(pixel.blue() - colour.blue()) < kNear;
    };
    int inOne = 0;
    int inEither = 0;
    for (int y = 0; y < kPixels; ++y) {
        for (int x = 0; x < kPixels; ++x) {
            const bool isInFirst = isOf(one.pixelColor(x, y));
            const bool isInSecond = isOf(other.pixelColor(x, y));
            inOne += isInFirst != isInSecond ? 1 : 0;
            inEither += isInFirst || isInSecond ? 1 : 0;
        }
    }
    return inEither == 0 ? 1.0 : static_cast<double>(inOne) / inEither;
}

TEST(SymbolicIcon, IsTheStatusIconInWhateverColourThePanelGivesIt)
{
    const QString icon = installedIcon();
    ASSERT_FALSE(icon.isEmpty());
    for (const char* const name : {"#fcfcfc", "#e01b24", "#0030a0"}) {
        SCOPED_TRACE(name);
        const QColor colour{QLatin1String(name)};
        const QImage drawn = paintIcon(app::statusIcon(), kPixels, colour);
        constexpr double kEdges = 0.12; // of what is one and a half pixels wide, the edges are much
        EXPECT_LT(difference(rendered(asGtkColoursIt(icon, colour.name())), drawn, colour), kEdges);
        EXPECT_LT(difference(rendered(asPlasmaColoursIt(icon, colour.name())), drawn, colour), kEdges);
    }
}

} // namespace
} // namespace tocca::platform::linux

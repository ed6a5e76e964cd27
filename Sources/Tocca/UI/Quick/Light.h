#pragma once

#include <QColor>
#include <QImage>
#include <QRgb>
#include <QSize>

namespace tocca::ui {

/// Light that adds up: a colour whose components are already multiplied by how much it covers. Units: 0…1.
struct Light {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 0;

    [[nodiscard]] static Light of(const QColor& colour) noexcept
    {
        const double alpha = colour.alphaF();
        return {colour.redF() * alpha, colour.greenF() * alpha, colour.blueF() * alpha, alpha};
    }

    [[nodiscard]] friend Light operator*(const Light& light, double share) noexcept
    {
        return {light.red * share, light.green * share, light.blue * share, light.alpha * share};
    }

    [[nodiscard]] friend Light operator+(const Light& a, const Light& b) noexcept
    {
        return {a.red + b.red, a.green + b.green, a.blue + b.blue, a.alpha + b.alpha};
    }

    /// This light in front of `behind`.
    [[nodiscard]] Light over(const Light& behind) const noexcept { return *this + behind * (1 - alpha); }

    /// The pixel of a premultiplied image; `threshold`, 0…1, decides which way a fraction is rounded.
    [[nodiscard]] QRgb pixel(double threshold = 0.5) const noexcept
    {
        const auto level = [threshold](double value) { return static_cast<int>(value * 255 + threshold); };
        return qRgba(level(red), level(green), level(blue), level(alpha));
    }
};

/// The picture of `size` whose pixel in each column and row is `pixelAt(column, row)`, premultiplied.
template <class PixelAt>
[[nodiscard]] QImage picture(const QSize& size, const PixelAt& pixelAt)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    for (int row = 0; row < size.height(); ++row) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(row)); // NOLINT: what the image's format says
        for (int column = 0; column < size.width(); ++column) {
            line[column] = pixelAt(column, row); // NOLINT(*-pointer-arithmetic)
        }
    }
    return image;
}

} // namespace tocca::ui

#pragma once

#include <QColor>
#include <QImage>
#include <QString>

namespace tocca::ui {

/// Whether there is a drawing of that name. Threads: any.
[[nodiscard]] bool hasSymbol(const QString& name);

/// The drawing of a symbol in one colour: what is black in the file is ink, what is white cuts it out.
///
/// Units: `pixels` is the side of the image. Threads: one at a time.
/// Errors: an unknown name gives an empty image.
[[nodiscard]] QImage drawSymbol(const QString& name, int pixels, const QColor& colour);

} // namespace tocca::ui

#include "UI/Underglow/SpatialUnderglowViewModel.h"

namespace tocca::ui {

SpatialUnderglowViewModel::SpatialUnderglowViewModel(SpatialUnderglowController& controller, QObject* parent)
    : QObject(parent)
    , controller_(controller)
    , themeLink_(controller.currentTheme.onChange([this](UnderglowTheme) { Q_EMIT themeChanged(); }))
{}

QColor SpatialUnderglowViewModel::primaryColor() const
{
    return toQColor(controller_.currentTheme.get().primaryColor());
}

QColor SpatialUnderglowViewModel::secondaryColor() const
{
    return toQColor(controller_.currentTheme.get().secondaryColor());
}

} // namespace tocca::ui

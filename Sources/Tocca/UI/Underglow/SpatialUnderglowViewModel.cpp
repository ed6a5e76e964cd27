#include "UI/Underglow/SpatialUnderglowViewModel.h"

#include "UI/Quick/QmlView.h"

#include <QQuickItem>

namespace tocca::ui {

namespace {

QColor toColor(const platform::Colour& colour)
{
    return {colour.red, colour.green, colour.blue};
}

} // namespace

SpatialUnderglowViewModel::SpatialUnderglowViewModel(SpatialUnderglowController& controller, QObject* parent)
    : QObject(parent)
    , controller_(controller)
    , themeLink_(controller.currentTheme.onChange([this](UnderglowTheme) { Q_EMIT themeChanged(); }))
{}

QColor SpatialUnderglowViewModel::primaryColor() const
{
    return toColor(controller_.currentTheme.get().primaryColor());
}

QColor SpatialUnderglowViewModel::secondaryColor() const
{
    return toColor(controller_.currentTheme.get().secondaryColor());
}

QQuickItem* makeSpatialUnderglowView(QQmlEngine& engine, SpatialUnderglowController& controller,
                                     QQuickItem& parent)
{
    auto* model = new SpatialUnderglowViewModel(controller, &parent);
    QQuickItem* view =
        makeQmlView(engine, QStringLiteral("Underglow/SpatialUnderglowContentView.qml"), *model, parent);
    model->setParent(view);
    return view;
}

} // namespace tocca::ui

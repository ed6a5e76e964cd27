#pragma once

#include "UI/Quick/UiProperty.h"
#include "UI/StudioTheme.h"

#include <QColor>
#include <QQmlEngine>

#define STUDIO_COLOUR(name)                                                                                  \
    Q_PROPERTY(QColor name MEMBER name##_ CONSTANT FINAL)                                                    \
    const QColor name##_ = tocca::ui::toQColor(tocca::ui::StudioTheme::name);

namespace tocca::ui {

/// The colours of `StudioTheme` as the views see them. Threads: main.
class StudioColours : public QObject {
    Q_OBJECT
    QML_ELEMENT
    STUDIO_COLOUR(chassisBg)
    STUDIO_COLOUR(panelBg)
    STUDIO_COLOUR(cardBg)
    STUDIO_COLOUR(cardBorder)
    STUDIO_COLOUR(amberAccent)
    STUDIO_COLOUR(amberGlow)
    STUDIO_COLOUR(mintStatus)
    STUDIO_COLOUR(textPrimary)
    STUDIO_COLOUR(textSecondary)
    STUDIO_COLOUR(textMuted)
};

} // namespace tocca::ui

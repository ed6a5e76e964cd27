#include "UI/NotchHUD/NotchHUDViewModel.h"

#include "UI/NotchHUD/Waveform.h"
#include "UI/Quick/QmlView.h"

#include <QQuickItem>

namespace tocca::ui {

NotchHUDViewModel::NotchHUDViewModel(NotchAcousticHUDController& controller, QObject* parent)
    : QObject(parent)
    , controller_(controller)
    , isExpandedLink_(controller.isExpanded.onChange([this](bool) {
        Q_EMIT motionChanged();
        Q_EMIT isExpandedChanged();
    }))
    , speedLink_(controller.currentWPM.onChange([this](std::int64_t) { Q_EMIT speedChanged(); }))
{}

bool NotchHUDViewModel::isFast() const
{
    return controller_.currentWPM.get() > kFastTyping;
}

const SpringParameters& NotchHUDViewModel::motion() const
{
    return isExpanded() ? NotchAcousticHUDController::kOpening : NotchAcousticHUDController::kClosing;
}

QQuickItem* makeNotchHUDView(QQmlEngine& engine, NotchAcousticHUDController& controller, QQuickItem& parent)
{
    auto* model = new NotchHUDViewModel(controller, &parent);
    QQuickItem* view =
        makeQmlView(engine, QStringLiteral("NotchHUD/NotchHUDContentView.qml"), *model, parent);
    model->setParent(view);
    return view;
}

} // namespace tocca::ui

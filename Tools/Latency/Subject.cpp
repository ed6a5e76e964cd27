#include "Subject.h"

#include "Platform/Linux/Qt/Windows/QuickView.h"
#include "UI/NotchHUD/NotchHUDViewModel.h"
#include "UI/Quick/QmlView.h"
#include "UI/Underglow/SpatialUnderglowViewModel.h"

#include <QGuiApplication>
#include <QQuickWindow>

#include <ctime>

namespace tocca::latency {

namespace {

constexpr std::size_t kTraceCapacity = 4096;
constexpr double kNanosecond = 1e-9;

} // namespace

Subject::Subject()
    : trace_(kTraceCapacity)
    , mixer_(system_.clock())
    , output_(standardOutput_)
    , players_(output_, mixer_)
    , host_(system_.with(players_))
    , loader_(host_)
    , engine_(host_, loader_, [] { return false; })
    , monitor_(host_, engine_)
    , hud_(host_, engine_, monitor_,
           [this] {
               return std::make_unique<platform::linux::QuickView>([this](QQuickItem& parent) {
                   return ui::makeOverlayView<ui::NotchHUDViewModel>(views_, hud_, parent);
               });
           })
    , underglow_(host_, engine_, [this] {
        return std::make_unique<platform::linux::QuickView>([this](QQuickItem& parent) {
            return ui::makeOverlayView<ui::SpatialUnderglowViewModel>(views_, underglow_, parent);
        });
    })
{
    engine_.selectedCustomPack.set(pack_.info());
    mixer_.setTrace(&trace_);
    output_.start(mixer_);
    setOverlaysEnabled(false);
    hud_.setup();
    underglow_.setup();
    countFrames();
}

void Subject::setOverlaysEnabled(bool enabled)
{
    hud_.isEnabled.set(enabled);
    underglow_.isEnabled.set(enabled);
}

void Subject::countFrames()
{
    for (QWindow* const window : QGuiApplication::allWindows()) {
        if (auto* const quick = qobject_cast<QQuickWindow*>(window)) {
            // Where the windows are drawn by a thread of their own, it is that thread that tells.
            QObject::connect(
                quick, &QQuickWindow::frameSwapped, quick, [this] { ++framesPainted_; },
                Qt::DirectConnection);
        }
    }
}

double Subject::mainThreadWork() const noexcept
{
    clockid_t clock{};
    timespec worked{};
    if (pthread_getcpuclockid(mainThread_, &clock) != 0 || clock_gettime(clock, &worked) != 0) {
        return 0.0;
    }
    return static_cast<double>(worked.tv_sec) + static_cast<double>(worked.tv_nsec) * kNanosecond;
}

std::vector<double> Subject::takeTimesToFirstSample()
{
    std::vector<double> times;
    while (const auto entry = trace_.next()) {
        times.push_back(entry->renderedAt - entry->eventTime);
    }
    return times;
}

} // namespace tocca::latency

#include "Platform/Linux/Freedesktop/LinuxWorkspace.h"

#include "Platform/Linux/Freedesktop/Applications/WindowOwner.h"
#include "Platform/Linux/System/ProcessNames.h"
#include "Platform/Linux/System/WaylandSession.h"

#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include <utility>

namespace tocca::platform::linux {

namespace {

constexpr double kRetry = 2.0; // seconds

WindowOwner ownerOf(const WindowFacts& window)
{
    return {.applicationIds = {sandboxedApplication(window.process), window.kdeDesktopFile,
                               window.gtkApplicationId},
            .windowClasses = {window.instance, window.className},
            .executable = ProcessNames::of(window.process).executable};
}

} // namespace

LinuxWorkspace::LinuxWorkspace(SecureInput& secureInput, Timers& timers)
    : secureInput_(secureInput)
    , timers_(timers)
{
    if (!isWaylandSession()) {
        connect();
    }
}

LinuxWorkspace::~LinuxWorkspace() = default;

bool LinuxWorkspace::openUrl(const std::string& url)
{
    const QUrl parsed(QString::fromStdString(url), QUrl::StrictMode);
    // What begins with a scheme cannot be mistaken for an option.
    if (!parsed.isValid() || parsed.scheme().isEmpty()) {
        return false;
    }
    const QString program = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (program.isEmpty()) {
        return false;
    }
    QProcess opener;
    opener.setProgram(program);
    opener.setArguments({parsed.toString(QUrl::FullyEncoded)});
    // What the opened program prints must not appear among this program's lines.
    opener.setStandardOutputFile(QProcess::nullDevice());
    opener.setStandardErrorFile(QProcess::nullDevice());
    return opener.startDetached();
}

Subscription LinuxWorkspace::onActivation(ActivationHandler handler)
{
    return activations_.add([this, handler = std::move(handler)] { handler(frontmost_); });
}

void LinuxWorkspace::connect()
{
    watch_ = DesktopWatch::open(
        {.frontChanged = [this](const std::optional<WindowFacts>& window) { setFront(window); },
         .promptChanged = [this](bool isPrompting) { secureInput_.set(SecureInput::kPrompt, isPrompting); }});
    if (!watch_) {
        retry_ = timers_.scheduleOnce(kRetry, [this] { connect(); });
        return;
    }
    notifier_ = std::make_unique<QSocketNotifier>(watch_->fd(), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { serve(); });
}

void LinuxWorkspace::serve()
{
    if (!watch_->serve()) {
        notifier_->setEnabled(false);
        // Later, because the notifier is calling.
        retry_ = timers_.scheduleOnce(0.0, [this] { lose(); });
    }
}

void LinuxWorkspace::lose()
{
    notifier_.reset();
    watch_.reset();
    secureInput_.set(SecureInput::kPrompt, false);
    setFront(std::nullopt);
    retry_ = timers_.scheduleOnce(kRetry, [this] { connect(); });
}

void LinuxWorkspace::setFront(const std::optional<WindowFacts>& window)
{
    auto application = window ? applicationOf(ownerOf(*window), entries_) : std::nullopt;
    if (application == frontmost_) {
        return;
    }
    frontmost_ = std::move(application);
    activations_.call();
}

} // namespace tocca::platform::linux

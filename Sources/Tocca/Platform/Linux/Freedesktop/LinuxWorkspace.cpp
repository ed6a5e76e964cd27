#include "Platform/Linux/Freedesktop/LinuxWorkspace.h"

#include "Platform/Linux/Freedesktop/Applications/WindowOwner.h"
#include "Platform/Linux/Freedesktop/DBusReply.h"
#include "Platform/Linux/Freedesktop/DesktopNotice.h"
#include "Platform/Linux/System/ProcessNames.h"
#include "Platform/Linux/System/WaylandSession.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QStringList>

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

LinuxWorkspace::LinuxWorkspace(SecureInput& secureInput, Timers& timers, std::function<void()> showSettings)
    : secureInput_(secureInput)
    , timers_(timers)
    , showSettings_(std::move(showSettings))
    , shellPrompt_(QDBusConnection::sessionBus(), timers,
                   [this](bool isPrompting) { secureInput_.set(SecureInput::kShell, isPrompting); })
{
    if (!isWaylandSession()) {
        connect();
    }
}

LinuxWorkspace::~LinuxWorkspace() = default;

bool LinuxWorkspace::openUrl(const std::string& url)
{
    const QUrl parsed(QString::fromStdString(url), QUrl::StrictMode);
    if (parsed.scheme() == QLatin1String("x-apple.systempreferences")) {
        showSettings_();
        return true;
    }
    if (!parsed.isLocalFile()) {
        return false;
    }
    showFolder(parsed);
    return true;
}

void LinuxWorkspace::showFolder(const QUrl& folder)
{
    const auto kService = QStringLiteral("org.freedesktop.FileManager1");
    auto call = QDBusMessage::createMethodCall(kService, QStringLiteral("/org/freedesktop/FileManager1"),
                                               kService, QStringLiteral("ShowFolders"));
    call << QStringList(folder.toString(QUrl::FullyEncoded)) << QString();
    const auto bus = QDBusConnection::sessionBus();
    whenAnswered(bus.asyncCall(call), replies_, [bus, folder](const auto& reply) {
        if (reply.isError()) {
            sendDesktopNotice(
                bus, QStringLiteral("No file manager answers. The folder is %1").arg(folder.toLocalFile()));
        }
    });
}

Subscription LinuxWorkspace::onActivation(ActivationHandler handler)
{
    return activations_.add([this, handler = std::move(handler)] { handler(frontmost_); });
}

void LinuxWorkspace::connect()
{
    watch_ = DesktopWatch::open(
        {.frontChanged = [this](const std::optional<WindowFacts>& window) { setFront(window); },
         .promptChanged = [this](bool isPrompting) { secureInput_.set(SecureInput::kPrompt, isPrompting); },
         .shellFocused = [this](bool isFocused) { shellPrompt_.setFocused(isFocused); }});
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
    shellPrompt_.setFocused(false);
    setFront(std::nullopt);
    retry_ = timers_.scheduleOnce(kRetry, [this] { connect(); });
}

void LinuxWorkspace::setFront(const std::optional<WindowFacts>& window)
{
    auto application = window ? std::optional(applicationOf(ownerOf(*window), entries_)) : std::nullopt;
    if (application == frontmost_) {
        return;
    }
    frontmost_ = std::move(application);
    activations_.call();
}

} // namespace tocca::platform::linux

#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QVariantMap>

#include <filesystem>
#include <functional>
#include <optional>

namespace tocca::platform::linux {

/// One request to the desktop portal to let the person choose a folder. With the portal it ends, too. Threads: main.
class FolderPortal : public QObject {
    Q_OBJECT

public:
    struct Observers {
        std::function<void(std::optional<std::filesystem::path>)> chosen; ///< nothing: cancelled
        std::function<void()> unavailable; ///< there is no portal, it refused, or it went away
    };

    FolderPortal(QDBusConnection bus, Observers observers);
    ~FolderPortal() override;

    /// `parent` is the portal's name for a window. Order: once; one of the observers is called later, and once.
    void ask(const QString& prompt, const QString& parent);

    /// Whether the portal has taken the request: it shows its dialog, or is about to.
    [[nodiscard]] bool isTaken() const noexcept { return isTaken_; }

private:
    Q_SLOT void answered(uint response, const QVariantMap& results);
    void fail();

    QDBusConnection bus_;
    Observers observers_;
    QString handle_;
    bool isTaken_ = false;
};

} // namespace tocca::platform::linux

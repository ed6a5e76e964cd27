#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QVariantMap>

#include <filesystem>
#include <functional>
#include <optional>

namespace tocca::platform::linux {

/// One request to the desktop portal to let the person choose a folder. Threads: main.
class FolderPortal : public QObject {
    Q_OBJECT

public:
    struct Observers {
        std::function<void(std::optional<std::filesystem::path>)> chosen; ///< nothing: cancelled
        std::function<void()> unavailable; ///< there is no portal, or it refused
    };

    FolderPortal(QDBusConnection bus, Observers observers);

    /// `parent` is the portal's name for a window. Order: once; one of the observers is called later.
    void ask(const QString& prompt, const QString& parent);

private:
    Q_SLOT void answered(uint response, const QVariantMap& results);

    QDBusConnection bus_;
    const Observers observers_;
};

} // namespace tocca::platform::linux

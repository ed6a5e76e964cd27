#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

#include <functional>

namespace tocca::platform::linux {

/// The program on the session bus: it owns the name, and receives what launchers and a second instance ask of it. Threads: main.
class ApplicationService : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    struct Commands {
        std::function<void()> activate;
        std::function<void()> quit; ///< the launcher action "quit"
    };

    ApplicationService(QDBusConnection bus, Commands commands);
    ~ApplicationService() override;

    /// Takes the name; true also where there is no bus. When another instance has it, asks that one to come to the front, waits up to five
    /// seconds for the reply, and returns false.
    [[nodiscard]] bool claim();

public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers)
    // By the names of the protocol.
    void Activate(const QVariantMap& platformData);
    void Open(const QStringList& uris, const QVariantMap& platformData);
    void ActivateAction(const QString& name, const QVariantList& parameters, const QVariantMap& platformData);

private:
    void adopt(const QVariantMap& platformData);

    QDBusConnection bus_;
    const Commands commands_;
};

} // namespace tocca::platform::linux

#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

#include <cstdint>
#include <functional>
#include <string>

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

    enum class Claim : std::uint8_t {
        first,     ///< nobody else has the name
        told,      ///< another instance has it, and comes to the front
        unanswered ///< another instance has it, and does not answer
    };

    /// `display` is what `chooseDisplay` calls it: each display has an instance of its own, though they may share a bus.
    ApplicationService(QDBusConnection bus, const std::string& display, Commands commands);
    ~ApplicationService() override;

    /// Takes the name; it is the first also where there is no bus. When another instance has it, asks that one to come to the front, with
    /// what the desktop calls this launch, and waits up to five seconds for the reply.
    [[nodiscard]] Claim claim(const QByteArray& launch);

public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers)
    // By the names of the protocol.
    void Activate(const QVariantMap& platformData);
    void Open(const QStringList& uris, const QVariantMap& platformData);
    void ActivateAction(const QString& name, const QVariantList& parameters, const QVariantMap& platformData);

private:
    void adopt(const QVariantMap& platformData);

    QDBusConnection bus_;
    const QString name_; // of the display's instance; the program's own leads to the first of them
    const Commands commands_;
};

} // namespace tocca::platform::linux

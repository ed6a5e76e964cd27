#include "Instruments/ScreenReader.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusReply>
#include <QRect>
#include <algorithm>
#include <array>
#include <stdexcept>

namespace tocca::instruments {
namespace {

using namespace std::chrono_literals;

constexpr const char* kConnection = "accessibility";
constexpr int kTimeout = 5000; // milliseconds
constexpr int kDeepest = 40;

/// An object of a program, as the bus names it.
struct Reference {
    QString service;
    QString path;
};

const QDBusArgument& operator>>(const QDBusArgument& argument, Reference& reference)
{
    QDBusObjectPath path;
    argument.beginStructure();
    argument >> reference.service >> path;
    argument.endStructure();
    reference.path = path.path();
    return argument;
}

QString addressOfTheBus()
{
    QDBusMessage ask =
        QDBusMessage::createMethodCall("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress");
    const QDBusReply<QString> reply = QDBusConnection::sessionBus().call(ask, QDBus::Block, kTimeout);
    return reply.value();
}

} // namespace

class ScreenReader::Bus {
public:
    explicit Bus(const QString& address)
        : connection_(QDBusConnection::connectToBus(address, kConnection))
    {
        if (!connection_.isConnected()) {
            throw std::runtime_error("the accessibility bus cannot be reached");
        }
    }

    Bus(const Bus&) = delete;
    Bus& operator=(const Bus&) = delete;

    ~Bus() { QDBusConnection::disconnectFromBus(kConnection); }

    void collect(const Reference& reference, std::vector<Control>& into, int depth = 0) const
    {
        if (depth > kDeepest) {
            return;
        }
        if (depth > 0) {
            into.push_back(describe(reference));
        }
        const QDBusMessage reply = call(reference, "org.a11y.atspi.Accessible", "GetChildren");
        if (reply.arguments().isEmpty()) {
            return;
        }
        const auto argument = reply.arguments().at(0).value<QDBusArgument>();
        std::vector<Reference> children;
        argument.beginArray();
        while (!argument.atEnd()) {
            argument >> children.emplace_back();
        }
        argument.endArray();
        for (const Reference& child : children) {
            collect(child, into, depth + 1);
        }
    }

private:
    [[nodiscard]] QDBusMessage call(const Reference& reference, const char* interface, const char* method,
                                    const QVariantList& arguments = {}) const
    {
        QDBusMessage message =
            QDBusMessage::createMethodCall(reference.service, reference.path, interface, method);
        message.setArguments(arguments);
        return connection_.call(message, QDBus::Block, kTimeout);
    }

    [[nodiscard]] Control describe(const Reference& reference) const
    {
        Control control;
        const QDBusReply<QDBusVariant> name =
            call(reference, "org.freedesktop.DBus.Properties", "Get", {"org.a11y.atspi.Accessible", "Name"});
        control.name = name.value().variant().toString().toStdString();
        const QDBusReply<QString> role = call(reference, "org.a11y.atspi.Accessible", "GetRoleName");
        control.role = role.value().toStdString();
        readExtents(reference, control);
        readStates(reference, control);
        return control;
    }

    void readExtents(const Reference& reference, Control& control) const
    {
        const QDBusMessage reply = call(reference, "org.a11y.atspi.Component", "GetExtents", {0U});
        if (reply.arguments().isEmpty()) {
            return;
        }
        const auto argument = reply.arguments().at(0).value<QDBusArgument>();
        argument.beginStructure();
        argument >> control.x >> control.y >> control.width >> control.height;
        argument.endStructure();
    }

    void readStates(const Reference& reference, Control& control) const
    {
        constexpr unsigned kChecked = 4;
        constexpr unsigned kEnabled = 8;
        constexpr unsigned kFocusable = 11;
        constexpr unsigned kFocused = 12;
        constexpr unsigned kShowing = 25;
        const QDBusReply<QList<unsigned>> reply = call(reference, "org.a11y.atspi.Accessible", "GetState");
        const QList<unsigned> words = reply.value();
        const auto has = [&words](unsigned state) {
            return !words.isEmpty() && (words.at(0) >> state & 1U) != 0;
        };
        control.isChecked = has(kChecked);
        control.isEnabled = has(kEnabled);
        control.isFocusable = has(kFocusable);
        control.isFocused = has(kFocused);
        control.isShowing = has(kShowing);
    }

    QDBusConnection connection_;
};

ScreenReader::ScreenReader(Start start)
    : launcher_({"/usr/libexec/at-spi-bus-launcher", "--launch-immediately",
                 start == Start::on ? "--a11y=1" : "--a11y=0",
                 start == Start::on ? "--screen-reader=1" : "--screen-reader=0"})
{
    QString address;
    if (!becomesTrue([&address] { return !(address = addressOfTheBus()).isEmpty(); })) {
        throw std::runtime_error("there is no accessibility bus: " + launcher_.output());
    }
    bus_ = std::make_unique<Bus>(address);
}

ScreenReader::~ScreenReader() = default;

void ScreenReader::switchOn()
{
    for (const char* property : {"IsEnabled", "ScreenReaderEnabled"}) {
        QDBusMessage set = QDBusMessage::createMethodCall("org.a11y.Bus", "/org/a11y/bus",
                                                          "org.freedesktop.DBus.Properties", "Set");
        set << "org.a11y.Status" << property << QVariant::fromValue(QDBusVariant(true));
        const QDBusMessage reply = QDBusConnection::sessionBus().call(set, QDBus::Block, kTimeout);
        if (reply.type() == QDBusMessage::ErrorMessage) {
            throw std::runtime_error(reply.errorMessage().toStdString());
        }
    }
}

std::optional<Control> ScreenReader::focused() const
{
    const auto all = controls();
    const auto found =
        std::find_if(all.rbegin(), all.rend(), [](const Control& control) { return control.isFocused; });
    return found != all.rend() ? std::optional(*found) : std::nullopt;
}

std::vector<Control> ScreenReader::controls() const
{
    std::vector<Control> all;
    bus_->collect({"org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root"}, all);
    return all;
}

std::optional<Control> ScreenReader::find(const std::string& name, const std::string& role,
                                          std::chrono::milliseconds deadline) const
{
    std::optional<Control> found;
    (void)becomesTrue(
        [&] {
            const auto all = controls();
            const auto match = std::find_if(all.begin(), all.end(), [&](const Control& control) {
                return control.name == name && (role.empty() || control.role == role) && control.isShowing;
            });
            if (match != all.end()) {
                found = *match;
            }
            return found.has_value();
        },
        deadline);
    return found;
}

} // namespace tocca::instruments

#pragma once

#include "Platform/Desktop/Geometry.h"
#include "Support/Published.h"
#include "Support/Subscription.h"

#include <QColor>
#include <QObject>
#include <QString>

#include <optional>
#include <string>
#include <string_view>

namespace tocca::ui {

/// A controller's value as QML sees it.
template <class Type, class Value>
[[nodiscard]] Type toQt(const Value& value)
{
    return static_cast<Type>(value);
}

/// Text crosses as UTF-8; what is not becomes replacement characters.
template <class Type>
[[nodiscard]] QString toQt(const std::string& value)
{
    return QString::fromStdString(value);
}

/// An absent text is an empty one.
template <class Type>
[[nodiscard]] QString toQt(const std::optional<std::string>& value)
{
    return value ? QString::fromStdString(*value) : QString();
}

[[nodiscard]] inline QColor toQColor(const platform::Colour& colour)
{
    return {colour.red, colour.green, colour.blue};
}

[[nodiscard]] inline QString toQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace tocca::ui

/// Mirrors a Published<…> as a read-only QML property: typed getter, NOTIFY signal and subscription in one line.
/// Order: `source` must be reachable from members declared above the line.
#define UI_PROPERTY(Type, name, source)                                                                      \
    Q_PROPERTY(Type name READ name NOTIFY name##Changed FINAL)                                               \
public:                                                                                                      \
    [[nodiscard]] Type name() const                                                                          \
    {                                                                                                        \
        return tocca::ui::toQt<Type>((source).get());                                                        \
    }                                                                                                        \
    Q_SIGNAL void name##Changed();                                                                           \
                                                                                                             \
private:                                                                                                     \
    tocca::Subscription name##Link_ = (source).onChange([this](const auto&) { Q_EMIT name##Changed(); });
